/**
 * @file draw.h
 * The drawing primitives.
 *
 * Coordinates are application coordinates of the handle. Everything is confined to the clip
 * rectangle of the handle's target surface. Fills take the fill style, the fore and the back
 * colour, outlines the pen; all take the drawing mode. A pen colour of -1 draws no outline, a fore
 * or back colour of -1 no solid fill. Handles and records must not be null unless a function says
 * so; whatever is missing below (an operation of a pixel format, memory for a fill) draws nothing.
 *
 * Where a pattern is filled, service 69 is told of it first, if the platform has it.
 */
#ifndef QUARLO_DRAW_H
#define QUARLO_DRAW_H

#include <quarlo/types.h>

#include <string.h>

QUARLO_BEGIN

/** A bevelled border. Colours are given like a fore colour. */
typedef struct GBorderStyle {
    int32_t enabled;     /**< 0 for no border; the rectangle functions read its low 8 bits only */
    uint32_t colorA;     /**< light colour */
    uint32_t colorB;     /**< dark colour */
    uint32_t frameColor; /**< colour of the line around it, -1 for none */
    int32_t width;       /**< pixels; the rectangle functions read its low 16 bits, signed */
} GBorderStyle;

/** Styles of GDDrawRectBorder(). */
enum {
    G_BORDER_RAISED = 0, /**< light above and on the left */
    G_BORDER_SUNKEN = 1  /**< dark above and on the left */
};

/**
 * Draws one pixel in the pen colour and moves the pen to it. A pen colour of -1 does neither.
 *
 * @return the result of the pixel operation; 0 outside the clip rectangle; -1 without a pen colour
 */
QUARLO_API int32_t GDSetPixel(GDrawHandle* handle, int16_t x, int16_t y);

/**
 * Reads one pixel.
 *
 * @return the pixel value; -1 outside the clip rectangle and on a surface that cannot be read
 */
QUARLO_API uint32_t GDGetPixel(GDrawHandle* handle, int16_t x, int16_t y);

/** Moves the pen without drawing. */
QUARLO_API void GDMoveTo(GDrawHandle* handle, int16_t x, int16_t y);

/**
 * Draws from the pen position to a point, both included, moves the pen there and restarts the
 * dash. A pen colour of -1 does nothing of it.
 */
QUARLO_API void GDLineTo(GDrawHandle* handle, int16_t x, int16_t y);

/**
 * Draws a line with both its end points; the pen position stays. A line without length draws
 * nothing. The dash goes on from where the last line left it.
 *
 * @param line mapped to surface coordinates in place
 * @return 1 when it was drawn or walked; 0 when nothing of it is visible (a dashed line is walked
 *     even then) or the pen colour is -1
 */
QUARLO_API int32_t GDDrawLine(GDrawHandle* handle, GLine* line);

/**
 * Fills a rectangle, then frames it on its edges. Nothing is drawn when no part of the rectangle
 * itself is visible, however wide the pen. The dash restarts after a frame.
 *
 * A gradation is laid out over the whole rectangle, whatever part of it is visible.
 */
QUARLO_API void GDDrawRect(GDrawHandle* handle, const GRect* rect);

/**
 * Draws a bevelled border inside a rectangle. Pen colour, size and dash, fill style, fore and back
 * colour are left as the border needed them.
 *
 * @param handle the handle; null only computes
 * @param rect the outer rectangle; null does nothing
 * @param inner receives the rectangle left inside the border; may be null
 * @param border the border; one that is not enabled leaves `rect` as it is
 * @param style #G_BORDER_RAISED or #G_BORDER_SUNKEN; any other keeps the handle's fill style
 */
QUARLO_API void GDDrawRectBorder(GDrawHandle* handle, const GRect* rect, GRect* inner,
                                 const GBorderStyle* border, uint16_t style);

/**
 * Computes the area inside a border, which with a frame colour is one pixel smaller on each side
 * than the one that GDDrawRectBorder() gives for a width of one or more.
 *
 * @param rect the outer rectangle; null does nothing
 * @param inner receives the rectangle left inside; may be null. Not written when the border is
 *     enabled and its frame colour, taken as signed, is negative.
 * @param outer receives a copy of `rect`; may be null
 * @param border the border
 */
QUARLO_API void GDCalcBorderRect(const GRect* rect, GRect* inner, GRect* outer,
                                 const GBorderStyle* border);

/**
 * Fills a polygon by the even-odd rule, then frames it. The last point joins the first. A vertex at
 * which edges end downwards takes no part in the fill: the lowest row is not filled.
 *
 * Fewer than three points, or edges that are all horizontal, fill nothing. Gradation is no style of
 * polygons. Runs of points made by GDSetTableEdge() stand for edges that follow a table; frame none
 * with such runs.
 *
 * @param poly its points are changed while it is drawn and then changed back, in virtual mode by a
 *     mapping there and back that may round
 */
QUARLO_API void GDDrawPoly(GDrawHandle* handle, GPoly* poly);

/** The x of the point that marks a table edge. No polygon can have it as a coordinate. */
enum { G_TABLE_EDGE = INT16_MIN };

/**
 * Turns four points of a polygon into one edge whose column on each row comes from a table. The
 * run's first and last point are ordinary points: their rows are the edge's, and the next edge
 * starts at the last. A run cannot close the polygon: its last point must be one of the array.
 *
 * The table must stay as it is while the polygon is drawn. Where pointers have more than 32 bits,
 * the run holds the distance to its table, so both must be copied together and lie within 2 GB of
 * each other: best in one record or block.
 *
 * @param run four points, the first and last of them set; the two between are overwritten
 * @param columns surface columns, one for each row from the first point's to the last's, both
 *     included
 * @param bottomUp non-zero when `columns` starts with the bottom row, 0 when with the top row
 * @return 1; 0 with nothing written when the table lies too far away
 */
static inline int32_t GDSetTableEdge(GPoint run[4], const int16_t* columns, int32_t bottomUp) {
    const int32_t lowest = run[0].y < run[3].y ? 3 : 0;
#if UINTPTR_MAX > UINT32_MAX
    const intptr_t distance = (intptr_t)((uintptr_t)columns - (uintptr_t)&run[2]);
    const int32_t reference = (int32_t)distance;
    if (distance != reference) {
        return 0;
    }
#else
    const uintptr_t reference = (uintptr_t)columns;
#endif
    run[1].x = G_TABLE_EDGE;
    run[1].y = run[bottomUp ? lowest : 3 - lowest].y;
    memcpy(&run[2], &reference, sizeof run[2]);
    return 1;
}

/**
 * Fills and outlines the ellipse inscribed in a rectangle. All fill styles, gradation included.
 */
QUARLO_API void GDDrawOval(GDrawHandle* handle, const GRect* rect);

/**
 * Draws a bevelled ring inside the ellipse of a rectangle. Pen colour, size and dash and the fill
 * style are left as the ring needed them.
 *
 * @param handle the handle; null only computes
 * @param rect the outer rectangle; null does nothing
 * @param inner receives the rectangle left inside the border; may be null
 * @param border the border: `colorA` from 45 to 225 degrees, `colorB` on the other half
 * @param pressed non-zero swaps the two colours
 */
QUARLO_API void GDDrawOvalBorder(GDrawHandle* handle, const GRect* rect, GRect* inner,
                                 const GBorderStyle* border, int16_t pressed);

/**
 * Fills and outlines a rectangle whose corners are quarters of an ellipse. Gradation is no style of
 * rounded rectangles: nothing is filled.
 *
 * @param rx horizontal radius, application units, at most half the width; below 0 counts as 0
 * @param ry vertical radius, likewise
 */
QUARLO_API void GDDrawRRect(GDrawHandle* handle, const GRect* rect, int16_t rx, int16_t ry);

/**
 * Draws part of the outline of the ellipse inscribed in a rectangle, from the start angle in the
 * direction of growing angles to the end angle.
 *
 * The arc's end points are left in the handle, in application coordinates.
 *
 * @param startAngle tenths of a degree, full turns taken off: 0 on the right, 900 at the top
 * @param endAngle likewise; equal angles give an arc of no length
 */
QUARLO_API void GDDrawArc(GDrawHandle* handle, const GRect* rect, int16_t startAngle,
                          int16_t endAngle);

/**
 * Fills a sector of an ellipse and outlines it: an arc as of GDDrawArc() and the two radii. Fill
 * style #G_FILL_NONE still draws the outline; gradation is no style of sectors: nothing is filled.
 */
QUARLO_API void GDDrawPie(GDrawHandle* handle, const GRect* rect, int16_t startAngle,
                          int16_t endAngle);

/**
 * Draws a cubic Bezier curve with the pen, as at most 63 lines. A pen colour of -1 draws nothing.
 *
 * @param poly four points: start, two control points, end; `count` and `bounds` are not read
 */
QUARLO_API void GDDrawBezier(GDrawHandle* handle, const GPoly* poly);

QUARLO_END

#endif
