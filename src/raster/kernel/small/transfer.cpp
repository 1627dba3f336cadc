// Block transfers of a build for size: byte by byte, or pixel by pixel where formats differ.
#include "raster/kernel/convert.h"
#include "raster/kernel/kernels.h"
#include "raster/kernel/small/ink.h"

#include <cstdint>
#include <cstring>

namespace quarlo::kernel {
namespace {

/// One that begins at a higher address than it comes from goes backwards, as the two may overlap.
void copyRow(uint8_t* to, const uint8_t* from, size_t length, int32_t mode) {
    if (mode == 0) {
        std::memmove(to, from, length);
    } else if (reinterpret_cast<uintptr_t>(to) <= reinterpret_cast<uintptr_t>(from)) {
        for (; length > 0; --length) {
            inkOf(*from++, mode).putByte(to++);
        }
    } else {
        for (; length > 0; --length) {
            inkOf(from[length - 1], mode).putByte(to + length - 1);
        }
    }
}

} // namespace

void copyRect(const Transfer& transfer, int32_t bytesPerPixel, int32_t mode) {
    if (mode < 0 || mode > 3) {
        return;
    }
    for (int32_t row = 0; row < transfer.height; ++row) {
        copyRow(transfer.to + row * transfer.toStride, transfer.from + row * transfer.fromStride,
                static_cast<size_t>(transfer.width * bytesPerPixel), mode);
    }
}

void convertRect(const Transfer& transfer, const PixelLayout& from, const PixelLayout& to,
                 int32_t mode) {
    if (mode < 0 || mode > 3) {
        return;
    }
    const PixelMove move(from, to);
    for (int32_t row = 0; row < transfer.height; ++row) {
        uint8_t* put = transfer.to + row * transfer.toStride;
        const uint8_t* get = transfer.from + row * transfer.fromStride;
        for (int32_t left = transfer.width; left > 0; --left) {
            uint32_t value = readPixel(get, from.bitsPerPixel);
            if (from.palette != nullptr) {
                value = *get < from.paletteCount ? from.palette[*get] : 0;
            }
            inkOf(move(value), mode).put(put, to.bitsPerPixel / 8);
            get += from.bitsPerPixel / 8;
            put += to.bitsPerPixel / 8;
        }
    }
}

ConvertPixels portableConversion(const PixelLayout&, const PixelLayout&, int32_t) {
    return convertRect;
}

ConvertPixels vectorConversion(const PixelLayout&, const PixelLayout&, int32_t) {
    return nullptr;
}

} // namespace quarlo::kernel
