#include "support/started_platform.h"

#include <quarlo/memory.h>

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <algorithm>
#include <cstdlib>

namespace {

using namespace gpi::test;

const auto setSpace = service<GPISetMemorySpace>(GPI_SERVICE_SET_MEMORY_SPACE);
const auto deleteSpace = service<GPIDeleteMemorySpace>(GPI_SERVICE_DELETE_MEMORY_SPACE);
const auto alloc = service<GPIMemoryAlloc>(GPI_SERVICE_MEMORY_ALLOC);
const auto resize = service<GPIMemoryRealloc>(GPI_SERVICE_MEMORY_REALLOC);
const auto release = service<GPIMemoryFree>(GPI_SERVICE_MEMORY_FREE);
const auto setMode = service<GPISetMemoryMode>(GPI_SERVICE_SET_MEMORY_MODE);
const auto begin = service<GPIBeginResetMemorySpace>(GPI_SERVICE_BEGIN_RESET_MEMORY_SPACE);
const auto end = service<GPIEndResetMemorySpace>(GPI_SERVICE_END_RESET_MEMORY_SPACE);
const auto cancel = service<GPICancelResetMemorySpace>(GPI_SERVICE_CANCEL_RESET_MEMORY_SPACE);

/// A space that no other test uses, closed at the end.
class MemoryServices : public testing::Test {
  protected:
    void TearDown() override { deleteSpace(kSpace, G_SPACE_FORCE); }

    static constexpr int32_t kSpace = -77;
};

TEST_F(MemoryServices, WorkBeforeTheStart) {
    void* const block = alloc(kSpace, 0, 10);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(release(kSpace, 0, block), 1);
    EXPECT_EQ(release(kSpace, 0, block), 0);
    EXPECT_EQ(release(kSpace, 0, nullptr), 1);
}

TEST_F(MemoryServices, ZeroBytesOnRequest) {
    ASSERT_EQ(setMode(G_MEMORY_CHECKED), 1);
    auto* block = static_cast<uint8_t*>(alloc(kSpace, G_MEMORY_ZERO, 100));
    EXPECT_EQ(std::count(block, block + 100, 0), 100);
    block = static_cast<uint8_t*>(resize(kSpace, G_MEMORY_ZERO, block, 200));
    EXPECT_EQ(std::count(block, block + 200, 0), 200);
    ASSERT_EQ(setMode(G_MEMORY_PLAIN), 1);
}

TEST_F(MemoryServices, OverwriteFreshBytesInCheckedMode) {
    ASSERT_EQ(setMode(G_MEMORY_CHECKED), 1);
    const auto* const block = static_cast<uint8_t*>(alloc(kSpace, 0, 100));
    EXPECT_EQ(std::count(block, block + 100, 0xA5), 100);
    EXPECT_EQ(setMode(2), 0);
    EXPECT_EQ(setMode(-1), 0);
    ASSERT_EQ(setMode(G_MEMORY_PLAIN), 1);
}

TEST_F(MemoryServices, AllocateByResizingNothing) {
    EXPECT_NE(resize(kSpace, 0, nullptr, 10), nullptr);
    EXPECT_EQ(resize(kSpace, 0, nullptr, 0), nullptr);
}

TEST_F(MemoryServices, KeepLimits) {
    ASSERT_EQ(setSpace(kSpace, 100), 1);
    void* const block = alloc(kSpace, 0, 100);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(alloc(kSpace, 0, 1), nullptr);
    EXPECT_EQ(setSpace(kSpace, 99), 0);
    EXPECT_EQ(deleteSpace(kSpace, 0), 0);
    EXPECT_EQ(deleteSpace(kSpace, G_SPACE_FORCE), 1);
    EXPECT_EQ(deleteSpace(kSpace, G_SPACE_FORCE), 0);
    EXPECT_EQ(release(kSpace, 0, block), 0);
}

TEST_F(MemoryServices, TakeTheLimitFromTheSettings) {
    const StartedPlatform platform{{"QUARLO_MEMORY_LIMIT", "1000"}};
    EXPECT_EQ(alloc(kSpace, 0, 1001), nullptr);
    EXPECT_NE(alloc(kSpace, 0, 1000), nullptr);
}

TEST_F(MemoryServices, ResetASpace) {
    EXPECT_EQ(begin(kSpace, 0), 0);
    EXPECT_EQ(end(kSpace, 0), 0);
    EXPECT_EQ(cancel(kSpace, 0), 0);
    ASSERT_EQ(setSpace(kSpace, 100), 1);
    ASSERT_NE(alloc(kSpace, 0, 60), nullptr);
    ASSERT_EQ(begin(kSpace, 0), 1);
    ASSERT_NE(alloc(kSpace, 0, 40), nullptr);
    ASSERT_EQ(cancel(kSpace, 0), 1);
    EXPECT_EQ(alloc(kSpace, 0, 1), nullptr);
    ASSERT_EQ(begin(kSpace, 0), 1);
    ASSERT_EQ(end(kSpace, 0), 1);
    EXPECT_NE(alloc(kSpace, 0, 100), nullptr);
}

#ifndef __SANITIZE_ADDRESS__ // which takes all of the address space
TEST_F(MemoryServices, GiveNullWhenTheMachineHasNoMoreMemory) {
    const auto exhaust = [] {
        const rlimit oneGigabyte{1 << 30, 1 << 30};
        setrlimit(RLIMIT_AS, &oneGigabyte);
        void* const block = alloc(kSpace, 0, 1000);
        const bool refused = alloc(kSpace, 0, INT32_MAX) == nullptr &&
                             resize(kSpace, 0, block, INT32_MAX) == nullptr &&
                             release(kSpace, 0, block) == 1;
        std::exit(refused ? 0 : 1);
    };
    EXPECT_EXIT(exhaust(), testing::ExitedWithCode(0), "");
}
#endif

} // namespace
