// The pixel operation table: twelve memory entries, one for each format and drawing mode, the
// device entry that the platform fills, and an empty one that every other index reaches.
#pragma once

#include "raster/kernel/kernels.h"

#include <quarlo/handle.h>

#include <cstdint>

namespace quarlo {

/// The colour last given to an operation of a format, and the address behind the pixel written
/// last. Process-wide and unlocked: drawing is expected on one thread.
struct PixelCell {
    uint32_t color;
    uint8_t* cursor;
};

extern PixelCell pixelCells[3];

/// The entry shared by every handle on a device surface.
extern GPixelOps deviceOps;

/// Points a handle at the operations for its target and drawing mode. A device surface fills the
/// device entry from the platform anew. An index off the table, or one that no format has, reaches
/// the empty entry.
void selectPixelOps(GDrawHandle& handle);

/// The kernels that do the same as a memory entry; null for any other entry, which must be drawn
/// through slot by slot.
const kernel::Kernels* kernelsOf(const GPixelOps* entry);

} // namespace quarlo
