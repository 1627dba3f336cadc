/* Fills a rectangle, frames it and shows it. */
#include <gpi/host.h>
#include <quarlo/quarlo.h>

int main(void) {
    GetGPIFunction();
    if (!GDInitPlatform(0)) {
        return 1;
    }
    GDrawHandle* handle = GDOpenDrawHandle(0, 0);
    if (!handle) {
        return 1;
    }
    GDSetColorMode(handle, 1, 0x7C00, 0x03E0, 0x001F); /* colours are 0xRRGGBB on a 5-5-5 display */
    GDSetPenColor(handle, 0xF0C040);
    GDSetFillAttribute(handle, 16, 0x3060A0, 0x204080); /* pattern 16 in two blues */
    const GRect rect = {100, 100, 299, 219};
    GDDrawRect(handle, &rect);
    GDFlushScreen(handle, 0, 0, 800, 600);
    GPIHostWaitForClose();
    GDCloseDrawHandle(handle);
    return GDQuitPlatform() ? 0 : 1;
}
