// How the library takes memory for itself.
#pragma once

#include <quarlo/memory.h>

#include <cstdint>

namespace quarlo {

/// The space of the library's own records.
inline constexpr int32_t kLibrarySpace = 1;

/// A zeroed block of `size` bytes, or null. The size is asked of the platform as it was computed;
/// one of zero or less fails whatever comes back, and what came back is returned.
void* allocateCleared(int32_t space, int32_t size);

/// A zeroed record from the library's own space, or null.
template <typename Record>
Record* allocateRecord() {
    return static_cast<Record*>(
        allocateCleared(kLibrarySpace, static_cast<int32_t>(sizeof(Record))));
}

/// Gives back what the library took from its own space.
inline int32_t release(void* block) {
    return GMMemoryFree(kLibrarySpace, 0, block);
}

} // namespace quarlo
