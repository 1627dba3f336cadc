/**
 * @file handle.h
 * The draw handle: the surface that drawing goes to and all drawing state.
 *
 * The state setters do not test the handle for null. Programs read the record freely; they write
 * it through the setters.
 */
#ifndef QUARLO_HANDLE_H
#define QUARLO_HANDLE_H

#include <quarlo/pixel_ops.h>
#include <quarlo/surface.h>
#include <quarlo/types.h>

QUARLO_BEGIN

/** Patterns of a handle. */
enum {
    G_DASH_COUNT = 8,         /**< dash patterns */
    G_FILL_PATTERN_COUNT = 38 /**< fill patterns */
};

/** Fill styles: the negative values of GDrawHandle::fillPattern. */
enum {
    G_FILL_NONE = -1,     /**< nothing is filled */
    G_FILL_BACK = -2,     /**< solid in the back colour */
    G_FILL_FORE = -3,     /**< solid in the fore colour */
    G_FILL_GRADATION = -4 /**< the colour ramp of GDSetGradationInfo() */
};

/** Joins between consecutive wide lines: values of GDrawHandle::penJoin. */
enum {
    G_JOIN_NONE = 0,  /**< the corner stays open */
    G_JOIN_BEVEL = 1, /**< the corner is cut off straight */
    G_JOIN_ROUND = 2  /**< the corner is rounded */
};

/** Bits of GDrawHandle::modeFlags. */
enum { G_FLAG_VIRTUAL = 1 /**< coordinates are mapped from the virtual rectangle */ };

/** Bits of GDrawHandle::textMode. */
enum { G_TEXT_TRANSPARENT = 2 /**< no background box behind glyphs */ };

/** Fill style and colours in one record. */
typedef struct GBrush {
    int32_t pattern; /**< fill style or pattern number, see GDSetFillPattern() */
    uint32_t fore;   /**< fore colour */
    uint32_t back;   /**< back colour */
} GBrush;

/** Directions of a gradation. */
enum {
    G_GRADATION_DOWN = 0,  /**< from the upper edge to the lower one */
    G_GRADATION_ACROSS = 1 /**< from the left edge to the right one */
};

/** A colour ramp for fill style #G_FILL_GRADATION. Any other direction draws nothing. */
typedef struct GGradationInfo {
    uint8_t direction;   /**< #G_GRADATION_DOWN or #G_GRADATION_ACROSS */
    uint32_t startColor; /**< 0x00RRGGBB */
    uint32_t endColor;   /**< 0x00RRGGBB */
    uint16_t lead;       /**< percent of the extent left in the start colour */
    uint16_t steps;      /**< colour bands, at most 256 */
} GGradationInfo;

/** Working state of the polygon filler, valid during one fill. */
typedef struct GPolygonState {
    struct GEdge* pending; /**< edges not yet reached */
    struct GEdge* active;  /**< edges that cross the current line */
    struct GEdge* edges;   /**< the block that holds them all */
    int16_t pattern;       /**< fill pattern number */
    uint16_t mode;         /**< drawing mode */
    uint32_t fore;         /**< fore pixel value */
    uint32_t back;         /**< back pixel value */
    const uint8_t* rows;   /**< the eight pattern bytes, null for a solid fill */
} GPolygonState;

/** What a wide line leaves behind for the join with the next one. */
typedef struct GWideLineState {
    GPoint corners[4];  /**< of the last quadrilateral: two at its start, two at its end */
    GPoint end;         /**< end point of the last segment */
    GPoint previous[2]; /**< end corners of the segment before */
} GWideLineState;

/** Working state of the ellipse fill, valid during one fill. */
typedef struct GEllipseState {
    uint32_t fore;        /**< first colour as a pixel value */
    uint32_t back;        /**< second colour as a pixel value */
    uint16_t mode;        /**< drawing mode */
    const uint8_t* rows;  /**< the eight pattern bytes, or null */
    int16_t leftCentre;   /**< centre column of the left quarters */
    int16_t rightCentre;  /**< centre column of the right quarters */
    int16_t topCentre;    /**< centre row of the upper quarters */
    int16_t bottomCentre; /**< centre row of the lower quarters */
} GEllipseState;

/** What GDDrawArc() and GDDrawPie() leave behind. */
typedef struct GArcState {
    GPoint start;         /**< start point of the last arc, application coordinates */
    GPoint end;           /**< end point of the last arc, application coordinates */
    int32_t inverseSlope; /**< of the last end point, 16.16 fixed point */
} GArcState;

/** A draw handle. All fields are zero after GDOpenDrawHandle() unless stated there. */
struct GDrawHandle {
    GRect view;                /**< the whole surface; limit of every clip rectangle */
    GPoint localOrigin;        /**< application coordinate of surface pixel (0, 0) in local mode */
    GRect virtualRect;         /**< application frame of virtual mode */
    GPoint penPos;             /**< pen position */
    uint32_t penPixel;         /**< pen colour as a pixel value */
    int16_t penWidth;          /**< at least 1 */
    int16_t penHeight;         /**< at least 1 */
    uint16_t penJoin;          /**< #G_JOIN_BEVEL, #G_JOIN_ROUND; any other value draws no join */
    int16_t penDash;           /**< 0 solid, n from 1 to 8 uses row n - 1 of `dashes` */
    int16_t dashPhase;         /**< 0 to 63, carried from one line to the next */
    int16_t textMode;          /**< #G_TEXT_TRANSPARENT or 0 */
    uint32_t forePixel;        /**< fore colour as a pixel value */
    uint32_t backPixel;        /**< back colour as a pixel value */
    int16_t fillPattern;       /**< 0 to 37, or a fill style */
    uint16_t modeFlags;        /**< #G_FLAG_VIRTUAL or 0 */
    int16_t drawingMode;       /**< 0 to 3 */
    GVram* display;            /**< the surface that GDGetVram() gives and closing hands back */
    GVram* target;             /**< the surface that drawing writes to */
    GFontRecord* font;         /**< the current font, or null */
    const GPixelOps* pixelOps; /**< the operations for `target` and `drawingMode` */
    uint8_t dashes[G_DASH_COUNT][8]; /**< 64 steps each, least significant bit first */
    uint8_t fillPatterns[G_FILL_PATTERN_COUNT][8]; /**< eight rows each, bit 7 leftmost */
    GPolygonState polygon;                         /**< of the polygon filler */
    GWideLineState wideLine;                       /**< of wide lines */
    GEllipseState ellipse;                         /**< of the ellipse fill */
    GArcState arc;                                 /**< of arcs and sectors */
    uint16_t error;           /**< mailbox between program and platform: GDQueryError() */
    GGradationInfo gradation; /**< GDSetGradationInfo() */
    uint8_t colorMode;        /**< non-zero: colours are 0x00RRGGBB and converted */
    uint32_t modeRedMask;     /**< red mask of device surfaces, GDSetColorMode() */
    uint32_t modeGreenMask;   /**< green mask of device surfaces */
    uint32_t modeBlueMask;    /**< blue mask of device surfaces */
    int8_t redShift;    /**< from an 8-bit channel to the mask's top bit, left when positive */
    int8_t greenShift;  /**< likewise */
    int8_t blueShift;   /**< likewise */
    uint32_t foreColor; /**< as last given to GDSetForeColor() */
    uint32_t backColor; /**< as last given to GDSetBackColor() */
    uint32_t penColor;  /**< as last given to GDSetPenColor() */
    GWord openArg2;     /**< second argument of GDOpenDrawHandle(), the program's */
    GWord openArg1;     /**< first argument of GDOpenDrawHandle(), the program's */
};

/**
 * Opens a draw handle on device surface 0, with a solid black pen of 1 x 1 pixels, fill pattern 0,
 * drawing mode copy, raw colours, and the default dash and fill patterns.
 *
 * @param first kept in `openArg1`, never read here
 * @param second kept in `openArg2`, never read here
 * @return the handle; null when memory is short or the platform has no surface 0
 */
QUARLO_API GDrawHandle* GDOpenDrawHandle(GWord first, GWord second);

/**
 * Closes a draw handle. A device surface goes back to the platform; a memory surface that is still
 * attached is the program's from now on. Nothing happens for null.
 */
QUARLO_API void GDCloseDrawHandle(GDrawHandle* handle);

/** Marks the begin of a drawing; does nothing. @return the handle */
QUARLO_API GDrawHandle* GDBeginDraw(GDrawHandle* handle);

/** Marks the end of a drawing; does nothing. @return the handle */
QUARLO_API GDrawHandle* GDEndDraw(GDrawHandle* handle);

/**
 * Sets the display surface of a handle, not its drawing target. The previous one is not released.
 *
 * @param number number of the device surface, given to the platform
 * @return 1; 0 for a null handle, or when the platform has no such surface
 */
QUARLO_API int32_t GDSetDisplay(GDrawHandle* handle, int16_t number);

/** Sets the fore colour: a raw pixel value, or 0x00RRGGBB in colour mode; -1 draws nothing. */
QUARLO_API void GDSetForeColor(GDrawHandle* handle, uint32_t color);

/** Sets the back colour, given like a fore colour. */
QUARLO_API void GDSetBackColor(GDrawHandle* handle, uint32_t color);

/** Sets the pen colour, given like a fore colour. */
QUARLO_API void GDSetPenColor(GDrawHandle* handle, uint32_t color);

/** Sets the fore colour, then the back colour. */
QUARLO_API void GDSetFillColor(GDrawHandle* handle, uint32_t fore, uint32_t back);

/**
 * Sets the fill style.
 *
 * @param number low 16 bits, signed: a negative one is a fill style and stored as it is, any other
 *     is a pattern number and stored modulo 38
 */
QUARLO_API void GDSetFillPattern(GDrawHandle* handle, int32_t number);

/** Sets fill style, fore colour and back colour. */
QUARLO_API void GDSetFillAttribute(GDrawHandle* handle, int32_t pattern, uint32_t fore,
                                   uint32_t back);

/** Sets fill style, fore colour and back colour from a record. */
QUARLO_API void GDSetBrush(GDrawHandle* handle, const GBrush* brush);

/**
 * Defines a fill pattern.
 *
 * @param number 0 to 37; any other number defines nothing
 * @param rows eight rows from the top, bit 7 leftmost
 */
QUARLO_API void GDDefineFillPattern(GDrawHandle* handle, int16_t number, const uint8_t rows[8]);

/**
 * Defines a dash pattern.
 *
 * @param number 1 to 8. A number below 1 does nothing, a larger one counts modulo 9, and dash 9 is
 *     fill pattern 0, which lies behind dash 8.
 * @param steps 64 steps, byte k holding steps 8k to 8k + 7 from its least significant bit
 */
QUARLO_API void GDDefinePenDash(GDrawHandle* handle, int32_t number, const uint8_t steps[8]);

/** Chooses a dash: 0 solid, 1 to 8 a dash pattern (low 16 bits, unchecked). */
QUARLO_API void GDSetPenDash(GDrawHandle* handle, int32_t number);

/** Chooses the join of wide lines (low 16 bits, unchecked). */
QUARLO_API void GDSetPenJoin(GDrawHandle* handle, int32_t join);

/** Sets the pen size in pixels; a value below 1 counts as 1. */
QUARLO_API void GDSetPenSize(GDrawHandle* handle, int16_t width, int16_t height);

/**
 * Sets the drawing mode, 0 to 3 (low 16 bits, unchecked). On a memory surface a wild mode draws
 * nothing, or in another pixel format: the operations are those of entry mode + 4 x bits a pixel.
 */
QUARLO_API void GDSetDrawingMode(GDrawHandle* handle, int32_t mode);

/** Sets the text mode (low 16 bits, unchecked): #G_TEXT_TRANSPARENT or 0. */
QUARLO_API void GDSetTextMode(GDrawHandle* handle, int32_t mode);

/** Does nothing: text is aligned by the caption calls only. @return the handle */
QUARLO_API GDrawHandle* GDSetTextAlign(GDrawHandle* handle, int32_t alignment);

/**
 * Sets the gradation of fill style #G_FILL_GRADATION; the record is copied.
 */
QUARLO_API void GDSetGradationInfo(GDrawHandle* handle, const GGradationInfo* info);

/**
 * Forwards to service 10 (which the platform must have): changes palette entries of the handle's
 * device surface.
 *
 * @param first first entry
 * @param count number of entries
 * @param colors `count` colours, 0x00RRGGBB
 * @return the service's result
 */
QUARLO_API GWord GDSetPalette(GDrawHandle* handle, int32_t first, int32_t count,
                              const uint32_t* colors);

/** Forwards to service 11, reading the entries that GDSetPalette() sets. */
QUARLO_API GWord GDGetPalette(GDrawHandle* handle, int32_t first, int32_t count, uint32_t* colors);

QUARLO_END

#endif
