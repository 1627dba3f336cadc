#include "event/ring.h"

#include <algorithm>

namespace quarlo {

bool EventRing::holdsEqual(const GEventMsg& event) const {
    return std::any_of(slots_.begin(), slots_.end(), [&](const Slot& slot) {
        const GEventMsg& other = slot.event;
        return slot.inUse && other.type == event.type && other.target == event.target &&
               (event.type != G_EVENT_TIMER ||
                (other.param1 == event.param1 && other.param2 == event.param2));
    });
}

Posting EventRing::append(const GEventMsg& event, bool unique) {
    if (isFull()) {
        return Posting::Refused;
    }
    if (unique && holdsEqual(event)) {
        // A timer whose last expiry is pending must learn that this one was not posted.
        return event.type == G_EVENT_TIMER ? Posting::Refused : Posting::Pending;
    }
    slots_[write_] = {true, event};
    write_ = next(write_);
    return Posting::Done;
}

bool EventRing::take(GEventMsg& event) {
    while (read_ != write_ && !slots_[read_].inUse) {
        read_ = next(read_);
    }
    Slot& slot = slots_[read_];
    if (!slot.inUse) {
        return false;
    }
    event = slot.event;
    slot.inUse = false;
    read_ = next(read_);
    return true;
}

void EventRing::removeTarget(uint32_t target) {
    uint16_t keep = read_;
    for (uint16_t i = read_; i != write_; i = next(i)) {
        Slot& slot = slots_[i];
        if (!slot.inUse) {
            continue;
        }
        const Slot moved = slot;
        slot.inUse = false;
        if (moved.event.target != target) {
            slots_[keep] = moved;
            keep = next(keep);
        }
    }
    write_ = keep;
}

int32_t EventRing::removeTimer(uint32_t target, uint16_t id) {
    int32_t count = 0;
    for (Slot& slot : slots_) {
        if (slot.inUse && slot.event.type == G_EVENT_TIMER && slot.event.target == target &&
            static_cast<uint16_t>(slot.event.param1) == id) {
            slot.inUse = false;
            ++count;
        }
    }
    return count;
}

void EventRing::removeAll() {
    if (isFull()) {
        for (Slot& slot : slots_) {
            slot.inUse = false;
        }
    }
    for (uint16_t i = read_; i != write_; i = next(i)) {
        slots_[i].inUse = false;
    }
}

} // namespace quarlo
