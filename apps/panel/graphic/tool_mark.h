// Where the tool is: a disc in a ring from above, the tool itself from aside.
#pragma once

#include "graphic/view.h"
#include "look/painter.h"

namespace panel {

class ToolMark {
  public:
    /// @param tip of the tool, pixels of the display
    ToolMark(Projection projection, GPoint tip)
        : fromAbove_(projection == Projection::Plan), tip_(tip) {}

    /// All that it covers.
    GRect area() const;
    void draw(const Painter& painter) const;

  private:
    void drawRing(const Painter& painter) const;
    void drawTool(const Painter& painter) const;

    bool fromAbove_;
    GPoint tip_;
};

} // namespace panel
