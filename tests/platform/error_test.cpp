#include <quarlo/handle.h>
#include <quarlo/platform.h>

#include <gtest/gtest.h>

namespace {

const uint32_t kAtTheStart = GDQueryGlobalError();

TEST(GlobalError, IsNoneAtTheStart) {
    EXPECT_EQ(kAtTheStart, 0U);
}

TEST(GlobalError, KeepsTheLowBits) {
    GDSetGlobalError(0x12345);
    EXPECT_EQ(GDQueryGlobalError(), 0x2345U);
    GDSetGlobalError(0xFFFFFFFF);
    EXPECT_EQ(GDQueryGlobalError(), 0xFFFFU);
    GDSetGlobalError(0x10000);
    EXPECT_EQ(GDQueryGlobalError(), 0U);
}

TEST(GDQueryError, ReadsTheHandleOrTheGlobalCell) {
    GDrawHandle handle{};
    handle.error = 0xFFFE;
    GDSetGlobalError(3);
    EXPECT_EQ(GDQueryError(&handle), 0xFFFEU);
    EXPECT_EQ(GDQueryError(nullptr), 3U);
    GDSetGlobalError(0);
    EXPECT_EQ(GDQueryError(&handle), 0xFFFEU);
    EXPECT_EQ(GDQueryError(nullptr), 0U);
}

} // namespace
