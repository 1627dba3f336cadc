/* An example of a machine builder's module: what is to be serviced, and when. */
#include "panel_screen.h"

#include <stddef.h>

/* Seconds of cutting between two services: so few that one can watch. */
typedef struct Service {
    const char16_t* name;
    double interval;
} Service;

static const Service kServices[] = {
    {u"Spindle lubrication", 60.0},
    {u"Coolant filter", 240.0},
    {u"Ball screws", 3600.0},
};
enum { kServiceCount = sizeof kServices / sizeof kServices[0], kRow = 56, kBar = 14, kGap = 12 };

/* What is drawn: hundredths of an interval that are left. */
static int32_t drawn[kServiceCount];

static int32_t left(const Service* service) {
    double cut = 0.0;
    GNCDataGetGNCValue(1, G_NC_TIME, 1, 0, &cut);
    const double part = 1.0 - cut / service->interval;
    return part > 0.0 ? (int32_t)(part * 100.0) : 0;
}

static void fill(GDrawHandle* handle, const GRect* rect, uint32_t ground, uint32_t edge) {
    GDSetPenColor(handle, edge);
    GDSetFillAttribute(handle, G_FILL_FORE, ground, ground);
    GDDrawRect(handle, rect);
}

static void drawService(GDrawHandle* handle, GRect row, const PanelInks* inks, size_t i) {
    drawn[i] = left(&kServices[i]);
    const GCaptionAttr name = {
        .color = inks->text, .horizontal = G_ALIGN_LEFT, .vertical = G_ALIGN_TOP};
    GDDrawCaptionString(handle, &row, &name, kServices[i].name);

    GRect bar;
    GRSetRect(&bar, row.left, (int16_t)(row.bottom - kBar), row.right, row.bottom);
    fill(handle, &bar, inks->ground, inks->edge);
    GRResizeRect(&bar, -1, -1);
    bar.right = (int16_t)(bar.left + (bar.right - bar.left) * drawn[i] / 100);
    if (drawn[i] > 0) {
        const uint32_t ink = drawn[i] > 20 ? inks->good : inks->caution;
        fill(handle, &bar, ink, ink);
    }
}

static void draw(GDrawHandle* handle, const GRect* area, const PanelInks* inks) {
    GRect card = *area;
    GRResizeRect(&card, -kGap, -kGap);
    fill(handle, &card, inks->card, inks->edge);
    GRResizeRect(&card, -2 * kGap, -2 * kGap);
    for (size_t i = 0; i < kServiceCount; ++i) {
        GRect row = card;
        row.top = (int16_t)(card.top + (int)i * (kRow + kGap));
        row.bottom = (int16_t)(row.top + kRow - 1);
        drawService(handle, row, inks, i);
    }
}

static int32_t changed(void) {
    for (size_t i = 0; i < kServiceCount; ++i) {
        if (left(&kServices[i]) != drawn[i]) {
            return 1;
        }
    }
    return 0;
}

static int32_t key(int32_t pressed) {
    (void)pressed;
    return 0;
}

#if defined(__GNUC__)
__attribute__((visibility("default")))
#endif
const PanelScreen*
panelScreen(void) {
    static const PanelScreen screen = {PANEL_SCREEN_VERSION, draw, changed, key};
    return &screen;
}
