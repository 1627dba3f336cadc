#include "draw.h"
#include "page.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

#include <string>

namespace gallery {

void drawPatternFigures(GDrawHandle* handle) {
    const Grid grid(8, 5);
    const auto filled = [](int style) {
        return [style](GDrawHandle* to, const GRect& figure) {
            GDSetFillAttribute(to, style, kInk, kPaper);
            GDDrawRect(to, &figure);
        };
    };
    int place = 0;
    for (; place < G_FILL_PATTERN_COUNT; ++place) {
        drawFigure(handle, grid.figure(place), std::to_string(place), filled(place));
    }
    drawFigure(handle, grid.figure(place++), "Fore", filled(G_FILL_FORE));
    drawFigure(handle, grid.figure(place++), "Back", filled(G_FILL_BACK));
}

} // namespace gallery
