/**
 * @file font.h
 * Fonts and text metrics.
 *
 * Fonts belong to the platform. Text is NUL-terminated UTF-16; the platform decides how many units
 * one glyph takes. A function whose service the platform lacks returns 0 and does nothing else.
 */
#ifndef QUARLO_FONT_H
#define QUARLO_FONT_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Units of a face name, its NUL included. */
enum { G_FACE_SIZE = 33 };

/** How a font's glyphs are enlarged by the library. */
typedef struct GFontScale {
    uint8_t reserved[16]; /**< the platform's */
    uint8_t magnifyX;     /**< columns drawn for each glyph column, 1 to 255; 0 counts as 1 */
    uint8_t magnifyY;     /**< rows drawn for each glyph row, likewise */
} GFontScale;

/** A font: the begin of the platform's own record, which is all that the library reads of it. */
struct GFontRecord {
    uint16_t reserved; /**< the platform's */
    uint16_t kind;     /**< 0 for an ordinary font; captions do not magnify any other */
    GFontScale* scale; /**< never null */
};

/** Properties of a font. */
typedef struct GFontAttribute {
    uint16_t height;        /**< of a glyph cell, pixels */
    uint16_t wideWidth;     /**< of the cell of an ideograph, pixels; other cells have half of it */
    uint16_t bitsPerPixel;  /**< of glyph bitmaps: 1, 2, 4 */
    uint16_t bold;          /**< 1 emboldened, 0 as drawn */
    uint16_t reserved1[4];  /**< 0 */
    uint16_t magnification; /**< low byte across, high byte down, 1 to 8 each; 0 counts as 1 */
    uint16_t reserved2;     /**< 0 */
} GFontAttribute;

/** Bits of GSimpleFont::flags. */
enum { G_SIMPLE_FONT_BOLD = 1 /**< emboldened */ };

/** Face and properties in one record, for GDSetSimpleFont(). It need not be aligned. */
typedef struct GSimpleFont {
    char16_t face[G_FACE_SIZE]; /**< name, NUL-terminated */
    uint8_t size;               /**< cell height and ideograph width, pixels */
    uint8_t magnifyX;           /**< magnification across */
    uint8_t magnifyY;           /**< magnification down */
    uint8_t bitsPerPixel;       /**< of glyph bitmaps: 1, 2, 4 */
    uint8_t flags;              /**< #G_SIMPLE_FONT_BOLD or 0 */
} GSimpleFont;

/** What a program keeps with a font. */
typedef struct GFontUserAttribute {
    char16_t substitute; /**< shown for a character without a glyph; 0: it counts as missing */
    uint16_t reserved;   /**< 0 */
    GWord data;          /**< the program's own */
} GFontUserAttribute;

/** Bits of GFontInformation::flags. */
enum {
    G_FONT_FIXED = 1,     /**< all glyphs have the cell's width or half of it */
    G_FONT_BITMAP = 2,    /**< the face has bitmaps of this size */
    G_FONT_IDEOGRAPHS = 4 /**< the font has ideographs */
};

/** What the platform tells of a font. */
typedef struct GFontInformation {
    char16_t face[G_FACE_SIZE]; /**< the name that the font was loaded by */
    uint16_t flags;             /**< any of #G_FONT_FIXED, #G_FONT_BITMAP, #G_FONT_IDEOGRAPHS */
    int16_t width;              /**< of a half-width cell, pixels */
    int16_t height;             /**< of a cell, pixels */
    int16_t ascent;             /**< rows above the base line */
    uint16_t bitsPerPixel;      /**< of glyph bitmaps */
    uint32_t cachedGlyphs;      /**< glyphs held ready */
    uint32_t cachedBytes;       /**< memory that they take */
} GFontInformation;

/** One question to the platform's glyph service, and its answer. */
typedef struct GGlyphRequest {
    const char16_t* text; /**< in: the first unit of a glyph */
    const char16_t* next; /**< out: the unit after it */
    int16_t width;        /**< out: advance and bitmap width, pixels */
    int16_t height;       /**< out: cell and bitmap height, pixels */
    int16_t bitsPerPixel; /**< out: 1, 2, 4 or 8 */
    const uint8_t* bits;  /**< out: rows of (width x bitsPerPixel + 7) / 8 bytes, top row first,
                               left pixel in the highest bits; the platform's, valid until its
                               next call */
    uint16_t metricsOnly; /**< in: 1 when only next, width and height are wanted */
} GGlyphRequest;

/**
 * Forwards to service 13: loads a font.
 *
 * @param face name of the face, or the address of a GSimpleFont, which begins with it; it need not
 *     be aligned
 * @return the font, released by GFReleaseFont(); null when there is no such face
 */
QUARLO_API GFontRecord* GFLoadFont(const char16_t* face);

/** Forwards to service 21: gives a font back. Nothing happens for null. */
QUARLO_API void GFReleaseFont(GFontRecord* font);

/**
 * Forwards to service 14: sets the cell size of a font.
 *
 * @param width of a half-width cell, pixels; ideographs take twice that
 * @param height of a cell, pixels
 * @return 1; 0 when refused
 */
QUARLO_API int32_t GFSetSize(GFontRecord* font, int16_t width, int16_t height);

/** Forwards to service 15: reads what GFSetSize() sets. @return 1; 0 when refused */
QUARLO_API int32_t GFGetSize(GFontRecord* font, int16_t* width, int16_t* height);

/** Forwards to service 16: sets the properties of a font. @return 1; 0 when refused */
QUARLO_API int32_t GFSetFontAttribute(GFontRecord* font, const GFontAttribute* attribute);

/** Forwards to service 17: reads the properties of a font. @return 1; 0 when refused */
QUARLO_API int32_t GFGetFontAttribute(GFontRecord* font, GFontAttribute* attribute);

/** Forwards to service 18: sets what the program keeps with a font. @return 1; 0 when refused */
QUARLO_API int32_t GFSetFontUserAttribute(GFontRecord* font, const GFontUserAttribute* attribute);

/** Forwards to service 19: reads what the program keeps with a font. @return 1; 0 when refused */
QUARLO_API int32_t GFGetFontUserAttribute(GFontRecord* font, GFontUserAttribute* attribute);

/** Forwards to service 25: tells of a font. @return 1; 0 when refused */
QUARLO_API int32_t GFGetFontInformation(GFontRecord* font, GFontInformation* information);

/**
 * Forwards to service 207: which form an ideograph takes that two scripts share.
 *
 * @param flag 1 Simplified Chinese first, 0 Japanese first
 * @return 1; 0 when refused
 */
QUARLO_API int32_t GFSetGBFontFlag(int32_t flag);

/** Number of fonts that the platform offers. */
QUARLO_API int32_t GFGetFontCount(void);

/**
 * Sets the font of a draw handle; the font stays the caller's.
 *
 * @param font the font; with null no text is drawn
 * @return 1; 0 for a null handle
 */
QUARLO_API int32_t GDSetFont(GDrawHandle* handle, GFontRecord* font);

/**
 * Loads a font, sets its properties and makes it the handle's font.
 *
 * @param descriptor face and properties; it need not be aligned
 * @return the font, owned by the caller; null, with the handle left without a font, when there is
 *     no such face
 */
QUARLO_API GFontRecord* GDSetSimpleFont(GDrawHandle* handle, const GSimpleFont* descriptor);

/** Advance of one unit in the handle's font, pixels; 0 when it has no glyph. */
QUARLO_API int16_t GDGetCharWidth(GDrawHandle* handle, char16_t unit);

/** Cell height of one unit in the handle's font, pixels; 0 when it has no glyph. */
QUARLO_API int16_t GDGetCharHeight(GDrawHandle* handle, char16_t unit);

/**
 * Sum of the advances of a string in the handle's font, all its lines together; see
 * GDGetStringSize() for the widest. Units without a glyph and line feeds add nothing. Wraps around
 * at 16 bits.
 */
QUARLO_API int16_t GDGetStringWidth(GDrawHandle* handle, const char16_t* text);

/**
 * Size of a string in the handle's font: its widest line, and as many heights of the letter A as
 * it has lines. Every line feed begins a line, also the last.
 *
 * @param out receives the size; it need not be aligned
 * @return `out`
 */
QUARLO_API GSize* GDGetStringSize(GSize* out, GDrawHandle* handle, const char16_t* text);

QUARLO_END

#endif
