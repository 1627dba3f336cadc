/* Draws an image of a table and reads a pixel of it back. */
#include "pictures.h"

#include <quarlo/quarlo.h>

int main(void) {
    GetGPIFunction();
    GDInitPlatform(0);
    GDrawHandle* handle = GDOpenDrawHandle(0, 0);
    if (!handle || !GDSetVram(handle, -1, GDCreateVVram(16, 16, 24)))
        return 1;
    const GGrfImage* dot = &pictures[PICTURES_DOT];
    GDDrawGrf(handle, dot, dot->data, 5, 5, 0, 0);
    const int drawn = GDGetPixel(handle, 6, 6) == 0xFF && GDGetPixel(handle, 5, 5) == 0;
    GDDeleteVram(GDGetVram(handle));
    return PICTURES_COUNT == 1 && drawn ? 0 : 2;
}
