#include "message/message_queue.h"

#include <gpi/keys.h>

#include <algorithm>
#include <utility>

namespace gpi {
namespace {

bool isRelease(const GMessage& message) {
    return message.number == G_MESSAGE_KEY_UP || message.number == G_MESSAGE_LEFT_UP ||
           message.number == G_MESSAGE_RIGHT_UP;
}

bool isRepeat(const GMessage& message) {
    return message.number == G_MESSAGE_KEY_DOWN && (message.param2 & GPI_KEY_WAS_DOWN) != 0;
}

/// A later message that says all that an earlier one does.
bool replaces(const GMessage& later, const GMessage& earlier) {
    return later.number == G_MESSAGE_POINTER_MOVE && earlier.number == G_MESSAGE_POINTER_MOVE &&
           later.window == earlier.window;
}

/// Counts a repeat in an earlier message of the same key. False for any other message.
bool countRepeat(GMessage& earlier, const GMessage& later) {
    if (!isRepeat(later) || earlier.number != later.number || earlier.param1 != later.param1 ||
        earlier.window != later.window) {
        return false;
    }
    const GWord count = (earlier.param2 & GPI_KEY_COUNT) + (later.param2 & GPI_KEY_COUNT);
    earlier.param2 =
        (earlier.param2 & ~GWord{GPI_KEY_COUNT}) | std::min<GWord>(count, GPI_KEY_COUNT);
    return true;
}

} // namespace

bool MessageQueue::post(const GMessage& message) {
    {
        const std::lock_guard lock(mutex_);
        if (!add(message)) {
            return false;
        }
    }
    posted_.notify_one();
    events_.interrupt();
    return true;
}

bool MessageQueue::add(const GMessage& message) {
    if (message.number == G_MESSAGE_QUIT) {
        quit_ = message;
        return true;
    }
    if (message.number == G_MESSAGE_PAINT) {
        paint_ = message;
        return true;
    }
    if (!messages_.empty()) {
        GMessage& last = messages_.back();
        if (replaces(message, last)) {
            last = message;
            return true;
        }
        if (countRepeat(last, message)) {
            return true;
        }
    }
    if (messages_.size() >= (isRelease(message) ? kMost : kMost - kForReleases)) {
        return false;
    }
    messages_.push_back(message);
    return true;
}

std::optional<GMessage> MessageQueue::take(Wait wait) {
    std::unique_lock lock(mutex_);
    if (!Deadline(wait).waitFor(posted_, lock, [this] { return !isEmpty(); })) {
        return std::nullopt;
    }
    if (!messages_.empty()) {
        const GMessage message = messages_.front();
        messages_.pop_front();
        return message;
    }
    return std::exchange(paint_ ? paint_ : quit_, std::nullopt);
}

void MessageQueue::clear() {
    const std::lock_guard lock(mutex_);
    messages_.clear();
    paint_.reset();
    quit_.reset();
}

} // namespace gpi
