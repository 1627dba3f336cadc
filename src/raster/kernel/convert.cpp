// Conversion between pixel layouts. Each pair of formats has a row converter that writes pixels in
// the destination's format; drawing modes other than copy convert a short run at a time and then
// combine its bytes.
#include "raster/kernel/any_move.h"
#include "raster/kernel/convert_lanes.h"
#include "raster/kernel/mode.h"

#include <algorithm>
#include <bit>
#include <numeric>

namespace quarlo::kernel {
namespace {

constexpr int32_t kRun = 64;

/// What row converters work with.
struct Converter {
    AnyMove any;
    PixelMove plain;
    uint32_t values[256]; ///< the destination's pixel values by source byte, where that is all

    Converter(const PixelLayout& from, const PixelLayout& to) : any(from, to), plain(from, to) {
        if (from.palette != nullptr) {
            const auto count = static_cast<int32_t>(std::min<uint32_t>(from.paletteCount, 256));
            std::copy_n(from.palette, count, values);
            std::fill(values + count, values + 256, 0U);
        } else if (from.bitsPerPixel == 8) {
            std::iota(values, values + 256, 0U);
        } else {
            return;
        }
        const AnyMove move = any;
        const uint32_t format = UINT32_MAX >> (32 - to.bitsPerPixel);
        for (uint32_t& value : values) {
            value = move(value) & format;
        }
    }
};

using ConvertRow = void (*)(uint8_t* to, const uint8_t* from, int32_t count,
                            const Converter& converter);

/// Writes four pixels as whole words; `values` hold no bits but the format's.
template <typename To>
void putFour(uint8_t* to, const uint32_t values[4]) {
    if constexpr (std::endian::native == std::endian::big || To::kBytes == 1) {
        for (int pixel = 0; pixel < 4; ++pixel) {
            putPixel<To, Copy>(to + pixel * To::kBytes, values[pixel]);
        }
    } else if constexpr (To::kBytes == 2) {
        storeWord(to, values[0] | values[1] << 16);
        storeWord(to + 4, values[2] | values[3] << 16);
    } else {
        storeWord(to, values[0] | values[1] << 24);
        storeWord(to + 4, values[1] >> 8 | values[2] << 16);
        storeWord(to + 8, values[2] >> 16 | values[3] << 8);
    }
}

/// A source's first byte chooses the pixel. Four pixels are looked up before they are stored: the
/// processor cannot know that a store leaves the values alone.
template <typename From, typename To>
void lookUpRow(uint8_t* to, const uint8_t* from, int32_t count, const Converter& converter) {
    const auto valueAt = [&](int32_t pixel) {
        return converter.values[from[pixel * From::kBytes]];
    };
    for (; count >= 4; count -= 4, to += 4 * To::kBytes, from += 4 * From::kBytes) {
        const uint32_t values[] = {valueAt(0), valueAt(1), valueAt(2), valueAt(3)};
        putFour<To>(to, values);
    }
    for (; count > 0; --count, to += To::kBytes, from += From::kBytes) {
        putPixel<To, Copy>(to, valueAt(0));
    }
}

template <typename From, typename To>
void moveRow(uint8_t* to, const uint8_t* from, int32_t count, const Converter& converter) {
    const AnyMove move = converter.any;
    for (; count > 0; --count, to += To::kBytes, from += From::kBytes) {
        putPixel<To, Copy>(to, move(loadPixel<From>(from)));
    }
}

template <typename From, typename To, bool kWidens>
void moveRowOfLanes(uint8_t* to, const uint8_t* from, int32_t count, const Converter& converter) {
    const PixelMove move = converter.plain;
    for (; count >= kLanes; count -= kLanes) {
        convertEight<From, To, kWidens>(to, from, move);
        to += kLanes * To::kBytes;
        from += kLanes * From::kBytes;
    }
    if (count > 0) {
        moveRow<From, To>(to, from, count, converter);
    }
}

bool fitsLanes(const PixelLayout& layout) {
    if (layout.bitsPerPixel == 24) {
        return isOfBytes(layout);
    }
    return (layout.red | layout.green | layout.blue) <= 0xFFFF && isPlain(layout.red) &&
           isPlain(layout.green) && isPlain(layout.blue);
}

template <typename From, typename To>
ConvertRow rowFor(const PixelLayout& from, const PixelLayout& to, const Converter& converter) {
    if (From::kBytes == 1 || from.palette != nullptr) {
        return lookUpRow<From, To>;
    }
    if constexpr (From::kBytes > 1 && To::kBytes > 1 && From::kBytes + To::kBytes < 6 &&
                  std::endian::native == std::endian::little) {
        if (fitsLanes(from) && fitsLanes(to)) {
            return converter.plain.widens() ? moveRowOfLanes<From, To, true>
                                            : moveRowOfLanes<From, To, false>;
        }
    }
    return moveRow<From, To>;
}

template <typename From>
ConvertRow rowFrom(const PixelLayout& from, const PixelLayout& to, const Converter& converter) {
    switch (to.bitsPerPixel) {
    case 8:
        return rowFor<From, Format8>(from, to, converter);
    case 16:
        return rowFor<From, Format16>(from, to, converter);
    default:
        return rowFor<From, Format24>(from, to, converter);
    }
}

ConvertRow rowFor(const PixelLayout& from, const PixelLayout& to, const Converter& converter) {
    switch (from.bitsPerPixel) {
    case 8:
        return rowFrom<Format8>(from, to, converter);
    case 16:
        return rowFrom<Format16>(from, to, converter);
    default:
        return rowFrom<Format24>(from, to, converter);
    }
}

template <typename Mode>
void convertRows(const Transfer& transfer, int32_t fromBytes, int32_t toBytes, ConvertRow row,
                 const Converter& converter) {
    uint8_t run[kRun * 3];
    for (int32_t y = 0; y < transfer.height; ++y) {
        uint8_t* to = transfer.to + y * transfer.toStride;
        const uint8_t* from = transfer.from + y * transfer.fromStride;
        if constexpr (!Mode::kReads) {
            row(to, from, transfer.width, converter);
            continue;
        }
        for (int32_t left = transfer.width; left > 0; left -= kRun) {
            const int32_t count = std::min(left, kRun);
            row(run, from, count, converter);
            for (int32_t byte = 0; byte < count * toBytes; ++byte) {
                to[byte] = Mode::combine(to[byte], run[byte]);
            }
            to += count * toBytes;
            from += count * fromBytes;
        }
    }
}

} // namespace

void convertRect(const Transfer& transfer, const PixelLayout& from, const PixelLayout& to,
                 int32_t mode) {
    constexpr decltype(&convertRows<Copy>) kModes[] = {convertRows<Copy>, convertRows<And>,
                                                       convertRows<Or>, convertRows<Xor>};
    if (mode < 0 || mode > 3) {
        return;
    }
    const Converter converter(from, to);
    kModes[mode](transfer, from.bitsPerPixel / 8, to.bitsPerPixel / 8, rowFor(from, to, converter),
                 converter);
}

} // namespace quarlo::kernel
