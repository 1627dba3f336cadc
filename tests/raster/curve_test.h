// What the tests of curved shapes share.
#pragma once

#include "raster/curve_model.h"
#include "raster/drawing.h"
#include "support/random_calls.h"

#include <functional>
#include <string>

namespace quarlo::test {

inline constexpr int16_t kCurveWidth = 64;
inline constexpr int16_t kCurveHeight = 48;
inline constexpr GRect kCurveArea = {0, 0, kCurveWidth - 1, kCurveHeight - 1};

/// The pixels of a surface that are not 0.
inline Pixels pixelsOf(const GVram& surface) {
    Pixels pixels;
    for (int32_t y = 0; y < surface.height; ++y) {
        for (int32_t x = 0; x < surface.width; ++x) {
            if (pixelAt(surface, x, y) != 0) {
                pixels.insert({y, x});
            }
        }
    }
    return pixels;
}

/// What a drawing call paints on an empty surface by exclusive or: a pixel that is painted twice is
/// missing.
inline Pixels painted(const std::function<void(GDrawHandle*)>& draw, int16_t pen = 1,
                      int16_t width = kCurveWidth, int16_t height = kCurveHeight) {
    Drawing drawing(width, height);
    GDSetDrawingMode(drawing, G_MODE_XOR);
    GDSetPenSize(drawing, pen, pen);
    draw(drawing);
    return pixelsOf(*drawing.surface());
}

/// What it fills.
inline Pixels filledBy(const std::function<void(GDrawHandle*)>& draw) {
    return painted([&draw](GDrawHandle* handle) {
        GDSetPenColor(handle, G_NO_COLOR);
        GDSetFillAttribute(handle, G_FILL_FORE, 1, 1);
        draw(handle);
    });
}

/// The first pixel that only one of two sets has, in words; an empty text when there is none.
inline std::string difference(const Pixels& actual, const Pixels& expected) {
    const auto first = [](const Pixels& from, const Pixels& without) -> std::string {
        for (const auto& pixel : from) {
            if (!without.contains(pixel)) {
                return "row " + std::to_string(pixel.first) + " column " +
                       std::to_string(pixel.second);
            }
        }
        return {};
    };
    const std::string extra = first(actual, expected);
    const std::string missing = first(expected, actual);
    return (extra.empty() ? "" : "not expected: " + extra + "; ") +
           (missing.empty() ? "" : "missing: " + missing);
}

/// A random box that mostly fits the surface, also of one pixel, upright or flat.
struct CurveBox {
    GRect box;
    int32_t first; ///< a radius or an angle
    int32_t second;
    int16_t pen;

    friend std::ostream& operator<<(std::ostream& out, const CurveBox& curve) {
        const GRect& box = curve.box;
        return out << "(" << box.left << ", " << box.top << ", " << box.right << ", " << box.bottom
                   << ") with " << curve.first << ", " << curve.second << " and pen " << curve.pen;
    }
};

inline CurveBox randomCurve(Random& random) {
    const int32_t left = random.between(-10, 50);
    const int32_t top = random.between(-10, 40);
    const int32_t width = random.oneIn(6) ? random.between(0, 3) : random.between(0, 60);
    const int32_t height = random.oneIn(6) ? random.between(0, 3) : random.between(0, 50);
    const auto low = [](int32_t value) { return static_cast<int16_t>(value); };
    return {{low(left), low(top), low(left + width), low(top + height)},
            random.between(-3, 3700),
            random.between(-3, 3700),
            low(random.between(2, 12))};
}

/// Checks random boxes one by one. `check(curve)` says what is wrong; an empty text if nothing is.
template <typename Check>
void forRandomCurves(int rounds, Check check) {
    forRandomCalls(rounds, 1, randomCurve, [&](const auto& curves) -> std::string {
        return curves.empty() ? "" : check(curves[0]);
    });
}

} // namespace quarlo::test
