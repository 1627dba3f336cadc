#include "canvas.h"

#include "random.h"

#include <cstdlib>
#include <cstring>
#include <new>

namespace bench {
namespace {

constexpr size_t kPage = 4096;
constexpr size_t kBytes = size_t{kWidth} * kHeight * 3;
/// Whole pages, and one more: some peers read a few bytes past the last row.
constexpr size_t kAllocated = (kBytes / kPage + 2) * kPage;

void fillWithNoise(uint8_t* bytes, uint32_t seed) {
    Random random(seed);
    for (size_t i = 0; i + 4 <= kAllocated; i += 4) {
        const uint32_t value = random.next();
        std::memcpy(bytes + i, &value, 4);
    }
}

} // namespace

Canvas::Canvas() : pixels_(allocate()), source_(allocate()) {
    reset();
}

void Canvas::reset() {
    fillWithNoise(source(), 0x50B2CEu);
    fillWithNoise(pixels(), 0xDE57u);
}

void Canvas::clear(uint8_t byte) {
    std::memset(pixels(), byte, kAllocated);
}

std::span<const uint8_t> Canvas::bytes(Format format) const {
    return {pixels_.get(), static_cast<size_t>(bytesPerLine(format)) * kHeight};
}

Canvas::Block Canvas::allocate() {
    void* block = std::aligned_alloc(kPage, kAllocated);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    return Block(static_cast<uint8_t*>(block));
}

void Canvas::Free::operator()(uint8_t* block) const {
    std::free(block);
}

int bytesPerLine(Format format) {
    return kWidth * bytesPerPixel(format);
}

} // namespace bench
