// Where text is drawn: a page or a memory surface, through the kernels that the library runs.
#pragma once

#include "display/device_drawing.h"
#include "font/glyph_cache.h"
#include "raster/kernel/kernels.h"

#include <quarlo/handle.h>

#include <cstddef>
#include <cstdint>

namespace gpi {

/// The pixels of a handle's target that text may touch, in the handle's drawing mode.
class TextTarget {
  public:
    /// @param clip surface coordinates; null stands for the surface's own
    TextTarget(GDrawHandle& handle, const GRect* clip, Display& display, DeviceDrawing& device);

    /// Fills a box given by its corner and size; nothing for colour -1.
    void fill(int x, int y, int width, int height, uint32_t pixel) const;

    /// Draws the pixels of a glyph that are not clear; nothing for colour -1. A page shows levels,
    /// as service 43 does.
    void blit(const Glyph& glyph, int x, int y, uint32_t pixel) const;

    /// Draws each of them as a block of a size, solid.
    void blitBlocks(const Glyph& glyph, int x, int y, int blockWidth, int blockHeight,
                    uint32_t pixel) const;

  private:
    uint8_t* addressOf(int x, int y) const;
    void blitLevels(const Glyph& glyph, int x, int y, const GRect& area, uint32_t pixel) const;

    GVram& surface_;
    int32_t mode_;
    const quarlo::kernel::Kernels* kernels_; ///< null where nothing can be drawn
    uint8_t* pixels_ = nullptr;
    ptrdiff_t stride_ = 0;
    GRect area_;
    DeviceDrawing* device_ = nullptr; ///< of a page
};

} // namespace gpi
