/*
 * The main loop of a panel: input as events, a timer while something moves, only what changed drawn
 * anew, and sleep while nothing happens.
 *
 * The arrow keys move the cross. The button starts a cycle, which the bar follows. Escape, or
 * closing the window, ends.
 */
#include <gpi/host.h>
#include <quarlo/quarlo.h>

enum { PANEL = 1 };                         /* the one receiver of events */
enum { KEY = 2, PRESS, RELEASE };           /* types of events, beside the library's own */
enum { CYCLE = 1, TICK = 40, LENGTH = 12 }; /* a timer, its milliseconds, ticks of a cycle */
enum { FOREVER = -1, STEP = 8 };

static const GRect wholePanel = {0, 0, 479, 239};
static const GRect field = {16, 16, 303, 223};
static const GRect reach = {32, 32, 287, 207}; /* of the cross */
static const GRect button = {320, 16, 463, 95};
static const GRect bar = {320, 192, 463, 223};

static const GBorderStyle border = {1, 0xFFFFFF, 0x606870, G_NO_COLOR, 3};

typedef struct Panel {
    GDrawHandle* handle;
    GDirtyRectList changed; /* what must be drawn anew */
    GPoint cross;
    int pressed;  /* the button is held down */
    int progress; /* ticks of the cycle that are over */
    int running;
} Panel;

/* Called while GEGetEvent() waits: what means something here becomes an event. */
static void onMessage(void* context, const GMessage* message) {
    GEventMsg event;
    (void)context;
    switch (message->number) {
    case G_MESSAGE_QUIT:
        GECreateEventMessage(&event, G_EVENT_QUIT, PANEL, 0, 0);
        break;
    case G_MESSAGE_KEY_DOWN: /* one message may count several repeats */
        GECreateEventMessage(&event, KEY, PANEL, (uint32_t)message->param1,
                             (uint32_t)message->param2 & GPI_KEY_COUNT);
        break;
    case G_MESSAGE_LEFT_DOWN:
    case G_MESSAGE_LEFT_DOUBLE:
        GECreateEventMessage(&event, PRESS, PANEL, (uint32_t)message->param2, 0);
        break;
    case G_MESSAGE_LEFT_UP:
        GECreateEventMessage(&event, RELEASE, PANEL, (uint32_t)message->param2, 0);
        break;
    default: /* the window shows its picture again by itself when it was covered */
        return;
    }
    GESetEvent(event, 0);
}

static void change(Panel* panel, const GRect* area) {
    GDRAddDirtyRect(&panel->changed, area, 0);
}

static GRect crossArea(const Panel* panel) {
    const int16_t x = panel->cross.x;
    const int16_t y = panel->cross.y;
    const GRect area = {(int16_t)(x - 12), (int16_t)(y - 12), (int16_t)(x + 12), (int16_t)(y + 12)};
    return area;
}

static void moveCross(Panel* panel, int dx, int dy) {
    const GPoint next = {(int16_t)(panel->cross.x + dx), (int16_t)(panel->cross.y + dy)};
    GRect area = crossArea(panel);
    if (!GRPointInRect(&next, &reach)) {
        return;
    }
    change(panel, &area);
    panel->cross = next;
    area = crossArea(panel);
    change(panel, &area);
}

static int onButton(uint32_t position) {
    const GPoint point = {(int16_t)(position & 0xFFFF), (int16_t)(position >> 16)};
    return GRPointInRect(&point, &button);
}

static void pressButton(Panel* panel, int pressed) {
    panel->pressed = pressed;
    change(panel, &button);
}

static void startCycle(Panel* panel) {
    if (!panel->running) {
        panel->running = GESetTimer(PANEL, CYCLE, TICK);
    }
    panel->progress = 0;
    change(panel, &bar);
}

static void advanceCycle(Panel* panel) {
    panel->progress++;
    change(panel, &bar);
    if (panel->progress == LENGTH) {
        GEKillTimer(PANEL, CYCLE);
        panel->running = 0;
    }
}

/* 0 for the event that ends the program. */
static int handleKey(Panel* panel, uint32_t key, int count) {
    switch (key) {
    case GPI_KEY_LEFT:
        moveCross(panel, -STEP * count, 0);
        return 1;
    case GPI_KEY_RIGHT:
        moveCross(panel, STEP * count, 0);
        return 1;
    case GPI_KEY_UP:
        moveCross(panel, 0, -STEP * count);
        return 1;
    case GPI_KEY_DOWN:
        moveCross(panel, 0, STEP * count);
        return 1;
    default:
        return key != GPI_KEY_ESCAPE;
    }
}

/* 0 for the event that ends the program. */
static int handle(Panel* panel, const GEventMsg* event) {
    switch (event->type) {
    case G_EVENT_TIMER:
        advanceCycle(panel);
        return 1;
    case KEY:
        return handleKey(panel, event->param1, (int)event->param2);
    case PRESS:
        if (onButton(event->param1)) {
            pressButton(panel, 1);
        }
        return 1;
    case RELEASE:
        if (panel->pressed && onButton(event->param1)) {
            startCycle(panel);
        }
        if (panel->pressed) {
            pressButton(panel, 0);
        }
        return 1;
    default:
        return event->type != G_EVENT_QUIT;
    }
}

static void drawBox(GDrawHandle* handle, const GRect* area, uint32_t color, uint16_t style) {
    GRect inner;
    GDSetForeColor(handle, color);
    GDDrawRectBorder(handle, area, &inner, &border, style);
    GDSetPenColor(handle, G_NO_COLOR);
    GDSetFillAttribute(handle, G_FILL_FORE, color, color);
    GDDrawRect(handle, &inner);
}

static void drawLine(GDrawHandle* handle, int x1, int y1, int x2, int y2) {
    GLine line;
    GLSetLine(&line, (int16_t)x1, (int16_t)y1, (int16_t)x2, (int16_t)y2);
    GDDrawLine(handle, &line);
}

static void drawField(const Panel* panel) {
    const GPoint at = panel->cross;
    const GRect circle = {(int16_t)(at.x - 7), (int16_t)(at.y - 7), (int16_t)(at.x + 7),
                          (int16_t)(at.y + 7)};
    drawBox(panel->handle, &field, 0x102030, G_BORDER_SUNKEN);
    GDSetPenColor(panel->handle, 0xFFD060);
    drawLine(panel->handle, at.x - 12, at.y, at.x + 12, at.y);
    drawLine(panel->handle, at.x, at.y - 12, at.x, at.y + 12);
    GDSetFillPattern(panel->handle, G_FILL_NONE);
    GDDrawOval(panel->handle, &circle);
}

static void drawButton(const Panel* panel) {
    const int16_t sunk = panel->pressed ? 2 : 0;
    const uint32_t face = panel->pressed ? 0x88929C : 0xA0AAB4;
    GPoint points[3] = {{376, 32}, {376, 80}, {412, 56}};
    GPoly triangle;
    GPSetPoly(&triangle, 3, points, &button);
    GPOffsetPoly(&triangle, sunk, sunk);
    drawBox(panel->handle, &button, face, panel->pressed ? G_BORDER_SUNKEN : G_BORDER_RAISED);
    GDSetPenColor(panel->handle, 0x004020);
    GDSetFillAttribute(panel->handle, G_FILL_FORE, 0x20A060, 0x20A060);
    GDDrawPoly(panel->handle, &triangle);
}

static void drawBar(const Panel* panel) {
    const int inside = bar.right - bar.left - 5;
    GRect filled = {(int16_t)(bar.left + 3), (int16_t)(bar.top + 3), 0, (int16_t)(bar.bottom - 3)};
    filled.right = (int16_t)(filled.left + inside * panel->progress / LENGTH - 1);
    drawBox(panel->handle, &bar, 0x303840, G_BORDER_SUNKEN);
    GDSetFillAttribute(panel->handle, G_FILL_FORE, 0x40C080, 0x40C080);
    if (panel->progress > 0) {
        GDDrawRect(panel->handle, &filled);
    }
}

static void draw(const Panel* panel) {
    GDSetPenColor(panel->handle, G_NO_COLOR);
    GDSetFillAttribute(panel->handle, G_FILL_FORE, 0x485058, 0x485058);
    GDDrawRect(panel->handle, &wholePanel);
    drawField(panel);
    drawButton(panel);
    drawBar(panel);
}

/* Draws what changed, each area through a clip rectangle of its own, and shows it. */
static void redraw(Panel* panel) {
    const GRect* areas = GDRGetDirtyRect(&panel->changed);
    int i;
    GDRRefreshDirtyRect(&panel->changed);
    for (i = 0; i < GDRGetDirtyRectNum(&panel->changed); i++) {
        const GRect area = areas[i];
        GDPushClipRect(panel->handle, &area);
        draw(panel);
        GDPopClipRect(panel->handle);
        GDFlushScreen(panel->handle, area.left, area.top, (int16_t)(area.right - area.left + 1),
                      (int16_t)(area.bottom - area.top + 1));
    }
    GDRClearDirtyRect(&panel->changed);
}

static void mainLoop(Panel* panel) {
    int goOn = 1;
    while (goOn) {
        GEventMsg event;
        int32_t wait;
        redraw(panel);
        /* Sleeps until there is an event, then takes all that are there before it draws again.
           Timers expire when they are checked, so it sleeps no longer than the next one allows. */
        wait = panel->running ? TICK : FOREVER;
        while (goOn && GEGetEvent(&event, wait)) {
            goOn = handle(panel, &event);
            wait = 0;
        }
        GECheckTimer();
    }
}

int main(void) {
    Panel panel = {0};
    const GVram* display;
    GetGPIFunction();
    if (!GDInitPlatform(0) || !GEInitEvent()) {
        return 1;
    }
    panel.handle = GDOpenDrawHandle(0, 0);
    if (!panel.handle) {
        return 1;
    }
    display = GDGetVram(panel.handle);
    GDSetColorMode(panel.handle, 1, display->redMask, display->greenMask, display->blueMask);
    panel.cross.x = (int16_t)((field.left + field.right) / 2);
    panel.cross.y = (int16_t)((field.top + field.bottom) / 2);
    change(&panel, &wholePanel);
    GPIHostSetMessageHandler(onMessage, 0);
    mainLoop(&panel);
    GPIHostSetMessageHandler(0, 0);
    GEQuitEvent();
    GDCloseDrawHandle(panel.handle);
    return GDQuitPlatform() ? 0 : 1;
}
