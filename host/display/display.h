// The display: its pages, and the picture that is shown of one of them.
#pragma once

#include "display/back_end.h"
#include "display/damage.h"
#include "display/page.h"

#include <array>
#include <memory>
#include <span>

namespace gpi {

/// Page 0 is the screen at first. The others are device surfaces of the same size and format that
/// can be drawn on out of sight and shown in its place.
inline constexpr int32_t kPageCount = 4;

/// A display of one size and format. Used from the thread that draws, as drawing itself is.
///
/// Drawing on a page shows nothing. A flush takes an area of the shown page over into the frame,
/// and the back end shows the frame: flush by flush, until the program marks the end of a frame for
/// the first time, and from then on by whole frames.
class Display {
  public:
    Display(const Settings& settings, Input& input);
    ~Display();

    /// Opens the back end. False, and nothing is shown, when it cannot be had.
    bool open();

    /// Ends showing. False, however often it is asked, when the back end could not keep the last
    /// picture.
    bool close();

    const Frame& frame() const { return frame_; }

    /// A page by number, made when it is first asked for; null for a number that is no page.
    Page* page(int32_t number);

    /// The page that a surface belongs to; null for any other surface, which is not read.
    Page* pageOf(const GVram* surface);

    /// Shows an area of the shown page; `now` returns when it is visible. False when nothing of it
    /// lies on the display, or nothing is open.
    bool flush(const GRect& area, bool now);

    /// What was flushed is a whole frame. False when nothing is open.
    bool endFrame();

    /// Shows another page. False for a number that is no page.
    bool showPage(int32_t number);

    /// Shows the picture once more, as it is.
    void repaint();

    /// Changes or reads palette entries. A change shows at once. False when the format has no
    /// palette or the entries are not all in it.
    bool setPalette(int32_t first, std::span<const uint32_t> colors);
    bool getPalette(int32_t first, std::span<uint32_t> colors) const;

    /// Sets how large and which part of the frame is shown. A position is moved to where the
    /// display is filled. False for factors outside 1 to 16 and positions outside the frame.
    bool setZoom(int32_t x, int32_t y);
    bool setScroll(int32_t left, int32_t top);

    bool hasWindow() const;

    /// Blocks until the user closes the window; false where there is none.
    bool waitForClose();

  private:
    void change(const GRect& area);
    void showChanges();
    bool holdsEntries(int32_t first, size_t count) const;
    void applyView(View view);

    const Settings settings_;
    Input& input_;
    Frame frame_;
    Palette palette_;
    View view_;
    std::array<std::unique_ptr<Page>, kPageCount> pages_;
    Page* shown_;
    std::unique_ptr<BackEnd> backEnd_;
    Damage changes_; ///< what of the frame the back end was not told of yet
    bool byFrames_ = false;
    bool kept_ = true;
};

} // namespace gpi
