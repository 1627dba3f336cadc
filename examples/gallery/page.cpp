#include "page.h"

#include "draw.h"

#include <quarlo/quarlo.h>

#include <string>

namespace gallery {
namespace {

constexpr int kGap = 24;
constexpr int kRowGap = 20;
constexpr int kCaptionGap = 3;
constexpr int kHeadingTop = 21;
constexpr int kHeadingGap = 12;
constexpr int kRemarkTop = 30;
constexpr int kRuleTop = 48;

} // namespace

GRect Grid::figure(int index) const {
    const int width = (area_.right - area_.left + 1 - (columns_ - 1) * kGap) / columns_;
    const int height = (area_.bottom - area_.top + 1 - (rows_ - 1) * kRowGap) / rows_;
    const int left = area_.left + index % columns_ * (width + kGap);
    const int top = area_.top + index / columns_ * (height + kRowGap);
    return box(left, top, width, height - kCaptionGap - kSmallLabel);
}

void resetState(GDrawHandle* handle) {
    const GPoint noOrigin = {0, 0};
    GDSetLocalMode(handle);
    GDSetLocalOrigin(handle, &noOrigin);
    GDSetClipRect(handle, nullptr);
    GDSetDrawingMode(handle, G_MODE_COPY);
    GDSetFillAttribute(handle, G_FILL_NONE, kInk, kPaper);
    setPen(handle, kInk);
}

void beginPage(GDrawHandle* handle, int number, std::string_view title, std::string_view remark) {
    // Attached anew, the surface is what virtual coordinates are stretched onto; the handle that
    // was opened or attached last decides that for all.
    GVram* const surface = GDGetVram(handle);
    GDSetVram(handle, surface->id, surface);

    resetState(handle);
    fillBox(handle, box(0, 0, kPageWidth, kPageHeight), kPaper);

    const std::string numeral = std::to_string(number);
    const int titleLeft = kContent.left + labelWidth(handle, numeral, kHeading) + kHeadingGap;
    drawLabel(handle, kContent.left, kHeadingTop, numeral, kRed, kHeading);
    drawLabel(handle, titleLeft, kHeadingTop, title, kInk, kHeading);
    drawLabel(handle, kContent.right + 1 - labelWidth(handle, remark), kRemarkTop, remark, kGrey);
    drawLine(handle, kContent.left, kRuleTop, kContent.right, kRuleTop);
}

void drawCaption(GDrawHandle* handle, const GRect& figure, std::string_view text) {
    drawLabel(handle, figure.left, figure.bottom + 1 + kCaptionGap, text, kGrey);
}

} // namespace gallery
