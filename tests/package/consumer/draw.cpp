// Draws a line on a memory surface and reads it back.
#include <quarlo/quarlo.h>

int main() {
    GetGPIFunction();
    GDInitPlatform(0);
    GDrawHandle* const handle = GDOpenDrawHandle(0, 0);
    if (handle == nullptr || GDSetVram(handle, -1, GDCreateVVram(16, 16, 24)) == 0) {
        return 1;
    }
    GDSetPenColor(handle, 0x4080FF);
    GDMoveTo(handle, 0, 0);
    GDLineTo(handle, 15, 15);
    const bool drawn = GDGetPixel(handle, 7, 7) == 0x4080FF && GDGetPixel(handle, 8, 7) == 0;
    GDDeleteVram(GDGetVram(handle));
    return drawn ? 0 : 2;
}
