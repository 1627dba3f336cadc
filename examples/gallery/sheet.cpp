#include "sheet.h"

#include "page.h"
#include "sheets/figures.h"

namespace gallery {

const std::vector<Sheet>& sheets() {
    static const std::vector<Sheet> all = {
        {"lines", "Lines", "A thin pen", drawLineFigures},
        {"dashes", "Dashes", "64 steps, measured along the line", drawDashFigures},
        {"wide-lines", "Wide lines", "One thickness at every angle", drawWideLineFigures},
        {"joins", "Joins", "Where two wide lines meet", drawJoinFigures},
        {"rectangles", "Rectangles", "Filled and framed", drawRectangleFigures},
        {"patterns", "Fill patterns", "8 x 8, anchored to the screen", drawPatternFigures},
        {"gradations", "Gradations", "Ramps of up to 256 bands", drawGradationFigures},
        {"borders", "Borders", "Raised and sunken", drawBorderFigures},
        {"polygons", "Polygons", "Filled by the even-odd rule", drawPolygonFigures},
        {"ovals", "Ovals", "Outline and fill always meet", drawOvalFigures},
        {"round-rects", "Rounded rectangles", "Quarters of an ellipse", drawRoundRectFigures},
        {"arcs", "Arcs", "Tenths of a degree from the right", drawArcFigures},
        {"pies", "Pies", "Sectors that fit together", drawPieFigures},
        {"oval-borders", "Oval borders", "Raised and pressed", drawOvalBorderFigures},
        {"beziers", "Bezier curves", "Four points, at most 63 lines", drawBezierFigures},
        {"modes", "Drawing modes", "Old and new pixels, bit by bit", drawModeFigures},
        {"formats", "Pixel formats", "8, 16 and 24 bits, and palettes", drawFormatFigures},
        {"clipping", "Clipping and mapping", "Where drawing goes", drawClippingFigures},
        {"transfers", "Block transfers", "From surface to surface", drawTransferFigures},
        {"text", "Text", "One face, many scripts", drawTextFigures},
        {"captions", "Captions", "Text in a rectangle", drawCaptionFigures},
        {"images", "Images", "Runs of pixels, drawn as they are", drawImageFigures},
    };
    return all;
}

void drawSheet(GDrawHandle* handle, size_t index) {
    const Sheet& sheet = sheets()[index];
    beginPage(handle, static_cast<int>(index) + 1, sheet.title, sheet.remark);
    sheet.drawFigures(handle);
}

} // namespace gallery
