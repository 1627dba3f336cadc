// What each sheet shows.
#pragma once

#include <quarlo/types.h>

namespace gallery {

void drawLineFigures(GDrawHandle* handle);
void drawDashFigures(GDrawHandle* handle);
void drawWideLineFigures(GDrawHandle* handle);
void drawJoinFigures(GDrawHandle* handle);
void drawRectangleFigures(GDrawHandle* handle);
void drawPatternFigures(GDrawHandle* handle);
void drawGradationFigures(GDrawHandle* handle);
void drawBorderFigures(GDrawHandle* handle);
void drawPolygonFigures(GDrawHandle* handle);
void drawOvalFigures(GDrawHandle* handle);
void drawRoundRectFigures(GDrawHandle* handle);
void drawArcFigures(GDrawHandle* handle);
void drawPieFigures(GDrawHandle* handle);
void drawOvalBorderFigures(GDrawHandle* handle);
void drawBezierFigures(GDrawHandle* handle);
void drawModeFigures(GDrawHandle* handle);
void drawFormatFigures(GDrawHandle* handle);
void drawClippingFigures(GDrawHandle* handle);
void drawTransferFigures(GDrawHandle* handle);
void drawTextFigures(GDrawHandle* handle);
void drawCaptionFigures(GDrawHandle* handle);
void drawImageFigures(GDrawHandle* handle);

} // namespace gallery
