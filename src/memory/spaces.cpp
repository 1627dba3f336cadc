// Memory spaces: every block of the library and of the programs above comes from the platform.
#include "memory/memory.h"
#include "platform/service_table.h"

#include <quarlo/memory.h>

#include <cstring>

using quarlo::ForwardTo;

int32_t GMSetMemorySpace(int32_t space, GWord argument) {
    return ForwardTo<GMSetMemorySpace, 39>::lazy(space, argument);
}

int32_t GMDeleteMemorySpace(int32_t space, GWord argument) {
    return ForwardTo<GMDeleteMemorySpace, 40>::lazy(space, argument);
}

void* GMMemoryAlloc(int32_t space, uint32_t flags, int32_t size) {
    return ForwardTo<GMMemoryAlloc, 41>::lazy(space, flags, size);
}

void* GMMemoryRealloc(int32_t space, uint32_t flags, void* block, int32_t size) {
    return ForwardTo<GMMemoryRealloc, 66>::lazy(space, flags, block, size);
}

int32_t GMMemoryFree(int32_t space, uint32_t flags, void* block) {
    return ForwardTo<GMMemoryFree, 42>::lazy(space, flags, block);
}

int32_t GMSetMemoryMode(int32_t mode) {
    return ForwardTo<GMSetMemoryMode, 57>::lazy(mode);
}

int32_t GMBeginResetMemorySpace(int32_t space, GWord argument) {
    return ForwardTo<GMBeginResetMemorySpace, 80>::lazy(space, argument);
}

int32_t GMEndResetMemorySpace(int32_t space, GWord argument) {
    return ForwardTo<GMEndResetMemorySpace, 81>::lazy(space, argument);
}

int32_t GMCancelResetMemorySpace(int32_t space, GWord argument) {
    return ForwardTo<GMCancelResetMemorySpace, 82>::lazy(space, argument);
}

namespace quarlo {

void* allocateCleared(int32_t space, int32_t size) {
    void* const block = GMMemoryAlloc(space, 0, size);
    if (block == nullptr) {
        return nullptr;
    }
    if (size <= 0) {
        GMMemoryFree(space, 0, block);
        return nullptr;
    }
    std::memset(block, 0, static_cast<size_t>(size));
    return block;
}

} // namespace quarlo
