#include "display/page.h"

namespace gpi {

Page::Page(int16_t number, int width, int height, const PixelFormat& format, Palette& palette)
    : record_{},
      format_(format),
      palette_(palette),
      stride_(static_cast<ptrdiff_t>(width) * format.bytes()),
      memory_(static_cast<size_t>(stride_) * static_cast<size_t>(height)),
      whole_(wholeArea(width, height)),
      limit_(whole_),
      clip_(whole_) {
    record_.id = number;
    record_.width = static_cast<int16_t>(width);
    record_.height = static_cast<int16_t>(height);
    record_.bitsPerPixel = static_cast<int16_t>(format.bits);
    record_.bytesPerLine = static_cast<int16_t>(stride_);
    record_.pixels = memory_.data();
    record_.colorType = format.palette ? G_COLOR_PALETTE : G_COLOR_DIRECT;
    record_.redMask = format.red;
    record_.greenMask = format.green;
    record_.blueMask = format.blue;
    if (format.palette) {
        record_.paletteCount = static_cast<uint16_t>(palette.size());
        record_.palette = palette.data();
    }
    record_.bounds = whole_;
    record_.drawable = &clip_;
}

quarlo::kernel::PixelLayout Page::layout() const {
    const bool indexed = format_.palette;
    return {format_.bits,
            format_.red,
            format_.green,
            format_.blue,
            indexed ? palette_.data() : nullptr,
            indexed ? static_cast<uint32_t>(palette_.size()) : 0};
}

bool Page::addRegion(const GRect& region) {
    const GRect narrowed = intersection(limit_, region);
    if (isEmpty(region) || isEmpty(narrowed)) {
        return false;
    }
    regions_.push_back(region);
    setLimit(narrowed);
    return true;
}

bool Page::removeRegion(const GRect& region) {
    const auto found = std::find_if(regions_.begin(), regions_.end(),
                                    [&](const GRect& known) { return sameArea(known, region); });
    if (found == regions_.end()) {
        return false;
    }
    regions_.erase(found);
    GRect limit = whole_;
    for (const GRect& left : regions_) {
        limit = intersection(limit, left);
    }
    setLimit(limit);
    return true;
}

void Page::setLimit(const GRect& limit) {
    limit_ = limit;
    clip_ = limit;
}

} // namespace gpi
