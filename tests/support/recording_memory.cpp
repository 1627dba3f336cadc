// The memory services of the recording platform.
#include "support/recording_platform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

namespace quarlo::test {

namespace {

constexpr size_t kBlockAlignment = 16;

} // namespace

void RecordingPlatform::failAllocation(int n) {
    failAllocations(n > 0 ? std::set{n} : std::set<int>{});
}

void RecordingPlatform::failAllocations(const std::set<int>& failing) {
    allocations_ = 0;
    failing_ = failing;
    allocationFailed_ = false;
}

size_t RecordingPlatform::bytesInUse() const {
    size_t sum = 0;
    for (const auto& [address, block] : blocks_) {
        sum += block.memory->size();
    }
    return sum;
}

void* RecordingPlatform::allocate(int32_t space, int32_t size) {
    ++allocations_;
    if (failing_.contains(allocations_)) {
        allocationFailed_ = allocations_ == *failing_.rbegin();
        return nullptr;
    }
    if ((size <= 0 && !grantEmptyBlocks_) || size > mostBytes_) {
        return nullptr;
    }
    auto memory = std::make_unique<GuardedMemory>(static_cast<size_t>(std::max(size, 0)), side_,
                                                  kBlockAlignment);
    void* const address = memory->data();
    blocks_.emplace(address, Block{space, std::move(memory)});
    return address;
}

int32_t RecordingPlatform::release(int32_t space, void* block) {
    const auto found = blocks_.find(block);
    if (found == blocks_.end()) {
        ADD_FAILURE() << "freed a block that is not in use: " << block;
        return 0;
    }
    EXPECT_EQ(found->second.space, space) << "freed in another space than it came from";
    blocks_.erase(found);
    return 1;
}

void* RecordingPlatform::reallocate(int32_t space, void* block, int32_t size) {
    const auto found = blocks_.find(block);
    if (block != nullptr && found == blocks_.end()) {
        ADD_FAILURE() << "changed the size of a block that is not in use: " << block;
        return nullptr;
    }
    void* const fresh = allocate(space, size);
    if (fresh != nullptr && block != nullptr) {
        std::memcpy(fresh, block,
                    std::min(static_cast<size_t>(size), found->second.memory->size()));
        release(space, block);
    }
    return fresh;
}

void RecordingPlatform::serveMemory() {
    serve<41>([this](int32_t space, uint32_t, int32_t size) { return allocate(space, size); });
    serve<42>([this](int32_t space, uint32_t, void* block) { return release(space, block); });
    serve<66>([this](int32_t space, uint32_t, void* block, int32_t size) {
        return reallocate(space, block, size);
    });
}

} // namespace quarlo::test
