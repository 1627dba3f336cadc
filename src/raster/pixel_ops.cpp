#include "raster/pixel_ops.h"

#include "draw/color.h"
#include "draw/surface.h"
#include "platform/service_table.h"
#include "raster/kernel/format.h"
#include "raster/kernel/mode.h"

#include <cstddef>

namespace quarlo {

PixelCell pixelCells[3];
GPixelOps deviceOps;

namespace {

using namespace kernel;

template <typename Format>
PixelCell& cellOf() {
    return pixelCells[Format::kBytes - 1];
}

template <typename Format>
uint8_t* pixelAddress(const GVram* surface, int16_t x, int16_t y) {
    return surface->pixels + y * ptrdiff_t{surface->bytesPerLine} + x * ptrdiff_t{Format::kBytes};
}

template <typename Format, typename Mode>
void continueCell() {
    PixelCell& cell = cellOf<Format>();
    kernel::putPixel<Format, Mode>(cell.cursor, cell.color);
    cell.cursor += Format::kBytes;
}

/// Draws nothing where nothing was drawn before.
template <typename Format, typename Mode>
int32_t nextPixel() {
    if (cellOf<Format>().cursor == nullptr) {
        return 0;
    }
    continueCell<Format, Mode>();
    return 1;
}

template <typename Format, typename Mode>
int32_t setPixel(GDrawHandle*, GVram* surface, int16_t x, int16_t y, uint32_t pixel, int32_t) {
    cellOf<Format>() = {pixel, pixelAddress<Format>(surface, x, y)};
    continueCell<Format, Mode>();
    return 1;
}

template <typename Format, typename Mode>
int32_t span(GDrawHandle*, GVram* surface, int16_t x, int16_t y, uint32_t pixel, int32_t,
             int16_t count) {
    cellOf<Format>() = {pixel, pixelAddress<Format>(surface, x, y)};
    if (count >= 1) {
        uint8_t*& cursor = cellOf<Format>().cursor;
        cursor = kernelTable[Format::kBytes - 1][Mode::kNumber].fill(cursor, surface->bytesPerLine,
                                                                     count, 1, pixel);
    }
    return 1;
}

template <typename Format>
uint32_t readPixelAt(GDrawHandle*, GVram* surface, int16_t x, int16_t y) {
    return loadPixel<Format>(pixelAddress<Format>(surface, x, y));
}

template <typename Format, typename Mode, typename NextMode = Mode>
consteval MemoryEntry memoryEntry() {
    GPixelOps ops{};
    ops.setPixel = setPixel<Format, Mode>;
    ops.span = span<Format, Mode>;
    ops.nextPixel = nextPixel<Format, NextMode>;
    ops.readPixel = readPixelAt<Format>;
    return {ops, &kernelTable[Format::kBytes - 1][Mode::kNumber]};
}

constexpr int kModeCount = 4;

constexpr GPixelOps kEmptyEntry{};

/// Indices are mode + bits a pixel x 4, so that a format's entries start at multiples of 32.
const GPixelOps* tableEntry(int32_t index) {
    const int32_t format = index / 32 - 1;
    const int32_t mode = index % 32;
    if (index < 32 || format > 2 || mode >= kModeCount) {
        return &kEmptyEntry;
    }
    return &memoryEntries[format * kModeCount + mode].ops;
}

template <int Number, typename R, typename... Args>
void takeFromPlatform(R (*&slot)(Args...)) {
    using Device = Service<R(Args...), Number>;
    slot = reinterpret_cast<R (*)(Args...)>(serviceTable.slots[Device::kSlot]);
}

void fillDeviceEntry() {
    takeFromPlatform<5>(deviceOps.setPixel);
    takeFromPlatform<6>(deviceOps.span);
    takeFromPlatform<7>(deviceOps.nextPixel);
    takeFromPlatform<43>(deviceOps.coveragePixel);
    takeFromPlatform<67>(deviceOps.drawRect);
    takeFromPlatform<68>(deviceOps.fillRect);
    takeFromPlatform<70>(deviceOps.patternRect);
}

} // namespace

void selectPixelOps(GDrawHandle& handle) {
    const GVram& target = *handle.target;
    if (isDeviceSurface(target)) {
        fillDeviceEntry();
        handle.pixelOps = &deviceOps;
    } else {
        handle.pixelOps = tableEntry(handle.drawingMode + target.bitsPerPixel * kModeCount);
    }
    if (handle.colorMode != 0) {
        reconvertColors(handle);
    }
}

/// The next-pixel operation of 24 bits AND is the one of 24 bits copy.
constinit const MemoryEntry memoryEntries[12] = {
    memoryEntry<Format8, Copy>(),  memoryEntry<Format8, And>(),
    memoryEntry<Format8, Or>(),    memoryEntry<Format8, Xor>(),
    memoryEntry<Format16, Copy>(), memoryEntry<Format16, And>(),
    memoryEntry<Format16, Or>(),   memoryEntry<Format16, Xor>(),
    memoryEntry<Format24, Copy>(), memoryEntry<Format24, And, Copy>(),
    memoryEntry<Format24, Or>(),   memoryEntry<Format24, Xor>(),
};

} // namespace quarlo
