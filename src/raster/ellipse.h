// Ellipses, whole or with their quarters spread apart: ovals, rounded rectangles, round joins.
#pragma once

#include "raster/canvas.h"
#include "raster/span_painter.h"

#include <cstdint>

namespace quarlo {

/// Four quarters of an ellipse around the corners of a rectangle of centres, in surface
/// coordinates. Two adjacent centres make an ellipse of even width.
struct Ellipse {
    int32_t a; ///< horizontal semi-axis
    int32_t b; ///< vertical semi-axis
    int32_t leftCentre;
    int32_t rightCentre;
    int32_t topCentre;
    int32_t bottomCentre;

    /// The quarters in the corners of a box.
    Ellipse(const GRect& box, int32_t a, int32_t b)
        : a(a),
          b(b),
          leftCentre(box.left + a),
          rightCentre(box.right - a),
          topCentre(box.top + b),
          bottomCentre(box.bottom - b) {}

    /// The ellipse inscribed in a box.
    static Ellipse inscribed(const GRect& box) {
        return {box, (box.right - box.left) / 2, (box.bottom - box.top) / 2};
    }

    /// Calls action(row) for the one or two rows at a height over, and a depth under the centres.
    template <typename Action>
    void forRowsAt(int32_t y, const Action& action) const {
        action(topCentre - y);
        if (bottomCentre + y != topCentre - y) {
            action(bottomCentre + y);
        }
    }
};

/// Walks a quarter from its top row y = b down to 0 and calls row(x, y) once for each, where x is
/// the widest column. Midpoint ellipse; a decision value of exactly 0 keeps the row, deliberately.
template <typename Word, typename Row>
void walkQuarter(Word a, Word b, const Row& row) {
    const Word aa = a * a;
    const Word bb = b * b;
    Word x = 0;
    Word y = b;
    Word dx = 0;
    Word dy = 2 * aa * b;
    Word d = aa / 4 - aa * b + bb;
    if (dy > 0) {
        do { // where the arc is flatter than 45 degrees
            if (d > 0) {
                row(static_cast<int32_t>(x), static_cast<int32_t>(y));
                --y;
                dy -= 2 * aa;
                d -= dy;
            }
            dx += 2 * bb;
            ++x;
            d += dx + bb;
        } while (dx < dy);
    }
    d += ((3 * (aa - bb)) / 2 - dy - dx) / 2;
    while (y >= 0) { // where it is steeper
        row(static_cast<int32_t>(x), static_cast<int32_t>(y));
        if (d < 0) {
            dx += 2 * bb;
            d += dx;
            ++x;
        }
        dy -= 2 * aa;
        d += aa - dy;
        --y;
    }
}

/// As walkQuarter(), in 32 bits as long as they hold every product, else in 64.
template <typename Row>
void walkRows(const Ellipse& ellipse, const Row& row) {
    constexpr int64_t kMostProduct = INT32_MAX / 8;
    const int64_t a = ellipse.a < 0 ? -ellipse.a : ellipse.a;
    const int64_t b = ellipse.b;
    if (b < 0) { // an inverted box has no rows
        return;
    }
    if (a * a * (b + 2) + b * b * (a + 2) < kMostProduct) {
        walkQuarter<int32_t>(ellipse.a, ellipse.b, row);
    } else {
        walkQuarter<int64_t>(ellipse.a, ellipse.b, row);
    }
}

/// Notes the centres in the handle's record of the ellipse drawn last.
void leaveCentres(GEllipseState& state, const Ellipse& ellipse);

/// Fills an ellipse. Its description stands in the handle while it lasts.
void fillEllipse(const Canvas& canvas, const Ellipse& ellipse, const Paint& paint, int32_t mode);

/// Fills an ellipse with the handle's gradation, whose bands are laid over the whole box.
void fillEllipseGradation(const Canvas& canvas, const Ellipse& ellipse, const GRect& box);

} // namespace quarlo
