// What the event queue waits on, and what it locks.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <thread>

namespace gpi {

/// How long to wait, as services say it: milliseconds of a steady clock, 0 not at all, -1 without
/// limit.
using Wait = int32_t;

/// A counting semaphore: as many waits succeed as there were signals. Any thread may use it.
class Signal {
  public:
    /// Forgets all signals and lets waits go on again.
    void start();

    void raise();

    /// False when nothing was signalled in time, or the signal is shut down.
    bool wait(Wait wait);

    /// Ends all waits, present and future, until the next start.
    void shutDown();

  private:
    std::mutex mutex_;
    std::condition_variable changed_;
    uint64_t count_ = 0;
    bool running_ = true;
};

/// A lock that one thread may take several times. Unlike the library's own it can be waited for
/// with a limit, and one that a thread does not hold cannot be undone by it.
class RecursiveLock {
  public:
    /// False when others hold it for too long.
    bool lock(Wait wait);

    /// False for a thread that does not hold it.
    bool unlock();

  private:
    std::mutex mutex_;
    std::condition_variable freed_;
    std::thread::id owner_;
    int32_t depth_ = 0;
};

} // namespace gpi
