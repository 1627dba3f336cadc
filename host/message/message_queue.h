// Messages for the program's main loop.
#pragma once

#include "event/signal.h"

#include <quarlo/event.h>

#include <deque>
#include <optional>

namespace gpi {

/// Messages in the order in which they came; any thread may use it.
///
/// It does not grow without end while a program is busy: moves of the pointer without anything
/// between them become one, and so do repeats of a key. When it is full it refuses what comes, and
/// it keeps places for releases, so that no key or button seems to be held for ever. One paint and
/// one quit message wait behind all others and are never refused.
class MessageQueue {
  public:
    static constexpr size_t kMost = 256;
    static constexpr size_t kForReleases = 32; ///< of these

    /// Each message interrupts a wait for events.
    explicit MessageQueue(Signal& events) : events_(events) {}

    /// False for a message that there is no room for.
    bool post(const GMessage& message);

    /// The next message; nothing when none comes in time.
    std::optional<GMessage> take(Wait wait = 0);

    void clear();

  private:
    bool add(const GMessage& message);
    bool isEmpty() const { return messages_.empty() && !paint_ && !quit_; }

    Signal& events_;
    std::mutex mutex_; ///< guards all that follows
    std::condition_variable posted_;
    std::deque<GMessage> messages_;
    std::optional<GMessage> paint_;
    std::optional<GMessage> quit_;
};

} // namespace gpi
