#include "display/frame.h"

#include "display/area.h"
#include "raster/kernel/format.h"

#include <zlib.h>

#include <array>
#include <cstring>

namespace gpi {

Frame::Frame(int frameWidth, int frameHeight, const PixelFormat& frameFormat)
    : width(frameWidth),
      height(frameHeight),
      format(frameFormat),
      pixels(stride() * static_cast<size_t>(frameHeight)) {}

void copyInto(Frame& frame, const uint8_t* pixels, const GRect& area) {
    const size_t length =
        static_cast<size_t>(widthOf(area)) * static_cast<size_t>(frame.format.bytes());
    for (int y = area.top; y <= area.bottom; ++y) {
        uint8_t* const to = frame.at(area.left, y);
        std::memcpy(to, pixels + (to - frame.pixels.data()), length);
    }
}

namespace {

using ConvertRow = void (*)(const uint8_t* from, uint32_t* to, int count, const Palette& palette);

/// The format is a constant in here, so that the loop becomes a few shifts on whole vectors.
template <PixelFormat kFormat>
void convertRow(const uint8_t* from, uint32_t* to, int count, const Palette& palette) {
    using Layout = quarlo::kernel::Format<kFormat.bytes()>;
    for (int index = 0; index < count; ++index, from += kFormat.bytes()) {
        const uint32_t pixel = quarlo::kernel::loadPixel<Layout>(from);
        to[index] = kFormat.palette ? palette[pixel] : rgbOf(kFormat, pixel);
    }
}

ConvertRow converterFor(const PixelFormat& format) {
    if (format.palette) {
        return convertRow<kFormat8>;
    }
    if (format.bits == 24) {
        return convertRow<kFormat24>;
    }
    return format == kFormat565 ? convertRow<kFormat565> : convertRow<kFormat555>;
}

} // namespace

void convertToRgb(const Frame& frame, const GRect& area, std::vector<uint32_t>& rgb) {
    const ConvertRow convert = converterFor(frame.format);
    for (int y = area.top; y <= area.bottom; ++y) {
        uint32_t* const to = &rgb[static_cast<size_t>(y) * static_cast<size_t>(frame.width) +
                                  static_cast<size_t>(area.left)];
        convert(frame.at(area.left, y), to, widthOf(area), frame.palette);
    }
}

std::vector<uint8_t> rgbBytes(std::span<const uint32_t> colors) {
    std::vector<uint8_t> bytes(colors.size() * 3);
    uint8_t* to = bytes.data();
    for (const uint32_t rgb : colors) {
        *to++ = static_cast<uint8_t>(rgb >> 16);
        *to++ = static_cast<uint8_t>(rgb >> 8);
        *to++ = static_cast<uint8_t>(rgb);
    }
    return bytes;
}

std::vector<uint8_t> rgbBytes(const Frame& frame) {
    std::vector<uint32_t> rgb(static_cast<size_t>(frame.width) * static_cast<size_t>(frame.height));
    convertToRgb(frame, wholeArea(frame.width, frame.height), rgb);
    return rgbBytes(std::span<const uint32_t>(rgb));
}

uint32_t checksum(const Frame& frame) {
    const std::vector<uint8_t> bytes = rgbBytes(frame);
    return static_cast<uint32_t>(crc32_z(0, bytes.data(), bytes.size()));
}

} // namespace gpi
