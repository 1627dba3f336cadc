// How often a drawing call paints each pixel: what a device counts, and what the kernels leave in
// exclusive-or mode, against layers that are drawn one by one.
#pragma once

#include "raster/drawing.h"
#include "raster/polygon_model.h"
#include "support/random_calls.h"

#include <array>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace quarlo::test {

inline constexpr int16_t kCountedWidth = 64;
inline constexpr int16_t kCountedHeight = 48;
inline constexpr GRect kCountedArea = {0, 0, kCountedWidth - 1, kCountedHeight - 1};

/// What a handle holds of fills, pen and clip rectangle. Every colour is odd, those of gradations
/// too: the lowest bit of a pixel says whether it was painted, by exclusive or whether an odd
/// number of times.
struct PaintStyle {
    int16_t fill;
    uint8_t direction; ///< of a gradation
    bool outlined;
    int16_t penWidth;
    int16_t penHeight;
    uint16_t join;
    int32_t dash;
    GRect clip;

    void applyTo(GDrawHandle* handle) const;
};

std::ostream& operator<<(std::ostream& out, const PaintStyle& style);

/// A figure's points, two more numbers for curves, and its style.
struct Figure {
    std::vector<GPoint> points;
    int16_t first; ///< a radius or an angle
    int16_t second;
    PaintStyle style;

    GLine line(size_t from, size_t to) const {
        return {points[from].x, points[from].y, points[to].x, points[to].y};
    }
    /// Between the first two points.
    GRect box() const;
};

std::ostream& operator<<(std::ostream& out, const Figure& figure);

/// How often each pixel was painted.
class PaintCounts {
  public:
    void add(int32_t x, int32_t y) { ++counts_.at(placeOf(x, y)); }
    /// Adds the pixels of a surface of 8 bits a pixel that are odd.
    void add(const GuardedMemory& surface) {
        for (size_t i = 0; i < counts_.size(); ++i) {
            counts_[i] = static_cast<uint8_t>(counts_[i] + (surface.data()[i] & 1));
        }
    }
    uint8_t at(int32_t x, int32_t y) const { return counts_.at(placeOf(x, y)); }

  private:
    static size_t placeOf(int32_t x, int32_t y) {
        return static_cast<size_t>(y * kCountedWidth + x);
    }

    std::array<uint8_t, size_t{kCountedWidth} * kCountedHeight> counts_{};
};

/// Counts of the layers that a figure consists of. Each is drawn in copy mode on a surface that is
/// wiped before the next, by one handle, whose dash phase and joins go on from layer to layer.
class Layers {
  public:
    explicit Layers(const PaintStyle& style);

    GDrawHandle* handle() { return drawing_; }
    const PaintStyle& style() const { return style_; }
    const PaintCounts& counts() const { return counts_; }

    /// Adds what a call paints, once.
    template <typename Draw>
    void add(const Draw& draw) {
        draw(handle());
        take();
    }

    /// Adds what it paints besides the outline.
    template <typename Draw>
    void addFill(const Draw& draw) {
        const uint32_t pen = handle()->penPixel;
        handle()->penPixel = G_NO_COLOR;
        add(draw);
        handle()->penPixel = pen;
    }

    /// Adds the part of a run that is not clipped.
    void addRun(int32_t left, int32_t right, int32_t y);

    /// Adds a line in surface coordinates, and its join to the one before.
    void addLine(const GLine& line);

    /// Adds a line that is wide and drawn whether its middle is visible or not, and its join.
    void addWideLine(const GLine& line);

    /// Adds the join of the last line to the first of a closed frame, and ends the frame.
    void closeFrame(const GLine& first);

    /// Adds the ellipse of a round join. Half an even pen is more than half its box, so that the
    /// middle rows belong to the upper half and to the lower one.
    void addPenDot(const GPoint& at);

    /// Adds a polygon's runs, two of which may share a pixel.
    void addPolygon(const std::vector<GPoint>& points);
    void addPolygon(const std::vector<ModelEdge>& edges);

  private:
    bool drawsJoins();
    void addJoin(const GWideLineState& before, const GPoint& at, const GPoint start[2]);
    void take();
    void wipe();

    const PaintStyle style_;
    Drawing drawing_;
    PaintCounts counts_;
};

/// A drawing call, and the layers that it has to paint.
struct LayeredShape {
    const char* name;
    int32_t fewestPoints;
    int32_t mostPoints;
    void (*draw)(GDrawHandle* handle, const Figure& figure);
    void (*layers)(Layers& layers, const Figure& figure);

    friend std::ostream& operator<<(std::ostream& out, const LayeredShape& shape) {
        return out << shape.name;
    }
};

/// Draws random figures in all styles, by the kernels in every format and on a device with
/// and without operations for rectangles; fails with the first whose pixels are painted more or
/// less often than those of its layers.
void expectPaintedInLayers(RecordingPlatform& platform, const LayeredShape& shape, int rounds);

} // namespace quarlo::test
