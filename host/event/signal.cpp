#include "event/signal.h"

#include <chrono>

namespace gpi {
namespace {

/// Waits for a condition. False when it did not come true in time.
template <typename Condition>
bool waitFor(std::condition_variable& changed, std::unique_lock<std::mutex>& lock, Wait wait,
             const Condition& condition) {
    if (wait < 0) {
        changed.wait(lock, condition);
        return true;
    }
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(wait);
    return changed.wait_until(lock, end, condition);
}

} // namespace

void Signal::start() {
    const std::lock_guard lock(mutex_);
    count_ = 0;
    running_ = true;
}

void Signal::raise() {
    {
        const std::lock_guard lock(mutex_);
        ++count_;
    }
    changed_.notify_one();
}

bool Signal::wait(Wait wait) {
    std::unique_lock lock(mutex_);
    if (!waitFor(changed_, lock, wait, [this] { return count_ > 0 || !running_; }) || !running_) {
        return false;
    }
    --count_;
    return true;
}

void Signal::shutDown() {
    {
        const std::lock_guard lock(mutex_);
        running_ = false;
    }
    changed_.notify_all();
}

bool RecursiveLock::lock(Wait wait) {
    const auto self = std::this_thread::get_id();
    std::unique_lock lock(mutex_);
    if (!waitFor(freed_, lock, wait, [&] { return depth_ == 0 || owner_ == self; })) {
        return false;
    }
    owner_ = self;
    ++depth_;
    return true;
}

bool RecursiveLock::unlock() {
    {
        const std::lock_guard lock(mutex_);
        if (depth_ == 0 || owner_ != std::this_thread::get_id()) {
            return false;
        }
        --depth_;
    }
    freed_.notify_one();
    return true;
}

} // namespace gpi
