// What the event queue waits on, and what it locks.
#pragma once

#include "event/deadline.h"

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <thread>

namespace gpi {

/// How a wait for a signal ended.
enum class Wake {
    Signalled,
    Interrupted, ///< without a signal
    Ended        ///< nothing came in time, or the signal is shut down
};

/// A counting semaphore: as many waits succeed as there were signals. Any thread may use it.
class Signal {
  public:
    /// Forgets all signals and lets waits go on again.
    void start();

    void raise();

    /// Ends one wait, the present or the next one, that has no signal.
    void interrupt();

    /// Takes back an interruption that no wait has noticed. False when there is none.
    bool takeInterruption() {
        return interrupted_.load(std::memory_order_relaxed) && interrupted_.exchange(false);
    }

    Wake wait(const Deadline& deadline);

    /// Signals that nobody has waited for yet.
    uint64_t count() const;

    /// Ends all waits, present and future, until the next start.
    void shutDown();

  private:
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    uint64_t count_ = 0;
    bool running_ = true;
    std::atomic<bool> interrupted_ = false; ///< set under the lock only
};

/// A lock that one thread may take several times. Unlike the library's own it can be waited for
/// with a limit, and one that a thread does not hold cannot be undone by it.
class RecursiveLock {
  public:
    /// Frees it, whoever holds it, and lets threads wait for it again.
    void start();

    /// False when others hold it for too long.
    bool lock(Wait wait);

    /// False for a thread that does not hold it.
    bool unlock();

    /// Ends all waits, present and future, until the next start. Whoever holds it goes on doing so.
    void shutDown();

  private:
    std::mutex mutex_;
    std::condition_variable freed_;
    std::thread::id owner_;
    int32_t depth_ = 0;
    bool running_ = true;
};

} // namespace gpi
