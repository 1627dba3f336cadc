// Numbers that are the same on every machine and in every run.
#pragma once

#include <cstdint>

namespace bench {

/// The 32-bit xorshift generator of Marsaglia (2003), shifts 13, 17 and 5.
class Random {
  public:
    explicit Random(uint32_t seed) : state_(seed != 0 ? seed : 1) {}

    uint32_t next() {
        state_ ^= state_ << 13;
        state_ ^= state_ >> 17;
        state_ ^= state_ << 5;
        return state_;
    }

    /// 0 to bound - 1, evenly enough for places on a surface.
    uint32_t below(uint32_t bound) {
        return static_cast<uint32_t>((uint64_t{next()} * bound) >> 32);
    }

  private:
    uint32_t state_;
};

} // namespace bench
