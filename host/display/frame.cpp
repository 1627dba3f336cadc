#include "display/frame.h"

#include "display/area.h"
#include "raster/kernel/kernels.h"

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

void convertToRgb(const Frame& frame, const GRect& area, std::vector<uint32_t>& rgb) {
    const int bytes = frame.format.bytes();
    for (int y = area.top; y <= area.bottom; ++y) {
        const uint8_t* from = frame.at(area.left, y);
        uint32_t* to = &rgb[static_cast<size_t>(y) * static_cast<size_t>(frame.width) +
                            static_cast<size_t>(area.left)];
        for (int x = area.left; x <= area.right; ++x, from += bytes, ++to) {
            const uint32_t pixel = quarlo::kernel::readPixel(from, frame.format.bits);
            *to = frame.format.palette ? frame.palette[pixel] : rgbOf(frame.format, pixel);
        }
    }
}

} // namespace gpi
