#include "draw.h"
#include "font.h"
#include "page.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

namespace gallery {
namespace {

constexpr int kPanelSize = 16;

GCaptionAttr attributes(int horizontal, int vertical, int margin = 4) {
    GCaptionAttr attr{};
    attr.color = kInk;
    attr.horizontal = static_cast<uint8_t>(horizontal);
    attr.vertical = static_cast<uint8_t>(vertical);
    attr.leftMargin = attr.rightMargin = attr.topMargin = attr.bottomMargin =
        static_cast<int16_t>(margin);
    return attr;
}

/// A plate to write on, and the state for writing on it.
void preparePlate(GDrawHandle* handle, const GRect& figure) {
    fillBox(handle, figure, kSand);
    GDSetTextMode(handle, G_TEXT_TRANSPARENT);
}

void drawAligned(GDrawHandle* handle, const GRect& figure, int horizontal, int vertical,
                 const char16_t* text) {
    const HandleFont font(handle, kPanelSize);
    preparePlate(handle, figure);
    const GCaptionAttr attr = attributes(horizontal, vertical);
    GDDrawCaptionString(handle, &figure, &attr, text);
}

/// All nine places of a line.
void drawAlignments(GDrawHandle* handle) {
    constexpr const char* kAcross[] = {"Left", "Centre", "Right"};
    constexpr const char* kDown[] = {"top", "centre", "bottom"};
    const Grid grid(4, 4);
    for (int i = 0; i < 9; ++i) {
        const int across = i % 3;
        const int down = i / 3;
        drawFigure(handle, grid.figure(down * 4 + across),
                   std::string(kAcross[across]) + ", " + kDown[down],
                   [=](GDrawHandle* to, const GRect& figure) {
                       drawAligned(to, figure, across, down, down == 1 ? u"主軸\nS 1200" : u"Feed");
                   });
    }
}

void tooLong(GDrawHandle* handle, const GRect& figure) {
    drawAligned(handle, figure, 1, 1, u"clipped on both sides, no wrap");
}

void tooMany(GDrawHandle* handle, const GRect& figure) {
    drawAligned(handle, figure, 0, 0, u"N10 G0 X0\r\nN20 G1 Z-5\nN30 X100\nN40 G2 I50\nN50 M30");
}

void scrolled(GDrawHandle* handle, const GRect& figure) {
    const HandleFont font(handle, kPanelSize);
    for (int step = 0; step < 3; ++step) {
        const GRect strip = box(figure.left, figure.top + step * 22, widthOf(figure), 18);
        preparePlate(handle, strip);
        const GCaptionAttr attr = attributes(0, 1, 1);
        GDDrawCaptionScrollString(handle, &strip, &attr, u"Coolant low\r\nrefill soon", 1,
                                  40 + step * 60);
    }
}

/// A field as an editor shows it.
void drawField(GDrawHandle* handle, const GRect& field, const char16_t* text, int cursorPos,
               int style, int firstSelected = 1, int lastSelected = 0) {
    const HandleFont font(handle, kPanelSize);
    fillBox(handle, field, 0xFFFFFF);
    setPen(handle, kGrey);
    GDSetFillPattern(handle, G_FILL_NONE);
    GDDrawRect(handle, &field);
    GDSetTextMode(handle, G_TEXT_TRANSPARENT);
    const GCaptionAttr attr = attributes(0, 1, 2);
    GCaptionCursor cursor{};
    cursor.style = static_cast<uint8_t>(style);
    cursor.color = style == 1 ? 0xFFFFFF : kRed;
    GCaptionSelect selection{};
    selection.shown = firstSelected <= lastSelected ? 1 : 0;
    selection.first = static_cast<uint16_t>(firstSelected);
    selection.last = static_cast<uint16_t>(lastSelected);
    selection.color = 0xFFFFFF;
    GDDrawCaptionCursorSelectString(handle, &field, &attr, &cursor, &selection, cursorPos, text);
    resetState(handle);
}

GRect fieldIn(const GRect& figure, int row) {
    return box(figure.left, figure.top + row * 22, widthOf(figure), 20);
}

void cursors(GDrawHandle* handle, const GRect& figure) {
    drawField(handle, fieldIn(figure, 0), u"12.5", 2, 0);
    drawField(handle, fieldIn(figure, 1), u"12.5", 2, 1);
    drawField(handle, fieldIn(figure, 2), u"", 0, 1);
}

void selections(GDrawHandle* handle, const GRect& figure) {
    drawField(handle, fieldIn(figure, 0), u"#501=25", 7, 0, 1, 3);
    drawField(handle, fieldIn(figure, 1), u"工具補正", 3, 0, 0, 1);
    drawField(handle, fieldIn(figure, 2), u"select all", 10, 0, 0, 9);
}

void scrolledField(GDrawHandle* handle, const GRect& figure) {
    drawField(handle, fieldIn(figure, 0), u"PROGRAM NUMBER O1234", 0, 0);
    drawField(handle, fieldIn(figure, 1), u"PROGRAM NUMBER O1234", 20, 0);
    drawField(handle, fieldIn(figure, 2), u"PROGRAM NUMBER O1234", 17, 1);
}

} // namespace

void drawCaptionFigures(GDrawHandle* handle) {
    drawAlignments(handle);
    const Grid grid(4, 4);
    drawFigure(handle, grid.figure(3), "Too long", tooLong);
    drawFigure(handle, grid.figure(7), "Too many lines", tooMany);
    drawFigure(handle, grid.figure(11), "Scrolled", scrolled);
    drawFigure(handle, grid.figure(12), "Cursors", cursors);
    drawFigure(handle, grid.figure(13), "Selections", selections);
    drawFigure(handle, grid.figure(14), "Scrolled to see", scrolledField);
}

} // namespace gallery
