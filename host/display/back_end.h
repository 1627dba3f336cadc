// Where a display's picture goes.
#pragma once

#include "config/settings.h"
#include "display/frame.h"
#include "input/input.h"

#include <memory>
#include <span>

namespace gpi {

/// Which part of a frame is shown, and how much larger than its pixels.
struct View {
    int zoomX = 1;
    int zoomY = 1;
    int left = 0; ///< frame column at the left edge
    int top = 0;  ///< frame row at the upper edge

    int visibleWidth(const Frame& frame) const { return std::max(1, frame.width / zoomX); }
    int visibleHeight(const Frame& frame) const { return std::max(1, frame.height / zoomY); }
};

/// A window, a file, a remote viewer: something that shows a frame. Made by openBackEnd(), which
/// hands it the frame's first picture; destroyed when the display stops.
///
/// All calls come from the thread that draws. A back end that works in a thread of its own copies
/// what it needs out of the frame before a call returns.
class BackEnd {
  public:
    BackEnd() = default;
    virtual ~BackEnd() = default;
    BackEnd(const BackEnd&) = delete;
    BackEnd& operator=(const BackEnd&) = delete;

    /// Shows areas of the frame that have changed, at once or soon, and all of them together.
    virtual void show(const Frame& frame, std::span<const GRect> areas) = 0;

    /// Returns when everything shown before is visible.
    virtual void settle() {}

    virtual void setView(const View& view) = 0;

    /// Whether people see the picture.
    virtual bool isWindow() const { return false; }

    /// Blocks until the user closes what shows the picture, or for ever where nobody can. False
    /// where nobody sees it.
    virtual bool waitForClose() { return false; }

    /// The frame is final. False when the picture could not be kept.
    virtual bool finish(const Frame& frame) = 0;
};

/// Opens what the settings ask for; what a person does there goes to `input`. Null, and one line is
/// reported, when that cannot be had.
std::unique_ptr<BackEnd> openBackEnd(const Settings& settings, const Frame& frame, Input& input);

} // namespace gpi
