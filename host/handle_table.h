// Handles that a program can neither forge nor use after it gave them back.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace gpi {

/// Objects under opaque handles. A handle is a place and the count of how often it was used, so one
/// that was closed is not taken for the next one there. May be used from any thread; an object in
/// use lives until its last user is done, whoever closes it.
///
/// @tparam Handle the incomplete type that the handles of the public interface point to
template <typename Handle, typename Object>
class HandleTable {
  public:
    /// Puts an object under a handle. Null when all places are taken.
    Handle* add(std::shared_ptr<Object> object) {
        const std::lock_guard lock(mutex_);
        size_t place = 0;
        while (place < slots_.size() && slots_[place].object != nullptr) {
            ++place;
        }
        if (place == kPlaces) {
            return nullptr;
        }
        if (place == slots_.size()) {
            slots_.emplace_back();
        }
        Slot& slot = slots_[place];
        slot.object = std::move(object);
        slot.uses = slot.uses % kUses + 1;
        // NOLINTNEXTLINE(performance-no-int-to-ptr): a number that travels as a pointer
        return reinterpret_cast<Handle*>(slot.uses * kPlaces + place);
    }

    /// The object of a handle, or null.
    std::shared_ptr<Object> find(const Handle* handle) const {
        const std::lock_guard lock(mutex_);
        const Slot* const slot = slotOf(handle);
        return slot != nullptr ? slot->object : nullptr;
    }

    /// Takes an object from under its handle. Null when there is none.
    std::shared_ptr<Object> remove(const Handle* handle) {
        const std::lock_guard lock(mutex_);
        const Slot* const slot = slotOf(handle);
        return slot != nullptr ? std::exchange(slots_[placeOf(handle)].object, nullptr) : nullptr;
    }

  private:
    struct Slot {
        std::shared_ptr<Object> object;
        uintptr_t uses = 0;
    };

    static constexpr uintptr_t kPlaces = 1024;
    static constexpr uintptr_t kUses = 0x1FFFFF; // 32 bits hold both

    static size_t placeOf(const Handle* handle) {
        return reinterpret_cast<uintptr_t>(handle) % kPlaces;
    }

    const Slot* slotOf(const Handle* handle) const {
        const size_t place = placeOf(handle);
        const uintptr_t uses = reinterpret_cast<uintptr_t>(handle) / kPlaces;
        return place < slots_.size() && slots_[place].uses == uses ? &slots_[place] : nullptr;
    }

    mutable std::mutex mutex_;
    std::vector<Slot> slots_;
};

} // namespace gpi
