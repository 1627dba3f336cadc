#include "run_encoder.h"

#include <quarlo/grf_stream.h>

#include <algorithm>
#include <optional>

namespace grf {
namespace {

constexpr size_t kLongestRun = G_GRF_COUNT_MASK;

uint8_t controlByte(int kind, size_t count) {
    return static_cast<uint8_t>(kind << 6 | static_cast<int>(count));
}

/// Values in units: from each pixel on as many as a unit holds, the first in the highest bits.
class Units {
  public:
    explicit Units(const Image& image)
        : image_(image),
          pixels_(static_cast<size_t>(image.pixelsPerUnit())),
          bytes_(static_cast<size_t>(image.unitBytes())) {}

    size_t pixels() const { return pixels_; }
    size_t bytes() const { return bytes_; }

    /// Nothing where a pixel in the unit is transparent. Behind the last pixel indexes are 0.
    std::optional<uint32_t> at(size_t first) const {
        uint32_t unit = 0;
        for (size_t i = first; i < first + pixels_; ++i) {
            const uint32_t value = i < image_.values.size() ? image_.values[i] : 0;
            if (value == kClear) {
                return std::nullopt;
            }
            unit = pixels_ == 1 ? value : unit << image_.bits | value;
        }
        return unit;
    }

    void append(std::vector<uint8_t>& stream, size_t first) const {
        const uint32_t unit = *at(first);
        for (size_t byte = 0; byte < bytes_; ++byte) {
            stream.push_back(static_cast<uint8_t>(unit >> (8 * byte)));
        }
    }

  private:
    const Image& image_;
    size_t pixels_;
    size_t bytes_;
};

/// Finds the best run to begin at each pixel, from the last pixel to the first: what follows a run
/// is best by itself.
class RunChooser {
  public:
    explicit RunChooser(const Image& image)
        : values_(image.values),
          units_(image),
          end_(endOf(values_)),
          costs_(end_ + kLongestRun * units_.pixels() + 1, 0),
          runs_(end_) {
        std::vector<size_t> equal(end_ + units_.pixels(), 0);
        std::vector<size_t> drawn(end_ + units_.pixels(), 0);
        size_t clear = 0;
        for (size_t at = end_; at-- > 0;) {
            clear = values_[at] == kClear ? std::min(clear + 1, kLongestRun) : 0;
            if (clear != 0) {
                choose(at, G_GRF_SKIP, clear, 1, clear);
                continue;
            }
            const size_t next = at + units_.pixels();
            const auto unit = units_.at(at);
            if (!unit) {
                costs_[at] = kImpossible;
                continue;
            }
            drawn[at] = std::min(drawn[next] + 1, kLongestRun);
            equal[at] = drawn[next] > 0 && units_.at(next) == unit
                            ? std::min(equal[next] + 1, kLongestRun)
                            : 1;
            chooseUnits(at, drawn[at], equal[at]);
        }
    }

    std::vector<uint8_t> stream() const {
        std::vector<uint8_t> stream;
        for (size_t at = 0; at < end_;) {
            const int kind = runs_[at] >> 6;
            const size_t count = runs_[at] & G_GRF_COUNT_MASK;
            stream.push_back(runs_[at]);
            if (kind == G_GRF_SKIP) {
                stream.push_back(0);
                at += count;
                continue;
            }
            const size_t stored = kind == G_GRF_LITERAL ? count : 1;
            for (size_t i = 0; i < stored; ++i) {
                units_.append(stream, at + i * units_.pixels());
            }
            at += count * units_.pixels();
        }
        stream.push_back(0);
        return stream;
    }

  private:
    static constexpr size_t kImpossible = SIZE_MAX / 2;

    /// Behind the last pixel that is drawn.
    static size_t endOf(const std::vector<uint32_t>& values) {
        const auto last = std::find_if(values.rbegin(), values.rend(),
                                       [](uint32_t value) { return value != kClear; });
        return static_cast<size_t>(values.rend() - last);
    }

    void chooseUnits(size_t at, size_t drawn, size_t equal) {
        costs_[at] = kImpossible;
        for (size_t count = 1; count <= drawn; ++count) {
            choose(at, G_GRF_LITERAL, count, count * units_.bytes(), count * units_.pixels());
        }
        for (size_t count = 1; count <= equal; ++count) {
            choose(at, G_GRF_FILL, count, units_.bytes(), count * units_.pixels());
        }
    }

    /// Takes a run if it is the best so far.
    void choose(size_t at, int kind, size_t count, size_t bytes, size_t pixels) {
        const size_t cost = 1 + bytes + kBytesForARun + costs_[at + pixels];
        if (kind == G_GRF_SKIP || cost < costs_[at]) {
            costs_[at] = cost;
            runs_[at] = controlByte(kind, count);
        }
    }

    const std::vector<uint32_t>& values_;
    const Units units_;
    const size_t end_;
    std::vector<size_t> costs_; ///< from a pixel to the end
    std::vector<uint8_t> runs_; ///< control bytes
};

} // namespace

std::vector<uint8_t> encodeRuns(const Image& image) {
    return RunChooser(image).stream();
}

} // namespace grf
