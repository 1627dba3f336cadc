#include "geometry/geometry.h"
#include "raster/curve_test.h"

#include <quarlo/draw.h>

#include <vector>

using namespace quarlo;
using namespace quarlo::test;

namespace {

class Pie : public RasterTest {};

void drawPie(GDrawHandle* handle, const GRect& box, int32_t start, int32_t end) {
    GDDrawPie(handle, &box, static_cast<int16_t>(start), static_cast<int16_t>(end));
}

/// What the outline covers, however often.
Pixels outlineOf(const GRect& box, int32_t start, int32_t end, int16_t pen = 1) {
    Drawing drawing(kCurveWidth, kCurveHeight);
    GDSetPenSize(drawing, pen, pen);
    drawPie(drawing, box, start, end);
    return pixelsOf(*drawing.surface());
}

/// The pixels that can be reached from the corner of a larger area without crossing others.
Pixels outsideOf(const Pixels& wall) {
    const GRect area{-1, -1, kCurveWidth, kCurveHeight};
    Pixels reached{{-1, -1}};
    for (std::vector<Pixel> open{{-1, -1}}; !open.empty();) {
        const auto [y, x] = open.back();
        open.pop_back();
        for (const Pixel& next :
             {Pixel{y - 1, x}, Pixel{y + 1, x}, Pixel{y, x - 1}, Pixel{y, x + 1}}) {
            if (within({next}, area).empty() || wall.contains(next) || reached.contains(next)) {
                continue;
            }
            reached.insert(next);
            open.push_back(next);
        }
    }
    return reached;
}

TEST_F(Pie, OfFourQuartersIsTheOval) {
    forRandomCurves(400, [&](const CurveBox& curve) -> std::string {
        const GRect& box = curve.box;
        Pixels all;
        size_t sum = 0;
        for (int32_t quarter = 0; quarter < 4; ++quarter) {
            const Pixels pie = filledBy([&](GDrawHandle* handle) {
                drawPie(handle, box, quarter * 900, (quarter + 1) * 900);
            });
            sum += pie.size();
            all.insert(pie.begin(), pie.end());
        }
        // The centre, where there is one, belongs to all of them.
        if (sum > all.size() + 3) {
            return "quarters overlap";
        }
        return difference(all, within(CurveModel::oval(box).filled(), kCurveArea));
    });
}

TEST_F(Pie, AndTheRestOfTheTurnAreTheOval) {
    forRandomCurves(800, [&](const CurveBox& curve) -> std::string {
        const auto& [box, first, second, pen] = curve;
        const auto fill = [&box = box](int32_t start, int32_t end) {
            return filledBy([&](GDrawHandle* handle) { drawPie(handle, box, start, end); });
        };
        const Pixels one = fill(first, second);
        const Pixels other = fill(second, first);
        Pixels both = one;
        both.insert(other.begin(), other.end());
        if (one.size() + other.size() > both.size() + 1) {
            return "they overlap";
        }
        const bool noLength = (first - second) % 3600 == 0;
        return noLength ? "" : difference(both, within(CurveModel::oval(box).filled(), kCurveArea));
    });
}

TEST_F(Pie, FillMeetsItsOutline) {
    // From a filled pixel every step leads to a filled pixel or onto the outline.
    forRandomCurves(500, [&](const CurveBox& curve) -> std::string {
        const auto pixels = [&curve](bool filled) {
            Drawing drawing(140, 140); // all of the box: a radius that is clipped moves a little
            const GPoint origin{-20, -20};
            GDSetLocalOrigin(drawing, &origin);
            if (filled) {
                GDSetPenColor(drawing, G_NO_COLOR);
                GDSetFillAttribute(drawing, G_FILL_FORE, 1, 1);
            }
            drawPie(drawing, curve.box, curve.first, curve.second);
            return pixelsOf(*drawing.surface());
        };
        const Pixels fill = pixels(true);
        const Pixels outline = pixels(false);
        for (const auto& [y, x] : fill) {
            for (const Pixel& next :
                 {Pixel{y - 1, x}, Pixel{y + 1, x}, Pixel{y, x - 1}, Pixel{y, x + 1}}) {
                if (!outline.contains({y, x}) && !fill.contains(next) && !outline.contains(next)) {
                    return "row " + std::to_string(y) + " column " + std::to_string(x);
                }
            }
        }
        return "";
    });
}

TEST_F(Pie, OutlineEnclosesItsFill) {
    forRandomCurves(400, [&](const CurveBox& curve) -> std::string {
        const auto& [box, first, second, pen] = curve;
        if (!contains(kCurveArea, box)) {
            return ""; // the surface's edge cuts the outline open
        }
        const Pixels fill =
            filledBy([&box = box, first = first, second = second](GDrawHandle* handle) {
                drawPie(handle, box, first, second);
            });
        const Pixels outside = outsideOf(outlineOf(box, first, second));
        for (const auto& [y, x] : fill) {
            if (outside.contains({y, x})) {
                return "row " + std::to_string(y) + " column " + std::to_string(x);
            }
        }
        return "";
    });
}

TEST_F(Pie, HasEachPixelOfAThinOutlineOnce) {
    forRandomCurves(600, [&](const CurveBox& curve) -> std::string {
        const auto& [box, first, second, pen] = curve;
        const Pixels once =
            painted([&box = box, first = first, second = second](GDrawHandle* handle) {
                drawPie(handle, box, first, second);
            });
        return difference(once, outlineOf(box, first, second));
    });
}

TEST_F(Pie, ThinOutlineIsTheArcAndTwoLines) {
    const GRect box{5, 4, 45, 34};
    for (const auto& [start, end] : {std::pair{0, 900}, {450, 1350}, {1000, 3000}, {2700, 100}}) {
        Drawing drawing(kCurveWidth, kCurveHeight);
        GDDrawArc(drawing, &box, static_cast<int16_t>(start), static_cast<int16_t>(end));
        const GArcState arc = drawing->arc;
        drawLine(drawing, 25, 19, arc.start.x, arc.start.y);
        drawLine(drawing, 25, 19, arc.end.x, arc.end.y);
        EXPECT_EQ(difference(outlineOf(box, start, end), pixelsOf(*drawing.surface())), "");
    }
}

TEST_F(Pie, OfAWidePenHasNoNotchWhereItsRadiiMeetTheArc) {
    constexpr int16_t kPen = 9;
    constexpr int32_t kReach = kPen / 2 - 1;
    const GRect box{12, 6, 52, 40};
    for (int32_t start = 0; start < 3600; start += 70) {
        Drawing drawing(kCurveWidth, kCurveHeight);
        GDSetPenSize(drawing, kPen, kPen);
        drawPie(drawing, box, start, start + 1000);
        for (const GPoint& corner : {drawing->arc.start, drawing->arc.end}) {
            for (int32_t y = -kReach; y <= kReach; ++y) {
                for (int32_t x = -kReach; x <= kReach; ++x) {
                    if (x * x + y * y <= kReach * kReach) {
                        ASSERT_EQ(pixelAt(*drawing.surface(), corner.x + x, corner.y + y), 1U)
                            << start << ": " << x << ", " << y << " from a corner";
                    }
                }
            }
        }
    }
}

TEST_F(Pie, OfAWidePenIsCutByTheClipAlone) {
    // Also where a radius lies outside and only its thickness reaches in.
    const GRect clip{20, 10, 45, 30};
    forRandomCurves(500, [&](const CurveBox& curve) -> std::string {
        const auto& [box, first, second, pen] = curve;
        if (areDisjoint(box, clip)) {
            return "";
        }
        Drawing drawing(kCurveWidth, kCurveHeight);
        GDSetClipRect(drawing, &clip);
        GDSetPenSize(drawing, pen, pen);
        drawPie(drawing, box, first, second);
        return difference(pixelsOf(*drawing.surface()),
                          within(outlineOf(box, first, second, pen), clip));
    });
}

TEST_F(Pie, WithoutFillStillHasArcAndRadii) {
    Drawing drawing(41, 41);
    drawPie(drawing, {0, 0, 40, 40}, 0, 900);
    EXPECT_EQ(pixelAt(*drawing.surface(), 20, 20), 1U);
    EXPECT_EQ(pixelAt(*drawing.surface(), 30, 20), 1U);
    EXPECT_EQ(pixelAt(*drawing.surface(), 20, 10), 1U);
    EXPECT_EQ(pixelAt(*drawing.surface(), 40, 20), 1U);
    EXPECT_EQ(pixelAt(*drawing.surface(), 20, 0), 1U);
    EXPECT_EQ(pixelAt(*drawing.surface(), 25, 15), 0U);
    EXPECT_EQ(pixelAt(*drawing.surface(), 10, 20), 0U);
}

TEST_F(Pie, IsFilledInEveryStyle) {
    Drawing drawing(41, 41);
    GDSetPenColor(drawing, G_NO_COLOR);
    const GRect box{0, 0, 40, 40};
    GDSetFillAttribute(drawing, G_FILL_FORE, 3, 5);
    drawPie(drawing, box, 0, 900);
    EXPECT_EQ(pixelAt(*drawing.surface(), 25, 15), 3U);
    GDSetFillPattern(drawing, G_FILL_BACK);
    drawPie(drawing, box, 0, 900);
    EXPECT_EQ(pixelAt(*drawing.surface(), 25, 15), 5U);
    EXPECT_EQ(platform.count(69), 0U);
    for (int16_t pattern = 0; pattern < G_FILL_PATTERN_COUNT; ++pattern) {
        GDSetFillPattern(drawing, pattern);
        drawPie(drawing, box, 0, 900);
        for (int16_t x = 22; x < 30; ++x) {
            const bool set = (drawing->fillPatterns[pattern][15 & 7] << (x & 7) & 0x80) != 0;
            EXPECT_EQ(pixelAt(*drawing.surface(), x, 15), set ? 3U : 5U);
        }
    }
    EXPECT_EQ(platform.count(69), size_t{G_FILL_PATTERN_COUNT});
    GDSetFillAttribute(drawing, G_FILL_GRADATION, 7, 7);
    drawPie(drawing, box, 0, 900);
    EXPECT_NE(pixelAt(*drawing.surface(), 25, 15), 7U);
    EXPECT_EQ(platform.count(69), size_t{G_FILL_PATTERN_COUNT});
}

TEST_F(Pie, OfAPatternThatTheHandleHasNotIsNotFilled) {
    Drawing drawing(41, 41);
    GDSetPenColor(drawing, G_NO_COLOR);
    GDSetFillColor(drawing, 3, 5);
    for (const int16_t pattern : {int16_t{G_FILL_PATTERN_COUNT}, int16_t{INT16_MAX}}) {
        drawing->fillPattern = pattern;
        drawPie(drawing, {0, 0, 40, 40}, 0, 900);
    }
    EXPECT_TRUE(pixelsOf(*drawing.surface()).empty());
    EXPECT_EQ(platform.count(69), 0U);
}

TEST_F(Pie, LeavesItsEndsInTheHandle) {
    Drawing drawing(60, 60);
    const GPoint origin{7, 9};
    GDSetLocalOrigin(drawing, &origin);
    drawPie(drawing, {7, 9, 47, 49}, 0, 900);
    EXPECT_EQ(drawing->arc.start.x, 47);
    EXPECT_EQ(drawing->arc.start.y, 29);
    EXPECT_EQ(drawing->arc.end.x, 27);
    EXPECT_EQ(drawing->arc.end.y, 9);
}

} // namespace
