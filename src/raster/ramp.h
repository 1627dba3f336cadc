// The colour bands of a gradation.
#pragma once

#include <quarlo/handle.h>

#include <algorithm>
#include <cstdint>

namespace quarlo {

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

    /// The band of a line; -1 in the lead. Only for two bands or more.
    int32_t bandAt(int32_t line) const {
        int32_t low = -1;
        for (int32_t high = bands_; high - low > 1;) {
            const int32_t middle = (low + high) / 2;
            (firstLine(middle) <= line ? low : high) = middle;
        }
        return low;
    }

    uint32_t color(int32_t band) const {
        return pack555(channel(16, band), channel(8, band), channel(0, band));
    }

  private:
    static constexpr int32_t kMostBands = 256;

    /// Bands are 5-5-5 whatever the depth of the surface, deliberately.
    static uint32_t pack555(int32_t red, int32_t green, int32_t blue) {
        return static_cast<uint32_t>((red & 0xF8) << 7 | (green & 0xF8) << 2 | blue >> 3);
    }

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

} // namespace quarlo
