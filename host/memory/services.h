// Memory spaces: services 39 to 42, 57, 66 and 80 to 82.
#pragma once

#include <quarlo/types.h>

namespace gpi {

int32_t setMemorySpace(int32_t space, GWord limit);
int32_t deleteMemorySpace(int32_t space, GWord flags);
void* memoryAlloc(int32_t space, uint32_t flags, int32_t size);
void* memoryRealloc(int32_t space, uint32_t flags, void* block, int32_t size);
int32_t memoryFree(int32_t space, uint32_t flags, void* block);
int32_t setMemoryMode(int32_t mode);
int32_t beginResetMemorySpace(int32_t space, GWord flags);
int32_t endResetMemorySpace(int32_t space, GWord flags);
int32_t cancelResetMemorySpace(int32_t space, GWord flags);

} // namespace gpi
