/**
 * @file grf_file.h
 * GRF images in files: takes the bytes of a file and gives the record that drawing takes.
 * Everything here is inline; nothing is allocated, and no byte outside the file is read.
 *
 * A file is a header of 32 bytes, a palette, and the stream that image.h describes, with nothing
 * behind it. Numbers are stored low byte first.
 *
 *     offset  bytes
 *          0      4  "QGRF"
 *          4      2  version, 1
 *          6      2  type: 1 direct, 2 packed palette
 *          8      2  width in pixels, 1 to 32767
 *         10      2  height in pixels, 1 to 32767
 *         12      2  bits a value: 8, 16 or 24 direct, 1, 2, 4 or 8 packed
 *         14      2  colours in the palette
 *         16     12  where red, green and blue lie in a pixel value: three masks of 4 bytes
 *         28      4  bytes of the stream
 *         32         the palette, 4 bytes a colour; then the stream
 *
 * Values are those of the surface that the image was made for, as the masks tell: each is 1 to 8
 * bits that lie together. A direct image of 8 bits may have masks of 0 instead. Its values are
 * indexes into the palette of a surface; the palette in the file holds the colours 0x00RRGGBB that
 * they stand for.
 *
 *     uint8_t* bytes = ...;                        // the file, kept as long as the image
 *     GGrfFile file;
 *     if (GGrfOpenFile(&file, bytes, size))
 *         GDDrawGrf(handle, &file.image, file.image.data, x, y, 0, 0);
 */
#ifndef QUARLO_GRF_FILE_H
#define QUARLO_GRF_FILE_H

#include <quarlo/grf_stream.h>
#include <quarlo/surface.h>

QUARLO_BEGIN

/** Sizes and values in a file. */
enum {
    G_GRF_FILE_HEADER = 32, /**< bytes */
    G_GRF_FILE_VERSION = 1, /**< the one there is */
    G_GRF_FILE_COLORS = 256 /**< colours in a palette, at most */
};

/** An image from a file. It points into the file and into itself: it must stay where it is. */
typedef struct GGrfFile {
    GGrfImage image;     /**< `data` and `size` are the stream's; `palette` is null or the next */
    GGrfPalette palette; /**< `colors` below */
    uint32_t redMask;    /**< where red lies in a pixel value; all masks 0 for indexes */
    uint32_t greenMask;  /**< where green lies */
    uint32_t blueMask;   /**< where blue lies */
    uint32_t colors[G_GRF_FILE_COLORS]; /**< zero from the last that the file holds */
} GGrfFile;

/** What can be wrong in a file, and what the offset tells that is reported with it. */
typedef enum GGrfFault {
    G_GRF_FAULT_HEADER_CUT = 1, /**< fewer bytes than a header; the file's end */
    G_GRF_FAULT_MARK,           /**< it does not begin with "QGRF"; 0 */
    G_GRF_FAULT_VERSION,        /**< an unknown version; its place */
    G_GRF_FAULT_TYPE,           /**< an unknown type; its place */
    G_GRF_FAULT_WIDTH,          /**< zero or too large; its place */
    G_GRF_FAULT_HEIGHT,         /**< zero or too large; its place */
    G_GRF_FAULT_BITS,           /**< not a number of bits of this type; its place */
    G_GRF_FAULT_COLOR_COUNT,    /**< not a number of colours of this type and bits; its place */
    G_GRF_FAULT_MASKS,          /**< masks that no surface has; the place of the first */
    G_GRF_FAULT_PALETTE_CUT,    /**< the file ends in its palette; the file's end */
    G_GRF_FAULT_LENGTH,         /**< the file ends before or after its stream; the length's place */
    G_GRF_FAULT_RUN_CUT,        /**< a run is not whole; its control byte */
    G_GRF_FAULT_NO_END,         /**< the stream ends without a 0; where that should be */
    G_GRF_FAULT_BEHIND_LAST_ROW, /**< a run goes past the image; the first's control byte */
    G_GRF_FAULT_NO_COLOR,        /**< an index that the palette does not have; its unit */
    G_GRF_FAULT_BYTES_AFTER_END  /**< the stream goes on behind its 0; the next byte */
} GGrfFault;

/** Is told of a fault, with an offset from the start of the file. */
typedef void GGrfReport(void* context, GGrfFault fault, size_t offset);

/**
 * Takes an image out of a file, whatever is wrong in it, and reports all of that.
 *
 * A header that cannot be believed keeps its stream from being looked at. Of runs past the image,
 * and of indexes without a colour, only the first is reported.
 *
 * @param file gets what could be read; of use when the result is 0
 * @param bytes as for GGrfOpenFile()
 * @param report is called for each fault
 * @return the number of faults
 */
static inline int32_t GGrfInspectFile(GGrfFile* file, const uint8_t* bytes, size_t size,
                                      GGrfReport* report, void* context);

/**
 * Takes an image out of a file that lies in memory.
 *
 * @param file gets the image; it holds nothing of use when there is none
 * @param bytes the file, which must stay as it is while the image is used; it needs no alignment,
 *     and may be null when its size is 0
 * @return 1; 0 when anything is wrong in the file
 */
static inline int32_t GGrfOpenFile(GGrfFile* file, const uint8_t* bytes, size_t size);

/**
 * Whether an image may be drawn by GDDrawGrfZoom(), which reads every value as one byte: in a
 * stream of longer values it would miss the end.
 */
static inline int32_t GGrfCanZoom(const GGrfFile* file) {
    return file->image.bits <= 8;
}

/** Whether an image was made for surfaces of this kind. Indexes are for any with a palette. */
static inline int32_t GGrfFitsSurface(const GGrfFile* file, const GVram* surface);

/* How it is done. */
/** @cond */

typedef struct GGrfInspection {
    GGrfFile* file;
    const uint8_t* bytes;
    size_t size;
    GGrfReport* report;
    void* context;
    int32_t faults;
} GGrfInspection;

static inline void GGrfFail(GGrfInspection* inspection, GGrfFault fault, size_t offset) {
    ++inspection->faults;
    inspection->report(inspection->context, fault, offset);
}

static inline void GGrfRequire(GGrfInspection* inspection, int32_t holds, GGrfFault fault,
                               size_t offset) {
    if (!holds) {
        GGrfFail(inspection, fault, offset);
    }
}

static inline int32_t GGrfIsPacked(const GGrfFile* file) {
    return file->image.type == G_GRF_PALETTE;
}

static inline int32_t GGrfHasMasks(const GGrfFile* file) {
    return (file->redMask | file->greenMask | file->blueMask) != 0;
}

static inline int32_t GGrfAreBitsUsable(const GGrfFile* file) {
    const int32_t bits = file->image.bits;
    return GGrfIsPacked(file) ? bits == 1 || bits == 2 || bits == 4 || bits == 8
                              : bits == 8 || bits == 16 || bits == 24;
}

static inline int32_t GGrfIsColorCountUsable(const GGrfFile* file) {
    const uint32_t count = file->palette.count;
    if (!GGrfIsPacked(file) && GGrfHasMasks(file)) {
        return count == 0;
    }
    return count >= 1 && count <= G_GRF_FILE_COLORS && count <= UINT32_C(1) << file->image.bits;
}

static inline int32_t GGrfIsMaskUsable(uint32_t mask) {
    const uint32_t lowest = mask & (~mask + 1);
    return mask != 0 && (mask & (mask + lowest)) == 0 && mask / lowest <= 0xFF;
}

static inline int32_t GGrfAreMasksUsable(const GGrfFile* file) {
    const uint32_t red = file->redMask;
    const uint32_t green = file->greenMask;
    const uint32_t blue = file->blueMask;
    if (!GGrfHasMasks(file)) {
        return !GGrfIsPacked(file) && file->image.bits == 8;
    }
    const int32_t bits = GGrfIsPacked(file) ? 24 : file->image.bits;
    return GGrfIsMaskUsable(red) && GGrfIsMaskUsable(green) && GGrfIsMaskUsable(blue) &&
           (red & green) == 0 && (red & blue) == 0 && (green & blue) == 0 &&
           (red | green | blue) >> bits == 0;
}

/* Reads the fields of a whole header. */
static inline void GGrfReadFields(GGrfFile* file, const uint8_t* header) {
    file->image.type = (uint16_t)GGrfReadUnit(header + 6, 2);
    file->image.width = (int16_t)GGrfReadUnit(header + 8, 2);
    file->image.height = (int16_t)GGrfReadUnit(header + 10, 2);
    file->image.bits = (int16_t)GGrfReadUnit(header + 12, 2);
    file->image.size = GGrfReadUnit(header + 28, 4);
    file->palette.count = GGrfReadUnit(header + 14, 2);
    file->redMask = GGrfReadUnit(header + 16, 4);
    file->greenMask = GGrfReadUnit(header + 20, 4);
    file->blueMask = GGrfReadUnit(header + 24, 4);
}

/* Whether the header can be believed: what follows it is then known. */
static inline int32_t GGrfInspectHeader(GGrfInspection* inspection) {
    GGrfFile* const file = inspection->file;
    const uint8_t* const header = inspection->bytes;
    if (inspection->size < G_GRF_FILE_HEADER) {
        GGrfFail(inspection, G_GRF_FAULT_HEADER_CUT, inspection->size);
        return 0;
    }
    if (header[0] != 'Q' || header[1] != 'G' || header[2] != 'R' || header[3] != 'F') {
        GGrfFail(inspection, G_GRF_FAULT_MARK, 0);
        return 0;
    }
    if (GGrfReadUnit(header + 4, 2) != G_GRF_FILE_VERSION) {
        GGrfFail(inspection, G_GRF_FAULT_VERSION, 4);
        return 0;
    }
    GGrfReadFields(file, header);
    const uint16_t type = file->image.type;
    GGrfRequire(inspection, type == G_GRF_DIRECT || type == G_GRF_PALETTE, G_GRF_FAULT_TYPE, 6);
    GGrfRequire(inspection, file->image.width > 0, G_GRF_FAULT_WIDTH, 8);
    GGrfRequire(inspection, file->image.height > 0, G_GRF_FAULT_HEIGHT, 10);
    if (!GGrfAreBitsUsable(file)) {
        GGrfFail(inspection, G_GRF_FAULT_BITS, 12);
        return 0;
    }
    GGrfRequire(inspection, GGrfIsColorCountUsable(file), G_GRF_FAULT_COLOR_COUNT, 14);
    GGrfRequire(inspection, GGrfAreMasksUsable(file), G_GRF_FAULT_MASKS, 16);
    return inspection->faults == 0;
}

static inline int32_t GGrfInspectPalette(GGrfInspection* inspection) {
    GGrfFile* const file = inspection->file;
    const uint32_t count = file->palette.count;
    if ((inspection->size - G_GRF_FILE_HEADER) / 4 < count) {
        GGrfFail(inspection, G_GRF_FAULT_PALETTE_CUT, inspection->size);
        return 0;
    }
    const uint8_t* const colors = inspection->bytes + G_GRF_FILE_HEADER;
    for (size_t i = 0; i < G_GRF_FILE_COLORS; ++i) {
        file->colors[i] = i < count ? GGrfReadUnit(colors + 4 * i, 4) : 0;
    }
    file->palette.colors = file->colors;
    file->image.palette = count != 0 ? &file->palette : NULL;
    return 1;
}

/* Offset of the first of `count` units with an index that the palette does not have, or `count`. */
static inline int32_t GGrfUnitWithoutColor(const GGrfFile* file, const uint8_t* units,
                                           int32_t count) {
    const int32_t pixels = GGrfPixelsOfUnit(&file->image);
    for (int32_t i = 0; i < count; ++i) {
        for (int32_t pixel = 0; pixel < pixels; ++pixel) {
            if (GGrfIndexInUnit(units[i], pixel, file->image.bits, 1) >= file->palette.count) {
                return i;
            }
        }
    }
    return count;
}

/* Walks the stream, of which `size` bytes are there. `start` is its offset in the file. */
static inline void GGrfInspectRuns(GGrfInspection* inspection, size_t start, size_t size) {
    const GGrfFile* const file = inspection->file;
    const GGrfImage* const image = &file->image;
    const int32_t unitBytes = GGrfBytesOfUnit(image);
    const int32_t unitPixels = GGrfPixelsOfUnit(image);
    const int32_t pixels = image->width * image->height;
    const uint32_t allColors = UINT32_C(1) << (image->bits <= 8 ? image->bits : 0);
    int32_t colorless = file->palette.count == 0 || file->palette.count == allColors;
    int32_t behind = 0;
    int32_t position = 0;
    GGrfRun run = {G_GRF_NOTHING, 0, 0, 0};
    while (run.kind != G_GRF_END) {
        const size_t at = run.next;
        if (!GGrfReadRun(image->data, size, at, unitBytes, &run)) {
            GGrfFail(inspection, at == size ? G_GRF_FAULT_NO_END : G_GRF_FAULT_RUN_CUT, start + at);
            return;
        }
        if (run.kind == G_GRF_NOTHING || run.kind == G_GRF_END || run.count == 0) {
            continue;
        }
        /* Of the last unit of a packed image, pixels behind the image are left out. */
        const int32_t step = run.kind == G_GRF_SKIP ? 1 : unitPixels;
        if (!behind && run.count > (pixels - position + step - 1) / step) {
            GGrfFail(inspection, G_GRF_FAULT_BEHIND_LAST_ROW, start + at);
            behind = 1;
        }
        position = behind ? pixels : position + run.count * step;
        const int32_t units = run.kind == G_GRF_LITERAL ? run.count : run.kind == G_GRF_FILL;
        const int32_t first =
            colorless ? units : GGrfUnitWithoutColor(file, image->data + run.units, units);
        if (first < units) {
            GGrfFail(inspection, G_GRF_FAULT_NO_COLOR, start + run.units + (size_t)first);
            colorless = 1;
        }
    }
    if (run.next < size) {
        GGrfFail(inspection, G_GRF_FAULT_BYTES_AFTER_END, start + run.next);
    }
}

static inline int32_t GGrfInspectFile(GGrfFile* file, const uint8_t* bytes, size_t size,
                                      GGrfReport* report, void* context) {
    GGrfInspection inspection = {file, bytes, size, report, context, 0};
    if (GGrfInspectHeader(&inspection) && GGrfInspectPalette(&inspection)) {
        const size_t start = G_GRF_FILE_HEADER + 4 * (size_t)file->palette.count;
        const size_t there = size - start;
        GGrfRequire(&inspection, file->image.size == there, G_GRF_FAULT_LENGTH, 28);
        file->image.data = bytes + start;
        GGrfInspectRuns(&inspection, start, file->image.size < there ? file->image.size : there);
    }
    return inspection.faults;
}

static inline int32_t GGrfFitsSurface(const GGrfFile* file, const GVram* surface) {
    if (surface->colorType == G_COLOR_PALETTE) {
        return !GGrfHasMasks(file);
    }
    return (GGrfIsPacked(file) || file->image.bits == surface->bitsPerPixel) &&
           file->redMask == surface->redMask && file->greenMask == surface->greenMask &&
           file->blueMask == surface->blueMask;
}

static inline void GGrfIgnoreFault(void* context, GGrfFault fault, size_t offset) {
    (void)context;
    (void)fault;
    (void)offset;
}

static inline int32_t GGrfOpenFile(GGrfFile* file, const uint8_t* bytes, size_t size) {
    return GGrfInspectFile(file, bytes, size, GGrfIgnoreFault, NULL) == 0;
}

/** @endcond */

QUARLO_END

#endif
