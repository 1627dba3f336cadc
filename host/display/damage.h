// What of a picture has changed.
#pragma once

#include "display/area.h"

#include <array>
#include <cstddef>
#include <span>

namespace gpi {

/// A short list of areas. When more come than it holds, those become one that cost the fewest
/// pixels that did not change.
class Damage {
  public:
    static constexpr size_t kMost = 16;

    void add(const GRect& area);
    bool isEmpty() const { return count_ == 0; }
    std::span<const GRect> areas() const { return {areas_.data(), count_}; }
    void clear() { count_ = 0; }

  private:
    std::array<GRect, kMost> areas_{};
    size_t count_ = 0;
};

} // namespace gpi
