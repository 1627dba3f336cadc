// How the pixels of a screen stand in its memory.
#pragma once

#include <array>
#include <cstdint>

namespace gpi {

/// Pixels of 2, 3 or 4 bytes, of which each channel is a run of bits, in any order.
struct ScreenFormat {
    int bits;
    uint32_t red; ///< channel masks
    uint32_t green;
    uint32_t blue;
    uint32_t opaque = 0; ///< bits that are always set

    constexpr int bytes() const { return bits / 8; }

    friend constexpr bool operator==(const ScreenFormat&, const ScreenFormat&) = default;
};

/// Whether pixels of a format can be written: a size that is known, and channels of 1 to 16 bits,
/// each in one piece and beside the others.
bool isUsable(const ScreenFormat& format);

/// Writes colours as pixels of a usable format. A channel that is narrower than 8 bits loses its
/// low bits; a wider one repeats its high bits below, so that full stays full.
class PixelPacker {
  public:
    explicit PixelPacker(const ScreenFormat& format);

    /// @param rgb words 0x00RRGGBB
    void pack(const uint32_t* rgb, int count, uint8_t* to) const { row_(*this, rgb, count, to); }

  private:
    using Row = void (*)(const PixelPacker&, const uint32_t*, int, uint8_t*);
    using Channel = std::array<uint32_t, 256>;

    template <int kBytes>
    static void packRow(const PixelPacker& self, const uint32_t* rgb, int count, uint8_t* to);

    // What each value of a channel becomes. Looking it up costs the same for every format.
    Channel red_;
    Channel green_;
    Channel blue_;
    Row row_;
};

} // namespace gpi
