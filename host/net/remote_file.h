// What is read of a server, from any position.
#pragma once

#include "net/kept.h"
#include "net/node.h"
#include "net/transfer.h"

#include <cstdint>
#include <memory>
#include <string>

namespace gpi {

/// A request or an open file, as far as its contents are concerned.
class RemoteFile : public Node {
  public:
    /// @param asked the URL that was asked for
    RemoteFile(int32_t kind, std::shared_ptr<Node> parent, Options options, std::string asked)
        : Node(kind, std::move(parent), std::move(options)), asked_(std::move(asked)) {}

    std::string url() const override { return asked_; }

    // The results are those of network.h; all throw NetError.
    int32_t read(void* buffer, int32_t size);
    int32_t seek(int32_t offset, int32_t origin);
    int32_t available();
    void write(const void* buffer, int32_t size, int32_t* written);

    /// What has been read so far. @throws NetError G_NET_NO_MEMORY when that is too much
    std::shared_ptr<const Kept> keep() const;

    /// What distinguishes the contents from others; see Kept.
    std::string key() const;

    /// Takes what was kept for the contents.
    virtual void begin(std::shared_ptr<const Kept> kept);

  protected:
    /// Contents come from now on.
    ///
    /// @param size of the whole in bytes; -1 when not told
    void begin(std::unique_ptr<Source> source, int64_t size);

    /// The head that is kept with the contents.
    ///
    /// @throws NetError where they are not the same for everyone who asks for the URL
    virtual HttpHead headToKeep() const { return {}; }

    /// What write() goes to; null while nothing can be written.
    std::unique_ptr<Transfer> sending;

    /// Asks the server for the contents from a position on. @throws NetError
    virtual std::unique_ptr<Source> reopen(int64_t position) = 0;

  private:
    void requireBegun() const;
    void record(const uint8_t* bytes, size_t count);
    std::unique_ptr<Source> openAt(int64_t position);

    const std::string asked_;
    std::unique_ptr<Source> source_;
    std::shared_ptr<const Kept> kept_;
    bool begun_ = false;
    int64_t size_ = -1;
    int64_t position_ = 0;
    std::string recorded_; ///< the begin of the contents
    bool overfull_ = false;
};

} // namespace gpi
