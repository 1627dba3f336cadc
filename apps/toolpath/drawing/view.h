// One view of the path: a projection fitted into an area of the display.
#pragma once

#include "model/projection.h"

#include <quarlo/quarlo.h>

namespace toolpath {

/// A view draws in coordinates of its own, whose zero is the middle of its area. Its lines reach a
/// little out of the area, and the clip rectangle cuts them there.
class View {
  public:
    /// @param shown what fills the area
    /// @param area of the display, at least one pixel
    View(Projection projection, const Box3& shown, const GRect& area);

    /// Makes the handle draw in this view: local origin and clip rectangle.
    void select(GDrawHandle* handle) const;

    /// The area in the view's coordinates.
    GRect bounds() const;

    /// The pixel of a place that lies near the view.
    GPoint pixel(const Point3& place) const;

    /// The line between two places. @return false where nothing of it comes near the view
    bool line(const Point3& from, const Point3& to, GLine& line) const;

    /// The place at a height that a pixel shows.
    Point3 place(const GPoint& pixel, double height) const;

    Projection projection() const { return projection_; }
    /// Pixels a millimetre.
    double scale() const { return scale_; }

  private:
    Point2 toPixels(const Point3& place) const;

    Projection projection_;
    GRect area_;
    GPoint middle_; ///< of the area, on the display
    Point2 centre_; ///< of what is shown, projected
    double scale_;
    double reach_; ///< half the width of the square beyond which lines are cut
};

/// Draws the line between two places with the handle's pen.
void drawLine(GDrawHandle* handle, const View& view, const Point3& from, const Point3& to);

} // namespace toolpath
