// Frames on their way from the thread that draws to a thread that shows them.
#pragma once

#include "display/back_end.h"
#include "display/damage.h"
#include "display/wakeup.h"

#include <condition_variable>
#include <mutex>
#include <span>
#include <vector>

namespace gpi {

/// Holds the newest whole frame for a thread that takes it when it can. The thread that draws never
/// waits for more than a copy: frames that come too fast become one.
class FrameExchange {
  public:
    /// Holds the whole frame as its first one.
    explicit FrameExchange(const Frame& frame);

    // For the thread that draws.

    /// Areas of the frame have changed, all at once.
    void put(const Frame& frame, std::span<const GRect> areas);
    void setView(const View& view);

    /// Returns when everything put before is visible, or the other thread has ended.
    void settle();

    /// Tells the other thread to end.
    void stop();

    /// Returns when it has.
    void waitForEnd();

    // For the thread that shows.

    struct News {
        const std::vector<uint32_t>& rgb; ///< the whole frame, words 0x00RRGGBB
        std::span<const GRect> areas;     ///< what of it has changed
        const View* view;                 ///< the new one; null when it is the same as before
    };

    /// Readable when there is something to take.
    int descriptor() const { return wakeup_.descriptor(); }

    /// Hands over what has come, if anything has; it is valid during the call. False when it is
    /// time to end.
    template <typename Take>
    bool take(const Take& take) {
        const std::lock_guard lock(mutex_);
        wakeup_.answer();
        if (stopped_) {
            return false;
        }
        if (taken_ != put_) {
            take(News{rgb_, damage_.areas(), viewChanged_ ? &view_ : nullptr});
            damage_.clear();
            viewChanged_ = false;
            taken_ = put_;
        }
        return true;
    }

    /// Something beside the frame has to be shown with it: it will be handed over once more, though
    /// none of it may have changed.
    void again();

    /// What was taken is visible.
    void confirm();

    /// Nothing will be taken any more.
    void end();

  private:
    template <typename Change>
    void change(const Change& change) {
        const std::lock_guard lock(mutex_);
        change();
        ++put_;
        wakeup_.ring();
    }

    Wakeup wakeup_;
    std::mutex mutex_; ///< guards all that follows
    std::condition_variable progress_;
    std::vector<uint32_t> rgb_;
    Damage damage_; ///< what of it was not taken yet
    View view_;
    bool viewChanged_ = true;
    uint64_t put_ = 1; ///< counts changes
    uint64_t taken_ = 0;
    uint64_t shown_ = 0;
    bool stopped_ = false;
    bool ended_ = false;
};

} // namespace gpi
