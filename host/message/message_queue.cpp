#include "message/message_queue.h"

#include <utility>

namespace gpi {

void MessageQueue::post(const GMessage& message) {
    const std::lock_guard lock(mutex_);
    if (message.number == G_MESSAGE_QUIT) {
        quit_ = message;
        return;
    }
    if (messages_.size() == kMost) {
        messages_.pop_front();
    }
    messages_.push_back(message);
}

std::optional<GMessage> MessageQueue::take() {
    const std::lock_guard lock(mutex_);
    if (messages_.empty()) {
        return std::exchange(quit_, std::nullopt);
    }
    const GMessage message = messages_.front();
    messages_.pop_front();
    return message;
}

void MessageQueue::clear() {
    const std::lock_guard lock(mutex_);
    messages_.clear();
    quit_.reset();
}

} // namespace gpi
