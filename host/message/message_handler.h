// The program's function for messages.
#pragma once

#include "message/message_queue.h"

#include <gpi/host.h>

#include <condition_variable>
#include <mutex>
#include <thread>

namespace gpi {

/// Calls a function of the program with one message after the other, never two at a time.
class MessageHandler {
  public:
    /// Sets the function; null for none. Returns when the one before runs no longer, unless it is
    /// that one which asks.
    void set(GPIHostMessageHandler function, void* context);

    /// Hands the next message over. False when there is none, nobody to take it, or the function
    /// runs already.
    bool offer(MessageQueue& messages);

  private:
    bool isIdle() const { return runner_ == std::thread::id(); }

    std::mutex mutex_; ///< guards all that follows
    std::condition_variable ended_;
    GPIHostMessageHandler function_ = nullptr;
    void* context_ = nullptr;
    std::thread::id runner_; ///< the thread in which the function runs
};

} // namespace gpi
