// The display on a page of a browser.
#pragma once

#include "display/back_end.h"
#include "display/canvas/canvas_input.h"
#include "display/damage.h"
#include "display/projection.h"

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <vector>

namespace gpi {

/// Shows frames on the page's canvas, which has the frame's size; the page scales it.
///
/// A page belongs to one thread of the browser, and programs run in another. The page takes the
/// newest whole frame when it can, and puts only what has changed on its canvas, in one go: it
/// shows nothing half done.
class CanvasBackEnd : public BackEnd {
  public:
    CanvasBackEnd(const Frame& frame, Input& input);
    ~CanvasBackEnd() override;

    void show(const Frame& frame, std::span<const GRect> areas) override;
    void settle() override;
    void setView(const View& view) override;
    bool isWindow() const override { return true; }
    bool waitForClose() override;
    bool finish(const Frame& /*frame*/) override { return true; }

    // For the page's thread.

    /// Puts what has changed on the canvas.
    void put();

    /// A person presses or lets go of a key. False for a key that is none here.
    bool key(const char* code, const char* character, bool down);

    /// @param x,y pixel of the canvas, or beside it
    /// @param buttons that are held: bit 0 left, bit 1 right
    void pointer(int x, int y, int buttons);

    /// A person has turned to something else.
    void leave();

  private:
    /// An area of the canvas, as words of the bytes red, green, blue, opaque.
    struct Patch {
        GRect area;
        std::vector<uint32_t> pixels;
    };

    template <typename Change>
    void change(const Change& change);
    Patch patchOf(const GRect& area) const;

    const Size size_;
    CanvasInput input_;
    std::mutex mutex_;          ///< guards all that follows
    std::vector<uint32_t> rgb_; ///< the whole frame, words 0x00RRGGBB
    Projection projection_;
    Damage missing_;     ///< what of the canvas is to be put
    bool asked_ = false; ///< the page knows that there is something
    std::condition_variable closed_;
};

} // namespace gpi
