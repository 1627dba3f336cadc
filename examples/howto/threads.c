/* A thread that works and tells the one that draws. */
#include <quarlo/quarlo.h>

enum { PANEL = 1, MEASURED = 2 };

/* Called in any thread. The event is copied; nothing else is shared. */
int tellMeasured(uint32_t value) {
    GEventMsg event;
    GECreateEventMessage(&event, MEASURED, PANEL, value, 0);
    return GESetEvent(event, 0);
}

/* In the thread that draws: sleeps until somebody tells something. */
int waitForMeasured(uint32_t* value) {
    GEventMsg event;
    while (GEGetEvent(&event, -1)) {
        if (event.type == MEASURED) {
            *value = event.param1;
            return 1;
        }
        if (event.type == G_EVENT_QUIT) {
            return 0;
        }
    }
    return 0;
}
