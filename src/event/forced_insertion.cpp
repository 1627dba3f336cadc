// Posting an event past those that wait.
#include "event/ring.h"

namespace quarlo {

namespace {

/// The new order of the ring: as many events as it has places.
class Line {
  public:
    void add(const GEventMsg& event) { events_[count_++] = event; }

    const GEventMsg* begin() const { return events_; }
    const GEventMsg* end() const { return events_ + count_; }

  private:
    GEventMsg events_[G_EVENT_QUEUE_SIZE];
    int32_t count_ = 0;
};

} // namespace

Posting EventRing::force(const GEventMsg& event, bool unique) {
    if (isFull()) {
        return Posting::Refused;
    }
    Line line;
    uint16_t i = read_;
    for (; i != write_; i = next(i)) {
        Slot& slot = slots_[i];
        if (!slot.inUse || slot.event.type != event.type || slot.event.target == event.target) {
            break;
        }
        line.add(slot.event);
        slot.inUse = false;
    }
    // Where the walk met an event of this type, it is for the same target.
    if (i != write_ && unique && slots_[i].inUse && slots_[i].event.type == event.type) {
        return Posting::Pending;
    }
    line.add(event);
    for (; i != write_; i = next(i)) {
        if (slots_[i].inUse && slots_[i].event.target != event.target) {
            line.add(slots_[i].event);
        }
    }

    // Places from here up to the old write index keep what they held.
    write_ = read_;
    for (const GEventMsg& kept : line) {
        slots_[write_] = {true, kept};
        write_ = next(write_);
    }
    return Posting::Done;
}

} // namespace quarlo
