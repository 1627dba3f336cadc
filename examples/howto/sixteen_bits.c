/* Pixels of 16 bits, whatever the order of their channels. */
#include <quarlo/quarlo.h>

/* What a channel of 8 bits becomes where a mask lies. */
static uint32_t place(uint32_t channel, uint32_t mask) {
    uint32_t bit = UINT32_C(1) << 31;
    uint32_t value = 0;
    while (bit && !(mask & bit)) {
        bit >>= 1;
    }
    for (uint32_t source = 0x80; source && (mask & bit); source >>= 1, bit >>= 1) {
        value |= channel & source ? bit : 0;
    }
    return value;
}

uint32_t pixelOf(const GVram* surface, uint32_t color) {
    return place(color >> 16 & 0xFF, surface->redMask) |
           place(color >> 8 & 0xFF, surface->greenMask) | place(color & 0xFF, surface->blueMask);
}

/* Copies a picture of 5-6-5 to a surface of any direct format. The handle keeps its surfaces. */
void show565(GDrawHandle* handle, const uint16_t* values, int16_t width, int16_t height) {
    const GVram like = {.width = width,
                        .height = height,
                        .bitsPerPixel = 16,
                        .colorType = G_COLOR_DIRECT,
                        .redMask = 0xF800,
                        .greenMask = 0x07E0,
                        .blueMask = 0x001F};
    GVram* picture = GDCreateVram(&like);
    if (!picture) {
        return;
    }
    uint8_t* at = picture->pixels;
    for (int32_t i = 0; i < width * height; i++) {
        *at++ = (uint8_t)(values[i] & 0xFF);
        *at++ = (uint8_t)(values[i] >> 8);
    }
    GDBitBlt(handle, picture, 0, 0, width, height, GDGetVram(handle), 0, 0, G_MODE_COPY);
    GDDeleteVram(picture);
}
