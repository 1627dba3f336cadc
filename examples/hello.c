/* Shows a label in a bordered box. */
#include <gpi/host.h>
#include <quarlo/quarlo.h>

int main(void) {
    GetGPIFunction();
    GDrawHandle* handle = GDInitPlatform(0) ? GDOpenDrawHandle(0, 0) : NULL;
    if (!handle) {
        return 1;
    }
    const GVram* display = GDGetVram(handle);
    GDSetColorMode(handle, 1, display->redMask, display->greenMask, display->blueMask);

    const GRect box = {20, 20, (int16_t)(display->width - 21), (int16_t)(display->height - 21)};
    const GBorderStyle bevel = {1, 0xFFFFFF, 0x506070, G_NO_COLOR, .width = 4};
    GRect face;
    GDDrawRectBorder(handle, &box, &face, &bevel, G_BORDER_RAISED);
    GDSetPenColor(handle, G_NO_COLOR);
    GDSetFillAttribute(handle, G_FILL_BACK, 0, 0xC0C8D0);
    GDDrawRect(handle, &face);

    const GSimpleFont font = {u"TORVANDELL CNC Gothic", .size = 24, .bitsPerPixel = 4};
    const GCaptionAttr centred = {
        .color = 0x102040, .horizontal = G_ALIGN_CENTRE, .vertical = G_ALIGN_MIDDLE};
    GFontRecord* gothic = GDSetSimpleFont(handle, &font);
    GDDrawCaptionString(handle, &face, &centred, u"Hello, 旋盤!");

    GDFlushScreen(handle, 0, 0, display->width, display->height);
    GPIHostWaitForClose();
    GFReleaseFont(gothic);
    GDCloseDrawHandle(handle);
    return GDQuitPlatform() ? 0 : 1;
}
