#include "geometry/geometry.h"
#include "raster/arc_model.h"
#include "raster/curve_test.h"

#include <quarlo/draw.h>

using namespace quarlo;
using namespace quarlo::test;

namespace {

class Arc : public RasterTest {};

void drawArc(GDrawHandle* handle, const GRect& box, int32_t start, int32_t end) {
    GDDrawArc(handle, &box, static_cast<int16_t>(start), static_cast<int16_t>(end));
}

constexpr GRect kBox = {10, 5, 50, 35}; // centre (30, 20), semi-axes 20 and 15

TEST_F(Arc, LeavesItsEndsInTheHandle) {
    Drawing drawing(60, 40);
    drawArc(drawing, kBox, 0, 900);
    EXPECT_EQ(drawing->arc.start.x, 50);
    EXPECT_EQ(drawing->arc.start.y, 20);
    EXPECT_EQ(drawing->arc.end.x, 30);
    EXPECT_EQ(drawing->arc.end.y, 5);
    EXPECT_EQ(drawing->arc.inverseSlope, 0);
    drawArc(drawing, kBox, 2700, 1800);
    EXPECT_EQ(drawing->arc.start.x, 30);
    EXPECT_EQ(drawing->arc.start.y, 35);
    EXPECT_EQ(drawing->arc.end.x, 10);
    EXPECT_EQ(drawing->arc.end.y, 20);
    EXPECT_EQ(drawing->arc.inverseSlope, 20 * 65536);
    drawArc(drawing, kBox, 900, 3600);
    EXPECT_EQ(drawing->arc.end.x, 50);
    EXPECT_EQ(drawing->arc.inverseSlope, 20 * 65536);
}

TEST_F(Arc, LeavesItsCentresInTheHandle) {
    Drawing drawing(60, 40);
    drawArc(drawing, {10, 5, 49, 35}, 0, 900);
    EXPECT_EQ(drawing->ellipse.leftCentre, 29);
    EXPECT_EQ(drawing->ellipse.rightCentre, 30);
    EXPECT_EQ(drawing->ellipse.topCentre, 20);
    EXPECT_EQ(drawing->ellipse.bottomCentre, 20);
}

TEST_F(Arc, FindsItsEndsAsThePlainSteps) {
    for (const GRect& box : {kBox, GRect{10, 5, 49, 34}, GRect{0, 0, 63, 7}, GRect{3, 0, 9, 47},
                             GRect{5, 5, 5, 5}, GRect{5, 5, 6, 9}, GRect{-300, -200, 320, 250}}) {
        Drawing drawing(kCurveWidth, kCurveHeight);
        const CurveModel oval = CurveModel::oval(box);
        for (int32_t angle = 0; angle < 3600; ++angle) {
            drawArc(drawing, box, angle, 3599 - angle);
            const GPoint start = modelEnd(oval, angle).on(oval);
            const ModelEnd last = modelEnd(oval, 3599 - angle);
            const GPoint end = last.on(oval);
            ASSERT_EQ(drawing->arc.start.x, start.x) << angle;
            ASSERT_EQ(drawing->arc.start.y, start.y) << angle;
            ASSERT_EQ(drawing->arc.end.x, end.x) << angle;
            ASSERT_EQ(drawing->arc.end.y, end.y) << angle;
            ASSERT_EQ(drawing->arc.inverseSlope, last.inverseSlope) << angle;
        }
    }
}

TEST_F(Arc, TakesFullTurnsOffItsAngles) {
    const auto drawn = [](int32_t start, int32_t end) {
        return painted([=](GDrawHandle* handle) { drawArc(handle, kBox, start, end); });
    };
    EXPECT_EQ(difference(drawn(3600 + 450, 7200 + 1700), drawn(450, 1700)), "");
    EXPECT_EQ(difference(drawn(-900, 450), drawn(2700, 450)), "");
    EXPECT_EQ(difference(drawn(-32768, 32767), drawn(3232, 367)), "");
}

TEST_F(Arc, OutOfSightConvertsTheLastEndsOnceMore) {
    Drawing drawing(60, 40);
    drawArc(drawing, kBox, 0, 900);
    const GPoint origin{100, 1000};
    GDSetLocalOrigin(drawing, &origin);
    drawArc(drawing, kBox, 0, 900); // now far off
    EXPECT_EQ(drawing->arc.start.x, 150);
    EXPECT_EQ(drawing->arc.start.y, 1020);
    drawArc(drawing, kBox, 0, 900);
    EXPECT_EQ(drawing->arc.start.x, 250);
    EXPECT_EQ(drawing->arc.end.y, 2005);
}

TEST_F(Arc, OfNoLengthIsOnePixel) {
    forRandomCurves(200, [&](const CurveBox& curve) -> std::string {
        const int32_t angle = std::max(curve.first, 0) % 3600;
        const Pixels pixels =
            painted([&](GDrawHandle* handle) { drawArc(handle, kBox, angle, angle); });
        const CurveModel oval = CurveModel::oval(kBox);
        const GPoint end = modelEnd(oval, angle).on(oval);
        if (pixels.size() != 1) {
            return std::to_string(pixels.size()) + " pixels";
        }
        const auto [y, x] = *pixels.begin();
        return std::abs(y - end.y) <= 1 && std::abs(x - end.x) <= 1 ? "" : "away from the end";
    });
}

TEST_F(Arc, IsThePartOfTheOutlineBetweenItsEnds) {
    forRandomCurves(1500, [&](const CurveBox& curve) -> std::string {
        const auto& [box, first, second, pen] = curve;
        if (areDisjoint(box, kCurveArea)) {
            return "";
        }
        const auto turned = [](int32_t angle) { return (angle + 3600) % 3600; };
        const Pixels actual =
            painted([&box = box, first = first, second = second](GDrawHandle* handle) {
                drawArc(handle, box, first, second);
            });
        const Pixels expected = arcPixels(CurveModel::oval(box), turned(first), turned(second));
        return difference(actual, within(expected, kCurveArea));
    });
}

TEST_F(Arc, AndTheRestOfTheTurnAreTheWholeOutline) {
    forRandomCurves(1000, [&](const CurveBox& curve) -> std::string {
        const auto& [box, first, second, pen] = curve;
        const auto arc = [&box = box](int32_t start, int32_t end) {
            return painted([&](GDrawHandle* handle) { drawArc(handle, box, start, end); });
        };
        const Pixels one = arc(first, second);
        const Pixels other = arc(second, first);
        Pixels both = one;
        both.insert(other.begin(), other.end());
        if ((first - second) % 3600 == 0) {
            return "";
        }
        const size_t shared = one.size() + other.size() - both.size();
        if (shared > 2) {
            return std::to_string(shared) + " pixels are shared";
        }
        // Angles so close that they share a pixel leave the shorter arc as that pixel, or give the
        // longer one all of the outline.
        return difference(both, within(CurveModel::oval(box).outline(), kCurveArea));
    });
}

TEST_F(Arc, EndToEndWithAnotherSharesOnePixelAtMost) {
    // Also where the outline is so narrow that it runs out to an axis and back on itself.
    Random random(testSeed());
    for (int round = 0; round < 2000; ++round) {
        const auto width = static_cast<int16_t>(random.between(0, random.oneIn(2) ? 5 : 60));
        const auto height = static_cast<int16_t>(random.between(0, random.oneIn(2) ? 5 : 45));
        const GRect box{1, 1, static_cast<int16_t>(1 + width), static_cast<int16_t>(1 + height)};
        const auto angle = [&random](int32_t low, int32_t high) {
            return random.oneIn(2) ? random.between((low + 899) / 900, high / 900) * 900
                                   : random.between(low, high);
        };
        const int32_t start = angle(0, 3600);
        const int32_t middle = angle(start + 1, start + 900);
        const int32_t end = angle(middle + 1, middle + 900);
        const auto arc = [&box](int32_t from, int32_t to) {
            return painted([&](GDrawHandle* handle) { drawArc(handle, box, from, to); });
        };
        const Pixels first = arc(start, middle);
        const Pixels second = arc(middle, end);
        Pixels both = first;
        both.insert(second.begin(), second.end());
        ASSERT_LE(first.size() + second.size(), both.size() + 1)
            << width + 1 << " x " << height + 1 << " pixels, angles " << start << ", " << middle
            << ", " << end;
        ASSERT_EQ(difference(both, arc(start, end)), "")
            << width + 1 << " x " << height + 1 << " pixels, angles " << start << ", " << middle
            << ", " << end;
    }
}

TEST_F(Arc, WithAWidePenAndTheRestAreTheWholeRing) {
    forRandomCurves(300, [&](const CurveBox& curve) -> std::string {
        const auto& [box, first, second, pen] = curve;
        const auto draw = [&box = box, pen = pen](int32_t start, int32_t end) {
            return painted([&](GDrawHandle* handle) { drawArc(handle, box, start, end); }, pen);
        };
        if (CurveModel::oval(box).filled().empty() || box.left > kCurveArea.right ||
            box.right < 0 || box.top > kCurveArea.bottom || box.bottom < 0) {
            return ""; // an arc is not drawn for the sake of its pen alone
        }
        const Pixels ring =
            painted([&box = box](GDrawHandle* handle) { GDDrawOval(handle, &box); }, pen);
        const Pixels one = draw(first, second);
        const Pixels other = draw(second, first);
        Pixels both = one;
        both.insert(other.begin(), other.end());
        // They share the pixel in the middle at most.
        if (one.size() + other.size() > both.size() + 1) {
            return "they overlap";
        }
        const bool oneRay = one.empty() || other.empty();
        return oneRay && both.empty() ? "" : difference(both, ring);
    });
}

TEST_F(Arc, WithoutPenColorOnlyFindsItsEnds) {
    Drawing drawing(60, 40);
    GDSetPenColor(drawing, G_NO_COLOR);
    drawArc(drawing, kBox, 450, 900);
    EXPECT_TRUE(pixelsOf(*drawing.surface()).empty());
    EXPECT_EQ(drawing->arc.end.y, 5);
}

TEST_F(Arc, OfAnyBoxAngleAndPenIsCalm) {
    Random random(testSeed());
    for (int round = 0; round < 400; ++round) {
        Drawing drawing(kCurveWidth, kCurveHeight, 16);
        const GRect box{random.coordinate(-90, 90), random.coordinate(-90, 90),
                        random.coordinate(-90, 90), random.coordinate(-90, 90)};
        GDSetPenSize(drawing, random.coordinate(0, 20), random.coordinate(0, 20));
        GDSetFillAttribute(drawing, static_cast<int16_t>(random.between(-4, 40)), 1, 2);
        const size_t blocks = platform.blocksInUse();
        platform.failAllocation(random.between(0, 5));
        drawArc(drawing, box, random.coordinate(0, 3600), random.coordinate(0, 3600));
        GDDrawPie(drawing, &box, random.coordinate(0, 3600), random.coordinate(0, 3600));
        platform.failAllocation(0);
        EXPECT_TRUE(drawing.surface().memory().intact());
        EXPECT_EQ(platform.blocksInUse(), blocks);
    }
}

} // namespace
