// Device surface 0 and what is needed to draw on it.
#pragma once

#include "platform.h"

#include <cstddef>
#include <cstring>

namespace doctor {

/// The display of a started platform.
class Screen {
  public:
    /// A drawing of this size must fit at the place where it is tried.
    static constexpr int16_t kExtent = 16;

    explicit Screen(const Platform& platform) {
        surface = platform.service<GPIGetSurface>(GPI_SERVICE_GET_SURFACE)(&handle, 0);
        if (surface != nullptr) {
            handle.view = surface->bounds;
            handle.display = surface;
            handle.target = surface;
        }
    }

    /// Whether there is room to draw on.
    bool isUsable() const {
        return surface != nullptr && surface->width >= kExtent && surface->height >= kExtent;
    }

    /// Whether what was drawn can be read back.
    bool isReadable() const { return isUsable() && surface->pixels != nullptr; }

    /// Where a row begins. Only if it is readable.
    uint8_t* row(int y) const { return surface->pixels + y * ptrdiff_t{surface->bytesPerLine}; }

    /// The value of a pixel, its low byte first. Only if it is readable.
    uint32_t pixel(int x, int y) const {
        const ptrdiff_t bytes = surface->bitsPerPixel / 8;
        const uint8_t* const at = row(y) + x * bytes;
        uint32_t value = 0;
        for (int i = 0; i < bytes; ++i) {
            value |= uint32_t{at[i]} << 8 * i;
        }
        return value;
    }

    /// Clears the place where drawings are tried.
    void clear() const {
        const int bytes = surface->bitsPerPixel / 8;
        for (int y = 0; y < kExtent; ++y) {
            std::memset(row(y), 0, static_cast<size_t>(kExtent) * static_cast<size_t>(bytes));
        }
    }

    /// Whether exactly the pixels of a rectangle have a value, and the others none.
    bool holdsOnly(const GRect& rect, uint32_t value) const {
        for (int y = 0; y < kExtent; ++y) {
            for (int x = 0; x < kExtent; ++x) {
                const bool inside =
                    x >= rect.left && x <= rect.right && y >= rect.top && y <= rect.bottom;
                if (pixel(x, y) != (inside ? value : 0)) {
                    return false;
                }
            }
        }
        return true;
    }

    GDrawHandle handle{};
    GVram* surface;
};

} // namespace doctor
