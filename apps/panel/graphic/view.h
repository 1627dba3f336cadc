// How the graphic looks at the work: from where, how near, and at what.
#pragma once

#include "look/box.h"
#include "model/projection.h"

#include <quarlo/quarlo.h>

namespace panel {

using toolpath::Box3;
using toolpath::Point2;
using toolpath::Point3;
using toolpath::Projection;

/// A projection of the work into pixels, counted from the middle of an area.
class View {
  public:
    /// @param size of the area, pixels
    View(Projection projection, GSize size) : projection_(projection), size_(size) {}

    Projection projection() const { return projection_; }
    /// Pixels a millimetre.
    double scale() const { return scale_; }

    /// Shows a box as large as it goes, with a margin around.
    void fit(const Box3& box);
    /// Makes everything larger, or smaller, about the middle.
    void zoom(double factor);
    /// Moves the picture, in pixels.
    void pan(int dx, int dy);

    /// The pixel of a place, as far out as one and a half areas.
    GPoint pixel(const Point3& place) const;
    /// The line between two places. @return false where nothing of it comes near the area
    bool line(const Point3& from, const Point3& to, GLine& line) const;
    /// The place at a height that a pixel shows.
    Point3 place(GPoint pixel, double height) const;

  private:
    Point2 toPixels(const Point3& place) const;
    double reach() const { return 1.5 * std::max(size_.width, size_.height); }

    Projection projection_;
    GSize size_;
    Point2 centre_{}; ///< what is in the middle, projected
    double scale_ = 1.0;
};

/// The closest of 1, 2, 5, 10, 20... millimetres that leaves room between grid lines.
double gridStep(double scale);

} // namespace panel
