/* Opens a display and gives the panel its ground. */
#include <gpi/host.h>
#include <quarlo/quarlo.h>

enum { WIDTH = 480, HEIGHT = 272 };
enum { DESK = 0xDCE2E8, BAR_LIGHT = 0x34495E, BAR_DARK = 0x1A2634 };

static const GRect whole = {0, 0, WIDTH - 1, HEIGHT - 1};
static const GRect bar = {0, 0, WIDTH - 1, 31};

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

static void draw(GDrawHandle* handle) {
    fill(handle, &whole, DESK);
    drawBar(handle);
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
    draw(handle);
    GDFlushScreen(handle, 0, 0, WIDTH, HEIGHT);
    GPIHostWaitForClose();
    GDCloseDrawHandle(handle);
    return GDQuitPlatform() ? 0 : 1;
}
