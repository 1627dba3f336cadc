#include "geometry/geometry.h"
#include "raster/curve_test.h"
#include "raster/ellipse.h"

#include <quarlo/draw.h>

using namespace quarlo;
using namespace quarlo::test;

namespace {

class Oval : public RasterTest {};

void drawOval(GDrawHandle* handle, const GRect& box) {
    GDDrawOval(handle, &box);
}

void fillWith(GDrawHandle* handle, int16_t style) {
    GDSetPenColor(handle, G_NO_COLOR);
    GDSetFillAttribute(handle, style, 1, 2);
}

TEST_F(Oval, OfOnePixelIsFilledOnce) {
    Drawing drawing(3, 2);
    fillWith(drawing, G_FILL_FORE);
    GDSetDrawingMode(drawing, G_MODE_XOR);
    drawOval(drawing, {0, 0, 0, 0});
    EXPECT_TRUE(shows(*drawing.surface(), {"#..", "..."}));
}

TEST_F(Oval, OfEvenSizeHasTwoCentres) {
    Drawing drawing(10, 10);
    fillWith(drawing, G_FILL_FORE);
    drawOval(drawing, {0, 0, 9, 9});
    EXPECT_TRUE(shows(*drawing.surface(), {"...####...", //
                                           ".########.", //
                                           ".########.", //
                                           "##########", //
                                           "##########", //
                                           "##########", //
                                           "##########", //
                                           ".########.", //
                                           ".########.", //
                                           "...####..."}));
    EXPECT_EQ(drawing->ellipse.leftCentre, 4);
    EXPECT_EQ(drawing->ellipse.rightCentre, 5);
    EXPECT_EQ(drawing->ellipse.topCentre, 4);
    EXPECT_EQ(drawing->ellipse.bottomCentre, 5);
}

TEST_F(Oval, OfOddSizeFillsItsMiddleRowOnce) {
    Drawing drawing(11, 11);
    fillWith(drawing, G_FILL_FORE);
    GDSetDrawingMode(drawing, G_MODE_XOR);
    drawOval(drawing, {0, 0, 10, 10});
    EXPECT_TRUE(shows(*drawing.surface(), {"...#####...", //
                                           "..#######..", //
                                           ".#########.", //
                                           "###########", //
                                           "###########", //
                                           "###########", //
                                           "###########", //
                                           "###########", //
                                           ".#########.", //
                                           "..#######..", //
                                           "...#####..."}));
}

TEST_F(Oval, OutsideTheClipDrawsOnlyWhatItsPenReaches) {
    Drawing drawing(20, 20);
    setClip(drawing, 5, 5, 14, 14);
    drawOval(drawing, {15, 0, 30, 19});
    EXPECT_TRUE(pixelsOf(*drawing.surface()).empty());
    GDSetPenSize(drawing, 9, 9);
    drawOval(drawing, {19, 0, 34, 19});
    EXPECT_TRUE(pixelsOf(*drawing.surface()).empty());
    drawOval(drawing, {18, 0, 33, 19});
    EXPECT_FALSE(pixelsOf(*drawing.surface()).empty());
}

TEST_F(Oval, NoticesItsPatternOnlyWhereItShows) {
    Drawing drawing(20, 20);
    fillWith(drawing, 16);
    drawOval(drawing, {20, 20, 30, 30});
    EXPECT_EQ(platform.count(69), 0U);
    drawOval(drawing, {2, 2, 15, 15});
    EXPECT_EQ(platform.count(69), 1U);
    for (const int16_t style : {int16_t{-5}, int16_t{-32768}, int16_t{G_FILL_NONE}}) {
        fillWith(drawing, style);
        drawOval(drawing, {2, 2, 15, 15});
    }
    EXPECT_EQ(platform.count(69), 1U);
}

TEST_F(Oval, OfAPatternThatTheHandleHasNotIsNotFilled) {
    Drawing drawing(20, 20);
    fillWith(drawing, 0);
    for (const int16_t pattern : {int16_t{G_FILL_PATTERN_COUNT}, int16_t{INT16_MAX}}) {
        drawing->fillPattern = pattern;
        drawOval(drawing, {2, 2, 15, 15});
    }
    EXPECT_TRUE(pixelsOf(*drawing.surface()).empty());
}

TEST_F(Oval, IsMappedLikeARectangle) {
    Drawing moved(20, 20);
    const GPoint origin{100, -50};
    GDSetLocalOrigin(moved, &origin);
    drawOval(moved, {103, -48, 112, -39});
    Drawing plain(20, 20);
    drawOval(plain, {3, 2, 12, 11});
    EXPECT_TRUE(samePicture(pictureOf(*moved.surface()), pictureOf(*plain.surface())));
}

/// One oval in one style.
struct StyledOval {
    GRect box;
    int16_t style;
    int32_t mode;

    friend std::ostream& operator<<(std::ostream& out, const StyledOval& oval) {
        return out << "(" << oval.box.left << ", " << oval.box.top << ", " << oval.box.right << ", "
                   << oval.box.bottom << ") style " << oval.style << " mode " << oval.mode;
    }
};

StyledOval randomOval(Random& random) {
    GRect box = randomCurve(random).box;
    if (random.oneIn(6)) {
        box = {random.coordinate(-90, 90), random.coordinate(-90, 90), random.coordinate(-90, 90),
               random.coordinate(-90, 90)};
    }
    return {box, static_cast<int16_t>(random.between(-3, 37)), random.between(0, 3)};
}

constexpr uint32_t kFore = 0x5A3C69;
constexpr uint32_t kBack = 0x96A5C3;

uint32_t combined(uint32_t old, uint32_t color, int32_t mode) {
    const uint32_t results[] = {color, old & color, old | color, old ^ color};
    return results[mode];
}

void fillByModel(GuardedSurface& surface, const GDrawHandle& handle, const StyledOval& oval,
                 const GRect& area) {
    const uint32_t mask = 0xFFFFFFU >> (24 - surface->bitsPerPixel);
    for (const auto& row : CurveModel::oval(oval.box).quarterRows()) {
        const int32_t last = std::min<int32_t>(row.last, area.right);
        for (int32_t x = std::max<int32_t>(row.first, area.left);
             x <= last && row.y >= area.top && row.y <= area.bottom; ++x) {
            const bool back = oval.style == G_FILL_BACK ||
                              (oval.style >= 0 &&
                               (handle.fillPatterns[oval.style][row.y & 7] << (x & 7) & 0x80) == 0);
            const uint32_t color = (back ? kBack : kFore) & mask;
            setPixelAt(*surface, x, row.y, combined(pixelAt(*surface, x, row.y), color, oval.mode));
        }
    }
}

TEST_F(Oval, FillsWhatAPlainModelFills) {
    const GRect area{3, 2, 50, 40};
    for (const bool copied : {false, true}) {
        for (const int16_t bits : kDepths) {
            forRandomCalls(150, 4, randomOval, [&](const auto& ovals) -> std::string {
                Drawing drawing(kCurveWidth, kCurveHeight, bits, Against::Start);
                GuardedSurface expected(kCurveWidth, kCurveHeight, bits);
                CopiedOps ops;
                GDSetClipRect(drawing, &area);
                for (const StyledOval& oval : ovals) {
                    GDSetDrawingMode(drawing, oval.mode);
                    GDSetPenColor(drawing, G_NO_COLOR);
                    GDSetFillAttribute(drawing, oval.style, kFore, kBack);
                    if (copied) {
                        ops.attach(drawing);
                    }
                    if (oval.style != G_FILL_NONE && !areDisjoint(oval.box, area)) {
                        fillByModel(expected, *drawing.operator->(), oval, area);
                    }
                    drawOval(drawing, oval.box);
                }
                const bool same = std::equal(expected.memory().data(),
                                             expected.memory().data() + expected.memory().size(),
                                             drawing.surface().memory().data());
                return same && drawing.surface().memory().intact() ? "" : "the surfaces differ";
            });
        }
    }
}

TEST_F(Oval, OfHugeSizeIsRight) {
    Drawing drawing(kCurveWidth, kCurveHeight);
    for (const GRect& box : {GRect{-1280, -1270, 1279, 1289}, GRect{-32768, -32768, 32767, 32767},
                             GRect{0, -32768, 60, 32767}, GRect{-32768, 0, 32767, 40}}) {
        const Pixels actual = filledBy([&box](GDrawHandle* handle) { drawOval(handle, box); });
        Pixels expected;
        for (const auto& row : CurveModel::oval(box).quarterRows()) {
            for (int32_t x = std::max(row.first, 0); x <= std::min<int32_t>(row.last, 63); ++x) {
                expected.insert({row.y, x});
            }
        }
        EXPECT_EQ(difference(actual, within(expected, kCurveArea)), "");
    }
}

TEST_F(Oval, IsFilledByAGradationAsItsBox) {
    for (const uint8_t direction : {G_GRADATION_DOWN, G_GRADATION_ACROSS}) {
        forRandomCurves(150, [&](const CurveBox& curve) -> std::string {
            const GGradationInfo info{direction, 0x0000FF, 0xFF8000,
                                      static_cast<uint16_t>(curve.first & 63),
                                      static_cast<uint16_t>(curve.second & 63)};
            Drawing oval(kCurveWidth, kCurveHeight, 16);
            Drawing box(kCurveWidth, kCurveHeight, 16);
            for (Drawing* const drawing : {&oval, &box}) {
                GDrawHandle* const handle = *drawing;
                fillWith(handle, G_FILL_GRADATION);
                GDSetGradationInfo(handle, &info);
            }
            drawOval(oval, curve.box);
            GDDrawRect(box, &curve.box);
            const Pixels filled = CurveModel::oval(curve.box).filled();
            for (int32_t y = 0; y < kCurveHeight; ++y) {
                for (int32_t x = 0; x < kCurveWidth; ++x) {
                    const bool inside =
                        filled.contains({y, x}) && x <= curve.box.right && x >= curve.box.left;
                    const uint32_t expected = inside ? pixelAt(*box.surface(), x, y) : 0;
                    if (pixelAt(*oval.surface(), x, y) != expected) {
                        return "row " + std::to_string(y) + " column " + std::to_string(x);
                    }
                }
            }
            return "";
        });
    }
}

TEST_F(Oval, HasAThinOutlineOfTheFillsBoundary) {
    forRandomCurves(600, [&](const CurveBox& curve) -> std::string {
        const GRect& box = curve.box;
        const Pixels actual = painted([&box](GDrawHandle* handle) { drawOval(handle, box); });
        return difference(actual, within(CurveModel::oval(box).outline(), kCurveArea));
    });
}

/// Whether each pixel of an outline has a way around: taken at random, walking from neighbour to
/// neighbour reaches all others.
bool isConnected(const Pixels& pixels) {
    Pixels reached = {*pixels.begin()};
    std::vector<Pixel> next = {*pixels.begin()};
    while (!next.empty()) {
        const auto [y, x] = next.back();
        next.pop_back();
        for (int32_t dy = -1; dy <= 1; ++dy) {
            for (int32_t dx = -1; dx <= 1; ++dx) {
                const Pixel neighbour{y + dy, x + dx};
                if (pixels.contains(neighbour) && reached.insert(neighbour).second) {
                    next.push_back(neighbour);
                }
            }
        }
    }
    return reached.size() == pixels.size();
}

TEST_F(Oval, HasAClosedOutlineThatIsSymmetric) {
    for (int16_t width = 0; width < 40; ++width) {
        for (int16_t height = 0; height < 40; ++height) {
            const GRect box{2, 3, static_cast<int16_t>(2 + width),
                            static_cast<int16_t>(3 + height)};
            const Pixels pixels = painted([&box](GDrawHandle* handle) { drawOval(handle, box); });
            ASSERT_TRUE(isConnected(pixels)) << width << " x " << height;
            for (const auto& [y, x] : pixels) {
                ASSERT_TRUE(pixels.contains({y, box.left + box.right - x}));
                ASSERT_TRUE(pixels.contains({box.top + box.bottom - y, x}));
            }
        }
    }
}

TEST_F(Oval, DrawnTwiceByExclusiveOrIsGone) {
    forRandomCurves(200, [&](const CurveBox& curve) -> std::string {
        for (const int16_t pen : {int16_t{1}, curve.pen}) {
            const Pixels left = painted(
                [&](GDrawHandle* handle) {
                    drawOval(handle, curve.box);
                    drawOval(handle, curve.box);
                },
                pen);
            if (!left.empty()) {
                return "pen " + std::to_string(pen) + " leaves " + std::to_string(left.size());
            }
        }
        return "";
    });
}

TEST_F(Oval, OfAnyPenMemoryAndPlaceIsCalm) {
    Random random(testSeed());
    const auto pen = [&random] {
        return random.oneIn(2) ? random.coordinate(0, 40) : int16_t{32767};
    };
    for (int round = 0; round < 300; ++round) {
        const GRect box{random.coordinate(-90, 90), random.coordinate(-90, 90),
                        random.coordinate(-90, 90), random.coordinate(-90, 90)};
        Drawing drawing(kCurveWidth, kCurveHeight, 16);
        GDSetPenSize(drawing, pen(), pen());
        GDSetFillAttribute(drawing, 5, 1, 2);
        const size_t blocks = platform.blocksInUse();
        platform.failAllocation(random.between(0, 6));
        drawOval(drawing, box);
        platform.failAllocation(0);
        EXPECT_TRUE(drawing.surface().memory().intact());
        EXPECT_EQ(platform.blocksInUse(), blocks);
    }
}

} // namespace
