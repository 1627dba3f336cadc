#include "every_call/calls.h"

namespace quarlo::test {

ProgramCalls drawingCalls() {
    return {
        with("GDSetPixel", GDSetPixel, {5, 4}),
        with("GDGetPixel", GDGetPixel, {5, 4}),
        with("GDMoveTo", GDMoveTo, {2, 3}),
        with("GDLineTo", GDLineTo, {19, 12}),
        with("GDDrawLine", GDDrawLine),
        with("GDDrawRect", GDDrawRect),
        with("GDDrawRectBorder", GDDrawRectBorder, {1}),
        with("GDCalcBorderRect", GDCalcBorderRect),
        with("GDDrawPoly", GDDrawPoly),
        with("GDDrawOval", GDDrawOval),
        with("GDDrawOvalBorder", GDDrawOvalBorder, {1}),
        with("GDDrawRRect", GDDrawRRect, {4, 3}),
        with("GDDrawArc", GDDrawArc, {200, 1400}),
        with("GDDrawPie", GDDrawPie, {900, 200}),
        with("GDDrawBezier", GDDrawBezier),
        onHandle("GDBitBlt",
                 [](Panel& panel) {
                     GVram* const display = GDGetVram(panel.handle());
                     const GRect from = *panel.pointer(static_cast<const GRect*>(nullptr));
                     const GPoint to = *panel.pointer(static_cast<const GPoint*>(nullptr));
                     const GVram* const page = panel.pointer(static_cast<const GVram*>(nullptr));
                     GDBitBlt(panel.handle(), page, from.left, from.top, from.right, from.bottom,
                              display, to.x, to.y, panel.number<int32_t>(G_MODE_XOR));
                 }),
        with("GDFlushScreen", GDFlushScreen, {0, 0, 16, 16}),
        with("GDFlushScreenForce", GDFlushScreenForce, {0, 0, 16, 16}),
        with("GDDrawGrf", GDDrawGrf, {2, 2, 0, 0}),
        with("GDDrawGrfZoom", GDDrawGrfZoom, {1, 1, 9, 7}),
        with("GDDrawImage", GDDrawImage, {4, 3, 2, 2}),
    };
}

} // namespace quarlo::test
