// Draws the moves of a path.
#pragma once

#include "drawing/style.h"
#include "drawing/view.h"
#include "model/tool_path.h"

#include <cstddef>

namespace toolpath {

/// Rapids are dashed, cuts solid and coloured by their height, plunges of drilling cycles lines
/// with a cross at the bottom.
class PathPainter {
  public:
    /// All three must outlive the painter.
    PathPainter(GDrawHandle* handle, const Style& style, const ToolPath& path);

    /// Draws those moves from `begin` up to `end` in a view that are of a kind.
    void paint(const View& view, MoveKind kind, size_t begin, size_t end) const;

  private:
    template <class Draw>
    void forEach(MoveKind kind, size_t begin, size_t end, Draw draw) const;
    void paintRapids(const View& view, size_t begin, size_t end) const;
    void paintCuts(const View& view, size_t begin, size_t end) const;
    void paintPoints(const View& view, size_t begin, size_t end) const;
    Ink cutInk(double height) const;

    GDrawHandle* handle_;
    const Style& style_;
    const ToolPath& path_;
    double lowest_ = 0.0; ///< end of a cut
    double highest_ = 0.0;
};

} // namespace toolpath
