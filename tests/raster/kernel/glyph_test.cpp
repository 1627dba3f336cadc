#include "raster/kernel/plain.h"
#include "support/random_calls.h"

#include <gtest/gtest.h>

#include <cstring>

using namespace quarlo;
using namespace quarlo::test;

namespace {

constexpr uint32_t kFore = 0xC7A51E;
constexpr uint32_t kBack = 0x3B66F0;

/// The visible part of a bitmap, which ends with its last byte, and where it is drawn.
struct Glyph {
    int bits; ///< of the memory's pixels
    int mode;
    int depth;
    int firstPixel;
    int width;
    int height;
    int spare; ///< pixels of a bitmap row behind the visible ones
    bool opaque;
    uint32_t seed;

    friend std::ostream& operator<<(std::ostream& out, const Glyph& glyph) {
        return out << glyph.bits << " bits, mode " << glyph.mode << ", a glyph of " << glyph.depth
                   << " bits, " << glyph.width << " x " << glyph.height << " from pixel "
                   << glyph.firstPixel << ", " << glyph.spare << " behind, "
                   << (glyph.opaque ? "opaque" : "transparent") << ", seed " << glyph.seed;
    }
};

Glyph randomGlyph(Random& random) {
    constexpr int kDeep[] = {1, 2, 4, 8};
    return {8 * random.between(1, 3),
            random.between(0, 3),
            kDeep[random.between(0, 3)],
            random.between(0, 17),
            random.between(1, 40),
            random.oneIn(10) ? random.between(60, 200) : random.between(1, 20),
            random.between(0, 9),
            random.oneIn(2),
            static_cast<uint32_t>(random.bits())};
}

/// Bytes of which about half are 0, so that many pixels and some rows are clear.
void fillBitmap(GuardedMemory& bitmap, uint32_t seed) {
    for (size_t i = 0; i < bitmap.size(); ++i) {
        seed = seed * 1664525U + 1013904223U;
        bitmap.data()[i] = (seed & 0x10000) != 0 ? static_cast<uint8_t>(seed >> 24) : 0;
    }
}

std::string check(const Glyph& glyph) {
    const int pixels = glyph.firstPixel + glyph.width;
    const int stride = ((pixels + glyph.spare) * glyph.depth + 7) / 8;
    const int lastRow = (pixels * glyph.depth + 7) / 8;
    GuardedMemory bitmap(static_cast<size_t>(stride * (glyph.height - 1) + lastRow));
    fillBitmap(bitmap, glyph.seed);
    const int bytes = glyph.bits / 8;
    const int rowBytes = glyph.width * bytes + 5;
    GuardedMemory memory(static_cast<size_t>(rowBytes * (glyph.height - 1) + glyph.width * bytes));
    Expected expected(memory);
    std::ptrdiff_t end = 0;
    for (int y = 0; y < glyph.height; ++y) {
        for (int x = 0; x < glyph.width; ++x) {
            const std::ptrdiff_t at = y * rowBytes + x * bytes;
            if (glyph.opaque) {
                expected.put(at, bytes, kBack, glyph.mode);
            }
            bool set = false;
            for (int i = 0; i < glyph.depth; ++i) {
                const int bit = (glyph.firstPixel + x) * glyph.depth + i;
                set |= (bitmap.data()[y * stride + bit / 8] & 0x80 >> bit % 8) != 0;
            }
            if (set) {
                expected.put(at, bytes, kFore, glyph.mode);
                end = at + bytes;
            }
        }
    }
    const kernel::Kernels& kernels = *kernel::kernelsFor(glyph.bits, glyph.mode);
    const kernel::GlyphBits bits{bitmap.data(), stride, glyph.depth, glyph.firstPixel};
    const auto draw = [&](auto... arguments) {
        return glyph.opaque ? kernels.opaqueGlyph(arguments...)
                            : kernels.transparentGlyph(arguments...);
    };
    uint8_t* const cursor =
        draw(memory.data(), rowBytes, bits, glyph.width, glyph.height, kFore, kBack);
    if (!expected.met()) {
        return "wrong bytes";
    }
    return cursor == (end == 0 ? nullptr : memory.data() + end) ? "" : "wrong cursor";
}

TEST(GlyphKernel, DrawsEachPixelThatIsSet) {
    forRandomCalls(20'000, 1, randomGlyph, [](const auto& glyphs) -> std::string {
        return glyphs.empty() ? "" : check(glyphs[0]);
    });
}

TEST(GlyphKernel, DrawsGlyphsOfOneStripInEveryFormatAndMode) {
    for (const int bits : kDepths) {
        for (const int mode : kModes) {
            for (const bool opaque : {false, true}) {
                const Glyph glyph{bits, mode, 1, 0, 8, 16, 0, opaque, 7};
                ASSERT_EQ(check(glyph), "") << glyph;
            }
        }
    }
}

} // namespace
