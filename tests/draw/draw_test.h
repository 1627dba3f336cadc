// What the tests of surfaces and draw handles start from.
#pragma once

#include "support/guarded_surface.h"
#include "support/recording_platform.h"
#include "support/records.h"

#include <quarlo/clip.h>
#include <quarlo/handle.h>
#include <quarlo/surface.h>

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <memory>

namespace quarlo::test {

/// Closing leaves a memory surface to the program, which has no more use for it here.
struct CloseHandle {
    void operator()(GDrawHandle* handle) const {
        GVram* const surface = GDGetVram(handle);
        GDCloseDrawHandle(handle);
        GDDeleteVram(surface);
    }
};

struct DeleteSurface {
    void operator()(GVram* surface) const { GDDeleteVram(surface); }
};

/// A draw handle that is closed at its end, and the memory surface attached to it.
using Handle = std::unique_ptr<GDrawHandle, CloseHandle>;

/// A memory surface that is deleted at its end, unless a handle owns it.
using Surface = std::unique_ptr<GVram, DeleteSurface>;

inline Handle openHandle() {
    return Handle(GDOpenDrawHandle(0, 0));
}

inline Surface makeSurface(int16_t width, int16_t height, int16_t bitsPerPixel) {
    return Surface(GDCreateVVram(width, height, bitsPerPixel));
}

inline GVram* attach(const Handle& handle, Surface surface) {
    EXPECT_EQ(GDSetVram(handle.get(), G_MEMORY_SURFACE, surface.get()), 1);
    return surface.release();
}

/// Every byte of a record, to see whether anything changed.
template <typename Record>
std::array<uint8_t, sizeof(Record)> bytesOf(const Record& record) {
    std::array<uint8_t, sizeof(Record)> bytes;
    std::memcpy(bytes.data(), &record, sizeof record);
    return bytes;
}

/// A platform with a display of 640 x 480 pixels of 16 bits.
class DrawTest : public testing::Test {
  protected:
    DrawTest() { platform.addDisplay(0, display); }

    RecordingPlatform platform;
    GuardedSurface display{640, 480, 16};
};

/// The same with a draw handle open on the display.
class HandleTest : public DrawTest {
  protected:
    HandleTest() { platform.forget(); }

    /// While what tests attached to it is still there.
    void TearDown() override { handle.reset(); }

    Handle handle = openHandle();
};

} // namespace quarlo::test
