// Outlines of ovals and rounded rectangles drawn with a wide pen.
#include "raster/curve_test.h"

#include <quarlo/draw.h>

#include <cmath>

using namespace quarlo;
using namespace quarlo::test;

namespace {

class WideOutline : public RasterTest {};

Pixels ringOf(const GRect& box, int16_t pen) {
    return painted([&box](GDrawHandle* handle) { GDDrawOval(handle, &box); }, pen, 200, 200);
}

TEST_F(WideOutline, IsAsThickAsThePenOnItsAxes) {
    const GRect box{40, 50, 160, 140};
    for (int16_t pen = 2; pen <= 20; ++pen) {
        const Pixels ring = ringOf(box, pen);
        int32_t left = 0;
        int32_t right = 0;
        int32_t top = 0;
        int32_t bottom = 0;
        for (const auto& [y, x] : ring) {
            left += y == 95 && x < 100 ? 1 : 0;
            right += y == 95 && x > 100 ? 1 : 0;
            top += x == 100 && y < 95 ? 1 : 0;
            bottom += x == 100 && y > 95 ? 1 : 0;
        }
        EXPECT_EQ(left, pen);
        EXPECT_EQ(right, pen);
        EXPECT_EQ(top, pen);
        EXPECT_EQ(bottom, pen);
        EXPECT_TRUE(ring.contains({95, 40 - pen / 2}));
        EXPECT_FALSE(ring.contains({95, 40 - pen / 2 - 1}));
    }
}

/// The distance of a pixel from the nearest of a set.
double distanceFrom(const Pixels& pixels, const Pixel& at) {
    int32_t nearest = INT32_MAX;
    for (const auto& [y, x] : pixels) {
        const int32_t dx = x - at.second;
        const int32_t dy = y - at.first;
        nearest = std::min(nearest, dx * dx + dy * dy);
    }
    return std::sqrt(nearest);
}

TEST_F(WideOutline, IsThePlaceThatARoundPenPasses) {
    // The ring holds every pixel nearer to the thin outline than the pen reaches, and none that is
    // farther away: the same thickness all round, within a pixel.
    forRandomCurves(25, [&](const CurveBox& curve) -> std::string {
        const GRect& box = curve.box;
        const int16_t pen = curve.pen;
        const Pixels ring = painted([&box](GDrawHandle* handle) { GDDrawOval(handle, &box); }, pen);
        const Pixels thin = CurveModel::oval(box).outline();
        const Pixels filled = CurveModel::oval(box).filled();
        for (int32_t y = 0; y < kCurveHeight; ++y) {
            for (int32_t x = 0; x < kCurveWidth; ++x) {
                const double distance = distanceFrom(thin, {y, x});
                const double reach = filled.contains({y, x}) ? (pen - 1) / 2 : pen / 2;
                const bool inside = ring.contains({y, x});
                if ((inside && distance > reach + 1) || (!inside && distance < reach - 1)) {
                    return "row " + std::to_string(y) + " column " + std::to_string(x) +
                           " at distance " + std::to_string(distance);
                }
            }
        }
        return "";
    });
}

TEST_F(WideOutline, MeetsTheFill) {
    // Every pixel of the fill that the ring leaves free lies inside the thin outline, and the ring
    // covers all of that outline.
    forRandomCurves(300, [&](const CurveBox& curve) -> std::string {
        const GRect& box = curve.box;
        for (const bool round : {false, true}) {
            const auto draw = [&](GDrawHandle* handle) {
                if (round) {
                    GDDrawRRect(handle, &box, static_cast<int16_t>(curve.first % 30),
                                static_cast<int16_t>(curve.second % 30));
                } else {
                    GDDrawOval(handle, &box);
                }
            };
            const CurveModel model =
                round ? CurveModel::roundRect(box, curve.first % 30, curve.second % 30)
                      : CurveModel::oval(box);
            const Pixels ring = painted(draw, curve.pen);
            const Pixels thin = within(model.outline(), kCurveArea);
            for (const Pixel& pixel : thin) {
                if (!ring.contains(pixel)) {
                    return "a hole at row " + std::to_string(pixel.first);
                }
            }
            // Between ring and fill there must be no gap: from a pixel of the hole each step leads
            // into the hole or the ring, all of it filled.
            const Pixels filled = within(model.filled(), kCurveArea);
            for (const auto& [y, x] : filled) {
                for (const Pixel& next :
                     {Pixel{y - 1, x}, Pixel{y + 1, x}, Pixel{y, x - 1}, Pixel{y, x + 1}}) {
                    const bool visible = next.first >= 0 && next.first < kCurveHeight &&
                                         next.second >= 0 && next.second < kCurveWidth;
                    if (visible && !ring.contains({y, x}) && !ring.contains(next) &&
                        !filled.contains(next)) {
                        return "a gap at row " + std::to_string(y);
                    }
                }
            }
        }
        return "";
    });
}

TEST_F(WideOutline, IsSymmetric) {
    forRandomCurves(100, [&](const CurveBox& curve) -> std::string {
        GRect box = curve.box;
        box = {static_cast<int16_t>(box.left + 60), static_cast<int16_t>(box.top + 60),
               static_cast<int16_t>(box.right + 60), static_cast<int16_t>(box.bottom + 60)};
        const Pixels ring = ringOf(box, curve.pen);
        for (const auto& [y, x] : ring) {
            if (!ring.contains({y, box.left + box.right - x}) ||
                !ring.contains({box.top + box.bottom - y, x})) {
                return "row " + std::to_string(y) + " column " + std::to_string(x);
            }
        }
        return "";
    });
}

TEST_F(WideOutline, TakesTwoSizesOfThePenForItsTwoDirections) {
    const GRect box{30, 30, 90, 90};
    Drawing drawing(120, 120);
    GDSetPenSize(drawing, 9, 3);
    GDDrawOval(drawing, &box);
    const Pixels ring = pixelsOf(*drawing.surface());
    EXPECT_TRUE(ring.contains({60, 26}));
    EXPECT_FALSE(ring.contains({60, 25}));
    EXPECT_TRUE(ring.contains({29, 60}));
    EXPECT_FALSE(ring.contains({28, 60}));
    EXPECT_TRUE(ring.contains({31, 60}));
    EXPECT_FALSE(ring.contains({32, 60}));
}

TEST_F(WideOutline, FarLargerThanTheSurfaceEndsSoon) {
    Drawing drawing(kCurveWidth, kCurveHeight);
    GDSetPenSize(drawing, 32767, 32767);
    const GRect box{-20000, -20000, 20000, 20000};
    GDDrawOval(drawing, &box);
    EXPECT_EQ(pixelAt(*drawing.surface(), 5, 5), 0U); // the hole is farther away
    const GRect small{10, 10, 20, 20};
    GDDrawOval(drawing, &small);
    EXPECT_EQ(pixelsOf(*drawing.surface()).size(), size_t{kCurveWidth * kCurveHeight});
}

} // namespace
