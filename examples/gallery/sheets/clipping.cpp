#include "draw.h"
#include "page.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

namespace gallery {
namespace {

constexpr GRect kEverything = {INT16_MIN, INT16_MIN, INT16_MAX, INT16_MAX};

void outline(GDrawHandle* handle, const GRect& rect, uint32_t color) {
    GDSetFillPattern(handle, G_FILL_NONE);
    setPen(handle, color, 1, 6);
    GDDrawRect(handle, &rect);
}

void rosette(GDrawHandle* handle, GPoint centre, int radius) {
    GDSetFillAttribute(handle, G_FILL_FORE, kBlue, kBlue);
    noPen(handle);
    drawPolygon(handle, starPoints(centre, radius, 17, 7));
}

void replaced(GDrawHandle* handle, const GRect& figure) {
    const GRect window = inset(figure, 22);
    outline(handle, window, kRed);
    GDSetClipRect(handle, &window);
    rosette(handle, centreOf(figure), heightOf(figure) / 2);
}

/// A clip narrowed three times, each part in another colour.
void narrowed(GDrawHandle* handle, const GRect& figure) {
    constexpr uint32_t kColors[] = {kSand, kGold, kRed};
    for (int i = 0; i < 3; ++i) {
        const GRect window = edges(figure.left + 14 * i, figure.top + 26 * i,
                                   figure.right - 40 + 20 * i, figure.bottom - 6 * i);
        GDInceptClipRect(handle, &window, nullptr);
        GDSetFillAttribute(handle, G_FILL_FORE, kColors[i], kColors[i]);
        noPen(handle);
        GDDrawRect(handle, &kEverything);
    }
}

/// A box drawn after every push, a bar after every pop.
void stacked(GDrawHandle* handle, const GRect& figure) {
    constexpr uint32_t kColors[] = {kSand, kGold, kRed, kBlue};
    constexpr int kDepth = static_cast<int>(std::size(kColors));
    for (int i = 0; i < kDepth; ++i) {
        const GRect window = inset(figure, i * 11);
        GDPushClipRect(handle, &window);
        fillBox(handle, kEverything, kColors[i]);
    }
    for (int i = 0; i < kDepth; ++i) {
        fillBox(
            handle,
            edges(INT16_MIN, figure.bottom - 48 + i * 12, INT16_MAX, figure.bottom - 44 + i * 12),
            kInk);
        GDPopClipRect(handle);
    }
}

/// Tangents of a circle that begin and end far outside.
void farOutside(GDrawHandle* handle, const GRect& figure) {
    constexpr int kFar = 30000;
    constexpr int kStep = 100;
    GDSetClipRect(handle, &figure);
    for (int angle = 0; angle < 3600; angle += kStep) {
        const GPoint touch = onCircle(centreOf(figure), 24, angle);
        const GPoint from = onCircle(touch, kFar, angle + 900);
        const GPoint to = onCircle(touch, kFar, angle - 900);
        drawLine(handle, from.x, from.y, to.x, to.y);
    }
}

/// One drawing behind four windows, each with an origin of its own.
void scrolled(GDrawHandle* handle, const GRect& figure) {
    constexpr int kGap = 6;
    const int width = (widthOf(figure) - kGap) / 2;
    const int height = (heightOf(figure) - kGap) / 2;
    for (int i = 0; i < 4; ++i) {
        const GPoint noOrigin = {0, 0};
        GDSetLocalOrigin(handle, &noOrigin);
        const GRect window = box(figure.left + i % 2 * (width + kGap),
                                 figure.top + i / 2 * (height + kGap), width, height);
        GDSetClipRect(handle, &window);
        fillBox(handle, window, kSand);
        const GPoint origin = point(-window.left - i * 15, -window.top - i * 5);
        GDSetLocalOrigin(handle, &origin);
        rosette(handle, point(8, 16), 40);
    }
}

/// The same calls with the origin moved.
void origins(GDrawHandle* handle, const GRect& figure) {
    constexpr int kSteps = 6;
    for (int i = 0; i < kSteps; ++i) {
        const GPoint origin = point(-figure.left - i * 20, -figure.top - i * 11);
        GDSetLocalOrigin(handle, &origin);
        GDSetFillAttribute(handle, G_FILL_FORE, i % 2 == 0 ? kSand : kGold, kSand);
        drawPolygon(handle, {point(0, 36), point(12, 0), point(24, 36)});
    }
}

constexpr int kUnits = 1000;

/// A house, 1000 units wide and high.
void house(GDrawHandle* handle) {
    const auto filled = [&](uint32_t color) {
        GDSetFillAttribute(handle, G_FILL_FORE, color, color);
    };
    setPen(handle, kInk);
    filled(kSand);
    GRect walls = edges(120, 420, 880, 1000);
    GDDrawRect(handle, &walls);
    filled(kRed);
    drawPolygon(handle, {point(40, 430), point(500, 40), point(960, 430)});
    filled(kBlue);
    const GRect door = edges(430, 640, 610, 1000);
    GDDrawRect(handle, &door);
    filled(kGold);
    for (const int left : {200, 680}) {
        const GRect window = edges(left, 540, left + 130, 720);
        GDDrawRect(handle, &window);
        drawLine(handle, left + 65, 540, left + 65, 720);
        drawLine(handle, left, 630, left + 130, 630);
    }
}

/// Sets a frame in which (0, 0) to (1000, 1000) is a rectangle of the page.
void stretchUnitsOnto(GDrawHandle* handle, const GRect& rect) {
    const int width = widthOf(rect) - 1;
    const int height = heightOf(rect) - 1;
    const GRect frame = edges(-rect.left * kUnits / width, -rect.top * kUnits / height,
                              (kPageWidth - 1 - rect.left) * kUnits / width,
                              (kPageHeight - 1 - rect.top) * kUnits / height);
    GDSetVirtualRect(handle, &frame);
    GDSetVirtualMode(handle);
}

auto houseIn(int width, int height) {
    return [=](GDrawHandle* handle, const GRect& figure) {
        stretchUnitsOnto(handle, box(figure.left, figure.bottom + 1 - height, width, height));
        house(handle);
    };
}

/// The same house from near to far.
void street(GDrawHandle* handle, const GRect& figure) {
    int left = figure.left;
    for (const int size : {53, 36, 25}) {
        stretchUnitsOnto(handle, box(left, figure.bottom + 1 - size, size, size));
        house(handle);
        left += size + 6;
    }
}

/// A part of the house, larger; the clip rectangle is in units too.
auto detail(const GRect& part) {
    return [part](GDrawHandle* handle, const GRect& figure) {
        const int width = widthOf(figure) * kUnits / widthOf(part);
        const int height = heightOf(figure) * kUnits / heightOf(part);
        stretchUnitsOnto(handle, box(figure.left - part.left * width / kUnits,
                                     figure.top - part.top * height / kUnits, width, height));
        GDSetClipRect(handle, &part);
        house(handle);
    };
}

} // namespace

void drawClippingFigures(GDrawHandle* handle) {
    const Grid grid(4, 3);
    drawFigure(handle, grid.figure(0), "A clip rectangle", replaced);
    drawFigure(handle, grid.figure(1), "Narrowed", narrowed);
    drawFigure(handle, grid.figure(2), "Pushed and popped", stacked);
    drawFigure(handle, grid.figure(3), "From far outside", farOutside);
    drawFigure(handle, grid.figure(4), "Local origins", origins);
    drawFigure(handle, grid.figure(5), "Four windows", scrolled);
    drawFigure(handle, grid.figure(6), "A detail in units", detail(edges(120, 420, 660, 844)));
    drawFigure(handle, grid.figure(7), "A street", street);
    drawFigure(handle, grid.figure(8), "Units on 99 x 99", houseIn(99, 99));
    drawFigure(handle, grid.figure(9), "Units on 126 x 50", houseIn(126, 50));
    drawFigure(handle, grid.figure(10), "Units on 40 x 99", houseIn(40, 99));
    drawFigure(handle, grid.figure(11), "Units on 126 x 99", houseIn(126, 99));
}

} // namespace gallery
