// A second, plain implementation of the drawing calls: every step one after the other, pixel by
// pixel, sharing no code with the library's own. Slow and obvious.
#pragma once

#include <quarlo/handle.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quarlo::test {

/// A draw handle on a surface of its own. The setters of the library may be used on `handle`; the
/// drawing calls are the functions here.
class Model {
  public:
    /// Starts from the state of a handle and a copy of its surface. A device surface is one whose
    /// platform has every operation it needs.
    explicit Model(const GDrawHandle& like);
    Model(const Model&) = delete;
    Model& operator=(const Model&) = delete;

    int32_t setPixel(int16_t x, int16_t y);
    uint32_t getPixel(int16_t x, int16_t y) const;
    void moveTo(int16_t x, int16_t y) { handle.penPos = {x, y}; }
    void lineTo(int16_t x, int16_t y);
    int32_t drawLine(GLine& line);
    void drawRect(const GRect& rect);

    /// The colour that an operation of a format was given last, and the byte behind the pixel it
    /// wrote last; -1 before the first.
    struct Cell {
        uint32_t color = 0;
        std::ptrdiff_t cursor = -1;
    };

    GDrawHandle handle;
    GVram surface;
    std::vector<uint8_t> bytes;
    Cell cells[3]; ///< by bytes per pixel - 1

  private:
    struct Operation {
        int bytesPerPixel; ///< 0: there is no operation
        int mode;
    };

    Operation operation() const;
    GRect limit() const;
    bool isReachable(const GPoint& point) const;
    GPoint mapped(GPoint point) const;
    std::ptrdiff_t offsetOf(int x, int y) const;

    void plot(int x, int y, uint32_t pixel);
    bool clip(GLine& line) const;
    int32_t rasterLine(const GLine& line);
    void thinLine(GLine line);
    bool dashedLine(const GLine& line);
    bool dash(uint64_t& steps) const;
    void fill(const GRect& visible, const GRect& whole);
    void fillGradation(const GRect& visible, const GRect& whole);
};

} // namespace quarlo::test
