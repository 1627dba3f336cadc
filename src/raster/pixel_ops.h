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

/// An entry for memory surfaces, with the kernels that do the same.
struct MemoryEntry {
    GPixelOps ops;
    const kernel::Kernels* kernels;
};

/// By format, then by mode.
extern const MemoryEntry memoryEntries[12];

/// The kernels that do the same as an entry for memory surfaces; null for any other entry, which
/// must be drawn through slot by slot.
inline const kernel::Kernels* kernelsOf(const GPixelOps* entry) {
    const auto first = reinterpret_cast<uintptr_t>(memoryEntries);
    const bool ours = reinterpret_cast<uintptr_t>(entry) - first < sizeof memoryEntries;
    return ours ? reinterpret_cast<const MemoryEntry*>(entry)->kernels : nullptr;
}

} // namespace quarlo
