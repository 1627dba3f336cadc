// What every call is made on: two displays between inaccessible pages, and a platform for them.
#pragma once

#include "every_call/calls.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace quarlo::test {

class Stage {
  public:
    Stage() {
        platform.addDisplay(0, display_);
        platform.addDisplay(1, second_);
    }

    /// Takes a service away. Without the one that frees, blocks are the stage's, not the
    /// platform's.
    template <int Number>
    void remove() {
        if constexpr (Number == GPI_SERVICE_MEMORY_FREE) {
            platform.serve<GPI_SERVICE_MEMORY_ALLOC>(
                [this](int32_t, uint32_t, int32_t size) { return lend(size); });
            platform.serve<GPI_SERVICE_MEMORY_REALLOC>(
                [this](int32_t, uint32_t, void*, int32_t size) { return lend(size); });
        }
        platform.remove({Number});
    }

    /// Nothing may be written beside a surface or a block.
    void expectIntact() {
        EXPECT_TRUE(display_.memory().intact());
        EXPECT_TRUE(second_.memory().intact());
        for (const auto& block : lent_) {
            EXPECT_TRUE(block->intact());
        }
    }

  private:
    // Declared before the platform, which is the first to go.
    GuardedSurface display_{30, 20, 16};
    GuardedSurface second_{16, 9, 24};
    std::vector<std::unique_ptr<GuardedMemory>> lent_;

    void* lend(int32_t size) {
        if (size <= 0) {
            return nullptr;
        }
        lent_.push_back(
            std::make_unique<GuardedMemory>(static_cast<size_t>(size), Against::End, 16));
        return lent_.back()->data();
    }

  public:
    RecordingPlatform platform;
};

} // namespace quarlo::test
