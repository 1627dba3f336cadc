#include "drawing/view.h"

#include "drawing/layout.h"
#include "drawn.h"

#include <random>

namespace toolpath {
namespace {

constexpr GRect kArea{100, 50, 299, 149};
constexpr Box3 kBox{{-10, 20, -5}, {90, 60, 0}};

TEST(View, FitsWhatItShowsIntoItsArea) {
    for (const Projection projection : {Projection::Plan, Projection::Isometric}) {
        const View view(projection, kBox, kArea);
        const GRect bounds = view.bounds();
        for (unsigned corner = 0; corner < 8; ++corner) {
            const GPoint at = view.pixel({corner & 1U ? kBox.high[kX] : kBox.low[kX],
                                          corner & 2U ? kBox.high[kY] : kBox.low[kY],
                                          corner & 4U ? kBox.high[kZ] : kBox.low[kZ]});
            EXPECT_EQ(GRPointInRect(&at, &bounds), 1);
        }
    }
}

TEST(View, PutsTheMiddleIntoTheMiddle) {
    const GPoint middle = View(Projection::Plan, kBox, kArea).pixel({40, 40, 0});
    EXPECT_EQ(middle.x, 0);
    EXPECT_EQ(middle.y, 0);
}

TEST(View, CountsUpwardsOnADisplayThatCountsDown) {
    const View view(Projection::Plan, kBox, kArea);
    EXPECT_LT(view.pixel({40, 60, 0}).y, view.pixel({40, 20, 0}).y);
    EXPECT_GT(view.pixel({90, 40, 0}).x, view.pixel({-10, 40, 0}).x);
}

TEST(View, FindsThePlaceOfAPixelAgain) {
    for (const Projection projection : {Projection::Plan, Projection::Isometric}) {
        const View view(projection, kBox, kArea);
        for (const GPoint& pixel : {GPoint{0, 0}, GPoint{-50, 20}, GPoint{99, -49}}) {
            const Point3 place = view.place(pixel, -3.0);
            EXPECT_EQ(place[kZ], -3.0);
            EXPECT_EQ(view.pixel(place).x, pixel.x);
            EXPECT_EQ(view.pixel(place).y, pixel.y);
        }
    }
}

TEST(View, DrawsInItsAreaOnly) {
    Drawn drawn(400, 200, 16);
    const View view(Projection::Plan, kBox, kArea);
    view.select(drawn.handle);
    GDSetPenColor(drawn.handle, 0x7FFF);
    drawLine(drawn.handle, view, {-1e6, 40, 0}, {1e6, 40, 0});
    drawLine(drawn.handle, view, {40, -1e6, 0}, {40, 1e6, 0});
    EXPECT_EQ(drawn.count(kArea, 0x7FFF), 200 + 100 - 1);
    EXPECT_EQ(drawn.count({0, 0, 399, 199}, 0x7FFF), 200 + 100 - 1);
}

TEST(View, LeavesOutWhatPassesFarAway) {
    const View view(Projection::Plan, kBox, kArea);
    GLine line;
    EXPECT_FALSE(view.line({1e9, 0, 0}, {1e9, 1e9, 0}, line));
}

TEST(View, KeepsPixelsInRangeWhereverAPlaceLies) {
    const unsigned seed = 31;
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> place(-1e16, 1e16);
    const View view(Projection::Isometric, kBox, {0, 0, 2559, 2559});
    for (int round = 0; round < 1000; ++round) {
        const GPoint at = view.pixel({place(random), place(random), place(random)});
        EXPECT_LE(std::abs(at.x), 2560);
        EXPECT_LE(std::abs(at.y), 2560);
    }
}

TEST(View, ShowsASinglePlaceAndAFarOne) {
    const View hole(Projection::Plan, {{5, 5, 0}, {5, 5, 0}}, kArea);
    EXPECT_EQ(hole.pixel({5, 5, 0}).x, 0);
    const View far(Projection::Isometric, {{1e9, 1e9, 0}, {1e9 + 50, 1e9 + 50, 9}}, kArea);
    EXPECT_EQ(far.pixel({1e9 + 25, 1e9 + 25, 4.5}).x, 0);
}

TEST(Layout, KeepsTheViewsApartAndOnTheDisplay) {
    GVram display{};
    for (const GSize& size :
         {GSize{640, 480}, GSize{800, 600}, GSize{1024, 768}, GSize{2560, 2560}, GSize{100, 60}}) {
        display.width = size.width;
        display.height = size.height;
        const Layout layout(display);
        GRect common;
        EXPECT_EQ(GRInceptRect(&layout.planFrame, &layout.isometricFrame, &common), 0);
        EXPECT_EQ(GRInceptRect(&layout.bar, &layout.planFrame, &common), 0);
        for (const GRect* part : {&layout.planFrame, &layout.isometricFrame, &layout.bar}) {
            EXPECT_LT(part->left, part->right);
            EXPECT_LT(part->top, part->bottom);
            GRect united;
            GRUnionRect(part, &layout.display, &united);
            EXPECT_EQ(GREqualRect(&united, &layout.display), 1);
        }
    }
}

} // namespace
} // namespace toolpath
