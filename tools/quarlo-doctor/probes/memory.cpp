// Memory spaces, tried in one that nothing else uses.
#include "probe.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace doctor {
namespace {

constexpr int32_t kSpace = 77001;
constexpr int32_t kSize = 1000;
constexpr int kByte = 0x5A;

void* allocate(const Platform& platform, uint32_t flags = 0) {
    return platform.service<GPIMemoryAlloc>(GPI_SERVICE_MEMORY_ALLOC)(kSpace, flags, kSize);
}

bool holds(const void* block, int byte) {
    const auto* const bytes = static_cast<const uint8_t*>(block);
    return std::all_of(bytes, bytes + kSize, [=](uint8_t at) { return at == byte; });
}

Complaint allocates(const Platform& platform) {
    const auto alloc = platform.service<GPIMemoryAlloc>(GPI_SERVICE_MEMORY_ALLOC);
    void* const block = allocate(platform);
    if (block == nullptr) {
        return "has no 1000 bytes";
    }
    if (reinterpret_cast<uintptr_t>(block) % alignof(std::max_align_t) != 0) {
        return "gives blocks that are not aligned for any type";
    }
    std::memset(block, kByte, kSize);
    void* const zeroed = allocate(platform, G_MEMORY_ZERO);
    if (zeroed == nullptr || !holds(zeroed, 0)) {
        return "does not zero a block that is to be";
    }
    std::memset(zeroed, 0xFF, kSize);
    if (!holds(block, kByte)) {
        return "gives blocks that overlap";
    }
    return alloc(kSpace, 0, 0) == nullptr && alloc(kSpace, 0, -1) == nullptr
               ? ""
               : "gives blocks for a size of 0 or less";
}

Complaint frees(const Platform& platform) {
    const auto free = platform.service<GPIMemoryFree>(GPI_SERVICE_MEMORY_FREE);
    if (free(kSpace, 0, nullptr) != 1) {
        return "refuses to free null";
    }
    return free(kSpace, 0, allocate(platform)) == 1 ? "" : "refuses to free a block";
}

Complaint reallocates(const Platform& platform) {
    const auto realloc = platform.service<GPIMemoryRealloc>(GPI_SERVICE_MEMORY_REALLOC);
    void* const block = realloc(kSpace, 0, nullptr, kSize);
    if (block == nullptr) {
        return "does not make a block of null";
    }
    std::memset(block, kByte, kSize);
    void* const moved = realloc(kSpace, 0, block, 100 * kSize);
    return moved != nullptr && holds(moved, kByte) ? "" : "does not keep what a block holds";
}

Complaint limits(const Platform& platform) {
    const auto set = platform.service<GPISetMemorySpace>(GPI_SERVICE_SET_MEMORY_SPACE);
    if (set(kSpace, kSize / 2) != 1) {
        return "refuses a limit";
    }
    return allocate(platform) == nullptr ? "" : "hands out more than the limit";
}

Complaint deletes(const Platform& platform) {
    const auto remove = platform.service<GPIDeleteMemorySpace>(GPI_SERVICE_DELETE_MEMORY_SPACE);
    allocate(platform);
    if (remove(kSpace, 0) != 0) {
        return "closes a space whose blocks are in use";
    }
    return remove(kSpace, G_SPACE_FORCE) == 1 ? "" : "does not close a space by force";
}

Complaint setsMode(const Platform& platform) {
    const auto set = platform.service<GPISetMemoryMode>(GPI_SERVICE_SET_MEMORY_MODE);
    if (set(G_MEMORY_PLAIN) != 1 || set(G_MEMORY_CHECKED) != 1) {
        return "refuses a mode";
    }
    return set(99) == 0 ? "" : "takes any mode";
}

Complaint beginsReset(const Platform& platform) {
    const auto begin =
        platform.service<GPIBeginResetMemorySpace>(GPI_SERVICE_BEGIN_RESET_MEMORY_SPACE);
    allocate(platform);
    if (begin(kSpace, 0) != 1) {
        return "does not begin a reset";
    }
    return begin(kSpace, 0) == 0 ? "" : "begins a reset that has begun";
}

Complaint endsReset(const Platform& platform) {
    const auto end = platform.service<GPIEndResetMemorySpace>(GPI_SERVICE_END_RESET_MEMORY_SPACE);
    const auto free = platform.service<GPIMemoryFree>(GPI_SERVICE_MEMORY_FREE);
    void* const block = allocate(platform);
    if (end(kSpace, 0) != 0) {
        return "ends a reset that has not begun";
    }
    platform.service<GPIBeginResetMemorySpace>(GPI_SERVICE_BEGIN_RESET_MEMORY_SPACE)(kSpace, 0);
    if (end(kSpace, 0) != 1) {
        return "does not end a reset";
    }
    return free(kSpace, 0, block) == 0 ? "" : "keeps blocks of a space that was reset";
}

Complaint cancelsReset(const Platform& platform) {
    const auto cancel =
        platform.service<GPICancelResetMemorySpace>(GPI_SERVICE_CANCEL_RESET_MEMORY_SPACE);
    const auto free = platform.service<GPIMemoryFree>(GPI_SERVICE_MEMORY_FREE);
    void* const block = allocate(platform);
    if (cancel(kSpace, 0) != 0) {
        return "abandons a reset that has not begun";
    }
    platform.service<GPIBeginResetMemorySpace>(GPI_SERVICE_BEGIN_RESET_MEMORY_SPACE)(kSpace, 0);
    if (cancel(kSpace, 0) != 1) {
        return "does not abandon a reset";
    }
    return free(kSpace, 0, block) == 1 ? "" : "frees blocks of a reset that was abandoned";
}

} // namespace

std::span<const Probe> memoryProbes() {
    static const std::vector<int32_t> kAlloc = {GPI_SERVICE_MEMORY_ALLOC};
    static const std::vector<int32_t> kReset = {GPI_SERVICE_MEMORY_ALLOC, GPI_SERVICE_MEMORY_FREE,
                                                GPI_SERVICE_BEGIN_RESET_MEMORY_SPACE};
    static const Probe kProbes[] = {
        {GPI_SERVICE_MEMORY_ALLOC, allocates, {}},
        {GPI_SERVICE_MEMORY_FREE, frees, kAlloc},
        {GPI_SERVICE_MEMORY_REALLOC, reallocates, {}},
        {GPI_SERVICE_SET_MEMORY_SPACE, limits, kAlloc},
        {GPI_SERVICE_DELETE_MEMORY_SPACE, deletes, kAlloc},
        {GPI_SERVICE_SET_MEMORY_MODE, setsMode, {}},
        {GPI_SERVICE_BEGIN_RESET_MEMORY_SPACE, beginsReset, kAlloc},
        {GPI_SERVICE_END_RESET_MEMORY_SPACE, endsReset, kReset},
        {GPI_SERVICE_CANCEL_RESET_MEMORY_SPACE, cancelsReset, kReset},
    };
    return kProbes;
}

} // namespace doctor
