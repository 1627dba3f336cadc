/**
 * @file text.h
 * Drawing text: strings at the pen position, captions in a rectangle, and the error message.
 *
 * Glyphs are drawn in the pen colour (-1: none), their background in the back colour unless that is
 * -1 or the text mode is #G_TEXT_TRANSPARENT. Nothing is drawn when the text is null or the handle
 * has no font. Units without a glyph are skipped. Handles and records must not be null.
 */
#ifndef QUARLO_TEXT_H
#define QUARLO_TEXT_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Horizontal alignment of a caption. */
enum {
    G_ALIGN_LEFT = 0,   /**< lines begin at the left edge */
    G_ALIGN_CENTRE = 1, /**< lines stand in the middle */
    G_ALIGN_RIGHT = 2   /**< lines end at the right edge */
};

/** Vertical alignment of a caption. */
enum {
    G_ALIGN_TOP = 0,    /**< the first line stands at the upper edge */
    G_ALIGN_MIDDLE = 1, /**< the lines stand in the middle */
    G_ALIGN_BOTTOM = 2  /**< the last line stands at the lower edge */
};

/** How a caption looks and lies in its rectangle. Margins are application coordinates. */
typedef struct GCaptionAttr {
    uint32_t color;       /**< text colour, given like a pen colour */
    uint8_t horizontal;   /**< #G_ALIGN_LEFT, #G_ALIGN_CENTRE, #G_ALIGN_RIGHT */
    uint8_t vertical;     /**< #G_ALIGN_TOP, #G_ALIGN_MIDDLE, #G_ALIGN_BOTTOM */
    int16_t leftMargin;   /**< taken off the rectangle before anything is laid out */
    int16_t rightMargin;  /**< likewise */
    int16_t topMargin;    /**< likewise */
    int16_t bottomMargin; /**< likewise */
} GCaptionAttr;

/** Cursor styles; any other style is a bar. */
enum {
    G_CURSOR_BAR = 0,  /**< 2 pixels wide, before a glyph */
    G_CURSOR_BLOCK = 1 /**< a glyph, inverted */
};

/** The cursor of a caption. */
typedef struct GCaptionCursor {
    uint8_t style;  /**< #G_CURSOR_BAR or #G_CURSOR_BLOCK */
    uint32_t color; /**< given like a fore colour */
} GCaptionCursor;

/** The selection of a caption. On text of several lines it selects the same columns of each. */
typedef struct GCaptionSelect {
    uint8_t shown;  /**< 0 for no selection */
    uint16_t first; /**< first selected glyph of a line, from 0 */
    uint16_t last;  /**< last selected glyph of a line */
    uint32_t color; /**< inverts, given like a fore colour */
} GCaptionSelect;

/**
 * Draws a string at the pen position, its upper left corner, and moves the pen past it. A line feed
 * is a character like any other. A font that is not magnified is left to service 44, if the
 * platform has it; it moves the pen then.
 */
QUARLO_API void GDDrawString(GDrawHandle* handle, const char16_t* text);

/**
 * Draws a caption: text laid out in a rectangle less its margins, and clipped to that. Lines end at
 * LF and CR LF and are never wrapped; lines that begin below the rectangle are dropped. Nothing is
 * drawn in an empty rectangle, without a letter A in the font, or when memory is short.
 *
 * Clip rectangle and pen colour are restored; the pen position is not.
 *
 * @param rect application coordinates
 */
QUARLO_API void GDDrawCaptionString(GDrawHandle* handle, const GRect* rect,
                                    const GCaptionAttr* attr, const char16_t* text);

/**
 * Draws a caption as GDDrawCaptionString() does, but hands every line to service 75; without that
 * nothing is drawn.
 */
QUARLO_API void GDDrawCaptionStringDirect(GDrawHandle* handle, const GRect* rect,
                                          const GCaptionAttr* attr, const char16_t* text);

/**
 * Draws a caption of one line, scrolled. Every CR and LF is left out.
 *
 * @param fromRight 0 to start from where the alignment puts the line, any other value from the
 *     right edge
 * @param scroll pixels that the line stands further left
 */
QUARLO_API void GDDrawCaptionScrollString(GDrawHandle* handle, const GRect* rect,
                                          const GCaptionAttr* attr, const char16_t* text,
                                          int32_t fromRight, int32_t scroll);

/**
 * Draws a caption with cursor and selection, scrolled so that the cursor is visible.
 *
 * Clip rectangle, drawing mode and pen colour are restored; fill style and fore colour are left as
 * the last cursor or selection needed them.
 *
 * @param cursorPos characters, line breaks counting as one each, before the cursor; a position
 *     past the end shows none. An empty text with position 0 shows the cursor alone.
 */
QUARLO_API void GDDrawCaptionCursorSelectString(GDrawHandle* handle, const GRect* rect,
                                                const GCaptionAttr* attr,
                                                const GCaptionCursor* cursor,
                                                const GCaptionSelect* selection, int32_t cursorPos,
                                                const char16_t* text);

/** GDDrawCaptionCursorSelectString() without a selection. */
QUARLO_API void GDDrawCaptionCursorString(GDrawHandle* handle, const GRect* rect,
                                          const GCaptionAttr* attr, const GCaptionCursor* cursor,
                                          int32_t cursorPos, const char16_t* text);

/**
 * Shows one line of white text on red on the display, without any draw handle of the program: for
 * when its own cannot be trusted. Services 3 and 75 do it; without either nothing is shown.
 *
 * The line stands at a fixed place of a display of 640 x 480 pixels, and at another of any other
 * size, as "Config.ini", section "SCREEN", keys "WIDTH" and "HEIGHT", gives it.
 *
 * @param message NUL-terminated, in the system's code page; at most 128 units are shown
 */
QUARLO_API void GDDrawErrorMessage(const char* message);

QUARLO_END

#endif
