// Gradations come in 5-5-5 pixel values whatever the surface. On such a surface they are drawn, and
// then copied onto the page.
#include "draw.h"
#include "page.h"
#include "scratch.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

namespace gallery {
namespace {

constexpr uint32_t kWhite = 0xFFFFFF;

struct Example {
    const char* caption;
    GGradationInfo info;
};

/// The lead of a downward gradation takes the low 16 bits of the start colour as they are: white
/// and black come out as such.
constexpr Example kExamples[] = {
    {"Down", {G_GRADATION_DOWN, kBlue, kSand, 0, 256}},
    {"Across", {G_GRADATION_ACROSS, kBlue, kSand, 0, 256}},
    {"Down, lead 40", {G_GRADATION_DOWN, kWhite, kRed, 40, 256}},
    {"Across, lead 40", {G_GRADATION_ACROSS, kWhite, kRed, 40, 256}},
    {"2 steps", {G_GRADATION_ACROSS, kInk, kGold, 0, 2}},
    {"4 steps", {G_GRADATION_ACROSS, kInk, kGold, 0, 4}},
    {"8 steps", {G_GRADATION_ACROSS, kInk, kGold, 0, 8}},
    {"16 steps", {G_GRADATION_ACROSS, kInk, kGold, 0, 16}},
};

void drawGradation(GDrawHandle* handle, const GRect& rect, const GGradationInfo& info) {
    GDSetGradationInfo(handle, &info);
    GDSetFillPattern(handle, G_FILL_GRADATION);
    GDDrawRect(handle, &rect);
}

/// Draws on a 5-5-5 surface by draw(handle, box), then copies it into the figure.
template <typename Draw>
auto on555(Draw draw) {
    return [draw](GDrawHandle* to, const GRect& figure) {
        const Scratch scratch(widthOf(figure), heightOf(figure), format555());
        if (scratch.handle() == nullptr) {
            return;
        }
        const GRect whole = box(0, 0, widthOf(figure), heightOf(figure));
        draw(scratch.handle(), whole);
        scratch.copyTo(to, figure.left, figure.top);
    };
}

/// The same ramp lies behind every window.
void clipped(GDrawHandle* handle, const GRect& whole) {
    constexpr int kWindows = 4;
    constexpr int kGap = 6;
    const int width = (widthOf(whole) - kGap) / kWindows - kGap;
    fillBox(handle, whole, kInk);
    noPen(handle);
    for (int i = 0; i < kWindows; ++i) {
        const GRect window =
            box(kGap + i * (width + kGap), kGap + i * 12, width, heightOf(whole) - 2 * kGap - 36);
        GDSetClipRect(handle, &window);
        drawGradation(handle, whole, {G_GRADATION_DOWN, kGreen, kSand, 0, 24});
    }
}

/// A bar lit from above.
void bar(GDrawHandle* handle, const GRect& whole) {
    const int half = heightOf(whole) / 2;
    noPen(handle);
    drawGradation(handle, box(0, 0, widthOf(whole), half),
                  {G_GRADATION_DOWN, kInk, kWhite, 0, 256});
    drawGradation(handle, box(0, half, widthOf(whole), heightOf(whole) - half),
                  {G_GRADATION_DOWN, kWhite, kInk, 0, 256});
}

/// A ball lit from above, and its shadow. An oval is filled as its box would be.
void ball(GDrawHandle* handle, const GRect& whole) {
    const GRect area = squareIn(inset(whole, 8));
    const GRect round =
        box(widthOf(whole) / 2 - widthOf(area) / 2, 4, widthOf(area), heightOf(area));
    const GRect shadow = edges(round.left + 8, round.bottom - 4, round.right - 8, round.bottom + 8);
    const GGradationInfo light = {G_GRADATION_DOWN, kWhite, kRed, 20, 256};
    fillBox(handle, whole, kSand);
    noPen(handle);
    GDSetFillAttribute(handle, G_FILL_FORE, kGrey, kGrey);
    GDDrawOval(handle, &shadow);
    GDSetGradationInfo(handle, &light);
    GDSetFillPattern(handle, G_FILL_GRADATION);
    GDDrawOval(handle, &round);
}

/// Every oval has the ramp of its own box.
void beads(GDrawHandle* handle, const GRect& whole) {
    constexpr int kBeads = 5;
    constexpr uint32_t kColors[] = {kBlue, kRed, kGold, kGreen, kSand};
    noPen(handle);
    fillBox(handle, whole, kInk);
    for (int i = 0; i < kBeads; ++i) {
        const int width = widthOf(whole) / kBeads;
        const GRect bead = box(i * width + 2, 4 + i * 8, width - 4, heightOf(whole) - 8 - i * 16);
        const GGradationInfo info = {G_GRADATION_ACROSS, kWhite, kColors[i], 0, 256};
        GDSetGradationInfo(handle, &info);
        GDSetFillPattern(handle, G_FILL_GRADATION);
        GDDrawOval(handle, &bead);
    }
}

} // namespace

void drawGradationFigures(GDrawHandle* handle) {
    const Grid grid(4, 3);
    int place = 0;
    for (const Example& example : kExamples) {
        drawFigure(handle, grid.figure(place++), example.caption,
                   on555([&](GDrawHandle* to, const GRect& whole) {
                       drawGradation(to, whole, example.info);
                   }));
    }
    drawFigure(handle, grid.figure(place++), "Clipped", on555(clipped));
    drawFigure(handle, grid.figure(place++), "A bar", on555(bar));
    drawFigure(handle, grid.figure(place++), "A ball", on555(ball));
    drawFigure(handle, grid.figure(place++), "Beads", on555(beads));
}

} // namespace gallery
