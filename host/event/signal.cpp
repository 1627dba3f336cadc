#include "event/signal.h"

namespace gpi {

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

void Signal::interrupt() {
    {
        const std::lock_guard lock(mutex_);
        interrupted_ = true;
    }
    changed_.notify_one();
}

Wake Signal::wait(const Deadline& deadline) {
    std::unique_lock lock(mutex_);
    const auto over = [this] { return count_ > 0 || interrupted_ || !running_; };
    if (!deadline.waitFor(changed_, lock, over) || !running_) {
        return Wake::Ended;
    }
    if (count_ > 0) {
        --count_;
        return Wake::Signalled;
    }
    interrupted_ = false;
    return Wake::Interrupted;
}

uint64_t Signal::count() const {
    const std::lock_guard lock(mutex_);
    return count_;
}

void Signal::shutDown() {
    {
        const std::lock_guard lock(mutex_);
        running_ = false;
    }
    changed_.notify_all();
}

void RecursiveLock::start() {
    {
        const std::lock_guard lock(mutex_);
        depth_ = 0;
        running_ = true;
    }
    freed_.notify_one();
}

bool RecursiveLock::lock(Wait wait) {
    const auto self = std::this_thread::get_id();
    const auto free = [&] { return depth_ == 0 || owner_ == self; };
    std::unique_lock lock(mutex_);
    // The clock is read only by those that have to wait.
    if (!free() &&
        !(Deadline(wait).waitFor(freed_, lock, [&] { return free() || !running_; }) && free())) {
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

void RecursiveLock::shutDown() {
    {
        const std::lock_guard lock(mutex_);
        running_ = false;
    }
    freed_.notify_all();
}

} // namespace gpi
