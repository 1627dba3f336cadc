// Conversion by tables of what bytes become: two loads and an OR for a pixel of 16 bits.
#include "raster/kernel/convert.h"

#include "raster/kernel/format.h"
#include "raster/kernel/mode.h"

namespace quarlo::kernel {
namespace {

/// Reads pixels of channels: each is the OR of what its bytes become. Digits of six bits would take
/// a third of the stack and half as long again.
template <int Bytes>
class DirectReader {
  public:
    static constexpr int kBytes = Bytes;

    DirectReader(const PixelLayout&, const PixelMove& move) {
        const MovedBits moved(move);
        for (ptrdiff_t byte = 0; byte < Bytes; ++byte) {
            tabulate(moved.bits + 8 * byte, tables_[byte]);
        }
    }

    uint32_t operator()(const uint8_t* from) const {
        uint32_t pixel = tables_[0][from[0]];
        for (int byte = 1; byte < Bytes; ++byte) {
            pixel |= tables_[byte][from[byte]];
        }
        return pixel;
    }

  private:
    /// Each half of a table is the half before with one bit more.
    static void tabulate(const uint32_t bits[8], uint32_t table[256]) {
        table[0] = 0;
        for (int bit = 0; bit < 8; ++bit) {
            const int half = 1 << bit;
            for (int value = 0; value < half; ++value) {
                table[half + value] = table[value] | bits[bit];
            }
        }
    }

    uint32_t tables_[Bytes][256];
};

/// Reads pixels whose first byte names a palette entry.
template <int Bytes>
class PaletteReader {
  public:
    static constexpr int kBytes = Bytes;

    PaletteReader(const PixelLayout& from, const PixelMove& move) : palette_(from, move) {}

    uint32_t operator()(const uint8_t* from) const { return palette_.values[from[0]]; }

  private:
    MovedPalette palette_;
};

template <typename Mode>
void putWord(uint8_t* to, uint32_t word) {
    const auto old = Mode::kReads ? loadLittle<uint32_t>(to) : 0U;
    storeLittle(to, Mode::combine(old, word));
}

/// Combines four pixels into memory as the whole words that they fill.
template <typename Format, typename Mode>
void putFour(uint8_t* to, uint32_t first, uint32_t second, uint32_t third, uint32_t fourth) {
    if constexpr (Format::kBytes == 1) {
        putWord<Mode>(to, first | second << 8 | third << 16 | fourth << 24);
    } else if constexpr (Format::kBytes == 2) {
        putWord<Mode>(to, first | second << 16);
        putWord<Mode>(to + 4, third | fourth << 16);
    } else {
        putWord<Mode>(to, first | second << 24);
        putWord<Mode>(to + 4, second >> 8 | third << 16);
        putWord<Mode>(to + 8, third >> 16 | fourth << 8);
    }
}

/// Not inlined, so that the tables are addressed by a register of their own: through the stack
/// pointer most conversions took twice the time.
template <typename Reader, typename Format, typename Mode>
[[gnu::noinline]] void convertRow(uint8_t* to, const uint8_t* from, int32_t count,
                                  const Reader& read) {
    constexpr ptrdiff_t kBytes = Reader::kBytes;
    for (; count >= 4; count -= 4) {
        putFour<Format, Mode>(to, read(from), read(from + kBytes), read(from + 2 * kBytes),
                              read(from + 3 * kBytes));
        from += 4 * kBytes;
        to += 4 * Format::kBytes;
    }
    for (; count > 0; --count) {
        putPixel<Format, Mode>(to, read(from));
        from += kBytes;
        to += Format::kBytes;
    }
}

template <typename Reader, typename Format, typename Mode>
void convert(const Transfer& transfer, const PixelLayout& from, const PixelLayout& to, int32_t) {
    const Reader read(from, PixelMove(from, to));
    for (int32_t row = 0; row < transfer.height; ++row) {
        convertRow<Reader, Format, Mode>(transfer.to + row * transfer.toStride,
                                         transfer.from + row * transfer.fromStride, transfer.width,
                                         read);
    }
}

template <typename Reader, typename Format>
constexpr ConvertPixels kModes[] = {convert<Reader, Format, Copy>, convert<Reader, Format, And>,
                                    convert<Reader, Format, Or>, convert<Reader, Format, Xor>};

template <typename Reader>
constexpr const ConvertPixels* kFormats[] = {kModes<Reader, Format8>, kModes<Reader, Format16>,
                                             kModes<Reader, Format24>};

template <template <int> typename Reader>
constexpr const ConvertPixels* const* kReaders[] = {kFormats<Reader<1>>, kFormats<Reader<2>>,
                                                    kFormats<Reader<3>>};

} // namespace

ConvertPixels portableConversion(const PixelLayout& from, const PixelLayout& to, int32_t mode) {
    const auto* const readers =
        from.palette == nullptr ? kReaders<DirectReader> : kReaders<PaletteReader>;
    return readers[from.bitsPerPixel / 8 - 1][to.bitsPerPixel / 8 - 1][mode];
}

void convertRect(const Transfer& transfer, const PixelLayout& from, const PixelLayout& to,
                 int32_t mode) {
    if (mode < 0 || mode > 3) {
        return;
    }
    const ConvertPixels vectors = vectorConversion(from, to, mode);
    const ConvertPixels convert = vectors != nullptr ? vectors : portableConversion(from, to, mode);
    convert(transfer, from, to, mode);
}

} // namespace quarlo::kernel
