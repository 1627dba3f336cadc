/* Takes keys and pointer: four keys on the panel, F1 to F4, and arrows for the feed. */
#include "picture.h"

#include <gpi/host.h>
#include <quarlo/quarlo.h>

enum { PANEL = 1, FOREVER = -1 };      /* the one receiver of events; a wait */
enum { KEY_DOWN = 2, PRESS, RELEASE }; /* types of events beside the library's */

typedef struct Panel {
    GDrawHandle* handle;
    GDirtyRectList changed; /* what has to be drawn anew */
    Picture picture;
} Panel;

static void change(Panel* panel, GRect area) {
    GDRAddDirtyRect(&panel->changed, &area, 0);
}

static void redrawArea(Panel* panel, const GRect* area) {
    GDPushClipRect(panel->handle, area);
    drawPicture(panel->handle, &panel->picture);
    GDPopClipRect(panel->handle);
    GDFlushScreen(panel->handle, area->left, area->top, (int16_t)(area->right - area->left + 1),
                  (int16_t)(area->bottom - area->top + 1));
}

/* Draws what has changed and shows it as one picture. */
static void redraw(Panel* panel) {
    GDRRefreshDirtyRect(&panel->changed);
    const int32_t count = GDRGetDirtyRectNum(&panel->changed);
    for (int32_t i = 0; i < count; i++) {
        redrawArea(panel, &GDRGetDirtyRect(&panel->changed)[i]);
    }
    GDRClearDirtyRect(&panel->changed);
    if (count > 0) {
        GPIHostEndFrame();
    }
}

static void setAxis(Panel* panel, int axis, double value) {
    if (panel->picture.axes[axis] != value) {
        panel->picture.axes[axis] = value;
        change(panel, readoutArea(axis));
    }
}

static void setPercent(Panel* panel, int percent) {
    if (panel->picture.percent != percent && percent >= 0 && percent <= 200) {
        panel->picture.percent = percent;
        change(panel, gaugeArea);
    }
}

static void setState(Panel* panel, int state) {
    panel->picture.state = state;
    change(panel, barArea);
}

static void setPressed(Panel* panel, int key) {
    if (panel->picture.pressed != NO_KEY) {
        change(panel, keyArea(panel->picture.pressed));
    }
    panel->picture.pressed = key;
    if (key != NO_KEY) {
        change(panel, keyArea(key));
    }
}

/* The key of the panel at a position, row << 16 | column, or NO_KEY. */
static int keyAt(uint32_t where) {
    const GPoint point = {(int16_t)(where & 0xFFFF), (int16_t)(where >> 16)};
    for (int key = 0; key < KEYS; key++) {
        const GRect area = keyArea(key);
        if (GRPointInRect(&point, &area)) {
            return key;
        }
    }
    return NO_KEY;
}

static void obey(Panel* panel, int key) {
    switch (key) {
    case START:
        setState(panel, RUNNING);
        break;
    case HOLD:
        setState(panel, HELD);
        break;
    case STEP:
        setAxis(panel, 0, panel->picture.axes[0] + 0.5);
        break;
    case RESET:
        setAxis(panel, 0, 0);
        setState(panel, READY);
        break;
    default:
        break;
    }
}

/* 0 for the key that ends the program. */
static int onKey(Panel* panel, uint32_t key) {
    if (key >= GPI_KEY_F1 && key < GPI_KEY_F1 + KEYS) {
        obey(panel, (int)key - GPI_KEY_F1);
    } else if (key == GPI_KEY_UP) {
        setPercent(panel, panel->picture.percent + 10);
    } else if (key == GPI_KEY_DOWN) {
        setPercent(panel, panel->picture.percent - 10);
    }
    return key != GPI_KEY_ESCAPE;
}

/* A key of the panel counts when it is left where it was pressed. */
static void onRelease(Panel* panel, uint32_t where) {
    const int key = panel->picture.pressed;
    setPressed(panel, NO_KEY);
    if (key == keyAt(where)) {
        obey(panel, key);
    }
}

/* 0 for the event that ends the program. */
static int onEvent(Panel* panel, const GEventMsg* event) {
    switch (event->type) {
    case G_EVENT_QUIT:
        return 0;
    case KEY_DOWN:
        return onKey(panel, event->param1);
    case PRESS:
        setPressed(panel, keyAt(event->param1));
        return 1;
    case RELEASE:
        onRelease(panel, event->param1);
        return 1;
    default:
        return 1;
    }
}

static void post(uint16_t type, GWord param) {
    GEventMsg event;
    GECreateEventMessage(&event, type, PANEL, (uint32_t)param, 0);
    GESetEvent(event, 0);
}

/* Called by the platform while GEGetEvent() waits: makes events of what a person does. */
static void onMessage(void* context, const GMessage* message) {
    (void)context;
    switch (message->number) {
    case G_MESSAGE_QUIT:
        post(G_EVENT_QUIT, 0);
        break;
    case G_MESSAGE_KEY_DOWN:
        post(KEY_DOWN, message->param1);
        break;
    case G_MESSAGE_LEFT_DOWN:
    case G_MESSAGE_LEFT_DOUBLE:
        post(PRESS, message->param2);
        break;
    case G_MESSAGE_LEFT_UP:
        post(RELEASE, message->param2);
        break;
    default:
        break;
    }
}

/* Sleeps until something happens, takes all that has happened, then draws once. */
static void mainLoop(Panel* panel) {
    int goOn = 1;
    while (goOn) {
        GEventMsg event;
        int32_t wait = FOREVER;
        redraw(panel);
        while (goOn && GEGetEvent(&event, wait)) {
            goOn = onEvent(panel, &event);
            wait = 0;
        }
    }
}

int main(void) {
    Panel panel = {.handle = openPanel(),
                   .picture = {.state = READY, .percent = 100, .pressed = NO_KEY}};
    if (!panel.handle || !GEInitEvent()) {
        return 1;
    }
    change(&panel, wholeArea);
    GPIHostSetMessageHandler(onMessage, NULL);

    mainLoop(&panel);

    GPIHostSetMessageHandler(NULL, NULL);
    GEQuitEvent();
    return closePanel(panel.handle) ? 0 : 1;
}
