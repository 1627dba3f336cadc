// The head of an answer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gpi {

/// Status line and headers. Of several answers that follow each other the last one counts.
class HttpHead {
  public:
    /// Takes a line without its end.
    ///
    /// @return whether it ended the head @throws NetError when there is no end of headers
    bool take(std::string_view line);

    int32_t status() const { return status_; }
    const std::string& statusText() const { return statusText_; }
    const std::string& version() const { return version_; }

    /// The value of a header, of several with that name the one of an index.
    std::optional<std::string> field(std::string_view name, size_t index = 0) const;

    /// All headers, a CR LF after each.
    std::string allFields() const;

  private:
    int32_t status_ = 0;
    std::string statusText_;
    std::string version_;
    std::vector<std::string> fields_;
};

} // namespace gpi
