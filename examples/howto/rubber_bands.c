/* Rubber bands: drawn twice, they are gone. */
#include <quarlo/quarlo.h>

/* Inverts the outline of a rectangle, each pixel once. */
void invertFrame(GDrawHandle* handle, const GRect* rect) {
    GRect hole = *rect;
    GRect sides[4] = {*rect};
    hole.left++;
    hole.top++;
    hole.right--;
    hole.bottom--;
    const int32_t count = GRCheckRect(&hole) ? GRRestRect(rect, &hole, sides) : 1;
    GDSetPenColor(handle, G_NO_COLOR);
    GDSetFillAttribute(handle, G_FILL_FORE, 0xFFFFFF, 0xFFFFFF);
    GDSetDrawingMode(handle, G_MODE_XOR);
    for (int32_t i = 0; i < count; i++) {
        GDDrawRect(handle, &sides[i]);
    }
    GDSetDrawingMode(handle, G_MODE_COPY);
}

/* The band follows the pointer: the old one goes, the new one comes. */
void moveBand(GDrawHandle* handle, GRect* band, const GPoint* anchor, const GPoint* pointer) {
    invertFrame(handle, band);
    GRSetRect(band, anchor->x, anchor->y, pointer->x, pointer->y);
    invertFrame(handle, band);
}
