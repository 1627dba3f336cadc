#include "support/random_calls.h"
#include "support/records.h"

#include <quarlo/dirty.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <vector>

using namespace quarlo::test;

namespace {

constexpr GRect kFive[] = {
    {0, 0, 9, 9}, {100, 0, 109, 9}, {200, 0, 209, 9}, {300, 0, 309, 9}, {400, 0, 409, 9}};

std::vector<GRect> rectsOf(const GDirtyRectList& list) {
    return {list.rects, list.rects + list.count};
}

std::vector<int32_t> flagsOf(const GDirtyRectList& list) {
    return {list.drawForce, list.drawForce + list.count};
}

void add(GDirtyRectList& list, const GRect& rect, uint32_t drawForce = 0) {
    GDRAddDirtyRect(&list, &rect, drawForce);
}

GDirtyRectList listOfFive() {
    GDirtyRectList list{};
    for (const GRect& rect : kFive) {
        add(list, rect);
    }
    return list;
}

TEST(GDRAddDirtyRect, KeepsFiveAsTheyAreGiven) {
    const GDirtyRectList list = listOfFive();
    EXPECT_EQ(GDRGetDirtyRectNum(&list), 5);
    EXPECT_EQ(rectsOf(list), std::vector<GRect>(std::begin(kFive), std::end(kFive)));
    EXPECT_EQ(list.areas[0], 100);
    EXPECT_EQ(list.areas[4], 100);
}

TEST(GDRAddDirtyRect, ASixthMergesTheCheapestPairAndTakesThePlaceOfItsSecond) {
    GDirtyRectList list{};
    add(list, {0, 0, 9, 9});
    add(list, {100, 0, 109, 9});
    add(list, {200, 0, 209, 9});
    add(list, {112, 0, 121, 9}); // two columns right of the second
    add(list, {400, 0, 409, 9});
    add(list, {0, 500, 9, 509});
    EXPECT_EQ(
        rectsOf(list),
        (std::vector<GRect>{
            {0, 0, 9, 9}, {100, 0, 121, 9}, {200, 0, 209, 9}, {0, 500, 9, 509}, {400, 0, 409, 9}}));
    EXPECT_EQ(list.areas[1], 220);
    EXPECT_EQ(list.areas[3], 100);
}

TEST(GDRAddDirtyRect, ASixthOfTheCheapestPairDisappearsIntoTheOther) {
    GDirtyRectList list = listOfFive();
    add(list, {205, 5, 214, 14});
    EXPECT_EQ(rectsOf(list), (std::vector<GRect>{{0, 0, 9, 9},
                                                 {100, 0, 109, 9},
                                                 {200, 0, 214, 14},
                                                 {300, 0, 309, 9},
                                                 {400, 0, 409, 9}}));
}

TEST(GDRAddDirtyRect, OfEquallyCheapPairsTheFirstMerges) {
    GDirtyRectList list = listOfFive();
    add(list, {500, 0, 509, 9}); // each neighbouring pair wastes the same
    EXPECT_EQ(rectsOf(list), (std::vector<GRect>{{0, 0, 109, 9},
                                                 {500, 0, 509, 9},
                                                 {200, 0, 209, 9},
                                                 {300, 0, 309, 9},
                                                 {400, 0, 409, 9}}));
}

TEST(GDRAddDirtyRect, KeepsAFlagAsGivenAndMergesItToOne) {
    GDirtyRectList list{};
    add(list, {0, 0, 9, 9}, 0x80000000);
    EXPECT_EQ(list.drawForce[0], INT32_MIN);
    for (int16_t i = 1; i < 5; ++i) {
        const auto x = static_cast<int16_t>(1000 * i);
        add(list, {x, 0, x, 0});
    }
    add(list, {0, 0, 9, 9});
    EXPECT_EQ(flagsOf(list), (std::vector<int32_t>{1, 0, 0, 0, 0}));
}

TEST(GDRAddDirtyRect, MergedEntriesWithoutFlagHaveNone) {
    GDirtyRectList list = listOfFive();
    list.drawForce[2] = 7;
    add(list, {0, 0, 9, 9});
    EXPECT_EQ(flagsOf(list), (std::vector<int32_t>{0, 0, 7, 0, 0}));
}

TEST(GDRAddDirtyRect, FlagOfTheSixthCountsAndMoves) {
    GDirtyRectList merged = listOfFive();
    add(merged, {0, 0, 9, 9}, 9);
    EXPECT_EQ(flagsOf(merged), (std::vector<int32_t>{1, 0, 0, 0, 0}));

    GDirtyRectList moved = listOfFive();
    add(moved, {500, 0, 509, 9}, 9);
    EXPECT_EQ(flagsOf(moved), (std::vector<int32_t>{0, 9, 0, 0, 0}));
}

TEST(GDRAddDirtyRect, AreasPastThirtyTwoBitsCompareAsSuch) {
    // The union of the two outermost areas has 2^32 pixels, which 32 bits take for none.
    GDirtyRectList list{};
    add(list, {-32768, -32768, -32768, -32768});
    add(list, {32767, 32767, 32767, 32767});
    add(list, {0, 0, 0, 0});
    add(list, {50, 0, 50, 0});
    add(list, {200, 0, 200, 0});
    add(list, {400, 0, 400, 0});
    EXPECT_EQ(list.rects[2], (GRect{0, 0, 50, 0}));
    EXPECT_EQ(list.rects[3], (GRect{400, 0, 400, 0}));
}

TEST(GDRAddDirtyRect, InvertedRectanglesStillMergeIntoFive) {
    GDirtyRectList list{};
    for (int i = 0; i < 7; ++i) {
        add(list, {32767, -32768, -32768, 32767});
        EXPECT_EQ(list.count, std::min(i + 1, 5));
    }
}

TEST(GDRAddDirtyRect, TheRectangleMayBeOneOfTheList) {
    GDirtyRectList list = listOfFive();
    GDRAddDirtyRect(&list, &list.rects[3], 1);
    EXPECT_EQ(rectsOf(list), std::vector<GRect>(std::begin(kFive), std::end(kFive)));
    EXPECT_EQ(flagsOf(list), (std::vector<int32_t>{0, 0, 0, 1, 0}));
}

TEST(GDRRefreshDirtyRect, MergesIdenticalAndTouchingAreas) {
    GDirtyRectList list{};
    add(list, {0, 0, 9, 9});
    add(list, {0, 0, 9, 9}, 3);
    add(list, {10, 0, 19, 9});
    GDRRefreshDirtyRect(&list);
    EXPECT_EQ(rectsOf(list), (std::vector<GRect>{{0, 0, 19, 9}}));
    EXPECT_EQ(flagsOf(list), std::vector<int32_t>{1});
    EXPECT_EQ(list.areas[0], 200);
}

TEST(GDRRefreshDirtyRect, KeepsAreasWhoseUnionCostsMore) {
    GDirtyRectList list{};
    add(list, {0, 0, 9, 9});
    add(list, {11, 0, 20, 9});
    add(list, {0, 11, 9, 20});
    GDRRefreshDirtyRect(&list);
    EXPECT_EQ(list.count, 3);
}

TEST(GDRRefreshDirtyRect, TestsTheEntryThatMovedIntoTheFreePlace) {
    GDirtyRectList list{};
    add(list, {0, 0, 9, 9});
    add(list, {0, 0, 9, 9});
    add(list, {500, 0, 509, 9});
    add(list, {5, 0, 14, 9});
    GDRRefreshDirtyRect(&list);
    EXPECT_EQ(rectsOf(list), (std::vector<GRect>{{0, 0, 14, 9}, {500, 0, 509, 9}}));
}

TEST(GDRRefreshDirtyRect, TakesOnePassOnly) {
    // The second touches the first only once that has grown over the third.
    GDirtyRectList list{};
    add(list, {0, 0, 9, 9});
    add(list, {20, 0, 29, 9});
    add(list, {10, 0, 19, 9});
    GDRRefreshDirtyRect(&list);
    EXPECT_EQ(rectsOf(list), (std::vector<GRect>{{0, 0, 19, 9}, {20, 0, 29, 9}}));
    GDRRefreshDirtyRect(&list);
    EXPECT_EQ(rectsOf(list), (std::vector<GRect>{{0, 0, 29, 9}}));
}

TEST(GDRRefreshDirtyRect, LeavesShortListsAlone) {
    GDirtyRectList list{};
    GDRRefreshDirtyRect(&list);
    EXPECT_EQ(list.count, 0);
    add(list, {9, 9, 0, 0}, 5);
    GDRRefreshDirtyRect(&list);
    EXPECT_EQ(rectsOf(list), (std::vector<GRect>{{9, 9, 0, 0}}));
    EXPECT_EQ(list.drawForce[0], 5);
}

TEST(GDRClearDirtyRect, LeavesTheOldEntriesReadable) {
    GDirtyRectList list = listOfFive();
    GDRClearDirtyRect(&list);
    EXPECT_EQ(GDRGetDirtyRectNum(&list), 0);
    EXPECT_EQ(GDRGetDirtyRect(&list)[4], kFive[4]);
}

TEST(GDRGetDirtyRect, IsTheListItself) {
    GDirtyRectList list = listOfFive();
    EXPECT_EQ(static_cast<void*>(GDRGetDirtyRect(&list)), &list);
    EXPECT_EQ(GDRGetDrawForce(&list), list.drawForce);
}

TEST(GDRDuplicateDirtyRect, CopiesTheWholeRecord) {
    const GDirtyRectList source = listOfFive();
    GDirtyRectList destination{};
    GDRDuplicateDirtyRect(&source, &destination);
    EXPECT_EQ(std::memcmp(&source, &destination, sizeof source), 0);
}

/// Whether every pixel of one area lies in another one of the list.
bool covers(const GDirtyRectList& list, const GRect& rect) {
    return std::any_of(list.rects, list.rects + list.count, [&](const GRect& entry) {
        return entry.left <= rect.left && entry.top <= rect.top && entry.right >= rect.right &&
               entry.bottom >= rect.bottom;
    });
}

TEST(DirtyRectList, NeverLosesAnAreaOrAFlag) {
    Random random(testSeed());
    for (int round = 0; round < 2000; ++round) {
        GDirtyRectList list{};
        std::vector<GRect> added;
        bool forced = false;
        for (int i = 0; i < 12; ++i) {
            const auto left = static_cast<int16_t>(random.between(-100, 100));
            const auto top = static_cast<int16_t>(random.between(-100, 100));
            const GRect rect = {left, top, static_cast<int16_t>(left + random.between(0, 40)),
                                static_cast<int16_t>(top + random.between(0, 40))};
            const auto flag = static_cast<uint32_t>(random.oneIn(8));
            forced |= flag != 0;
            added.push_back(rect);
            add(list, rect, flag);
            if (random.oneIn(6)) {
                GDRRefreshDirtyRect(&list);
            }
            ASSERT_LE(list.count, 5);
            for (const GRect& old : added) {
                ASSERT_TRUE(covers(list, old)) << old << " in round " << round;
            }
            const std::vector<int32_t> flags = flagsOf(list);
            ASSERT_EQ(std::any_of(flags.begin(), flags.end(), [](int32_t f) { return f != 0; }),
                      forced);
        }
    }
}

} // namespace
