/* Fills by a device's own engine, in a platform library. */
#include <gpi/gpi.h>

int deviceFill(int x, int y, int width, int height, uint32_t pixel);

/* Service 68. The rectangle is clipped already, and both its edges belong to it. */
int32_t fillRect(GDrawHandle* handle, GVram* surface, const GRect* rect, uint32_t pixel,
                 int32_t mode) {
    (void)handle;
    if (mode != G_MODE_COPY) {
        for (int16_t y = rect->top; y <= rect->bottom; y++) {
            GPISpan span = (GPISpan)GPIGetService(GPI_SERVICE_SPAN);
            span(handle, surface, rect->left, y, pixel, mode,
                 (int16_t)(rect->right - rect->left + 1));
        }
        return 1;
    }
    return deviceFill(rect->left, rect->top, rect->right - rect->left + 1,
                      rect->bottom - rect->top + 1, pixel);
}
