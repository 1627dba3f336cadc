#include "memory/heap.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace gpi {
namespace {

/// What checked mode leaves in bytes that nobody has written, and in those given back.
constexpr int kFreshByte = 0xA5;
constexpr int kFreedByte = 0x5A;

struct Free {
    void operator()(void* block) const { std::free(block); }
};

} // namespace

Heap::~Heap() {
    for (auto& [number, space] : spaces_) {
        dropAll(space);
    }
}

void Heap::setDefaultLimit(size_t bytes) {
    const std::lock_guard lock(mutex_);
    defaultLimit_ = bytes;
}

void Heap::setChecked(bool checked) {
    const std::lock_guard lock(mutex_);
    checked_ = checked;
}

bool Heap::open(int32_t space, size_t limit) {
    const std::lock_guard lock(mutex_);
    const Space* const old = find(space);
    if (old != nullptr && limit != 0 && limit < old->used) {
        return false;
    }
    spaces_[space].limit = limit;
    return true;
}

bool Heap::close(int32_t space, bool force) {
    const std::lock_guard lock(mutex_);
    Space* const closed = find(space);
    if (closed == nullptr || (!closed->blocks.empty() && !force)) {
        return false;
    }
    dropAll(*closed);
    spaces_.erase(space);
    return true;
}

void* Heap::allocate(int32_t space, int32_t size, bool zeroed) {
    const std::lock_guard lock(mutex_);
    if (size <= 0) {
        return nullptr;
    }
    Space& owner = openSpace(space);
    const auto bytes = static_cast<size_t>(size);
    return owner.hasRoomFor(bytes) ? obtain(owner, bytes, zeroed) : nullptr;
}

void* Heap::resize(int32_t space, void* block, int32_t size, bool zeroed) {
    if (block == nullptr) {
        return allocate(space, size, zeroed);
    }
    const std::lock_guard lock(mutex_);
    Space* const owner = find(space);
    if (owner == nullptr || size <= 0) {
        return nullptr;
    }
    const auto old = owner->blocks.find(block);
    if (old == owner->blocks.end()) {
        return nullptr;
    }
    const auto newSize = static_cast<size_t>(size);
    const Block known = old->second;
    if (!owner->hasRoomFor(newSize, known.size)) {
        return nullptr;
    }
    void* const moved = obtain(*owner, newSize, zeroed);
    if (moved == nullptr) {
        return nullptr;
    }
    std::memcpy(moved, block, std::min(known.size, newSize));
    owner->blocks[moved].resetFrees = known.resetFrees;
    drop(*owner, owner->blocks.find(block));
    return moved;
}

bool Heap::release(int32_t space, void* block) {
    const std::lock_guard lock(mutex_);
    Space* const owner = find(space);
    if (owner == nullptr) {
        return false;
    }
    const auto known = owner->blocks.find(block);
    if (known == owner->blocks.end()) {
        return false;
    }
    drop(*owner, known);
    return true;
}

bool Heap::beginReset(int32_t space) {
    const std::lock_guard lock(mutex_);
    Space* const reset = find(space);
    if (reset == nullptr || reset->resetting) {
        return false;
    }
    for (auto& [address, block] : reset->blocks) {
        block.resetFrees = true;
    }
    reset->resetting = true;
    return true;
}

bool Heap::endReset(int32_t space) {
    const std::lock_guard lock(mutex_);
    Space* const reset = find(space);
    if (reset == nullptr || !reset->resetting) {
        return false;
    }
    for (auto block = reset->blocks.begin(); block != reset->blocks.end();) {
        const auto next = std::next(block);
        if (block->second.resetFrees) {
            drop(*reset, block);
        }
        block = next;
    }
    reset->resetting = false;
    return true;
}

bool Heap::cancelReset(int32_t space) {
    const std::lock_guard lock(mutex_);
    Space* const reset = find(space);
    if (reset == nullptr || !reset->resetting) {
        return false;
    }
    for (auto& [address, block] : reset->blocks) {
        block.resetFrees = false;
    }
    reset->resetting = false;
    return true;
}

size_t Heap::used(int32_t space) const {
    const std::lock_guard lock(mutex_);
    const auto found = spaces_.find(space);
    return found != spaces_.end() ? found->second.used : 0;
}

Heap::Space* Heap::find(int32_t space) {
    const auto found = spaces_.find(space);
    return found != spaces_.end() ? &found->second : nullptr;
}

Heap::Space& Heap::openSpace(int32_t space) {
    const auto [entry, opened] = spaces_.try_emplace(space);
    if (opened) {
        entry->second.limit = defaultLimit_;
    }
    return entry->second;
}

void* Heap::obtain(Space& space, size_t size, bool zeroed) {
    std::unique_ptr<void, Free> block(std::malloc(size));
    if (block == nullptr) {
        return nullptr;
    }
    space.blocks.emplace(block.get(), Block{size, false});
    space.used += size;
    fillFresh(block.get(), size, zeroed);
    return block.release();
}

void Heap::fillFresh(void* bytes, size_t count, bool zeroed) const {
    if (zeroed) {
        std::memset(bytes, 0, count);
    } else if (checked_) {
        std::memset(bytes, kFreshByte, count);
    }
}

void Heap::drop(Space& space, std::unordered_map<void*, Block>::iterator block) {
    const auto [address, known] = *block;
    space.blocks.erase(block);
    space.used -= known.size;
    if (checked_) {
        std::memset(address, kFreedByte, known.size);
        // Without this the compiler drops a store to memory that is freed next.
        asm volatile("" : : "r"(address) : "memory");
    }
    std::free(address);
}

void Heap::dropAll(Space& space) {
    while (!space.blocks.empty()) {
        drop(space, space.blocks.begin());
    }
}

} // namespace gpi
