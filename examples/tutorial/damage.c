/* Draws and shows only what has changed. */
#include "picture.h"

#include <gpi/host.h>
#include <quarlo/quarlo.h>

enum { MARK = 0xE020C0 };

typedef struct Panel {
    GDrawHandle* handle;
    GDirtyRectList changed; /* what has to be drawn anew */
    Picture picture;
    int marked; /* what is drawn anew gets a frame, so that a person sees it */
} Panel;

static void change(Panel* panel, GRect area) {
    GDRAddDirtyRect(&panel->changed, &area, 0);
}

static void redrawArea(Panel* panel, const GRect* area) {
    GDPushClipRect(panel->handle, area);
    drawPicture(panel->handle, &panel->picture);
    if (panel->marked) {
        GDSetPenColor(panel->handle, MARK);
        GDSetFillPattern(panel->handle, G_FILL_NONE);
        GDDrawRect(panel->handle, area);
    }
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

int main(void) {
    Panel panel = {.handle = openPanel(),
                   .picture = {.state = READY, .percent = 100, .pressed = NO_KEY}};
    if (!panel.handle) {
        return 1;
    }
    change(&panel, wholeArea);
    redraw(&panel);

    panel.marked = 1;
    setAxis(&panel, 0, 64.125); /* two readouts and the gauge, and nothing else */
    setAxis(&panel, 2, -8);
    setPercent(&panel, 120);
    redraw(&panel);

    GPIHostWaitForClose();
    return closePanel(panel.handle) ? 0 : 1;
}
