// Programs that call everything, while memory is short.
#include "every_call/stage.h"

#include <gtest/gtest.h>

#include <set>

using namespace quarlo::test;

namespace {

/// Makes every call. @param failing numbers of the allocations that fail, the first being 1
/// @return how many were asked for
size_t runWithout(const std::set<int>& failing) {
    Stage stage;
    stage.platform.recordOperations(false);
    stage.platform.failAllocations(failing);
    runEveryCall(stage.platform);
    stage.expectIntact();
    EXPECT_EQ(stage.platform.blocksInUse(), 0U);
    return stage.platform.count(GPI_SERVICE_MEMORY_ALLOC) +
           stage.platform.count(GPI_SERVICE_MEMORY_REALLOC);
}

TEST(EveryCall, ComesBackWithoutAnyOneAllocation) {
    const auto count = static_cast<int>(runWithout({}));
    ASSERT_GT(count, 20);
    for (int n = 1; n <= count; ++n) {
        SCOPED_TRACE(n);
        runWithout({n});
    }
}

TEST(EveryCall, ComesBackWithoutAnyTwoAllocations) {
    const auto count = static_cast<int>(runWithout({}));
    for (int first = 1; first < count; ++first) {
        for (int second = first + 1; second <= count; ++second) {
            SCOPED_TRACE(testing::Message() << first << " and " << second);
            runWithout({first, second});
        }
    }
}

} // namespace
