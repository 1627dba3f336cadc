// The memory that every contender draws on: one destination and one source, the same bytes of the
// same pages for all, so that no contender has the better placed buffer.
#pragma once

#include "format.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

namespace bench {

/// Every surface is this large.
inline constexpr int kWidth = 640;
inline constexpr int kHeight = 480;

class Canvas {
  public:
    Canvas();

    uint8_t* pixels() { return pixels_.get(); }
    uint8_t* source() { return source_.get(); }

    /// Fills both with noise, the same each time.
    void reset();

    /// Sets every byte of the destination, so that changed pixels can be counted.
    void clear(uint8_t byte);

    /// The destination's bytes in a format.
    std::span<const uint8_t> bytes(Format format) const;

  private:
    struct Free {
        void operator()(uint8_t* block) const;
    };
    using Block = std::unique_ptr<uint8_t[], Free>;
    static Block allocate();

    Block pixels_;
    Block source_;
};

/// Bytes from one row to the next; rows are not padded.
int bytesPerLine(Format format);

} // namespace bench
