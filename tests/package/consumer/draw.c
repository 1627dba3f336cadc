/* Fills a rectangle and reads a pixel of it back. */
#include <quarlo/quarlo.h>

int main(void) {
    GetGPIFunction();
    GDInitPlatform(0);
    GDrawHandle* handle = GDOpenDrawHandle(0, 0);
    if (!handle)
        return 1;
    const GRect rect = {10, 10, 29, 19};
    GDSetPenColor(handle, G_NO_COLOR);
    GDSetFillAttribute(handle, G_FILL_FORE, 0x1234, 0);
    GDDrawRect(handle, &rect);
    const int drawn = GDGetPixel(handle, 29, 19) == 0x1234 && GDGetPixel(handle, 30, 19) == 0;
    GDCloseDrawHandle(handle);
    GDQuitPlatform();
    return drawn ? 0 : 2;
}
