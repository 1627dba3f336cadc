#include "sheet.h"

#include "page.h"
#include "sheets/figures.h"

namespace gallery {

const std::vector<Sheet>& sheets() {
    static const std::vector<Sheet> all = {
        {"lines", "LINES", "A THIN PEN", drawLineFigures},
        {"dashes", "DASHES", "64 STEPS, MEASURED ALONG THE LINE", drawDashFigures},
        {"wide-lines", "WIDE LINES", "ONE THICKNESS AT EVERY ANGLE", drawWideLineFigures},
        {"joins", "JOINS", "WHERE TWO WIDE LINES MEET", drawJoinFigures},
        {"rectangles", "RECTANGLES", "FILLED AND FRAMED", drawRectangleFigures},
        {"patterns", "FILL PATTERNS", "8 x 8, ANCHORED TO THE SCREEN", drawPatternFigures},
        {"gradations", "GRADATIONS", "RAMPS OF UP TO 256 BANDS", drawGradationFigures},
        {"borders", "BORDERS", "RAISED AND SUNKEN", drawBorderFigures},
        {"polygons", "POLYGONS", "FILLED BY THE EVEN-ODD RULE", drawPolygonFigures},
        {"ovals", "OVALS", "OUTLINE AND FILL ALWAYS MEET", drawOvalFigures},
        {"round-rects", "ROUNDED RECTANGLES", "QUARTERS OF AN ELLIPSE", drawRoundRectFigures},
        {"arcs", "ARCS", "TENTHS OF A DEGREE FROM THE RIGHT", drawArcFigures},
        {"pies", "PIES", "SECTORS THAT FIT TOGETHER", drawPieFigures},
        {"oval-borders", "OVAL BORDERS", "RAISED AND PRESSED", drawOvalBorderFigures},
        {"beziers", "BEZIER CURVES", "FOUR POINTS, AT MOST 63 LINES", drawBezierFigures},
        {"modes", "DRAWING MODES", "OLD AND NEW PIXELS, BIT BY BIT", drawModeFigures},
        {"formats", "PIXEL FORMATS", "8, 16 AND 24 BITS, AND PALETTES", drawFormatFigures},
        {"clipping", "CLIPPING AND MAPPING", "WHERE DRAWING GOES", drawClippingFigures},
        {"transfers", "BLOCK TRANSFERS", "FROM SURFACE TO SURFACE", drawTransferFigures},
    };
    return all;
}

void drawSheet(GDrawHandle* handle, size_t index) {
    const Sheet& sheet = sheets()[index];
    beginPage(handle, static_cast<int>(index) + 1, sheet.title, sheet.remark);
    sheet.drawFigures(handle);
}

} // namespace gallery
