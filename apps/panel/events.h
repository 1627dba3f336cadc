// What the main loop is told of.
#pragma once

#include <quarlo/quarlo.h>

#include <cstdint>

namespace panel {

/// Types of events beside those of the library.
enum class EventType : uint16_t {
    Key = 16,       ///< param1: the key; param2: how often it went down, 0 for a release
    Pointer,        ///< param1: a PointerAction; param2: row << 16 | column
    OrdersDone,     ///< param1: what came of them
    ProgramsListed, ///< servers have told what they have
    ProgramFetched, ///< param1: 1 when a server's program is on the panel
};

enum class PointerAction : uint8_t { Move, Press, Release };

/// The receiver of the panel's events: there is but one.
inline constexpr uint32_t kPanel = 1;

/// Posts an event, from any thread.
inline void postEvent(EventType type, uint32_t param1, uint32_t param2) {
    GEventMsg event;
    GECreateEventMessage(&event, static_cast<uint16_t>(type), kPanel, param1, param2);
    GESetEvent(event, 0);
}

} // namespace panel
