#include "raster/polygon.h"

#include "raster/drawing.h"
#include "raster/polygon_model.h"
#include "support/random_calls.h"

#include <algorithm>
#include <array>
#include <vector>

using namespace quarlo;
using namespace quarlo::test;

namespace {

class Polygon : public RasterTest {
  protected:
    static void draw(GDrawHandle* handle, std::vector<GPoint> points) {
        GPoly poly{static_cast<int16_t>(points.size()), points.data(), {}};
        GDDrawPoly(handle, &poly);
    }

    /// Fills solid in 1, without a frame.
    static void fillOnly(GDrawHandle* handle) {
        GDSetPenColor(handle, G_NO_COLOR);
        GDSetFillAttribute(handle, G_FILL_FORE, 1, 2);
    }
};

TEST_F(Polygon, LeavesItsLowestLineUnfilled) {
    Drawing drawing(9, 6);
    fillOnly(drawing);
    draw(drawing, {{0, 0}, {8, 0}, {4, 4}});
    EXPECT_TRUE(shows(*drawing.surface(), {"#########", //
                                           ".#######.", //
                                           "..#####..", //
                                           "...###...", //
                                           ".........", //
                                           "........."}));
}

TEST_F(Polygon, OfTwoPointsOrOnOneRowFillsNothing) {
    Drawing drawing(6, 3);
    fillOnly(drawing);
    draw(drawing, {{0, 0}, {5, 2}});
    draw(drawing, {{0, 1}, {5, 1}, {3, 1}});
    EXPECT_TRUE(shows(*drawing.surface(), {"......", "......", "......"}));
}

TEST_F(Polygon, OnOneRowIsFramedAllTheSame) {
    Drawing drawing(6, 3);
    draw(drawing, {{0, 1}, {5, 1}, {3, 1}});
    EXPECT_TRUE(shows(*drawing.surface(), {"......", "######", "......"}));
}

TEST_F(Polygon, OfACrossedShapeHasAHole) {
    Drawing drawing(11, 11);
    fillOnly(drawing);
    // Two nested squares in one line: even-odd leaves the inner one out.
    draw(drawing,
         {{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}, {3, 3}, {7, 3}, {7, 7}, {3, 7}, {3, 3}});
    EXPECT_EQ(pixelAt(*drawing.surface(), 5, 5), 0U);
    EXPECT_EQ(pixelAt(*drawing.surface(), 1, 5), 1U);
    EXPECT_EQ(pixelAt(*drawing.surface(), 9, 5), 1U);
}

TEST_F(Polygon, ReadsNothingForACountOfZeroOrLess) {
    Drawing drawing(4, 4);
    fillOnly(drawing);
    for (const int16_t count : {int16_t{0}, int16_t{-1}, int16_t{-32768}}) {
        GPoly poly{count, nullptr, {}};
        GDSetPenColor(drawing, G_NO_COLOR);
        GDDrawPoly(drawing, &poly);
        GDSetPenColor(drawing, 1);
        GDDrawPoly(drawing, &poly);
    }
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(Polygon, TakesOneBlockAndGivesItBack) {
    Drawing drawing(9, 9);
    fillOnly(drawing);
    platform.forget();
    draw(drawing, {{0, 0}, {8, 0}, {4, 8}});
    ASSERT_EQ(platform.count(41), 1U);
    EXPECT_EQ(platform.callsOf(41)[0].arguments[0], 1);
    EXPECT_EQ(platform.callsOf(41)[0].arguments[1], 0);
    if (sizeof(void*) == 4) {
        EXPECT_EQ(platform.callsOf(41)[0].arguments[2], 4 * 20);
    }
    EXPECT_EQ(platform.count(42), 1U);
}

TEST_F(Polygon, WithoutMemoryIsNotFilled) {
    Drawing drawing(9, 9);
    fillOnly(drawing);
    platform.failAllocation(1);
    draw(drawing, {{0, 0}, {8, 0}, {4, 8}});
    platform.failAllocation(0);
    EXPECT_EQ(pixelAt(*drawing.surface(), 4, 0), 0U);
}

TEST_F(Polygon, HasItsPointsBackAfterwards) {
    Drawing drawing(20, 20);
    const GPoint origin{100, 50};
    GDSetLocalOrigin(drawing, &origin);
    fillOnly(drawing);
    std::vector<GPoint> points = {{100, 50}, {110, 50}, {105, 60}};
    GPoly poly{3, points.data(), {1, 2, 3, 4}};
    GDDrawPoly(drawing, &poly);
    EXPECT_EQ(pixelAt(*drawing.surface(), 5, 2), 1U);
    EXPECT_EQ(points[0].x, 100);
    EXPECT_EQ(points[1].x, 110);
    EXPECT_EQ(points[2].y, 60);
    EXPECT_EQ(poly.bounds.left, 1);
}

TEST_F(Polygon, StartsAtTheTopOfTheSurfaceHoweverFarAboveItBegins) {
    for (const int16_t top : {int16_t{-1}, int16_t{-5}, int16_t{-6}, int16_t{-30000}}) {
        Drawing drawing(9, 4);
        fillOnly(drawing);
        draw(drawing, {{2, top}, {6, top}, {6, 3}, {2, 3}});
        EXPECT_TRUE(shows(*drawing.surface(), {"..#####..", "..#####..", "..#####..", "........."}))
            << "top " << top;
    }
}

TEST_F(Polygon, KeepsAnEdgeOfMoreLinesThanACountHolds) {
    Drawing drawing(9, 4);
    fillOnly(drawing);
    draw(drawing, {{2, -32768}, {6, -32768}, {6, 32767}, {2, 32767}});
    EXPECT_TRUE(shows(*drawing.surface(), {"..#####..", "..#####..", "..#####..", "..#####.."}));
}

TEST_F(Polygon, NoticesItsPatternOnlyWhereSomethingShows) {
    Drawing drawing(9, 9);
    fillOnly(drawing);
    GDSetFillPattern(drawing, 16);
    draw(drawing, {{20, 20}, {28, 20}, {24, 28}});
    EXPECT_EQ(platform.count(69), 0U);
    draw(drawing, {{0, 0}, {8, 0}, {4, 8}});
    EXPECT_EQ(platform.count(69), 1U);
}

TEST_F(Polygon, NoticesNoPatternWhereTheClipRectangleIsInverted) {
    Drawing drawing(9, 9);
    fillOnly(drawing);
    GDSetFillPattern(drawing, 16);
    drawing.surface()->bounds = {0, 0, -1, -1};
    draw(drawing, {{-5, -5}, {8, -5}, {4, 8}});
    EXPECT_EQ(platform.count(69), 0U);
}

TEST_F(Polygon, CountsPatternsRoundAndRound) {
    const auto paint = [](int32_t pattern) {
        Drawing drawing(16, 16);
        const uint8_t rows[8] = {0x80, 0x41, 0x22, 0x14, 0x08, 0x15, 0x23, 0x40};
        GDDefineFillPattern(drawing, 4, rows);
        GPoint corners[] = {{0, 0}, {15, 0}, {15, 15}, {0, 15}};
        const Canvas canvas(*drawing);
        GDFillPolygon(canvas, {4, corners, {}}, 1, 2, pattern, G_MODE_COPY);
        const GuardedMemory& memory = drawing.surface().memory();
        return std::vector<uint8_t>(memory.data(), memory.data() + memory.size());
    };
    EXPECT_EQ(paint(4 + G_FILL_PATTERN_COUNT), paint(4));
    EXPECT_NE(paint(4), paint(3));
}

TEST_F(Polygon, OfOnePointDrawsNothing) {
    Drawing drawing(4, 3);
    GDSetFillAttribute(drawing, G_FILL_FORE, 1, 2);
    drawing->dashPhase = 5;
    draw(drawing, {{2, 1}});
    EXPECT_TRUE(shows(*drawing.surface(), {"....", "....", "...."}));
    EXPECT_EQ(drawing->dashPhase, 0); // as behind every frame
}

TEST_F(Polygon, OfAPatternBelowSolidIsNotFilled) {
    Drawing drawing(9, 9);
    GPoint corners[] = {{0, 0}, {8, 0}, {8, 8}, {0, 8}};
    const Canvas canvas(*drawing);
    for (const int32_t pattern : {kSolidPattern - 1, INT32_MIN}) {
        GDFillPolygon(canvas, {4, corners, {}}, 1, 1, pattern, G_MODE_COPY);
        EXPECT_EQ(pixelAt(*drawing.surface(), 4, 4), 0U);
    }
    GDFillPolygon(canvas, {4, corners, {}}, 1, 1, kSolidPattern, G_MODE_COPY);
    EXPECT_EQ(pixelAt(*drawing.surface(), 4, 4), 1U);
}

TEST_F(Polygon, WithAGradationIsNotFilled) {
    Drawing drawing(9, 9);
    fillOnly(drawing);
    for (const int16_t style : {int16_t{G_FILL_GRADATION}, int16_t{-5}, int16_t{-32768}}) {
        GDSetFillPattern(drawing, style);
        draw(drawing, {{0, 0}, {8, 0}, {4, 8}});
    }
    EXPECT_EQ(pixelAt(*drawing.surface(), 4, 1), 0U);
    EXPECT_EQ(platform.count(69), 0U);
}

/// Four points of a table edge in one block with its columns.
struct TableEdge {
    std::array<GPoint, 6> points;
    std::array<int16_t, 5> columns;
};

TEST_F(Polygon, FollowsATableInEitherDirection) {
    for (const int32_t bottomUp : {0, 1}) {
        Drawing drawing(9, 6);
        fillOnly(drawing);
        TableEdge edge{{{{1, 0}, {}, {}, {1, 4}, {7, 4}, {7, 0}}}, {1, 3, 1, 3, 1}};
        if (bottomUp != 0) {
            edge.columns = {0, 3, 2, 1, 0};
        }
        ASSERT_EQ(GDSetTableEdge(edge.points.data(), edge.columns.data(), bottomUp), 1);
        GPoly poly{6, edge.points.data(), {}};
        GDDrawPoly(drawing, &poly);
        if (bottomUp == 0) {
            EXPECT_TRUE(shows(*drawing.surface(), {".#######.", "...#####.", ".#######.",
                                                   "...#####.", ".........", "........."}));
        } else {
            EXPECT_TRUE(shows(*drawing.surface(), {"########.", ".#######.", "..######.",
                                                   "...#####.", ".........", "........."}));
        }
    }
}

TEST_F(Polygon, ReadsATableOnlyBetweenItsEnds) {
    // The table is the whole of a guarded block, far above and below the surface.
    GuardedMemory table(sizeof(int16_t) * 2001, Against::Start, sizeof(int16_t));
    auto* const columns = reinterpret_cast<int16_t*>(table.data());
    std::fill_n(columns, 2001, int16_t{2});
    for (const int32_t bottomUp : {0, 1}) {
        Drawing drawing(9, 3);
        fillOnly(drawing);
        GPoint points[] = {{2, -1000}, {}, {}, {2, 1000}, {6, 1000}, {6, -1000}};
        if (GDSetTableEdge(points, columns, bottomUp) == 0) {
            continue; // more than 2 GB apart: the points cannot refer to the table
        }
        GPoly poly{6, points, {}};
        GDDrawPoly(drawing, &poly);
        EXPECT_TRUE(shows(*drawing.surface(), {"..#####..", "..#####..", "..#####.."}));
    }
}

TEST_F(Polygon, IgnoresATableOutOfSight) {
    Drawing drawing(9, 3);
    fillOnly(drawing);
    for (const int16_t top : {int16_t{-9}, int16_t{3}}) {
        const auto bottom = static_cast<int16_t>(top + 4);
        TableEdge edge{{{{2, top}, {}, {}, {2, bottom}, {6, bottom}, {6, top}}}, {2, 2, 2, 2, 2}};
        ASSERT_EQ(GDSetTableEdge(edge.points.data(), edge.columns.data(), 0), 1);
        GPoly poly{6, edge.points.data(), {}};
        GDDrawPoly(drawing, &poly);
    }
    EXPECT_TRUE(shows(*drawing.surface(), {".........", ".........", "........."}));
}

TEST_F(Polygon, TakesAMarkerTooNearTheEndForACoordinate) {
    Drawing drawing(9, 4);
    fillOnly(drawing);
    draw(drawing, {{4, 0}, {8, 3}, {-32768, 3}});
    EXPECT_EQ(pixelAt(*drawing.surface(), 0, 1), 1U);
}

TEST_F(Polygon, TakesThreePointsOfATableForCoordinates) {
    Drawing drawing(9, 3);
    fillOnly(drawing);
    struct {
        GPoint points[4]; // the third tells how far behind it the columns are
        int16_t columns[3];
    } edge{{{1, 0}, {-32768, 0}, {8, 0}, {1, 2}}, {5, 5, 5}};
    GPoly poly{3, edge.points, {}};
    GDDrawPoly(drawing, &poly);
    EXPECT_TRUE(shows(*drawing.surface(), {".........", ".........", "........."}));
}

/// A polygon of random points, filled in one of several ways.
struct Fill {
    std::vector<GPoint> points;
    int32_t pattern;
    int32_t mode;

    friend std::ostream& operator<<(std::ostream& out, const Fill& fill) {
        out << "pattern " << fill.pattern << " mode " << fill.mode << ":";
        for (const GPoint& point : fill.points) {
            out << " (" << point.x << ", " << point.y << ")";
        }
        return out;
    }
};

Fill randomFill(Random& random) {
    Fill fill{{}, random.between(-1, 37), random.between(0, 3)};
    for (int32_t left = random.oneIn(20) ? 200 : random.between(3, 12); left > 0; --left) {
        GPoint point{random.coordinate(-20, 60), random.coordinate(-20, 50)};
        // What is a marker elsewhere is left to its own tests.
        point.x = std::max<int16_t>(point.x, -32767);
        fill.points.push_back(point);
    }
    return fill;
}

void fillByModel(GuardedSurface& surface, const GDrawHandle& handle, const Fill& fill,
                 const GRect& area) {
    const auto combine = [&](uint32_t old, uint32_t color) {
        switch (fill.mode) {
        case 0:
            return color;
        case 1:
            return old & color;
        case 2:
            return old | color;
        default:
            return old ^ color;
        }
    };
    const uint32_t mask = surface->bitsPerPixel == 8    ? 0xFF
                          : surface->bitsPerPixel == 16 ? 0xFFFF
                                                        : 0xFFFFFF;
    for (const PaintedRun& run : polygonRuns(straightEdges(fill.points), area)) {
        for (int32_t x = run.left; x <= run.right; ++x) {
            const bool set = fill.pattern < 0 ||
                             (handle.fillPatterns[fill.pattern][run.y & 7] >> (7 - (x & 7)) & 1);
            const uint32_t color = (set ? 0x5A3C69U : 0x96A5C3U) & mask;
            setPixelAt(*surface, x, run.y, combine(pixelAt(*surface, x, run.y), color));
        }
    }
}

TEST_F(Polygon, FillsWhatAPlainModelFills) {
    const GRect area{3, 2, 40, 33};
    for (const int16_t bits : kDepths) {
        forRandomCalls(250, 4, randomFill, [&](const std::vector<Fill>& fills) -> std::string {
            Drawing drawing(48, 36, bits, Against::Start);
            GuardedSurface expected(48, 36, bits);
            GDSetClipRect(drawing, &area);
            GDSetPenColor(drawing, G_NO_COLOR);
            for (const Fill& fill : fills) {
                GDSetDrawingMode(drawing, fill.mode);
                GDSetFillAttribute(drawing, fill.pattern < 0 ? G_FILL_FORE : fill.pattern, 0x5A3C69,
                                   0x96A5C3);
                draw(drawing, fill.points);
                fillByModel(expected, *drawing.operator->(), fill, area);
            }
            const bool same = std::equal(expected.memory().data(),
                                         expected.memory().data() + expected.memory().size(),
                                         drawing.surface().memory().data());
            return same ? "" : "the surfaces differ";
        });
    }
}

TEST_F(Polygon, HandsEachRunToAPlatformThatDrawsItself) {
    forRandomCalls(100, 1, randomFill, [&](const std::vector<Fill>& fills) -> std::string {
        std::vector<PaintedRun> runs;
        platform.serve<68>([&](GDrawHandle*, GVram*, const GRect* rect, uint32_t, int32_t) {
            EXPECT_EQ(rect->top, rect->bottom);
            runs.push_back({rect->left, rect->right, rect->top});
            return 1;
        });
        DeviceDrawing drawing(48, 36);
        fillOnly(drawing);
        draw(drawing, fills[0].points);
        const auto expected = polygonRuns(straightEdges(fills[0].points), {0, 0, 47, 35});
        return runs == expected ? "" : "other runs";
    });
}

/// Hundreds of flat edges, most of which change places from each line to the next.
Fill randomTangle(Random& random) {
    Fill fill{std::vector<GPoint>(static_cast<size_t>(random.between(100, 400))), -1, 0};
    for (GPoint& point : fill.points) {
        point = {static_cast<int16_t>(random.between(-300, 6300)),
                 static_cast<int16_t>(random.between(-3, 16))};
    }
    return fill;
}

// The crossings of such edges are sorted by digits, whose size depends on the area's width.
TEST_F(Polygon, PairsCrossingsOfEdgesThatChangePlaces) {
    for (const int16_t right : std::initializer_list<int16_t>{5, 6, 57, 257, 4098, 4099, 5997}) {
        const GRect area{5, 0, right, 11};
        forRandomCalls(12, 1, randomTangle, [&](const std::vector<Fill>& fills) -> std::string {
            std::vector<PaintedRun> runs;
            platform.serve<68>([&](GDrawHandle*, GVram*, const GRect* rect, uint32_t, int32_t) {
                runs.push_back({rect->left, rect->right, rect->top});
                return 1;
            });
            DeviceDrawing drawing(6000, 12);
            fillOnly(drawing);
            GDSetClipRect(drawing, &area);
            draw(drawing, fills[0].points);
            const auto expected = polygonRuns(straightEdges(fills[0].points), area);
            return runs == expected ? "" : "other runs";
        });
    }
}

TEST_F(Polygon, PairsTheFewEdgesBelowATangle) {
    // Sixty lines through one point, and two of them run on alone.
    Fill fill{{}, -1, 0};
    for (int16_t i = 0; i < 60; ++i) {
        const int bottom = i == 30 ? 18 : 9;
        fill.points.push_back({static_cast<int16_t>(4 * i), 0});
        fill.points.push_back({static_cast<int16_t>(4 * (59 - i)), static_cast<int16_t>(bottom)});
    }
    Drawing drawing(240, 20);
    GuardedSurface expected(240, 20, 8);
    GDSetPenColor(drawing, G_NO_COLOR);
    GDSetFillAttribute(drawing, G_FILL_FORE, 0x5A3C69, 0);
    draw(drawing, fill.points);
    fillByModel(expected, *drawing.operator->(), fill, {0, 0, 239, 19});
    EXPECT_TRUE(samePicture(pictureOf(*drawing.surface()), pictureOf(*expected)));
}

TEST_F(Polygon, OfManyPointsTakesReasonableTime) {
    Random random(testSeed());
    Drawing drawing(64, 64);
    fillOnly(drawing);
    std::vector<GPoint> points(32767);
    for (GPoint& point : points) {
        point = {static_cast<int16_t>(random.between(-32767, 32767)),
                 static_cast<int16_t>(random.between(-32767, 32767))};
    }
    draw(drawing, points);
    const auto runs =
        polygonRuns(straightEdges({points.begin(), points.begin() + 500}), {0, 0, 63, 63});
    Drawing fewer(64, 64);
    fillOnly(fewer);
    draw(fewer, {points.begin(), points.begin() + 500});
    size_t painted = 0;
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
            painted += pixelAt(*fewer.surface(), x, y) != 0 ? 1 : 0;
        }
    }
    EXPECT_EQ(painted > 0, !runs.empty());
}

} // namespace
