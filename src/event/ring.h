// The ring of pending events, without lock or signal.
#pragma once

#include <quarlo/event.h>

#include <array>
#include <cstdint>

namespace quarlo {

/// What became of an event.
enum class Posting : uint8_t {
    Done,
    Pending, ///< an equal event stands in the queue already
    Refused  ///< lost: no room, or an equal timer event stands in the queue already
};

/// Events between the read and the write index, among them places whose event was removed. The
/// place at the write index is in use when the ring is full, or when a forced insertion left an
/// old event behind there.
class EventRing {
  public:
    void clear() { *this = {}; }

    /// Adds an event at the end; a unique one only if there is no equal event in any place.
    Posting append(const GEventMsg& event, bool unique);

    /// Adds an event at the front, behind the events of its own type for other targets that stand
    /// there, and drops all others for its target. A unique one that would come to stand before an
    /// event of its type and target is not added, and those that it would have stood behind are
    /// lost.
    Posting force(const GEventMsg& event, bool unique);

    /// Takes the next event.
    bool take(GEventMsg& event);

    /// Drops every event for a target, except from a full ring, which looks like an empty one here.
    void removeTarget(uint32_t target);

    /// Drops every event of a timer. @return how many there were
    int32_t removeTimer(uint32_t target, uint16_t id);

    /// Drops every event; the indices stay.
    void removeAll();

  private:
    struct Slot {
        bool inUse;
        GEventMsg event;
    };

    bool isFull() const { return slots_[write_].inUse; }
    bool holdsEqual(const GEventMsg& event) const;

    static uint16_t next(uint16_t index) {
        return index + 1 == G_EVENT_QUEUE_SIZE ? uint16_t{0} : static_cast<uint16_t>(index + 1);
    }

    std::array<Slot, G_EVENT_QUEUE_SIZE> slots_;
    uint16_t read_;
    uint16_t write_;
};

} // namespace quarlo
