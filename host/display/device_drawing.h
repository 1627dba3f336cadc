// Drawing on device surfaces: what stands behind the device entry of the pixel operation table.
#pragma once

#include "display/display.h"

#include <cstdint>
#include <optional>

namespace gpi {

/// Draws on a display's pages by the same kernels as the library draws on memory surfaces, cut to
/// each page's limit. Every function gives false, and draws nothing, for a surface that is no page
/// of the display and for a mode outside 0 to 3; true when it drew or all of it was cut away.
class DeviceDrawing {
  public:
    explicit DeviceDrawing(Display& display) : display_(display) {}

    bool setPixel(const GVram* surface, int x, int y, uint32_t pixel, int32_t mode);

    /// A run of pixels to the right; unlike one in memory it ends at the right edge.
    bool span(const GVram* surface, int x, int y, uint32_t pixel, int32_t mode, int count);

    /// Draws behind the last pixel or span in its colour and mode, and moves on by one pixel. False
    /// when nothing was drawn yet.
    bool nextPixel();

    /// Draws one pixel of a smooth glyph: in mode copy it is mixed with what is there, in steps
    /// from 0 (not at all) to 15 (all of the colour). Where colours cannot be mixed, in a palette
    /// format and in the combining modes, levels from 8 on draw and lower ones do not.
    bool coveragePixel(const GVram* surface, int x, int y, uint32_t pixel, int32_t mode,
                       int32_t level);

    bool fillRect(const GVram* surface, const GRect& rect, uint32_t pixel, int32_t mode);

    /// An 8 x 8 pattern anchored to the surface's origin; null for the prepared brush.
    bool patternRect(const GVram* surface, const GRect& rect, uint32_t fore, uint32_t back,
                     int32_t mode, const uint8_t* pattern);

    /// Keeps a pattern with its colours, for fills that name no pattern of their own.
    bool preparePattern(const GVram* surface, uint32_t fore, uint32_t back,
                        const uint8_t pattern[8]);

    /// Combines a rectangle of any surface into a page by the rules of transfers in memory. False
    /// also for surfaces that cannot be read and for direct colours onto a palette page.
    bool transfer(const GVram* source, int sourceX, int sourceY, int width, int height,
                  const GVram* destination, int x, int y, int32_t mode);

  private:
    /// Where the last pixel or span ended.
    struct Cursor {
        Page* page;
        int x;
        int y;
        uint32_t pixel;
        int32_t mode;
    };

    struct Brush {
        uint32_t fore;
        uint32_t back;
        uint8_t rows[8];
    };

    Display& display_;
    std::optional<Cursor> cursor_;
    std::optional<Brush> brush_;
};

} // namespace gpi
