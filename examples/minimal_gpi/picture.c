/* Draws a picture on the minimal platform, into the file that is named as the argument. */
#include <quarlo/quarlo.h>

enum { kTips = 5 };

static void drawSky(GDrawHandle* handle) {
    const GGradationInfo evening = {G_GRADATION_DOWN, 0x102040, 0xD06030, 0, 120};
    const GRect all = {0, 0, 319, 239};
    GDSetGradationInfo(handle, &evening);
    GDSetFillPattern(handle, G_FILL_GRADATION);
    GDSetPenColor(handle, G_NO_COLOR);
    GDDrawRect(handle, &all);
}

static void drawStar(GDrawHandle* handle) {
    GPoint tips[kTips] = {{80, 20}, {115, 127}, {24, 61}, {136, 61}, {45, 127}};
    GPoly star = {kTips, tips, {24, 20, 136, 127}};
    GDSetPenColor(handle, 0xFFE080);
    GDSetPenSize(handle, 3, 3);
    GDSetFillAttribute(handle, G_FILL_FORE, 0xE0A020, 0);
    GDDrawPoly(handle, &star);
}

static void drawPatterns(GDrawHandle* handle) {
    const GRect pie = {180, 30, 289, 139};
    const GRect box = {40, 160, 279, 219};
    GDSetPenSize(handle, 1, 1);
    GDSetPenColor(handle, 0xFFFFFF);
    GDSetFillAttribute(handle, 16, 0x60C0F0, 0x205080);
    GDDrawPie(handle, &pie, 300, 3300);
    GDSetFillAttribute(handle, 8, 0x90E090, 0x306030);
    GDDrawRRect(handle, &box, 20, 20);
}

/* Exclusive-or, and a dash. */
static void drawCross(GDrawHandle* handle) {
    GLine down = {20, 20, 299, 219};
    GLine up = {20, 219, 299, 20};
    GDSetPenDash(handle, 2);
    GDSetDrawingMode(handle, G_MODE_XOR);
    GDDrawLine(handle, &down);
    GDDrawLine(handle, &up);
    GDSetDrawingMode(handle, G_MODE_COPY);
}

int main(int argc, char** argv) {
    GetGPIFunction();
    if (!GDInitPlatform(argc > 1 ? (GWord)argv[1] : 0)) {
        return 1;
    }
    GDrawHandle* handle = GDOpenDrawHandle(0, 0);
    if (!handle) {
        return 1;
    }
    const GVram* display = GDGetVram(handle);
    GDSetColorMode(handle, 1, display->redMask, display->greenMask, display->blueMask);
    drawSky(handle);
    drawStar(handle);
    drawPatterns(handle);
    drawCross(handle);
    const int32_t shown = GDFlushScreen(handle, 0, 0, display->width, display->height);
    GDCloseDrawHandle(handle);
    GDQuitPlatform();
    return shown ? 0 : 1;
}
