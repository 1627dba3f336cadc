#include "machine/order_queue.h"

#include "events.h"

#include <utility>

namespace panel {
namespace {

void carryOutAndTell(const Orders& orders) {
    postEvent(EventType::OrdersDone, static_cast<uint32_t>(carryOut(orders)), 0);
}

} // namespace

OrderQueue::OrderQueue(bool atOnce) : atOnce_(atOnce) {
    if (!atOnce_) {
        worker_ = std::thread([this] { work(); });
    }
}

OrderQueue::~OrderQueue() {
    if (worker_.joinable()) {
        {
            const std::lock_guard lock(mutex_);
            ending_ = true;
        }
        changed_.notify_one();
        worker_.join();
    }
}

void OrderQueue::give(Orders orders) {
    if (atOnce_) {
        carryOutAndTell(orders);
        return;
    }
    {
        const std::lock_guard lock(mutex_);
        waiting_.push(std::move(orders));
    }
    changed_.notify_one();
}

void OrderQueue::work() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return ending_ || !waiting_.empty(); });
        if (ending_) {
            return;
        }
        const Orders orders = std::move(waiting_.front());
        waiting_.pop();
        lock.unlock();
        carryOutAndTell(orders);
        lock.lock();
    }
}

} // namespace panel
