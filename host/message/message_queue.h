// Messages for the program's main loop.
#pragma once

#include <quarlo/event.h>

#include <deque>
#include <mutex>
#include <optional>

namespace gpi {

/// Messages in the order in which they came. Any thread may use it. A program that never asks for
/// messages loses the oldest; a quit message waits behind all others and is not lost.
class MessageQueue {
  public:
    static constexpr size_t kMost = 256;

    void post(const GMessage& message);
    std::optional<GMessage> take();
    void clear();

  private:
    std::mutex mutex_;
    std::deque<GMessage> messages_;
    std::optional<GMessage> quit_;
};

} // namespace gpi
