#include "net/kept.h"

#include "net/error.h"

namespace gpi {

GNetLock* Keeper::keep(const std::shared_ptr<const Kept>& kept) {
    const std::lock_guard lock(mutex_);
    GNetLock* const handle = locks_.add(kept);
    require(handle != nullptr, G_NET_TOO_MANY);
    byKey_.emplace(kept->key, kept); // behind the others of this key
    return handle;
}

std::shared_ptr<const Kept> Keeper::find(const std::string& key) {
    const std::lock_guard lock(mutex_);
    const auto [begin, end] = byKey_.equal_range(key);
    return begin != end ? std::prev(end)->second : nullptr;
}

void Keeper::giveUp(const GNetLock* lock) {
    const auto kept = locks_.remove(lock);
    require(kept != nullptr, G_NET_HANDLE);
    const std::lock_guard guard(mutex_);
    std::erase_if(byKey_, [&kept](const auto& entry) { return entry.second == kept; });
}

size_t KeptSource::read(uint8_t* buffer, size_t size) {
    const size_t count = kept_->bytes.copy(reinterpret_cast<char*>(buffer), size, position_);
    position_ += count;
    return count;
}

} // namespace gpi
