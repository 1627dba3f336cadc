#include "graphic/tool_mark.h"

#include <array>
#include <iterator>

namespace panel {
namespace {

constexpr int kRing = 6; // pixels from its middle

/// A drill that points at (0, 0).
constexpr GPoint kTool[] = {{0, 0}, {-4, -5}, {-4, -17}, {4, -17}, {4, -5}};
constexpr GRect kToolArea{-4, -17, 4, 0};

} // namespace

GRect ToolMark::area() const {
    GRect area = fromAbove_ ? box(-kRing, -kRing, 2 * kRing + 1, 2 * kRing + 1) : kToolArea;
    GROffsetRect(&area, tip_.x, tip_.y);
    return area;
}

void ToolMark::draw(const Painter& painter) const {
    if (fromAbove_) {
        drawRing(painter);
    } else {
        drawTool(painter);
    }
}

void ToolMark::drawRing(const Painter& painter) const {
    GDrawHandle* const handle = painter.handle();
    const GRect ring = area();
    const GRect disc = inside(ring, 3);
    GDSetPenColor(handle, painter.color(Ink::Tool));
    GDSetFillPattern(handle, G_FILL_NONE);
    GDDrawOval(handle, &ring);
    GDSetFillAttribute(handle, G_FILL_FORE, painter.color(Ink::Tool), G_NO_COLOR);
    GDDrawOval(handle, &disc);
}

void ToolMark::drawTool(const Painter& painter) const {
    std::array<GPoint, std::size(kTool)> corners = std::to_array(kTool);
    GPoly tool;
    GPSetPoly(&tool, static_cast<int16_t>(corners.size()), corners.data(), &kToolArea);
    GPOffsetPoly(&tool, tip_.x, tip_.y);
    GDSetPenColor(painter.handle(), painter.color(Ink::Void)); // stands out from the path
    GDSetFillAttribute(painter.handle(), G_FILL_FORE, painter.color(Ink::Tool), G_NO_COLOR);
    GDDrawPoly(painter.handle(), &tool);
}

} // namespace panel
