// The display services of the recording platform. The device operations are the plainest there
// are: one pixel, byte by byte, and everything else by it.
#include "support/recording_platform.h"

#include <gtest/gtest.h>

namespace quarlo::test {

namespace {

uint32_t combine(uint32_t old, uint32_t pixel, int mode) {
    switch (mode) {
    case G_MODE_COPY:
        return pixel;
    case G_MODE_AND:
        return old & pixel;
    case G_MODE_OR:
        return old | pixel;
    case G_MODE_XOR:
        return old ^ pixel;
    default:
        return old;
    }
}

void plot(const GVram& surface, int x, int y, uint32_t pixel, int mode) {
    setPixelAt(surface, x, y, combine(pixelAt(surface, x, y), pixel, mode));
}

template <typename Plot>
int32_t forEachPixel(const GRect& rect, Plot plotAt) {
    for (int y = rect.top; y <= rect.bottom; ++y) {
        for (int x = rect.left; x <= rect.right; ++x) {
            plotAt(x, y);
        }
    }
    return 1;
}

int32_t fill(GDrawHandle*, GVram* surface, const GRect* rect, uint32_t pixel, int32_t mode) {
    return forEachPixel(*rect, [=](int x, int y) { plot(*surface, x, y, pixel, mode); });
}

int32_t takeUp(GVram& surface, const GRect& rect) {
    return forEachPixel(
        rect, [&](int x, int y) { setPixelAt(surface, x, y, pixelAt(surface, x, y) + 1); });
}

} // namespace

void RecordingPlatform::addDisplay(int16_t number, GuardedSurface& surface) {
    surface->id = number;
    displays_[number] = surface.get();
}

void RecordingPlatform::serveDisplay() {
    serve<3>([this](GDrawHandle*, int32_t number) -> GVram* {
        const auto found = displays_.find(number);
        if (found == displays_.end()) {
            return nullptr;
        }
        ++displaysInUse_;
        return found->second;
    });
    serve<4>([this](GDrawHandle*, GVram* surface) {
        const auto found = displays_.find(surface->id);
        EXPECT_TRUE(found != displays_.end() && found->second == surface)
            << "gave back what is no device surface";
        --displaysInUse_;
        return 1;
    });
}

void RecordingPlatform::serveOperations() {
    const auto span = [this](GVram* surface, int x, int y, uint32_t pixel, int mode, int count) {
        for (int i = 0; i < count; ++i) {
            plot(*surface, x + i, y, pixel, mode);
        }
        cursor_ = {surface, x + std::max(count, 0), y, pixel, mode};
        return 1;
    };
    serve<5>([=](GDrawHandle*, GVram* surface, int16_t x, int16_t y, uint32_t pixel, int32_t mode) {
        return span(surface, x, y, pixel, mode, 1);
    });
    serve<6>([=](GDrawHandle*, GVram* surface, int16_t x, int16_t y, uint32_t pixel, int32_t mode,
                 int16_t count) { return span(surface, x, y, pixel, mode, count); });
    serve<7>([=, this] {
        return span(cursor_.surface, cursor_.x, cursor_.y, cursor_.pixel, cursor_.mode, 1);
    });
    serve<67>(fill);
    serve<68>(fill);
    serve<70>([](GDrawHandle*, GVram* surface, const GRect* rect, uint32_t fore, uint32_t back,
                 int32_t mode, const uint8_t* pattern) {
        return forEachPixel(*rect, [=](int x, int y) {
            const bool set = (pattern[y & 7] >> (7 - (x & 7)) & 1) != 0;
            plot(*surface, x, y, set ? fore : back, mode);
        });
    });
}

void RecordingPlatform::countPaint() {
    recordOperations(false);
    serve<5>([](GDrawHandle*, GVram* surface, int16_t x, int16_t y, uint32_t, int32_t) {
        return takeUp(*surface, {x, y, x, y});
    });
    serve<6>(
        [](GDrawHandle*, GVram* surface, int16_t x, int16_t y, uint32_t, int32_t, int16_t length) {
            return takeUp(*surface, {x, y, static_cast<int16_t>(x + length - 1), y});
        });
    const auto countRect = [](GDrawHandle*, GVram* surface, const GRect* rect, uint32_t, int32_t) {
        return takeUp(*surface, *rect);
    };
    serve<67>(countRect);
    serve<68>(countRect);
    serve<70>([](GDrawHandle*, GVram* surface, const GRect* rect, uint32_t, uint32_t, int32_t,
                 const uint8_t*) { return takeUp(*surface, *rect); });
}

} // namespace quarlo::test
