// Conversion between pixel layouts, a short run of pixels at a time: read into pixel values, move
// the channels, write in the destination's format. The steps are loops over plain arrays, which the
// compiler turns into vector code.
#include "raster/kernel/format.h"
#include "raster/kernel/mode.h"
#include "raster/kernel/transfer.h"

#include <algorithm>

namespace quarlo::kernel {
namespace {

constexpr int32_t kRun = 64;

/// Moves one channel from its place in the source to its place in the destination.
struct ChannelMove {
    uint32_t mask;
    int down;        ///< right shift that brings the mask's top bit to bit 7, or
    int up;          ///< left shift that does
    uint32_t lowest; ///< lowest bit of the mask so moved
    int placeDown;   ///< then right, or
    int placeUp;     ///< left to the destination's place
    uint32_t place;  ///< destination mask

    ChannelMove(uint32_t from, uint32_t to) : mask(from), place(to) {
        const int source = channelShift(from);
        const int target = channelShift(to);
        down = std::max(source, 0);
        up = std::max(-source, 0);
        placeDown = std::max(-target, 0);
        placeUp = std::max(target, 0);
        const uint32_t moved = shiftBy(from, -source) & 0xFF;
        lowest = moved & (~moved + 1);
    }

    uint32_t operator()(uint32_t value) const {
        uint32_t channel = (value & mask) >> down << up;
        channel |= (channel & lowest) != 0 ? lowest - 1 : 0;
        return channel >> placeDown << placeUp & place;
    }
};

struct PixelMove {
    ChannelMove red;
    ChannelMove green;
    ChannelMove blue;

    PixelMove(const PixelLayout& from, const PixelLayout& to)
        : red(from.red, to.red), green(from.green, to.green), blue(from.blue, to.blue) {}

    void operator()(uint32_t* values, int32_t count) const {
        const PixelMove move = *this;
        for (int32_t at = 0; at < count; ++at) {
            values[at] = move.red(values[at]) | move.green(values[at]) | move.blue(values[at]);
        }
    }
};

template <typename Format>
void readRun(const uint8_t* from, uint32_t* values, int32_t count) {
    for (int32_t at = 0; at < count; ++at) {
        values[at] = loadPixel<Format>(from + at * Format::kBytes);
    }
}

template <typename Format, typename Mode>
void writeRun(uint8_t* to, const uint32_t* values, int32_t count) {
    for (int32_t at = 0; at < count; ++at) {
        putPixel<Format, Mode>(to + at * Format::kBytes, values[at]);
    }
}

/// A palette brought to the destination's layout once, for every index a byte can name.
struct ConvertedPalette {
    uint32_t values[256];

    ConvertedPalette(const PixelLayout& from, const PixelMove& move) {
        const auto count = static_cast<int32_t>(std::min<uint32_t>(from.paletteCount, 256));
        std::copy_n(from.palette, count, values);
        std::fill(values + count, values + 256, 0U);
        move(values, 256);
    }
};

using ReadRun = void (*)(const uint8_t*, uint32_t*, int32_t);
using WriteRun = void (*)(uint8_t*, const uint32_t*, int32_t);

template <typename Format>
constexpr WriteRun kWriters[] = {writeRun<Format, Copy>, writeRun<Format, And>,
                                 writeRun<Format, Or>, writeRun<Format, Xor>};

WriteRun writerFor(int32_t bitsPerPixel, int32_t mode) {
    switch (bitsPerPixel) {
    case 8:
        return kWriters<Format8>[mode];
    case 16:
        return kWriters<Format16>[mode];
    default:
        return kWriters<Format24>[mode];
    }
}

ReadRun readerFor(int32_t bitsPerPixel) {
    switch (bitsPerPixel) {
    case 8:
        return readRun<Format8>;
    case 16:
        return readRun<Format16>;
    default:
        return readRun<Format24>;
    }
}

/// Walks both rectangles in runs of at most kRun pixels.
template <typename Run>
void forEachRun(const Transfer& transfer, int32_t fromBytes, int32_t toBytes, const Run& run) {
    for (int32_t row = 0; row < transfer.height; ++row) {
        uint8_t* const to = transfer.to + row * transfer.toStride;
        const uint8_t* const from = transfer.from + row * transfer.fromStride;
        for (int32_t x = 0; x < transfer.width; x += kRun) {
            run(to + x * toBytes, from + x * fromBytes, std::min(kRun, transfer.width - x));
        }
    }
}

} // namespace

void convertRect(const Transfer& transfer, const PixelLayout& from, const PixelLayout& to,
                 int32_t mode) {
    if (mode < 0 || mode > 3) {
        return;
    }
    const PixelMove move(from, to);
    const WriteRun write = writerFor(to.bitsPerPixel, mode);
    const int32_t fromBytes = from.bitsPerPixel / 8;
    const int32_t toBytes = to.bitsPerPixel / 8;
    uint32_t values[kRun];
    if (from.palette != nullptr) {
        const ConvertedPalette palette(from, move);
        forEachRun(transfer, fromBytes, toBytes,
                   [&](uint8_t* into, const uint8_t* source, int32_t count) {
                       for (int32_t at = 0; at < count; ++at) {
                           values[at] = palette.values[source[at * fromBytes]];
                       }
                       write(into, values, count);
                   });
        return;
    }
    const ReadRun read = readerFor(from.bitsPerPixel);
    forEachRun(transfer, fromBytes, toBytes,
               [&](uint8_t* into, const uint8_t* source, int32_t count) {
                   read(source, values, count);
                   move(values, count);
                   write(into, values, count);
               });
}

} // namespace quarlo::kernel
