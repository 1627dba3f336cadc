// Application and surface coordinates of a handle.
#include "geometry/view.h"

#include "support/records.h"

#include <quarlo/line.h>
#include <quarlo/point.h>
#include <quarlo/poly.h>
#include <quarlo/rect.h>

#include <gtest/gtest.h>

using namespace quarlo;

namespace {

class View : public testing::Test {
  protected:
    View() { physicalRect = {0, 0, 639, 479}; }
    ~View() override { physicalRect = {}; }

    void enterVirtualMode(const GRect& frame) {
        handle.modeFlags = G_FLAG_VIRTUAL;
        handle.virtualRect = frame;
    }

    GPoint toScreen(GPoint point) {
        GPTMapToScreenPoint(&handle, &point);
        return point;
    }

    GPoint fromScreen(GPoint point) {
        GPTMapFromScreenPoint(&handle, &point);
        return point;
    }

    GDrawHandle handle{};
};

TEST_F(View, LocalModeAtTheOriginChangesNothing) {
    EXPECT_EQ(toScreen({100, 50}), (GPoint{100, 50}));
    EXPECT_EQ(fromScreen({100, 50}), (GPoint{100, 50}));
}

TEST_F(View, LocalModeSubtractsTheOrigin) {
    handle.localOrigin = {100, 50};
    EXPECT_EQ(toScreen({100, 50}), (GPoint{0, 0}));
    EXPECT_EQ(toScreen({130, 70}), (GPoint{30, 20}));
    EXPECT_EQ(fromScreen({30, 20}), (GPoint{130, 70}));
}

TEST_F(View, LocalModeWrapsAtSixteenBits) {
    handle.localOrigin = {-32768, 1};
    EXPECT_EQ(toScreen({0, -32768}), (GPoint{-32768, 32767}));
    EXPECT_EQ(fromScreen({-32768, 32767}), (GPoint{0, -32768}));
}

TEST_F(View, VirtualModeStretchesTheFrameOntoThePhysicalRectangle) {
    enterVirtualMode({0, 0, 999, 999});
    EXPECT_EQ(toScreen({500, 250}), (GPoint{320, 120}));
    EXPECT_EQ(fromScreen({320, 120}), (GPoint{500, 250}));
}

TEST_F(View, VirtualModeIgnoresTheOrigin) {
    enterVirtualMode({0, 0, 999, 999});
    handle.localOrigin = {100, 50};
    EXPECT_EQ(toScreen({500, 250}), (GPoint{320, 120}));
}

TEST_F(View, VirtualModeMayNotComeBackToTheSameValue) {
    enterVirtualMode({0, 0, 999, 999});
    EXPECT_EQ(toScreen({1, 0}).x, 1);
    EXPECT_EQ(fromScreen({1, 0}).x, 2);
}

TEST_F(View, OnlyTheFirstFlagSelectsVirtualMode) {
    enterVirtualMode({0, 0, 999, 999});
    handle.modeFlags = 0xFFFE;
    EXPECT_EQ(toScreen({500, 250}), (GPoint{500, 250}));
}

TEST_F(View, AnotherPhysicalRectangleChangesTheMappingOfEveryHandle) {
    enterVirtualMode({0, 0, 999, 999});
    physicalRect = {0, 0, 319, 239};
    EXPECT_EQ(toScreen({500, 250}), (GPoint{160, 60}));
}

TEST_F(View, RectanglesMapLikePoints) {
    handle.localOrigin = {100, 50};
    GRect rect = {130, 70, 229, 149};
    GRMapToScreenRect(&handle, &rect);
    EXPECT_EQ(rect, (GRect{30, 20, 129, 99}));
    GRMapFromScreenRect(&handle, &rect);
    EXPECT_EQ(rect, (GRect{130, 70, 229, 149}));

    enterVirtualMode({0, 0, 999, 999});
    rect = {0, 0, 500, 250};
    GRMapToScreenRect(&handle, &rect);
    EXPECT_EQ(rect, (GRect{0, 0, 320, 120}));
    GRMapFromScreenRect(&handle, &rect);
    EXPECT_EQ(rect, (GRect{0, 0, 500, 250}));
}

TEST_F(View, VirtualAndPhysicalConversionsNeedNoMode) {
    handle.virtualRect = {0, 0, 999, 999};

    GRect rect = {0, 0, 500, 250};
    GRVirtualToPhysicalRect(&handle, &rect);
    EXPECT_EQ(rect, (GRect{0, 0, 320, 120}));
    GRPhysicalToVirtualRect(&handle, &rect);
    EXPECT_EQ(rect, (GRect{0, 0, 500, 250}));

    GPoint point = {500, 250};
    GPTVirtualToPhysicalPoint(&handle, &point);
    EXPECT_EQ(point, (GPoint{320, 120}));
    GPTPhysicalToVirtualPoint(&handle, &point);
    EXPECT_EQ(point, (GPoint{500, 250}));

    GLine line = {500, 250, 0, 0};
    GLVirtualToPhysicalLine(&handle, &line);
    EXPECT_EQ(line, (GLine{320, 120, 0, 0}));
    GLPhysicalToVirtualLine(&handle, &line);
    EXPECT_EQ(line, (GLine{500, 250, 0, 0}));

    GPoint points[2] = {{500, 250}, {999, 999}};
    GPoly poly = {2, points, {0, 0, 999, 999}};
    GPVirtualToPhysicalPoly(&handle, &poly);
    EXPECT_EQ(points[0], (GPoint{320, 120}));
    EXPECT_EQ(points[1], (GPoint{639, 479}));
    EXPECT_EQ(poly.bounds, (GRect{0, 0, 639, 479}));
    GPPhysicalToVirtualPoly(&handle, &poly);
    EXPECT_EQ(points[0], (GPoint{500, 250}));
    EXPECT_EQ(points[1], (GPoint{999, 999}));
    EXPECT_EQ(poly.bounds, (GRect{0, 0, 999, 999}));
}

} // namespace
