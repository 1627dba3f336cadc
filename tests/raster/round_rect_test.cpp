#include "raster/curve_test.h"

#include <quarlo/draw.h>

using namespace quarlo;
using namespace quarlo::test;

namespace {

class RoundRect : public RasterTest {};

void drawRoundRect(GDrawHandle* handle, const GRect& box, int32_t rx, int32_t ry) {
    GDDrawRRect(handle, &box, static_cast<int16_t>(rx), static_cast<int16_t>(ry));
}

TEST_F(RoundRect, OfRadiusZeroIsARectangleWhoseTopAndBottomRowAreFilledTwice) {
    Drawing drawing(6, 4);
    GDSetPenColor(drawing, G_NO_COLOR);
    GDSetFillAttribute(drawing, G_FILL_FORE, 1, 2);
    drawRoundRect(drawing, {1, 0, 4, 3}, 0, 0);
    EXPECT_TRUE(shows(*drawing.surface(), {".####.", ".####.", ".####.", ".####."}));
    GDSetDrawingMode(drawing, G_MODE_XOR);
    drawRoundRect(drawing, {1, 0, 4, 3}, 0, 0);
    EXPECT_TRUE(shows(*drawing.surface(), {".####.", "......", "......", ".####."}));
}

TEST_F(RoundRect, HasRadiiOfHalfItsSizeAtMost) {
    for (const int16_t radius : {int16_t{5}, int16_t{6}, int16_t{100}, int16_t{32767}}) {
        const Pixels actual = filledBy([radius](GDrawHandle* handle) {
            GDSetDrawingMode(handle, G_MODE_COPY);
            drawRoundRect(handle, {0, 0, 10, 10}, radius, radius);
        });
        EXPECT_EQ(difference(actual, CurveModel::roundRect({0, 0, 10, 10}, 5, 5).filled()), "");
    }
}

TEST_F(RoundRect, TakesRadiiBelowZeroForZero) {
    const Pixels actual = filledBy([](GDrawHandle* handle) {
        GDSetDrawingMode(handle, G_MODE_COPY);
        drawRoundRect(handle, {3, 3, 10, 10}, -1, -32768);
    });
    EXPECT_EQ(actual.size(), 64U);
}

TEST_F(RoundRect, MapsItsRadiiInVirtualMode) {
    Drawing drawing(40, 40);
    const GRect virtualRect{100, 100, 179, 179};
    GDSetVirtualMode(drawing);
    GDSetVirtualRect(drawing, &virtualRect);
    drawRoundRect(drawing, {100, 100, 179, 179}, 20, 10);
    Drawing expected(40, 40);
    // (120, 110) is (20, 10) from the corner, and half of that on the surface.
    drawRoundRect(expected, {0, 0, 39, 39}, 10, 5);
    EXPECT_TRUE(samePicture(pictureOf(*drawing.surface()), pictureOf(*expected.surface())));
}

TEST_F(RoundRect, WithAGradationIsNotFilled) {
    Drawing drawing(20, 20);
    GDSetPenColor(drawing, G_NO_COLOR);
    for (const int16_t style : {int16_t{G_FILL_GRADATION}, int16_t{-5}, int16_t{-32768}}) {
        GDSetFillPattern(drawing, style);
        drawRoundRect(drawing, {2, 2, 17, 17}, 4, 4);
    }
    EXPECT_TRUE(pixelsOf(*drawing.surface()).empty());
    EXPECT_EQ(platform.count(69), 0U);
}

TEST_F(RoundRect, OfAPatternThatTheHandleHasNotIsNotFilled) {
    Drawing drawing(20, 20);
    GDSetPenColor(drawing, G_NO_COLOR);
    GDSetFillColor(drawing, 1, 2);
    for (const int16_t pattern : {int16_t{G_FILL_PATTERN_COUNT}, int16_t{INT16_MAX}}) {
        drawing->fillPattern = pattern;
        drawRoundRect(drawing, {2, 2, 17, 17}, 4, 4);
    }
    EXPECT_TRUE(pixelsOf(*drawing.surface()).empty());
    EXPECT_EQ(platform.count(69), 0U);
}

TEST_F(RoundRect, OutsideTheClipDrawsNothingWhateverThePen) {
    Drawing drawing(20, 20);
    GDSetPenSize(drawing, 9, 9);
    GDSetFillPattern(drawing, 3);
    drawRoundRect(drawing, {20, 0, 30, 19}, 3, 3);
    EXPECT_TRUE(pixelsOf(*drawing.surface()).empty());
    EXPECT_EQ(platform.count(69), 0U);
    drawRoundRect(drawing, {19, 0, 30, 19}, 3, 3);
    EXPECT_EQ(platform.count(69), 1U);
}

TEST_F(RoundRect, FillsBandAndCornersAsAPlainModel) {
    forRandomCurves(400, [&](const CurveBox& curve) -> std::string {
        const int32_t rx = curve.first % 40;
        const int32_t ry = curve.second % 40;
        const GRect& box = curve.box;
        const auto draw = [&](GDrawHandle* handle) { drawRoundRect(handle, box, rx, ry); };
        const CurveModel model = CurveModel::roundRect(box, rx, ry);
        const Pixels copied = filledBy([&](GDrawHandle* handle) {
            GDSetDrawingMode(handle, G_MODE_COPY);
            draw(handle);
        });
        const std::string wrong = difference(copied, within(model.filled(), kCurveArea));
        return !wrong.empty() ? wrong
                              : difference(painted(draw), within(model.outline(), kCurveArea));
    });
}

TEST_F(RoundRect, OfAnySizeAndPenIsCalm) {
    Random random(testSeed());
    for (int round = 0; round < 200; ++round) {
        Drawing drawing(kCurveWidth, kCurveHeight, 24);
        const GRect box{random.coordinate(-90, 90), random.coordinate(-90, 90),
                        random.coordinate(-90, 90), random.coordinate(-90, 90)};
        GDSetPenSize(drawing, random.coordinate(0, 20), random.coordinate(0, 20));
        GDSetFillAttribute(drawing, static_cast<int16_t>(random.between(-4, 37)), 1, 2);
        drawRoundRect(drawing, box, random.coordinate(-3, 40), random.coordinate(-3, 40));
        EXPECT_TRUE(drawing.surface().memory().intact());
    }
}

} // namespace
