#include "raster/gradation.h"

#include "draw/clip.h"

#include <algorithm>

namespace quarlo {
namespace {

constexpr int32_t kMostBands = 256;

/// Bands are 5-5-5 whatever the depth of the surface, deliberately.
uint32_t pack555(int32_t red, int32_t green, int32_t blue) {
    return static_cast<uint32_t>((red & 0xF8) << 7 | (green & 0xF8) << 2 | blue >> 3);
}

/// A ramp of colour bands along one axis of a rectangle, in lines from the rectangle's first.
class Ramp {
  public:
    Ramp(const GGradationInfo& info, int32_t extent)
        : info_(info),
          extent_(extent),
          lead_(static_cast<int32_t>(int64_t{extent} * info.lead / 100)),
          bands_(std::min({int32_t{info.steps}, kMostBands, extent - lead_})) {}

    int32_t bands() const { return bands_; }
    int32_t lead() const { return lead_; }

    int32_t firstLine(int32_t band) const {
        return lead_ + static_cast<int32_t>(int64_t{band} * (extent_ - lead_) / bands_);
    }

    /// The last band takes the line that the extent, one less than the lines, leaves over.
    int32_t lastLine(int32_t band) const {
        return band == bands_ - 1 ? extent_ : firstLine(band + 1) - 1;
    }

    uint32_t color(int32_t band) const {
        return pack555(channel(16, band), channel(8, band), channel(0, band));
    }

  private:
    int32_t channel(int shift, int32_t band) const {
        const auto start = static_cast<int32_t>(info_.startColor >> shift & 0xFF);
        const auto end = static_cast<int32_t>(info_.endColor >> shift & 0xFF);
        return bands_ <= 1 ? start : start + (end - start) * band / (bands_ - 1);
    }

    const GGradationInfo& info_;
    int32_t extent_;
    int32_t lead_;
    int32_t bands_;
};

/// Rows are spans, not rectangles: a device may accelerate the two differently. A lead is painted
/// in any colour, -1 included.
void fillRows(const Canvas& canvas, const GRect& rect, uint32_t pixel) {
    const int32_t mode = canvas.handle.drawingMode;
    if (canvas.kernels != nullptr && pixel != G_NO_COLOR) {
        fillRect(canvas, rect, pixel, mode);
        return;
    }
    for (int32_t y = rect.top; y <= rect.bottom; ++y) {
        canvas.span(rect.left, low16(y), widthOf(rect), pixel, mode);
    }
}

/// Lines `first` to `last` of the whole rectangle, as far as they are visible.
template <typename Fill>
void fillLines(const GRect& visible, const GRect& whole, bool down, int32_t first, int32_t last,
               const Fill& fill) {
    const int32_t start = down ? whole.top : whole.left;
    const int32_t from = std::max<int32_t>(start + first, down ? visible.top : visible.left);
    const int32_t to = std::min<int32_t>(start + last, down ? visible.bottom : visible.right);
    if (from > to) {
        return;
    }
    fill(down ? GRect{visible.left, low16(from), visible.right, low16(to)}
              : GRect{low16(from), visible.top, low16(to), visible.bottom});
}

} // namespace

void fillGradation(const Canvas& canvas, const GRect& visible, const GRect& whole) {
    const GGradationInfo& info = canvas.handle.gradation;
    if (info.direction > G_GRADATION_ACROSS) {
        return;
    }
    const bool down = info.direction == G_GRADATION_DOWN;
    const Ramp ramp(info, (down ? heightOf(whole) : widthOf(whole)) - 1);
    const int32_t mode = canvas.handle.drawingMode;
    if (ramp.bands() <= 1) {
        fillRect(canvas, visible, ramp.color(0), mode);
        return;
    }
    // The lead of a downward ramp takes the start colour as it was given, unpacked.
    const uint32_t leadColor = down ? info.startColor : ramp.color(0);
    for (int32_t band = -1; band < ramp.bands(); ++band) {
        const int32_t first = band < 0 ? 0 : ramp.firstLine(band);
        const int32_t last = band < 0 ? ramp.lead() - 1 : ramp.lastLine(band);
        const uint32_t pixel = band < 0 ? leadColor : ramp.color(band);
        fillLines(visible, whole, down, first, last, [&](const GRect& rect) {
            if (down) {
                fillRows(canvas, rect, pixel);
            } else {
                fillRect(canvas, rect, pixel, mode);
            }
        });
    }
}

} // namespace quarlo
