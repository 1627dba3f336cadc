#include "machine/worker.h"

#include <utility>

namespace panel {

Worker::Worker(bool atOnce) : atOnce_(atOnce) {
    if (!atOnce_) {
        thread_ = std::thread([this] { work(); });
    }
}

Worker::~Worker() {
    if (thread_.joinable()) {
        {
            const std::lock_guard lock(mutex_);
            ending_ = true;
        }
        changed_.notify_one();
        thread_.join();
    }
}

void Worker::give(Task task) {
    if (atOnce_) {
        task();
        return;
    }
    {
        const std::lock_guard lock(mutex_);
        waiting_.push(std::move(task));
    }
    changed_.notify_one();
}

void Worker::work() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return ending_ || !waiting_.empty(); });
        if (ending_) {
            return;
        }
        const Task task = std::move(waiting_.front());
        waiting_.pop();
        lock.unlock();
        task();
        lock.lock();
    }
}

} // namespace panel
