// Looking at the event queue through its public calls.
#pragma once

#include "support/recording_platform.h"

#include <quarlo/event.h>

#include <ostream>
#include <vector>

inline bool operator==(const GEventMsg& a, const GEventMsg& b) {
    return a.type == b.type && a.target == b.target && a.param1 == b.param1 &&
           a.param2 == b.param2 && a.reserved[0] == b.reserved[0] && a.reserved[1] == b.reserved[1];
}

inline std::ostream& operator<<(std::ostream& out, const GEventMsg& event) {
    return out << "{type " << event.type << ", target " << event.target << ", " << event.param1
               << ", " << event.param2 << '}';
}

namespace quarlo::test {

inline GEventMsg event(uint16_t type, uint32_t target, uint32_t param1 = 0, uint32_t param2 = 0) {
    return {type, target, param1, param2, {0, 0}};
}

/// Takes every event there is.
inline std::vector<GEventMsg> takeAll() {
    std::vector<GEventMsg> events;
    GEventMsg next{};
    while (GEGetEvent(&next, 0) == 1) {
        events.push_back(next);
    }
    return events;
}

/// A platform whose event services work, and an empty queue in its normal state.
class EventPlatform : public RecordingPlatform {
  public:
    EventPlatform() {
        GESetForceEventFlag(0);
        GEInitEvent();
        forget();
    }

    ~EventPlatform() {
        GESetForceEventFlag(0);
        GEQuitEvent();
    }

    /// Posts and takes events until both indices of the queue stand there.
    void moveIndices(int index) {
        for (int i = 0; i < index; ++i) {
            GESetEvent(event(99, 99), 0);
            takeAll();
        }
        forget();
    }
};

} // namespace quarlo::test
