/*
 * The smallest platform that the library draws on: a display in a plain buffer, which a flush
 * writes to a picture file.
 *
 * Eight services do. Lines, shapes, patterns, gradations and images come out of services 5 and 6;
 * text wants service 20 as well, block transfer service 8, timers service 28.
 */
#include <gpi/gpi.h>

#include <stdio.h>
#include <stdlib.h>

enum { kWidth = 320, kHeight = 240 };

/* 5-5-5, the format that gradations are packed in. */
static uint16_t pixels[kHeight][kWidth];

/* All drawing is clipped to this rectangle, which the library changes. */
static GRect drawable;

static GVram display = {
    .width = kWidth,
    .height = kHeight,
    .bitsPerPixel = 16,
    .bytesPerLine = sizeof pixels[0],
    .pixels = (uint8_t*)pixels,
    .colorType = G_COLOR_DIRECT,
    .redMask = 0x7C00,
    .greenMask = 0x03E0,
    .blueMask = 0x001F,
    .bounds = {0, 0, kWidth - 1, kHeight - 1},
    .drawable = &drawable,
};

static const char* picture;

/* Service 1. The argument is 0, or the address of the picture file's path. */
static GWord start(GWord argument) {
    /* NOLINTNEXTLINE(performance-no-int-to-ptr): a word that carries a pointer by contract */
    picture = argument != 0 ? (const char*)argument : "minimal_gpi.ppm";
    drawable = display.bounds;
    return 1;
}

/* Service 2. */
static GWord stop(void) {
    return 1;
}

/* Service 3. There is nothing to give back, so there is no service 4. */
static GVram* getSurface(GDrawHandle* handle, int32_t number) {
    (void)handle;
    return number == 0 ? &display : NULL;
}

/* Service 5. The library has clipped already. */
static int32_t setPixel(GDrawHandle* handle, GVram* surface, int16_t x, int16_t y, uint32_t pixel,
                        int32_t mode) {
    (void)handle;
    (void)surface;
    uint16_t* const at = &pixels[y][x];
    switch (mode) {
    case G_MODE_COPY:
        *at = (uint16_t)pixel;
        return 1;
    case G_MODE_AND:
        *at &= (uint16_t)pixel;
        return 1;
    case G_MODE_OR:
        *at |= (uint16_t)pixel;
        return 1;
    case G_MODE_XOR:
        *at ^= (uint16_t)pixel;
        return 1;
    default:
        return 0;
    }
}

/* Service 6. */
static int32_t span(GDrawHandle* handle, GVram* surface, int16_t x, int16_t y, uint32_t pixel,
                    int32_t mode, int16_t count) {
    for (int16_t i = 0; i < count; ++i) {
        setPixel(handle, surface, (int16_t)(x + i), y, pixel, mode);
    }
    return 1;
}

/* The low 5 bits as a channel of 8. */
static uint8_t brightness(int value) {
    const int channel = value & 31;
    return (uint8_t)(channel << 3 | channel >> 2);
}

static int writePixels(FILE* file) {
    int written = fprintf(file, "P6\n%d %d\n255\n", kWidth, kHeight) > 0;
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            const int pixel = pixels[y][x];
            const uint8_t color[] = {brightness(pixel >> 10), brightness(pixel >> 5),
                                     brightness(pixel)};
            written = fwrite(color, sizeof color, 1, file) == 1 && written;
        }
    }
    return written;
}

/* Service 9. A display would show the rectangle alone; a file is written whole. */
static int32_t flush(GDrawHandle* handle, int16_t left, int16_t top, int16_t width,
                     int16_t height) {
    (void)handle;
    (void)left;
    (void)top;
    (void)width;
    (void)height;
    FILE* const file = fopen(picture, "wb");
    if (file == NULL) {
        return 0;
    }
    const int written = writePixels(file);
    return fclose(file) == 0 && written;
}

/* Service 41. One heap for all spaces; blocks need not be zeroed. */
static void* memoryAlloc(int32_t space, uint32_t flags, int32_t size) {
    (void)space;
    if (size <= 0) {
        return NULL;
    }
    return (flags & G_MEMORY_ZERO) != 0 ? calloc(1, (size_t)size) : malloc((size_t)size);
}

/* Service 42. */
static int32_t memoryFree(int32_t space, uint32_t flags, void* block) {
    (void)space;
    (void)flags;
    free(block);
    return 1;
}

GPIFunction GPIGetService(int32_t number) {
    switch (number) {
    case GPI_SERVICE_START:
        return (GPIFunction)start;
    case GPI_SERVICE_STOP:
        return (GPIFunction)stop;
    case GPI_SERVICE_GET_SURFACE:
        return (GPIFunction)getSurface;
    case GPI_SERVICE_SET_PIXEL:
        return (GPIFunction)setPixel;
    case GPI_SERVICE_SPAN:
        return (GPIFunction)span;
    case GPI_SERVICE_FLUSH:
        return (GPIFunction)flush;
    case GPI_SERVICE_MEMORY_ALLOC:
        return (GPIFunction)memoryAlloc;
    case GPI_SERVICE_MEMORY_FREE:
        return (GPIFunction)memoryFree;
    default:
        return NULL; /* not offered */
    }
}

int32_t GPIGetFontCount(void) {
    return 0;
}

void GPIShutdownEvents(void) {}

void GPITranslateMessage(GMessage* message) {
    (void)message;
}

void GPIDispatchMessage(GMessage* message) {
    (void)message;
}
