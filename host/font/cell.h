// Glyph cells: the bitmaps that programs are given.
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace gpi {

/// The sizes of a font's cells, pixels.
struct CellSize {
    int narrow = 8; ///< width of a letter's cell
    int wide = 16;  ///< width of an ideograph's
    int height = 16;

    auto operator<=>(const CellSize&) const = default;
};

/// A glyph's cell with the coverage of each pixel, 0 to 255.
class Cell {
  public:
    Cell(int width, int height) : width_(width), height_(height), coverage_(area(width, height)) {}

    int width() const { return width_; }
    int height() const { return height_; }

    bool contains(int x, int y) const { return x >= 0 && x < width_ && y >= 0 && y < height_; }
    uint8_t& at(int x, int y) { return coverage_[offset(x, y)]; }
    uint8_t at(int x, int y) const { return coverage_[offset(x, y)]; }

    /// Widens every stroke by a pixel to the right, inside the cell.
    void embolden();

    /// Rows of whole bytes, the left pixel in the highest bits.
    ///
    /// @param bits a pixel: 1, 2 or 4; levels are rounded to the nearest that they can say
    std::vector<uint8_t> packed(int bits) const;

  private:
    static size_t area(int width, int height) {
        return static_cast<size_t>(width) * static_cast<size_t>(height);
    }
    size_t offset(int x, int y) const { return area(width_, y) + static_cast<size_t>(x); }

    int width_;
    int height_;
    std::vector<uint8_t> coverage_;
};

/// A level of glyph pixels of 1, 2 or 4 bits in fifteenths of full coverage.
constexpr int fifteenths(int level, int bits) {
    return level * 15 / ((1 << bits) - 1);
}

} // namespace gpi
