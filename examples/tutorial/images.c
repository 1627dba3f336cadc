/* Adds images: an icon on each key. */
#include "icons.h"

#include <gpi/host.h>
#include <quarlo/quarlo.h>

#include <stdio.h>

enum { WIDTH = 480, HEIGHT = 272 };
enum { DESK = 0xDCE2E8, BAR_LIGHT = 0x34495E, BAR_DARK = 0x1A2634 };
enum { CARD = 0xFFFFFF, EDGE = 0xB4BEC8, RULE = 0xE2E6EA, KEY_FACE = 0xF0F0F8 };
enum { ACCENT = 0x2F6FB0, GOOD = 0x38A050, QUIET = 0x7A8692 };
enum { TEXT = 0x1C242C, DIGITS = 0x0C1C30, BAR_TEXT = 0xF4F8FC };
enum { KEYS = 4, AXES = 3, LONGEST = 24 };

static const char16_t* const keyNames[KEYS] = {u"Start", u"Hold", u"Step", u"Reset"};
static const int keyIcons[KEYS] = {ICONS_CYCLE_START, ICONS_FEED_HOLD, ICONS_SINGLE_BLOCK,
                                   ICONS_RESET};
static const char16_t* const axisNames[AXES] = {u"X", u"Y", u"Z"};

static const GRect whole = {0, 0, WIDTH - 1, HEIGHT - 1};
static const GRect bar = {0, 0, WIDTH - 1, 31};
static const GRect lamp = {452, 8, 467, 23};
static const GRect position = {8, 40, 303, 199};
static const GRect gauge = {312, 40, 471, 199};

static GFontRecord* smallFont;
static GFontRecord* largeFont;

static void fill(GDrawHandle* handle, const GRect* area, uint32_t color) {
    GDSetPenColor(handle, G_NO_COLOR); /* no frame around it */
    GDSetFillAttribute(handle, G_FILL_FORE, color, color);
    GDDrawRect(handle, area);
}

static void drawBar(GDrawHandle* handle) {
    const GGradationInfo ramp = {G_GRADATION_DOWN, BAR_LIGHT, BAR_DARK, .lead = 0, .steps = 32};
    GDSetGradationInfo(handle, &ramp);
    GDSetPenColor(handle, G_NO_COLOR);
    GDSetFillPattern(handle, G_FILL_GRADATION);
    GDDrawRect(handle, &bar);
}

static GRect inside(const GRect* outer, int margin) {
    GRect inner = *outer;
    GRResizeRect(&inner, (int16_t)-margin, (int16_t)-margin);
    return inner;
}

/* Smooth letters, `size` pixels high. */
static GFontRecord* loadFont(GDrawHandle* handle, uint8_t size) {
    const GSimpleFont font = {u"TORVANDELL CNC Gothic", .size = size, .bitsPerPixel = 4};
    return GDSetSimpleFont(handle, &font);
}

static void drawText(GDrawHandle* handle, const GRect* area, uint8_t horizontal, uint8_t vertical,
                     uint32_t color, const char16_t* text) {
    const GCaptionAttr attr = {color, horizontal, vertical, 0, 0, 0, 0};
    GDSetTextMode(handle, G_TEXT_TRANSPARENT);
    GDDrawCaptionString(handle, area, &attr, text);
}

/* Text of ASCII, as printf() makes it. */
static void drawFormatted(GDrawHandle* handle, const GRect* area, uint8_t horizontal,
                          uint32_t color, const char* text) {
    char16_t wide[LONGEST];
    if (GRCMultiByteToUnicode(text, -1, wide, LONGEST) > 0) {
        drawText(handle, area, horizontal, G_ALIGN_MIDDLE, color, wide);
    }
}

static void drawTitle(GDrawHandle* handle, const char16_t* state) {
    const GRect left = {12, 0, 240, 31};
    const GRect right = {241, 0, 444, 31};
    GDSetFont(handle, smallFont);
    drawText(handle, &left, G_ALIGN_LEFT, G_ALIGN_MIDDLE, BAR_TEXT, u"Position");
    drawText(handle, &right, G_ALIGN_RIGHT, G_ALIGN_MIDDLE, BAR_TEXT, state);
}

/* A white card with rounded corners. */
static void drawCard(GDrawHandle* handle, const GRect* area) {
    GDSetPenColor(handle, EDGE);
    GDSetFillAttribute(handle, G_FILL_FORE, CARD, CARD);
    GDDrawRRect(handle, area, 6, 6);
}

static GRect readoutArea(int axis) {
    const int top = position.top + 27 + axis * 43;
    const GRect area = {(int16_t)(position.left + 12), (int16_t)top, (int16_t)(position.right - 12),
                        (int16_t)(top + 41)};
    return area;
}

static void drawReadout(GDrawHandle* handle, int axis, double value) {
    const GRect area = readoutArea(axis);
    char number[LONGEST];
    snprintf(number, sizeof number, "%.3f", value);
    GDSetFont(handle, largeFont);
    drawText(handle, &area, G_ALIGN_LEFT, G_ALIGN_MIDDLE, ACCENT, axisNames[axis]);
    drawFormatted(handle, &area, G_ALIGN_RIGHT, DIGITS, number);
}

static void drawPosition(GDrawHandle* handle) {
    const GRect title = inside(&position, 8);
    drawCard(handle, &position);
    GDSetFont(handle, smallFont);
    drawText(handle, &title, G_ALIGN_LEFT, G_ALIGN_TOP, QUIET, u"Work position");
    for (int axis = 0; axis < AXES; axis++) {
        drawReadout(handle, axis, 12.5 * axis);
    }
}

static void drawLamp(GDrawHandle* handle, uint32_t color) {
    const GRect glass = inside(&lamp, 2);
    GDSetPenColor(handle, G_NO_COLOR);
    GDSetFillAttribute(handle, G_FILL_FORE, BAR_DARK, BAR_DARK);
    GDDrawOval(handle, &lamp);
    GDSetFillAttribute(handle, G_FILL_FORE, color, color);
    GDDrawOval(handle, &glass);
}

/* A ring that fills clockwise: 0 % on the lower left, 100 % at the top, 200 % on the lower right.
   Angles are tenths of a degree and grow counterclockwise from the right. */
static void drawGauge(GDrawHandle* handle, int percent) {
    const GRect disc = inside(&gauge, 14);
    const GRect hole = inside(&gauge, 34);
    const int16_t value = (int16_t)(2250 - percent * 27 / 2);
    GPoint points[3] = {{386, 44}, {396, 44}, {391, 50}};
    GPoly mark;
    GPSetPoly(&mark, 3, points, &gauge);

    drawCard(handle, &gauge);
    GDSetPenColor(handle, G_NO_COLOR);
    GDSetFillAttribute(handle, G_FILL_FORE, RULE, RULE);
    GDDrawPie(handle, &disc, -450, 2250);
    GDSetFillAttribute(handle, G_FILL_FORE, ACCENT, ACCENT);
    GDDrawPie(handle, &disc, value, 2250);
    GDSetFillAttribute(handle, G_FILL_FORE, CARD, CARD);
    GDDrawOval(handle, &hole);
    GDSetFillAttribute(handle, G_FILL_FORE, QUIET, QUIET);
    GDDrawPoly(handle, &mark);

    char text[LONGEST];
    snprintf(text, sizeof text, "%d %%", percent);
    GDSetFont(handle, smallFont);
    drawFormatted(handle, &hole, G_ALIGN_CENTRE, TEXT, text);
    drawText(handle, &disc, G_ALIGN_CENTRE, G_ALIGN_BOTTOM, QUIET, u"Feed");
}

static GRect keyArea(int key) {
    const int left = 8 + key * 117;
    const GRect area = {(int16_t)left, 208, (int16_t)(left + 112), 267};
    return area;
}

static void drawKey(GDrawHandle* handle, int key) {
    const GBorderStyle bevel = {1, 0xFFFFFF, 0x8894A0, G_NO_COLOR, .width = 2};
    const GRect area = keyArea(key);
    GRect face;
    GDDrawRectBorder(handle, &area, &face, &bevel, G_BORDER_RAISED);
    fill(handle, &face, KEY_FACE);
    const GRect label = inside(&face, 3);
    const GGrfImage* icon = &icons[keyIcons[key]];
    const int left = (face.left + face.right - icon->width) / 2;
    GDDrawGrf(handle, icon, icon->data, (int16_t)left, (int16_t)(face.top + 3), 0, 0);
    GDSetFont(handle, smallFont);
    drawText(handle, &label, G_ALIGN_CENTRE, G_ALIGN_BOTTOM, TEXT, keyNames[key]);
}

static void draw(GDrawHandle* handle) {
    fill(handle, &whole, DESK);
    drawBar(handle);
    drawTitle(handle, u"Ready");
    drawLamp(handle, GOOD);
    drawPosition(handle);
    drawGauge(handle, 100);
    for (int key = 0; key < KEYS; key++) {
        drawKey(handle, key);
    }
}

/* Starts the platform and opens its display. Colours are 0xRRGGBB from then on. */
static GDrawHandle* openDisplay(void) {
    GetGPIFunction();
    GDrawHandle* handle = GDInitPlatform(0) ? GDOpenDrawHandle(0, 0) : NULL;
    if (handle) {
        const GVram* display = GDGetVram(handle);
        GDSetColorMode(handle, 1, display->redMask, display->greenMask, display->blueMask);
    }
    return handle;
}

int main(void) {
    GDrawHandle* handle = openDisplay();
    if (!handle) {
        return 1;
    }
    largeFont = loadFont(handle, 40);
    smallFont = loadFont(handle, 16);
    draw(handle);
    GDFlushScreen(handle, 0, 0, WIDTH, HEIGHT);
    GPIHostWaitForClose();
    GFReleaseFont(smallFont);
    GFReleaseFont(largeFont);
    GDCloseDrawHandle(handle);
    return GDQuitPlatform() ? 0 : 1;
}
