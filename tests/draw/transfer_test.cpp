// Block transfers: what is copied, and from and to where.
#include "draw/transfer_fixture.h"

#include <quarlo/rect.h>

#include <gtest/gtest.h>

#include <initializer_list>

using namespace quarlo::test;

namespace {

TEST_F(Transfer, CopiesARectangle) {
    for (const int16_t bits : kDepths) {
        GuardedSurface from(4, 3, bits);
        GuardedSurface to(5, 4, bits);
        paint(from, {"1234", "5678", "9123"});
        copy(from.get(), 1, 0, 3, 2, to.get(), 2, 1);
        EXPECT_TRUE(shows(*to, {".....", "..234", "..678", "....."}, kDigits));
    }
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(Transfer, CutsToTheSource) {
    GuardedSurface from(3, 3, 8);
    GuardedSurface to(7, 5, 8);
    paint(from, {"123", "456", "789"});
    copy(from.get(), -2, -1, 7, 5, to.get(), 0, 0);
    EXPECT_TRUE(shows(*to, {".......", "..123..", "..456..", "..789..", "......."}, kDigits));
}

TEST_F(Transfer, CutsToTheDestination) {
    GuardedSurface from(3, 3, 8);
    GuardedSurface to(2, 2, 8);
    paint(from, {"123", "456", "789"});
    copy(from.get(), 0, 0, 3, 3, to.get(), -1, -1);
    EXPECT_TRUE(shows(*to, {"56", "89"}, kDigits));
    copy(from.get(), 0, 0, 3, 3, to.get(), 1, 1);
    EXPECT_TRUE(shows(*to, {"56", "81"}, kDigits));
}

TEST_F(Transfer, CutsToTheClipOfTheDestination) {
    GuardedSurface from(3, 3, 8);
    GuardedSurface to(3, 3, 8);
    GRect clip = {1, 0, 1, 1};
    to->drawable = &clip;
    paint(from, {"123", "456", "789"});
    copy(from.get(), 0, 0, 3, 3, to.get(), 0, 0);
    EXPECT_TRUE(shows(*to, {".2.", ".5.", "..."}, kDigits));
}

TEST_F(Transfer, CutsToTheBoundsOfTheSourceNotToItsClip) {
    GuardedSurface from(3, 3, 8);
    GuardedSurface to(3, 3, 8);
    GRect clip = {0, 0, 0, 0};
    from->drawable = &clip;
    from->bounds = {1, 1, 2, 2};
    paint(from, {"123", "456", "789"});
    copy(from.get(), 0, 0, 3, 3, to.get(), 0, 0);
    EXPECT_TRUE(shows(*to, {"...", ".56", ".89"}, kDigits));
}

TEST_F(Transfer, NarrowingTheClipOfAMemorySurfaceNarrowsWhatIsRead) {
    GVram* const from = attach(handle, makeSurface(3, 1, 8));
    GuardedSurface to(3, 1, 8);
    std::fill_n(from->pixels, 3, uint8_t{7});
    const GRect clip = {1, 0, 1, 0};
    GDSetClipRect(handle.get(), &clip);
    copy(from, 0, 0, 3, 1, to.get(), 0, 0);
    EXPECT_TRUE(shows(*to, {".7."}, kDigits));
}

TEST_F(Transfer, NothingInCommonCopiesNothing) {
    GuardedSurface from(3, 3, 8);
    GuardedSurface to(3, 3, 8);
    paint(from, {"123", "456", "789"});
    copy(from.get(), 3, 0, 3, 3, to.get(), 0, 0);
    copy(from.get(), 0, 0, 3, 3, to.get(), 0, 3);
    copy(from.get(), -3, 0, 3, 3, to.get(), 0, 0);
    copy(from.get(), -2, -2, 3, 3, to.get(), -2, -2);
    EXPECT_TRUE(shows(*to, {"1..", "...", "..."}, kDigits)) << "of the last, one pixel";
}

TEST_F(Transfer, OfNoSizeCopiesNothing) {
    GuardedSurface from(3, 1, 8);
    GuardedSurface to(3, 1, 8);
    paint(from, {"123"});
    for (const int16_t size : std::initializer_list<int16_t>{0, -1, -32768}) {
        copy(from.get(), 0, 0, size, 1, to.get(), 0, 0);
        copy(from.get(), 0, 0, 3, size, to.get(), 0, 0);
        copy(from.get(), 2, 0, size, 1, to.get(), 2, 0);
        copy(from.get(), 0, 0, size, 1, display.get(), 0, 0);
    }
    EXPECT_TRUE(shows(*to, {"..."}));
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(Transfer, CombinesByteByByte) {
    struct Result {
        int32_t mode;
        Bytes bytes;
    };
    for (const auto& [mode, bytes] :
         {Result{G_MODE_COPY, {0xFC, 0xF0, 0xAA}}, Result{G_MODE_AND, {0x0C, 0xF0, 0x00}},
          Result{G_MODE_OR, {0xFF, 0xFF, 0xFF}}, Result{G_MODE_XOR, {0xF3, 0x0F, 0xFF}}}) {
        GuardedSurface from(1, 1, 24);
        GuardedSurface to(1, 1, 24);
        setPixelAt(*from, 0, 0, 0xAAF0FC);
        setPixelAt(*to, 0, 0, 0x55FF0F);
        copy(from.get(), 0, 0, 1, 1, to.get(), 0, 0, mode);
        EXPECT_EQ(Bytes(to->pixels, to->pixels + 3), bytes) << "mode " << mode;
    }
}

TEST_F(Transfer, CombinesWhatWasConverted) {
    GuardedSurface from(1, 1, 16);
    GuardedSurface to(1, 1, 24);
    setPixelAt(*to, 0, 0, 0x0F0F0F);
    setPixelAt(*from, 0, 0, 0x7C00);
    copy(from.get(), 0, 0, 1, 1, to.get(), 0, 0, G_MODE_XOR);
    EXPECT_EQ(pixelAt(*to, 0, 0), 0x0F0FF0U);
    copy(from.get(), 0, 0, 1, 1, to.get(), 0, 0, G_MODE_AND);
    EXPECT_EQ(pixelAt(*to, 0, 0), 0x0000F0U);
    copy(from.get(), 0, 0, 1, 1, to.get(), 0, 0, G_MODE_OR);
    EXPECT_EQ(pixelAt(*to, 0, 0), 0x0000FFU);
}

TEST_F(Transfer, AWildModeWritesNothing) {
    GuardedSurface from(2, 1, 16);
    GuardedSurface same(2, 1, 16);
    GuardedSurface other(2, 1, 24);
    paint(from, {"12"});
    for (const int32_t mode : {-1, 4, 5, 32, 64, 0x10000, -0x7FFFFFFF - 1, 0x7FFFFFFF}) {
        copy(from.get(), 0, 0, 2, 1, same.get(), 0, 0, mode);
        copy(from.get(), 0, 0, 2, 1, other.get(), 0, 0, mode);
        copy(from.get(), 0, 0, 1, 1, from.get(), 1, 0, mode);
    }
    EXPECT_TRUE(shows(*same, {".."}));
    EXPECT_TRUE(shows(*other, {".."}));
    EXPECT_TRUE(shows(*from, {"12"}, kDigits));
}

TEST_F(Transfer, APlacePastTheLastCoordinateCopiesNothing) {
    GuardedSurface from(3, 3, 8);
    GuardedSurface to(3, 3, 8);
    paint(from, {"123", "456", "789"});
    copy(from.get(), 1, 0, 32767, 3, to.get(), 0, 0);
    EXPECT_TRUE(shows(*to, {"23.", "56.", "89."}, kDigits)) << "up to column 32767";
    paint(to, {"...", "...", "..."});
    copy(from.get(), 2, 0, 32767, 3, to.get(), 0, 0);
    copy(from.get(), 0, 2, 3, 32767, to.get(), 0, -2);
    copy(from.get(), 0, 0, 32767, 3, to.get(), 2, 0);
    copy(from.get(), 0, -2, 3, 32767, to.get(), 0, 2);
    EXPECT_TRUE(shows(*to, {"...", "...", "..."}));
}

TEST_F(Transfer, BothPlacesAreMappedByTheOrigin) {
    GuardedSurface from(3, 1, 8);
    GuardedSurface to(3, 1, 8);
    paint(from, {"123"});
    handle->localOrigin = {100, 50};
    copy(from.get(), 101, 50, 2, 1, to.get(), 100, 50);
    EXPECT_TRUE(shows(*to, {"23."}, kDigits));
}

TEST_F(Transfer, TheSmallerOfTwoMappedSizesCounts) {
    // 0 to 3 of 10 columns map to 0 to 1 of 5, 1 to 4 map to 0 to 2.
    GuardedSurface from(5, 1, 8);
    GuardedSurface to(5, 1, 8);
    paint(from, {"12345"});
    handle->virtualRect = {0, 0, 9, 0};
    GDSetVirtualMode(handle.get());
    GRect narrow = {0, 0, 3, 0};
    GRect wide = {1, 0, 4, 0};
    const Handle other = openHandle();
    attach(other, makeSurface(5, 1, 8)); // makes the physical rectangle
    GRMapToScreenRect(handle.get(), &narrow);
    GRMapToScreenRect(handle.get(), &wide);
    ASSERT_EQ(narrow, (GRect{0, 0, 1, 0}));
    ASSERT_EQ(wide, (GRect{0, 0, 2, 0}));
    copy(from.get(), 1, 0, 4, 1, to.get(), 0, 0);
    EXPECT_TRUE(shows(*to, {"12..."}, kDigits));
    copy(from.get(), 0, 0, 4, 1, to.get(), 1, 0);
    EXPECT_TRUE(shows(*to, {"12..."}, kDigits));
}

} // namespace
