// Waiting with a limit.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>

namespace gpi {

/// How long to wait, as services say it: milliseconds of a steady clock, 0 not at all, below 0
/// without limit.
using Wait = int32_t;

/// When such a wait, begun now, is over.
class Deadline {
  public:
    explicit Deadline(Wait wait) : wait_(wait) {
        if (wait > 0) {
            end_ = std::chrono::steady_clock::now() + std::chrono::milliseconds(wait);
        }
    }

    /// Waits for a condition that changes under a lock. False when it does not come true in time.
    template <typename Condition>
    bool waitFor(std::condition_variable& changed, std::unique_lock<std::mutex>& lock,
                 const Condition& condition) const {
        if (wait_ < 0) {
            changed.wait(lock, condition);
            return true;
        }
        return wait_ == 0 ? condition() : changed.wait_until(lock, end_, condition);
    }

  private:
    Wait wait_;
    std::chrono::steady_clock::time_point end_;
};

} // namespace gpi
