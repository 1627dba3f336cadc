// Draw handles on surfaces of the test's own.
#pragma once

#include "support/guarded_surface.h"
#include "support/picture.h"
#include "support/recording_platform.h"

#include <quarlo/clip.h>
#include <quarlo/draw.h>
#include <quarlo/handle.h>

#include <gtest/gtest.h>

#include <cstdint>

namespace quarlo::test {

/// A platform with a display of one pixel, which handles open on before they are given a surface.
class RasterTest : public testing::Test {
  protected:
    RasterTest() { platform.addDisplay(0, display_); }

    RecordingPlatform platform;

  private:
    GuardedSurface display_{1, 1, 8};
};

/// A draw handle on a memory surface, all zero. Nothing fills unless a test asks for it, and the
/// pen draws in 1.
class Drawing {
  public:
    Drawing(int16_t width, int16_t height, int16_t bitsPerPixel = 8, Against side = Against::End,
            int16_t padding = 0)
        : Drawing(G_MEMORY_SURFACE, width, height, bitsPerPixel, side, padding) {}
    ~Drawing() { GDCloseDrawHandle(handle_); }
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    operator GDrawHandle*() { return handle_; } // NOLINT: a drawing is used as its handle
    GDrawHandle* operator->() { return handle_; }

    GuardedSurface& surface() { return surface_; }

  protected:
    Drawing(int16_t number, int16_t width, int16_t height, int16_t bitsPerPixel, Against side,
            int16_t padding)
        : surface_(width, height, bitsPerPixel, side, padding), handle_(GDOpenDrawHandle(0, 0)) {
        RecordingPlatform& platform = RecordingPlatform::current();
        if (number != G_MEMORY_SURFACE) {
            platform.addDisplay(number, surface_);
        }
        GDSetVram(handle_, number, surface_.get());
        GDSetPenColor(handle_, 1);
        GDSetFillPattern(handle_, G_FILL_NONE);
        platform.forget();
    }

  private:
    GuardedSurface surface_;
    GDrawHandle* handle_;
};

/// A draw handle on a device surface, drawn on by the operations that the platform has then.
class DeviceDrawing : public Drawing {
  public:
    DeviceDrawing(int16_t width, int16_t height, int16_t bitsPerPixel = 8,
                  Against side = Against::End, int16_t padding = 0, int16_t number = 1)
        : Drawing(number, width, height, bitsPerPixel, side, padding) {}
};

inline void drawLine(GDrawHandle* handle, int16_t x1, int16_t y1, int16_t x2, int16_t y2) {
    GLine line{x1, y1, x2, y2};
    GDDrawLine(handle, &line);
}

inline void drawRect(GDrawHandle* handle, int16_t left, int16_t top, int16_t right,
                     int16_t bottom) {
    const GRect rect{left, top, right, bottom};
    GDDrawRect(handle, &rect);
}

inline void setClip(GDrawHandle* handle, int16_t left, int16_t top, int16_t right, int16_t bottom) {
    const GRect rect{left, top, right, bottom};
    GDSetClipRect(handle, &rect);
}

/// A copy of an entry, which the library does not recognise as its own: it draws slot by slot.
class CopiedOps {
  public:
    /// Points the handle at a copy of its entry. Anew when it has selected another.
    void attach(GDrawHandle* handle) {
        if (handle->pixelOps != &copy_) {
            copy_ = *handle->pixelOps;
            handle->pixelOps = &copy_;
        }
    }

  private:
    GPixelOps copy_{};
};

} // namespace quarlo::test
