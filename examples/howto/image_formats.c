/* An image from a file, if it was made for the surface. */
#include <quarlo/grf_file.h>
#include <quarlo/quarlo.h>

/* `bytes` are a file in memory. 0 when it is damaged or made for another kind of surface. */
int showImage(GDrawHandle* handle, const uint8_t* bytes, size_t size, int16_t x, int16_t y) {
    GGrfFile file;
    if (!GGrfOpenFile(&file, bytes, size) || !GGrfFitsSurface(&file, GDGetVram(handle))) {
        return 0;
    }
    return GDDrawGrf(handle, &file.image, file.image.data, x, y, 0, 0);
}
