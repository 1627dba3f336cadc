// A small memory surface with a handle of its own, to be copied onto a page.
#pragma once

#include "draw.h"

#include <quarlo/surface.h>
#include <quarlo/types.h>

#include <vector>

namespace gallery {

/// The formats of surfaces that programs draw on.
GVram format8();
GVram format555();
GVram format565();
GVram format24();

/// A format in which pixel values are indexes; `colors` must live as long as the format.
GVram paletteFormat(std::vector<uint32_t>& colors);

class Scratch {
  public:
    /// A surface of a format, cleared to zero. Its handle takes 0x00RRGGBB colours, indexes in a
    /// palette format, and starts in the state of resetState().
    Scratch(int width, int height, GVram format);
    ~Scratch();
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    /// Null when memory is short.
    GDrawHandle* handle() const { return handle_; }

    /// Copies the whole surface to another handle's surface, converting pixels.
    void copyTo(GDrawHandle* handle, int left, int top, int mode = 0) const;

  private:
    GDrawHandle* handle_;
};

/// A figure that draws by draw(handle, box) on a surface of its own, of a format and the figure's
/// size, and copies it onto the page.
template <typename Draw>
auto on(const GVram& format, Draw draw) {
    return [format, draw](GDrawHandle* to, const GRect& figure) {
        const Scratch scratch(widthOf(figure), heightOf(figure), format);
        if (scratch.handle() != nullptr) {
            draw(scratch.handle(), box(0, 0, widthOf(figure), heightOf(figure)));
            scratch.copyTo(to, figure.left, figure.top);
        }
    };
}

} // namespace gallery
