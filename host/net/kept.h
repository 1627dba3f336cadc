// Contents that are kept for later.
#pragma once

#include "handle_table.h"
#include "net/http_head.h"
#include "net/source.h"

#include <quarlo/network.h>

#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace gpi {

/// What was read of a request or a file, from its begin.
struct Kept {
    std::string key; ///< URL, user and password: nobody else gets it
    HttpHead head;
    std::string bytes;
};

/// Keeps contents for as long as someone locks them. May be used from any thread.
class Keeper {
  public:
    /// @throws NetError G_NET_TOO_MANY
    GNetLock* keep(const std::shared_ptr<const Kept>& kept);

    /// The last that was kept under a key, or null.
    std::shared_ptr<const Kept> find(const std::string& key);

    /// @throws NetError G_NET_HANDLE
    void giveUp(const GNetLock* lock);

  private:
    HandleTable<GNetLock, const Kept> locks_;
    std::mutex mutex_;
    std::multimap<std::string, std::shared_ptr<const Kept>> byKey_;
};

/// Reads what was kept.
class KeptSource : public Source {
  public:
    KeptSource(std::shared_ptr<const Kept> kept, size_t position)
        : kept_(std::move(kept)), position_(position) {}

    size_t read(uint8_t* buffer, size_t size) override;
    size_t available() override { return kept_->bytes.size() - position_; }
    bool good() const override { return true; }

  private:
    std::shared_ptr<const Kept> kept_;
    size_t position_;
};

} // namespace gpi
