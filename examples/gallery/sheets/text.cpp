#include "draw.h"
#include "font.h"
#include "page.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

namespace gallery {
namespace {

constexpr int kPanelSize = 16;

struct Line {
    const char* language;
    const char16_t* text;
    int chineseFirst;
};

constexpr Line kLines[] = {
    {"English", u"Spindle 1200 rpm, feed hold released", 0},
    {"German", u"Kühlmittel läuft, Werkzeug T12 größer", 0},
    {"French", u"Arrêt d'urgence: vérifiez la sécurité", 0},
    {"Greek", u"Έτοιμο, γωνία άξονα α = 45°", 0},
    {"Russian", u"Ось Z в исходном положении", 0},
    {"Japanese", u"自動運転中 主軸回転 ｶﾞｲﾄﾞ送り", 0},
    {"Chinese", u"自动运行 主轴转速 直线进给", 1},
};

void write(GDrawHandle* handle, int left, int top, const char16_t* text) {
    GDMoveTo(handle, static_cast<int16_t>(left), static_cast<int16_t>(top));
    GDDrawString(handle, text);
}

void transparent(GDrawHandle* handle, uint32_t color) {
    GDSetTextMode(handle, G_TEXT_TRANSPARENT);
    GDSetPenColor(handle, color);
}

void drawLanguages(GDrawHandle* handle) {
    constexpr int kTextLeft = kContent.left + 88;
    constexpr int kStep = 22;
    int top = kContent.top - 8;
    const HandleFont font(handle, kPanelSize);
    for (const Line& line : kLines) {
        resetState(handle);
        drawLabel(handle, kContent.left, top + 2, line.language, kGrey);
        transparent(handle, kInk);
        GFSetGBFontFlag(line.chineseFirst);
        write(handle, kTextLeft, top, line.text);
        top += kStep;
    }
    GFSetGBFontFlag(0);
}

void sizes(GDrawHandle* handle, const GRect& figure) {
    int left = figure.left;
    transparent(handle, kInk);
    for (const int size : {12, 16, 20, 24, 32}) {
        const HandleFont font(handle, size);
        write(handle, left, figure.bottom - 8 - size * 7 / 8, u"軸");
        left += size + 5;
    }
}

void bold(GDrawHandle* handle, const GRect& figure) {
    transparent(handle, kInk);
    for (int row = 0; row < 2; ++row) {
        const HandleFont font(handle, kPanelSize, {1, 1, row == 1});
        write(handle, figure.left, figure.top + 8 + row * 24, u"X -123.456 運転");
    }
}

void magnified(GDrawHandle* handle, const GRect& figure) {
    struct Magnified {
        FontStyle style;
        int left;
        const char16_t* text;
    };
    constexpr Magnified kTexts[] = {
        {{2, 1}, 0, u"A7"}, {{1, 2}, 37, u"A7"}, {{2, 2}, 58, u"A7"}, {{3, 3}, 98, u"7"}};
    transparent(handle, kInk);
    for (const auto& [style, left, text] : kTexts) {
        const HandleFont font(handle, kPanelSize, style);
        write(handle, figure.left + left, figure.top + 4, text);
    }
}

void opaque(GDrawHandle* handle, const GRect& figure) {
    const HandleFont font(handle, kPanelSize);
    GDSetTextMode(handle, 0);
    constexpr uint32_t kBacks[] = {kInk, kBlue, kGreen, kRed};
    for (int row = 0; row < 4; ++row) {
        GDSetPenColor(handle, kPaper);
        GDSetBackColor(handle, kBacks[row]);
        write(handle, figure.left + row * 14, figure.top + row * 19, u" F1 Home ");
    }
}

void overPattern(GDrawHandle* handle, const GRect& figure) {
    GDSetFillAttribute(handle, 20, kSand, kPaper);
    noPen(handle);
    GDDrawRect(handle, &figure);
    const HandleFont font(handle, 32);
    transparent(handle, kRed);
    write(handle, figure.left + 10, figure.top + heightOf(figure) / 2 - 16, u"Door 開");
}

void exclusiveOr(GDrawHandle* handle, const GRect& figure) {
    fillBox(handle, box(figure.left, figure.top, widthOf(figure) / 2, heightOf(figure)), 0);
    fillBox(
        handle,
        box(figure.left + widthOf(figure) / 2, figure.top, widthOf(figure) / 2, heightOf(figure)),
        0xFFFFFF);
    GDSetDrawingMode(handle, G_MODE_XOR);
    const HandleFont font(handle, 24);
    transparent(handle, 0xFFFFFF);
    write(handle, figure.left + 15, figure.top + heightOf(figure) / 2 - 12, u"OVERRIDE");
}

void clipped(GDrawHandle* handle, const GRect& figure) {
    const HandleFont font(handle, 32);
    transparent(handle, kGold);
    write(handle, figure.left + 10, figure.top + heightOf(figure) / 2 - 16, u"Q主軸λ");
    const GRect lower =
        edges(figure.left, figure.top + heightOf(figure) / 2, figure.right, figure.bottom);
    GDSetClipRect(handle, &lower);
    transparent(handle, kBlue);
    write(handle, figure.left + 10, figure.top + heightOf(figure) / 2 - 16, u"Q主軸λ");
}

void mixed(GDrawHandle* handle, const GRect& figure) {
    transparent(handle, kInk);
    const HandleFont font(handle, kPanelSize);
    write(handle, figure.left, figure.top + 8, u"𠮷 is one glyph");
    write(handle, figure.left, figure.top + 32, u"全角ＡＢ 半角AB");
}

} // namespace

void drawTextFigures(GDrawHandle* handle) {
    drawLanguages(handle);
    constexpr GRect kFigures =
        edges(kContent.left, kContent.top + 160, kContent.right, kContent.bottom);
    const Grid grid(4, 2, kFigures);
    drawFigure(handle, grid.figure(0), "Sizes 12 to 32", sizes);
    drawFigure(handle, grid.figure(1), "Plain and bold", bold);
    drawFigure(handle, grid.figure(2), "Up to 3 x 3", magnified);
    drawFigure(handle, grid.figure(3), "Half and full width", mixed);
    drawFigure(handle, grid.figure(4), "Opaque", opaque);
    drawFigure(handle, grid.figure(5), "Transparent", overPattern);
    drawFigure(handle, grid.figure(6), "Exclusive or", exclusiveOr);
    drawFigure(handle, grid.figure(7), "Clipped", clipped);
}

} // namespace gallery
