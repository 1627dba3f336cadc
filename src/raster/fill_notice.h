// The notice that lets a platform prepare a brush before a patterned fill.
#pragma once

#include "platform/service_table.h"
#include "raster/canvas.h"

namespace quarlo {

/// Tells the platform, where it cares, which pattern is about to be drawn in which colours.
inline void noticeFillPattern(const Canvas& canvas, const uint8_t rows[8]) {
    using Notice = Service<GWord(GDrawHandle*, GVram*, uint32_t, uint32_t, const uint8_t*), 69>;
    Notice::checked(&canvas.handle, &canvas.surface, canvas.handle.forePixel,
                    canvas.handle.backPixel, rows);
}

} // namespace quarlo
