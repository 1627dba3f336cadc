// Block transfers between surfaces whose records are not what they should be.
#include "draw/transfer_fixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <initializer_list>

using namespace quarlo::test;

namespace {

TEST_F(Transfer, OtherDepthsCopyNothing) {
    GuardedSurface good(4, 2, 24);
    GuardedSurface bad(4, 2, 24);
    std::memset(good.memory().data(), 0x11, good.memory().size());
    for (const int16_t bits : std::initializer_list<int16_t>{-8, 0, 1, 4, 15, 23, 32, 264}) {
        bad->bitsPerPixel = bits;
        copy(good.get(), 0, 0, 4, 2, bad.get(), 0, 0);
        copy(bad.get(), 0, 0, 4, 2, good.get(), 0, 0);
        copy(bad.get(), 0, 0, 2, 2, bad.get(), 1, 0);
    }
    const auto is = [](uint8_t byte) { return [=](uint8_t other) { return other == byte; }; };
    const auto holds = [&](GuardedSurface& surface, uint8_t byte) {
        const uint8_t* const bytes = surface.memory().data();
        return std::all_of(bytes, bytes + surface.memory().size(), is(byte));
    };
    EXPECT_TRUE(holds(good, 0x11));
    EXPECT_TRUE(holds(bad, 0));
}

TEST_F(Transfer, SurfacesWithoutPixelsCopyNothing) {
    GuardedSurface from(2, 1, 16);
    GuardedSurface to(2, 1, 16);
    paint(from, {"12"});
    paint(to, {"34"});
    GVram hollow = *from;
    hollow.pixels = nullptr;
    hollow.drawable = &hollow.bounds;
    copy(&hollow, 0, 0, 2, 1, to.get(), 0, 0);
    copy(from.get(), 0, 0, 2, 1, &hollow, 0, 0);
    EXPECT_TRUE(shows(*to, {"34"}, kDigits));
}

TEST_F(Transfer, ADestinationWithoutAClipGetsNothing) {
    GuardedSurface from(2, 1, 16);
    GuardedSurface to(2, 1, 16);
    paint(from, {"12"});
    to->drawable = nullptr;
    copy(from.get(), 0, 0, 2, 1, to.get(), 0, 0);
    EXPECT_TRUE(shows(*to, {".."}));
}

TEST_F(Transfer, WildBoundsAndClipsDoNotReachOutsideTheMemory) {
    for (const Against side : {Against::End, Against::Start}) {
        for (const int16_t bits : kDepths) {
            GuardedSurface from(3, 2, 16, side);
            GuardedSurface to(4, 3, bits, side);
            GRect everything = {-32768, -32768, 32767, 32767};
            from->bounds = everything;
            to->drawable = &everything;
            copy(from.get(), -100, -100, 32767, 32767, to.get(), -100, -100);
            copy(from.get(), -32768, -32768, 32767, 32767, to.get(), -32768, -32768);
            copy(from.get(), 32767, 32767, 1, 1, to.get(), 32767, 32767);
            EXPECT_TRUE(to.memory().intact());
        }
    }
}

TEST_F(Transfer, RowsTooShortForTheirPixelsEndWhereTheyEnd) {
    GuardedSurface from(4, 3, 8);
    GuardedSurface to(4, 3, 8, Against::End, -2);
    paint(from, {"1234", "5678", "9123"});
    copy(from.get(), 0, 0, 4, 3, to.get(), 0, 0);
    EXPECT_EQ(Bytes(to->pixels, to->pixels + 6), (Bytes{1, 2, 5, 6, 9, 1}));
}

TEST_F(Transfer, PaddingIsNeitherReadNorWritten) {
    GuardedSurface from(2, 2, 16, Against::End, 3);
    GuardedSurface to(2, 2, 16, Against::End, 1);
    std::memset(from.memory().data(), 0x77, from.memory().size());
    paint(from, {"12", "34"});
    copy(from.get(), 0, 0, 2, 2, to.get(), 0, 0);
    EXPECT_EQ(Bytes(to->pixels, to->pixels + 10), (Bytes{1, 0, 2, 0, 0, 3, 0, 4, 0, 0}));
}

} // namespace
