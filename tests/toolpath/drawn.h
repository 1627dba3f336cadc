// A display to draw on and to look at.
#pragma once

#include "drawing/style.h"
#include "drawing/view.h"
#include "support/guarded_surface.h"
#include "support/recording_platform.h"

#include <quarlo/quarlo.h>

#include <gtest/gtest.h>

#include <set>

namespace toolpath {

/// A platform whose display is a surface, and a handle on it. What is drawn outside of the surface
/// faults.
class Drawn {
  public:
    Drawn(int16_t width, int16_t height, int16_t bitsPerPixel)
        : surface(width, height, bitsPerPixel) {
        open();
    }
    /// A display with a palette.
    Drawn(int16_t width, int16_t height) : surface(width, height, std::vector<uint32_t>(256)) {
        open();
    }
    ~Drawn() {
        GDCloseDrawHandle(handle);
        EXPECT_EQ(platform.displaysInUse(), 0);
        EXPECT_TRUE(surface.memory().intact());
    }

    uint32_t at(const GPoint& place) { return quarlo::test::pixelAt(*surface, place.x, place.y); }

    /// The pixel value of an ink.
    uint32_t pixelOf(const Style& style, Ink ink) {
        const uint32_t before = handle->penColor;
        GDSetPenColor(handle, style[ink]);
        const uint32_t pixel = handle->penPixel;
        GDSetPenColor(handle, before);
        return pixel;
    }

    /// How many pixels of a rectangle have a value.
    int count(const GRect& rect, uint32_t pixel) {
        int number = 0;
        for (int y = rect.top; y <= rect.bottom; ++y) {
            for (int x = rect.left; x <= rect.right; ++x) {
                number += quarlo::test::pixelAt(*surface, x, y) == pixel ? 1 : 0;
            }
        }
        return number;
    }

    std::set<uint32_t> values(const GRect& rect) {
        std::set<uint32_t> all;
        for (int y = rect.top; y <= rect.bottom; ++y) {
            for (int x = rect.left; x <= rect.right; ++x) {
                all.insert(quarlo::test::pixelAt(*surface, x, y));
            }
        }
        return all;
    }

    quarlo::test::RecordingPlatform platform;
    quarlo::test::GuardedSurface surface;
    GDrawHandle* handle = nullptr;

  private:
    void open() {
        platform.recordOperations(false);
        platform.addDisplay(0, surface);
        GetGPIFunction();
        handle = GDOpenDrawHandle(0, 0);
    }
};

} // namespace toolpath
