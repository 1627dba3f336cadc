// The headers of a request.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace gpi {

class HeaderList {
  public:
    /// Adds headers with a CR LF between them. All or none are added.
    ///
    /// @param flags G_HEADER_ADD, G_HEADER_REPLACE or 0 @throws NetError
    void add(const std::string& headers, uint32_t flags);

    bool has(const std::string& name) const;

    /// As libcurl wants them: one that is empty or removed is written in its own way.
    std::vector<std::string> forCurl() const;

  private:
    struct Header {
        std::string name;
        std::string value;
        bool removed = false; ///< also where libcurl would send one by itself
    };

    static Header parse(const std::string& line);
    void addOne(Header header, uint32_t flags);

    std::vector<Header> headers_;
};

/// Whether text can be the name of a header or of a verb.
bool isToken(std::string_view text);

} // namespace gpi
