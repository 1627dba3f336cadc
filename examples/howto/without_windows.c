/* A panel where nobody looks: input is fed, pictures are written. */
#include <gpi/host.h>
#include <quarlo/quarlo.h>

/* Presses and releases a key as a person would. */
int pressKey(int32_t key) {
    return GPIHostFeedKey(key, 1) && GPIHostFeedKey(key, 0);
}

/* Keeps what the display shows, on any kind of display. */
int keepPicture(GDrawHandle* handle, const char* path) {
    const GVram* display = GDGetVram(handle);
    GDFlushScreen(handle, 0, 0, display->width, display->height);
    return GPIHostWritePng(path);
}
