/**
 * @file grf_stream.h
 * The runs of a GRF stream, read one by one within known bounds: for tools, and for loaders that
 * have to know that a stream ends before it is drawn. Drawing itself needs nothing of this.
 *
 * image.h describes the stream. Everything here is inline.
 */
#ifndef QUARLO_GRF_STREAM_H
#define QUARLO_GRF_STREAM_H

#include <quarlo/image.h>

#include <stddef.h>

QUARLO_BEGIN

/** What a run is: the top 2 bits of its control byte, or the end of the stream. */
enum {
    G_GRF_SKIP = 0,    /**< pixels that stay as they are; one byte of any value follows */
    G_GRF_LITERAL = 1, /**< as many value units follow as the run counts */
    G_GRF_NOTHING = 2, /**< no effect */
    G_GRF_FILL = 3,    /**< one value unit follows */
    G_GRF_END = 4      /**< a control byte of 0 */
};

/** The low 6 bits of a control byte hold the count; so this is the longest run too. */
enum { G_GRF_COUNT_MASK = 0x3F };

/** A run. Offsets are counted from the start of the stream. */
typedef struct GGrfRun {
    int32_t kind;  /**< #G_GRF_SKIP to #G_GRF_END */
    int32_t count; /**< pixels of a skip run, units of any other */
    size_t units;  /**< offset of the first value unit */
    size_t next;   /**< offset of the next run */
} GGrfRun;

/** Bytes of a value unit. */
static inline int32_t GGrfBytesOfUnit(const GGrfImage* image) {
    return (image->bits + 7) / 8;
}

/** Pixels that a value unit holds: more than one in a packed palette image alone. */
static inline int32_t GGrfPixelsOfUnit(const GGrfImage* image) {
    return image->type == G_GRF_PALETTE && image->palette != NULL
               ? 8 * GGrfBytesOfUnit(image) / image->bits
               : 1;
}

/** A value unit of 1 to 4 bytes, low byte first. */
static inline uint32_t GGrfReadUnit(const uint8_t* unit, int32_t unitBytes) {
    uint32_t value = 0;
    for (int32_t i = 0; i < unitBytes; ++i) {
        value |= (uint32_t)unit[i] << (8 * i);
    }
    return value;
}

/** The palette index of one pixel in a packed unit; the first is in the highest bits. */
static inline uint32_t GGrfIndexInUnit(uint32_t unit, int32_t pixel, int32_t bits,
                                       int32_t unitBytes) {
    return unit >> (8 * unitBytes - (pixel + 1) * bits) & ((UINT32_C(1) << bits) - 1);
}

/**
 * Reads the run at an offset.
 *
 * @param size bytes of the stream; none behind them is read
 * @param at offset of the run's control byte
 * @param run gets the run when it is whole; unchanged otherwise
 * @return 1; 0 when the run is not whole: its control byte or a byte that belongs to it lies
 *     behind the stream
 */
static inline int32_t GGrfReadRun(const uint8_t* stream, size_t size, size_t at, int32_t unitBytes,
                                  GGrfRun* run) {
    if (at >= size) {
        return 0;
    }
    const int32_t control = stream[at];
    const int32_t kind = control == 0 ? G_GRF_END : control >> 6;
    const int32_t count = control & G_GRF_COUNT_MASK;
    int32_t bytes = 0;
    if (kind == G_GRF_SKIP) {
        bytes = 1;
    } else if (kind == G_GRF_LITERAL) {
        bytes = count * unitBytes;
    } else if (kind == G_GRF_FILL) {
        bytes = unitBytes;
    }
    if (size - at - 1 < (size_t)bytes) {
        return 0;
    }
    run->kind = kind;
    run->count = count;
    run->units = at + 1;
    run->next = at + 1 + (size_t)bytes;
    return 1;
}

QUARLO_END

#endif
