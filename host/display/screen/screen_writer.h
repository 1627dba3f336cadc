// Frames into the memory of a screen.
#pragma once

#include "display/area.h"
#include "display/damage.h"
#include "display/frame_exchange.h"
#include "display/projection.h"
#include "display/screen/screen_device.h"
#include "display/screen/screen_pointer.h"

#include <vector>

namespace gpi {

/// Writes what has changed, and whole frames only where the screen has more than one buffer: the
/// one that is seen is not written to. Belongs to one thread.
class ScreenWriter {
  public:
    ScreenWriter(ScreenDevice& device, Size frame);

    /// Where input devices point; shown with the next frame that is written.
    ScreenPointer& pointer() { return pointer_; }
    const ScreenPointer& pointer() const { return pointer_; }
    bool pointerHasMoved() const { return !sameArea(pointer_.arrow(), arrow_); }

    /// Takes a frame over into a buffer that is not seen, if there is one.
    void write(const FrameExchange::News& news);

    /// Makes it seen; returns when it is.
    void show();

  private:
    void addMissing(const GRect& area);
    void writeArea(const FrameExchange::News& news, const ScreenBuffer& buffer, const GRect& area);

    ScreenDevice& device_;
    Size frame_;
    PixelPacker packer_;
    Projection projection_;
    ScreenPointer pointer_;
    GRect arrow_;                 ///< what of the screen the pointer covers as it was written last
    std::vector<Damage> missing_; ///< what each buffer has not got yet
    std::vector<uint32_t> row_;
    size_t next_; ///< the buffer to write to
};

} // namespace gpi
