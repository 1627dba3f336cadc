#include "font/cell.h"

#include <algorithm>

namespace gpi {

void Cell::embolden() {
    for (int y = 0; y < height_; ++y) {
        for (int x = width_ - 1; x > 0; --x) {
            at(x, y) = std::max(at(x, y), at(x - 1, y));
        }
    }
}

std::vector<uint8_t> Cell::packed(int bits) const {
    const auto stride = static_cast<size_t>((width_ * bits + 7) / 8);
    const int most = (1 << bits) - 1;
    std::vector<uint8_t> rows(stride * static_cast<size_t>(height_));
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            const int level = (at(x, y) * most + 127) / 255;
            const int bit = x * bits;
            uint8_t& byte = rows[static_cast<size_t>(y) * stride + static_cast<size_t>(bit / 8)];
            byte = static_cast<uint8_t>(byte | level << (8 - bits - bit % 8));
        }
    }
    return rows;
}

} // namespace gpi
