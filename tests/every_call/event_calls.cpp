#include "every_call/calls.h"

namespace quarlo::test {

ProgramCalls eventCalls() {
    return {
        with("GEInitEvent", GEInitEvent),
        with("GEQuitEvent", GEQuitEvent),
        with("GECreateEventMessage", GECreateEventMessage, {G_EVENT_TIMER, 3, 8, 0}),
        with("GESetEvent", GESetEvent, {1}),
        with("GEGetEvent", GEGetEvent, {0}),
        with("GEClearTargetEvent", GEClearTargetEvent, {3}),
        with("GEClearTimerEvent", GEClearTimerEvent, {3, 8}),
        with("GEClearWindowsEvent", GEClearWindowsEvent),
        with("GESetForceEventFlag", GESetForceEventFlag, {1}),
        own("GESetTimer",
            [](Panel& panel) {
                const auto target = panel.number<uint32_t>(3);
                const auto id = panel.number<uint16_t>(8);
                panel.setTimer(target, id, panel.number<uint32_t>(10));
            }),
        with("GEKillTimer", GEKillTimer, {3, 8}),
        with("GECheckTimer", GECheckTimer),
        with("GESetSystemTime", GESetSystemTime),
        with("GEGetSystemTime", GEGetSystemTime),
        with("GECompareSystemTime", GECompareSystemTime),
        with("GEDiffTime", GEDiffTime),
        with("GETime", GETime),
        with("GEGmTime", GEGmTime),
    };
}

} // namespace quarlo::test
