/**
 * @file image.h
 * GRF images: run-length coded pictures in memory, drawn as they are (their values are pixel values
 * of the surface) in the handle's drawing mode.
 *
 * A stream is a sequence of runs. A run begins with a control byte: its low 6 bits are a count, its
 * top 2 bits a kind.
 *
 *     00  skip count pixels; one more byte follows, of any value
 *     01  count value units follow, one for each pixel
 *     11  one value unit follows, for count pixels
 *     10  nothing
 *
 * A control byte of 0 ends the stream; it must be there. A value unit has (bits + 7) / 8 bytes, low
 * byte first. Pixels follow one another in rows from the upper left; runs may cross the end of a
 * row. In a packed palette image (type 2 with a palette, units of 1 or 2 bytes) each unit holds as
 * many palette indices as fit, the first in the highest bits; skips count pixels.
 */
#ifndef QUARLO_IMAGE_H
#define QUARLO_IMAGE_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Values of GGrfImage::type. */
enum {
    G_GRF_DIRECT = 1, /**< values are pixel values; so is any other type but 2 */
    G_GRF_PALETTE = 2 /**< values are packed palette indices, if there is a palette */
};

/** The palette of a packed image. */
typedef struct GGrfPalette {
    uint32_t count;         /**< number of colours; drawing does not read it */
    const uint32_t* colors; /**< pixel values, one for each index that `bits` can hold */
} GGrfPalette;

/** An image. Nothing in it is changed or freed by drawing. */
typedef struct GGrfImage {
    uint16_t type;              /**< #G_GRF_DIRECT or #G_GRF_PALETTE */
    int16_t width;              /**< pixels */
    int16_t height;             /**< pixels */
    int16_t bits;               /**< bits a value, 1 to 32 */
    uint32_t size;              /**< bytes in `data`, or 0; drawing does not read it */
    const uint8_t* data;        /**< the stream; GDDrawImage() alone reads this */
    const GGrfPalette* palette; /**< the palette, or null */
} GGrfImage;

/**
 * Draws an image at its natural size. Decoding ends with the stream or behind the last row.
 *
 * @param image size and format; not null
 * @param stream its runs
 * @param x left column, application coordinates
 * @param y top row, application coordinates
 * @param width columns to show, at most; with a width or height of zero or less the whole image
 * @param height rows to show, at most; in virtual mode both are mapped first
 * @return 1, also when nothing of it is visible; 0 for a null stream
 */
QUARLO_API int32_t GDDrawGrf(GDrawHandle* handle, const GGrfImage* image, const uint8_t* stream,
                             int16_t x, int16_t y, int16_t width, int16_t height);

/**
 * Draws an image stretched to a size. It reads every value as one byte and keeps its low 3 bits:
 * stretched images have 8 colours and no palette. Where several pixels fall together, the first
 * that is not 0 shows.
 *
 * @param width columns to fill, application coordinates; with a width or height of zero or less the
 *     image is drawn as by GDDrawGrf()
 * @param height rows to fill
 * @return 1, also when nothing of it is visible; 0 for a null stream
 */
QUARLO_API int32_t GDDrawGrfZoom(GDrawHandle* handle, const GGrfImage* image, const uint8_t* stream,
                                 int16_t x, int16_t y, int16_t width, int16_t height);

/**
 * GDDrawGrf() with the image's own stream.
 *
 * @param image where the program keeps the image's address
 * @return 1; 0 when `image`, the address there, or the image's stream is null
 */
QUARLO_API int32_t GDDrawImage(GDrawHandle* handle, GGrfImage* const* image, int16_t x, int16_t y,
                               int16_t width, int16_t height);

QUARLO_END

#endif
