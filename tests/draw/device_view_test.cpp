// What the library hands on to the platform: palette, zoom, scroll position, drawable regions.
#include "draw/draw_test.h"

#include <gtest/gtest.h>

#include <vector>

using namespace quarlo::test;

namespace {

class DeviceView : public HandleTest {
  protected:
    DeviceView() {
        platform.forget();
        int64_t result = 100;
        for (const int service : kServices) {
            platform.answer(service, result++);
        }
    }

    std::vector<int64_t> callAll(GDrawHandle* given) {
        return {asWord(GDSetPalette(given, -3, 4, colors)),
                asWord(GDGetPalette(given, 5, -6, colors)),
                asWord(GDSetZoomScale(given, 7, -8)),
                asWord(GDSetScrollPos(given, -9, 10)),
                asWord(GDSetDrawableRegion(given, &region)),
                asWord(GDRemoveDrawableRegion(given, &region))};
    }

    static constexpr int kServices[] = {10, 11, 55, 56, 59, 60};
    uint32_t colors[2] = {1, 2};
    const GRect region = {1, 2, 3, 4};
};

TEST_F(DeviceView, ArgumentsAndResultsPassUnchanged) {
    const auto before = bytesOf(*handle);
    EXPECT_EQ(callAll(handle.get()), (std::vector<int64_t>{100, 101, 102, 103, 104, 105}));
    EXPECT_EQ(
        platform.calls,
        (std::vector{call(10, handle.get(), -3, 4, colors), call(11, handle.get(), 5, -6, colors),
                     call(55, handle.get(), 7, -8), call(56, handle.get(), -9, 10),
                     call(59, handle.get(), &region), call(60, handle.get(), &region)}));
    EXPECT_EQ(bytesOf(*handle), before);
}

TEST_F(DeviceView, AMissingServiceGivesZero) {
    const std::vector<int64_t> all = callAll(handle.get());
    for (size_t i = 0; i < std::size(kServices); ++i) {
        platform.remove({kServices[i]});
        platform.forget();
        std::vector<int64_t> expected = all;
        expected[i] = 0;
        EXPECT_EQ(callAll(handle.get()), expected);
        EXPECT_EQ(platform.calls.size(), std::size(kServices) - 1);
        EXPECT_EQ(platform.count(kServices[i]), 0U);
        EXPECT_TRUE(platform.requests.empty()) << "none is bound on demand";
        platform.restore(kServices[i]);
        GetGPIFunction();
    }
}

TEST_F(DeviceView, RegionsNeedAHandleAndARectangle) {
    EXPECT_EQ(GDSetDrawableRegion(nullptr, &region), 0);
    EXPECT_EQ(GDSetDrawableRegion(handle.get(), nullptr), 0);
    EXPECT_EQ(GDRemoveDrawableRegion(nullptr, &region), 0);
    EXPECT_EQ(GDRemoveDrawableRegion(handle.get(), nullptr), 0);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(DeviceView, TheOthersPassNullsOn) {
    GDSetPalette(nullptr, 0, 0, nullptr);
    GDSetZoomScale(nullptr, 1, 1);
    EXPECT_EQ(platform.calls, (std::vector{call(10, 0, 0, 0, 0), call(55, 0, 1, 1)}));
}

} // namespace
