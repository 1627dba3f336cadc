// The picture behind the tool: ground, grid and path, on a surface of its own.
#pragma once

#include "graphic/progress.h"
#include "graphic/view.h"
#include "look/painter.h"

namespace panel {

/// A memory surface that the graphic is drawn on once and then added to, move by move. The display
/// gets copies of what it needs.
class Layer {
  public:
    /// @param size pixels
    Layer(const Painter& painter, GSize size);
    ~Layer();
    Layer(const Layer&) = delete;
    Layer& operator=(const Layer&) = delete;

    GSize size() const { return size_; }

    /// Draws all of it anew.
    void draw(const View& view, const ToolPath& path, const Box3& work, size_t done);

    /// Marks a move, or the begin of it, as done.
    /// @return the area that changed, in pixels of the layer
    GRect drawDone(const View& view, const Point3& from, const Point3& to, MoveKind kind);

    /// Copies an area to the display.
    /// @param area of the display
    /// @param origin where the layer's first pixel is there
    void copyTo(const Painter& painter, const GRect& area, GPoint origin) const;

  private:
    void drawGround(const View& view, const Box3& work);
    void drawGrid(const View& view, const Box3& work);
    void drawAxes(const View& view);
    void drawBox(const View& view, const Box3& work);
    void drawLine(const View& view, const Point3& from, const Point3& to);
    void drawMove(const View& view, const Point3& from, const Point3& to, MoveKind kind, bool done);
    void setPen(Ink ink);

    const Painter& painter_;
    GSize size_;
    GDrawHandle* handle_;
    GVram* surface_;
};

} // namespace panel
