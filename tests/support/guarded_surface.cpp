#include "support/guarded_surface.h"

#include "support/pages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <new>

namespace quarlo::test {

namespace {

constexpr uint8_t kWatched = 0x5A;

size_t roundUp(size_t value, size_t unit) {
    return (value + unit - 1) / unit * unit;
}

int16_t pixelBytes(const GVram& surface) {
    return static_cast<int16_t>(surface.bitsPerPixel / 8);
}

uint8_t* addressOf(const GVram& surface, ptrdiff_t x, ptrdiff_t y) {
    return surface.pixels + y * surface.bytesPerLine + x * pixelBytes(surface);
}

size_t byteCount(int16_t width, int16_t height, int16_t bitsPerPixel, int16_t padding) {
    return static_cast<size_t>(width * (bitsPerPixel / 8) + padding) * static_cast<size_t>(height);
}

GVram describe(int16_t width, int16_t height, int16_t bitsPerPixel, int16_t padding) {
    GVram vram{};
    vram.id = G_MEMORY_SURFACE;
    vram.width = width;
    vram.height = height;
    vram.bitsPerPixel = bitsPerPixel;
    vram.bytesPerLine = static_cast<int16_t>(width * (bitsPerPixel / 8) + padding);
    vram.bounds = {0, 0, static_cast<int16_t>(width - 1), static_cast<int16_t>(height - 1)};
    return vram;
}

void setUsualMasks(GVram& vram) {
    vram.colorType = G_COLOR_DIRECT;
    switch (vram.bitsPerPixel) {
    case 8:
        vram.redMask = 0xE0;
        vram.greenMask = 0x1C;
        vram.blueMask = 0x03;
        break;
    case 16:
        vram.redMask = 0x7C00;
        vram.greenMask = 0x03E0;
        vram.blueMask = 0x001F;
        break;
    default:
        vram.redMask = 0x0000FF;
        vram.greenMask = 0x00FF00;
        vram.blueMask = 0xFF0000;
    }
}

} // namespace

GuardedMemory::GuardedMemory(size_t size, Against side, size_t alignment) : size_(size) {
    const size_t page = pageSize();
    const size_t room = roundUp(size, alignment);
    pagesSize_ = roundUp(std::max<size_t>(room, 1), page);
    mappingSize_ = pagesSize_ + 2 * page;
    mapping_ = reservePages(mappingSize_);
    if (mapping_ == nullptr) {
        throw std::bad_alloc();
    }
    pages_ = mapping_ + page;
    if (!openPages(pages_, pagesSize_)) {
        releasePages(mapping_, mappingSize_);
        throw std::bad_alloc();
    }
    data_ = side == Against::Start ? pages_ : pages_ + pagesSize_ - room;
    std::memset(pages_, kWatched, pagesSize_);
    std::memset(data_, kFresh, size_);
}

GuardedMemory::~GuardedMemory() {
    EXPECT_TRUE(intact()) << "written beside a block of " << size_ << " bytes";
    releasePages(mapping_, mappingSize_);
}

bool GuardedMemory::intact() const {
    const auto watched = [](uint8_t byte) { return byte == kWatched; };
    const uint8_t* const block = data_;
    return std::all_of<const uint8_t*>(pages_, block, watched) &&
           std::all_of<const uint8_t*>(block + size_, pages_ + pagesSize_, watched);
}

GuardedSurface::GuardedSurface(int16_t width, int16_t height, int16_t bitsPerPixel, Against side,
                               int16_t padding)
    : memory_(byteCount(width, height, bitsPerPixel, padding), side),
      vram_(describe(width, height, bitsPerPixel, padding)) {
    std::memset(memory_.data(), 0, memory_.size());
    vram_.pixels = memory_.data();
    vram_.drawable = &vram_.bounds;
    setUsualMasks(vram_);
}

GuardedSurface::GuardedSurface(int16_t width, int16_t height, std::vector<uint32_t> palette,
                               Against side)
    : GuardedSurface(width, height, 8, side) {
    palette_ = std::move(palette);
    vram_.colorType = G_COLOR_PALETTE;
    vram_.redMask = 0xFF0000;
    vram_.greenMask = 0x00FF00;
    vram_.blueMask = 0x0000FF;
    vram_.paletteCount = static_cast<uint16_t>(palette_.size());
    vram_.palette = palette_.data();
}

uint32_t pixelAt(const GVram& surface, int x, int y) {
    const uint8_t* const byte = addressOf(surface, x, y);
    uint32_t pixel = 0;
    for (int i = 0; i < pixelBytes(surface); ++i) {
        pixel |= uint32_t{byte[i]} << (8 * i);
    }
    return pixel;
}

void setPixelAt(const GVram& surface, int x, int y, uint32_t pixel) {
    uint8_t* const byte = addressOf(surface, x, y);
    for (int i = 0; i < pixelBytes(surface); ++i) {
        byte[i] = static_cast<uint8_t>(pixel >> (8 * i));
    }
}

} // namespace quarlo::test
