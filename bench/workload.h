// What is measured: one list of workloads for all contenders.
#pragma once

#include "canvas.h"
#include "format.h"

#include <string>
#include <vector>

namespace bench {

enum class Operation {
    Fill,     ///< solid rectangle
    Pattern,  ///< rectangle of a two-colour 8 x 8 pattern, anchored to the surface's origin
    Span,     ///< horizontal line
    Column,   ///< vertical line
    Line,     ///< thin line of any direction
    LineTo,   ///< the same, by moving the pen and drawing from there
    Dash,     ///< thin line of any direction, eight pixels on and eight off
    WideLine, ///< line of any direction, five pixels wide, butt ends
    Transfer, ///< copy between surfaces of one format
    Scroll,   ///< the whole surface onto itself by one pixel
    Convert,  ///< copy between surfaces of different formats
    Triangle, ///< filled
    Star,     ///< filled by the even-odd rule, crossing itself
    Ragged,   ///< filled outline of a thousand vertices
    Scribble, ///< filled polygon of a thousand random points
    Oval,     ///< filled
    OvalLine, ///< thin outline
    RoundRect,
    RoundRectLine,
    Arc, ///< thin
    Pie, ///< filled
    Bezier,
    Text,       ///< a line of 40 glyphs of 8 x 16 pixels
    OpaqueText, ///< the same with its background
    Caption,    ///< five centred lines of such glyphs
    Measure,    ///< the width of a line, nothing drawn
    Image,      ///< of runs, half of it transparent
    ImageRight, ///< the right half of the image; the left one is clipped away
    ImageLower, ///< the lower half
    ImageZoom,  ///< the image enlarged or reduced
};

/// How a source combines with what is there, byte by byte.
enum class Mode { Copy, And, Or, Xor };

/// How far a scroll moves its content.
struct Step {
    int x;
    int y;
};

struct Workload {
    Operation operation;
    int width;  ///< pixels across; of a line its length, or 0 for any length
    int height; ///< rows; of a line the same as its width
    Format format;
    Format source; ///< differs from `format` in conversions only
    Mode mode;
    Step step; ///< of scrolls
};

/// Every workload, in the order of the report.
std::vector<Workload> allWorkloads();

/// As in reports: operation, size, format and mode.
std::string nameOf(const Workload& workload);

bool isLine(Operation operation);

/// Everything with an outline that is neither a rectangle nor a line.
bool isShape(Operation operation);

bool isText(Operation operation);

bool isImage(Operation operation);

/// Pixels on and off of a dashed line.
inline constexpr int kDash = 8;

inline constexpr int kWidePen = 5;

} // namespace bench
