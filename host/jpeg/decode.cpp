#include "file/error.h"
#include "jpeg/picture.h"

#include <turbojpeg.h>

#include <algorithm>
#include <memory>

namespace gpi {
namespace {

constexpr int64_t kMostPixels = 64'000'000;

/// A decompressor that has read a stream's header.
class Decoder {
  public:
    explicit Decoder(std::span<const uint8_t> stream) : stream_(stream) {
        constexpr uint8_t kStart[] = {0xFF, 0xD8};
        if (stream.size() < 2 || !std::equal(kStart, kStart + 2, stream.begin())) {
            throw IoError(G_IO_UNSUPPORTED);
        }
        if (turbo_ == nullptr) {
            throw IoError(G_IO_NO_MEMORY);
        }
        int subsampling = 0;
        // A stream of tables alone is read, and has no size.
        if (tjDecompressHeader3(turbo_.get(), stream.data(), stream.size(), &width_, &height_,
                                &subsampling, &space_) != 0 ||
            width_ <= 0 || height_ <= 0) {
            throw IoError(G_IO_DAMAGED);
        }
    }

    GJpegInfo info(int scale) const {
        const tjscalingfactor factor{1, scale};
        const int32_t components = space_ == TJCS_GRAY ? 1 : (isPrint() ? 4 : 3);
        return {TJSCALED(width_, factor), TJSCALED(height_, factor), components};
    }

    /// Decodes into `bytes` a pixel. False when the stream broke off.
    bool decode(const GJpegInfo& size, int format, uint8_t* pixels) {
        // Without a limit a small stream of many scans could keep the processor busy for minutes.
        const int result = tjDecompress2(turbo_.get(), stream_.data(), stream_.size(), pixels,
                                         size.width, 0, size.height, format, TJFLAG_LIMITSCANS);
        if (result != 0 && tjGetErrorCode(turbo_.get()) != TJERR_WARNING) {
            throw IoError(G_IO_DAMAGED);
        }
        return result == 0;
    }

    bool isPrint() const { return space_ == TJCS_CMYK || space_ == TJCS_YCCK; }

  private:
    struct Destroy {
        void operator()(void* handle) const { tjDestroy(handle); }
    };

    std::span<const uint8_t> stream_;
    std::unique_ptr<void, Destroy> turbo_{tjInitDecompress()};
    int width_ = 0;
    int height_ = 0;
    int space_ = 0;
};

/// Print colours as screen colours, in place. Files hold them inverted: 255 is no ink.
void mixInks(std::vector<uint8_t>& pixels) {
    const size_t count = pixels.size() / 4;
    for (size_t i = 0; i < count; ++i) {
        const uint8_t* const inks = &pixels[i * 4];
        const int black = inks[3];
        for (size_t channel = 0; channel < 3; ++channel) {
            pixels[i * 3 + channel] = static_cast<uint8_t>(inks[channel] * black / 255);
        }
    }
    pixels.resize(count * 3);
}

} // namespace

GJpegInfo jpegInfo(std::span<const uint8_t> stream, int scale) {
    return Decoder(stream).info(scale);
}

Picture decodeJpeg(std::span<const uint8_t> stream, int scale) {
    Decoder decoder(stream);
    const GJpegInfo size = decoder.info(scale);
    const int64_t count = int64_t{size.width} * size.height;
    if (count > kMostPixels) {
        throw IoError(G_IO_TOO_LARGE);
    }
    const size_t bytes = decoder.isPrint() ? 4 : 3;
    Picture picture{size.width, size.height, {}, true};
    picture.pixels.assign(static_cast<size_t>(count) * bytes, 0x80);
    picture.whole =
        decoder.decode(size, decoder.isPrint() ? TJPF_CMYK : TJPF_RGB, picture.pixels.data());
    if (decoder.isPrint()) {
        mixInks(picture.pixels);
    }
    return picture;
}

} // namespace gpi
