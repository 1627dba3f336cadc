// The pointer on a screen where no window system draws one.
#pragma once

#include "display/projection.h"

namespace gpi {

/// Where mice and fingers point. A mouse has an arrow, from its first move on; a finger needs none.
class ScreenPointer {
  public:
    ScreenPointer(const Projection& projection, Size frame, Size screen);

    /// The frame is seen somewhere else.
    void setProjection(const Projection& projection);

    /// A mouse moves it by pixels of the screen. It stays on the picture.
    void moveBy(int columns, int rows);

    /// A device that knows places puts it somewhere on the screen.
    /// @param across,down 0 to 1: how far it is from the left, and from the top
    void moveTo(double across, double down, bool arrow);

    /// The pixel of the frame that it is on.
    Projection::Pixel pixel() const { return projection_.pixelAt(column_, row_); }

    /// The part of the screen that the arrow covers; empty without one.
    GRect arrow() const;

    /// Draws the arrow over a row of the screen.
    /// @param row words 0x00RRGGBB from column `left` on
    void draw(int y, int left, int width, uint32_t* row) const;

  private:
    Projection projection_;
    Size frame_;
    Size screen_;
    int scale_; ///< pixels of the screen for one of the arrow
    int column_;
    int row_;
    bool visible_ = false;
};

} // namespace gpi
