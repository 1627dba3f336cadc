#include "memory/services.h"

#include "guard.h"
#include "platform.h"

#include <quarlo/memory.h>

namespace gpi {

int32_t setMemorySpace(int32_t space, GWord limit) {
    return guarded(0, [&] { return platform().heap.open(space, limit) ? 1 : 0; });
}

int32_t deleteMemorySpace(int32_t space, GWord flags) {
    return platform().heap.close(space, (flags & G_SPACE_FORCE) != 0) ? 1 : 0;
}

void* memoryAlloc(int32_t space, uint32_t flags, int32_t size) {
    return guarded<void*>(nullptr, [&] {
        return platform().heap.allocate(space, size, (flags & G_MEMORY_ZERO) != 0);
    });
}

void* memoryRealloc(int32_t space, uint32_t flags, void* block, int32_t size) {
    return guarded<void*>(nullptr, [&] {
        return platform().heap.resize(space, block, size, (flags & G_MEMORY_ZERO) != 0);
    });
}

int32_t memoryFree(int32_t space, uint32_t /*flags*/, void* block) {
    return block == nullptr || platform().heap.release(space, block) ? 1 : 0;
}

int32_t setMemoryMode(int32_t mode) {
    if (mode != G_MEMORY_PLAIN && mode != G_MEMORY_CHECKED) {
        return 0;
    }
    platform().heap.setChecked(mode == G_MEMORY_CHECKED);
    return 1;
}

int32_t beginResetMemorySpace(int32_t space, GWord /*flags*/) {
    return platform().heap.beginReset(space) ? 1 : 0;
}

int32_t endResetMemorySpace(int32_t space, GWord /*flags*/) {
    return platform().heap.endReset(space) ? 1 : 0;
}

int32_t cancelResetMemorySpace(int32_t space, GWord /*flags*/) {
    return platform().heap.cancelReset(space) ? 1 : 0;
}

} // namespace gpi
