#include "graphic/layer.h"

#include <algorithm>
#include <cmath>

namespace panel {
namespace {

constexpr int kShortDashes = 4;      // four pixels on, four off
constexpr int kStrongEvery = 5;      // lines of the grid
constexpr int kMostLines = 4000;     // wider than any display
constexpr double kAxisLength = 46.0; // pixels

/// A surface of the display's format and another size.
GVram* surfaceLike(const GVram& display, GSize size) {
    GVram descriptor = display;
    descriptor.width = size.width;
    descriptor.height = size.height;
    return GDCreateVram(&descriptor);
}

/// What a pen of one pixel may touch.
GRect around(const GLine& line) {
    constexpr int16_t kPen = 1;
    GRect rect;
    GRSetRect(&rect, line.x1, line.y1, line.x2, line.y2);
    GRResizeRect(&rect, kPen, kPen);
    return rect;
}

} // namespace

Layer::Layer(const Painter& painter, GSize size)
    : painter_(painter),
      size_(size),
      handle_(GDOpenDrawHandle(0, 0)),
      surface_(surfaceLike(*GDGetVram(painter.handle()), size)) {
    if (GDSetVram(handle_, G_MEMORY_SURFACE, surface_) == 0) {
        GDDeleteVram(surface_);
        surface_ = nullptr;
        return;
    }
    if (surface_->colorType != G_COLOR_PALETTE) {
        GDSetColorMode(handle_, 1, surface_->redMask, surface_->greenMask, surface_->blueMask);
    }
    const GPoint middle{static_cast<int16_t>(-size.width / 2),
                        static_cast<int16_t>(-size.height / 2)};
    GDSetLocalOrigin(handle_, &middle);
}

Layer::~Layer() {
    GDCloseDrawHandle(handle_);
    GDDeleteVram(surface_);
}

void Layer::draw(const View& view, const ToolPath& path, const Box3& work, size_t done) {
    drawGround(view, work);
    for (size_t i = 0; i < path.moves.size(); ++i) {
        drawMove(view, startOf(path, i), path.moves[i].end, path.moves[i].kind, false);
    }
    for (size_t i = 0; i < done; ++i) {
        drawMove(view, startOf(path, i), path.moves[i].end, path.moves[i].kind, true);
    }
    drawAxes(view);
}

GRect Layer::drawDone(const View& view, const Point3& from, const Point3& to, MoveKind kind) {
    drawMove(view, from, to, kind, true);
    const GPoint a = view.pixel(from);
    const GPoint b = view.pixel(to);
    GLine line{a.x, a.y, b.x, b.y};
    GLOffsetLine(&line, static_cast<int16_t>(size_.width / 2),
                 static_cast<int16_t>(size_.height / 2));
    return around(line);
}

/// The display is the destination: its handle maps both places, and has no origin.
void Layer::copyTo(const Painter& painter, const GRect& area, GPoint origin) const {
    GDBitBlt(painter.handle(), surface_, static_cast<int16_t>(area.left - origin.x),
             static_cast<int16_t>(area.top - origin.y), widthOf(area), heightOf(area),
             GDGetVram(painter.handle()), area.left, area.top, G_MODE_COPY);
}

void Layer::drawGround(const View& view, const Box3& work) {
    const GRect all = box(-size_.width / 2, -size_.height / 2, size_.width, size_.height);
    GDSetPenColor(handle_, G_NO_COLOR);
    GDSetFillAttribute(handle_, G_FILL_FORE, painter_.color(Ink::Void), G_NO_COLOR);
    GDDrawRect(handle_, &all);
    drawGrid(view, work);
    drawBox(view, work);
}

/// Lines in the plane that the view faces; the isometric one stands on the floor of the work.
void Layer::drawGrid(const View& view, const Box3& work) {
    const int second = view.projection() == Projection::Elevation ? kZ : kY;
    Box3 shown = work;
    if (view.projection() != Projection::Isometric) {
        const auto x = static_cast<int16_t>(size_.width / 2);
        const auto y = static_cast<int16_t>(size_.height / 2);
        shown.low = view.place({static_cast<int16_t>(-x), y}, work.low[kZ]);
        shown.high = view.place({x, static_cast<int16_t>(-y)}, work.low[kZ]);
    }
    const double step = gridStep(view.scale());
    for (const bool strong : {false, true}) {
        setPen(strong ? Ink::GridStrong : Ink::Grid);
        for (const int axis : {static_cast<int>(kX), second}) {
            const auto along = static_cast<size_t>(axis);
            const double first = std::ceil(shown.low[along] / step);
            const double count = std::min(shown.high[along] / step - first, double{kMostLines});
            for (int i = 0; i <= count; ++i) {
                const double k = first + i;
                if ((std::fmod(k, kStrongEvery) == 0.0) == strong) {
                    Point3 from = shown.low;
                    Point3 to = shown.high;
                    to[kZ] = second == kZ ? to[kZ] : from[kZ];
                    from[along] = to[along] = k * step;
                    drawLine(view, from, to);
                }
            }
        }
    }
}

void Layer::drawBox(const View& view, const Box3& work) {
    setPen(Ink::GridText);
    const auto corner = [&work](unsigned bits) {
        return Point3{bits & 1U ? work.high[kX] : work.low[kX],
                      bits & 2U ? work.high[kY] : work.low[kY],
                      bits & 4U ? work.high[kZ] : work.low[kZ]};
    };
    GDSetPenDash(handle_, kShortDashes);
    for (unsigned from = 0; from < 8; ++from) {
        for (const unsigned axis : {1U, 2U, 4U}) {
            if ((from & axis) == 0) {
                drawLine(view, corner(from), corner(from | axis));
            }
        }
    }
    GDSetPenDash(handle_, 0);
}

/// From program zero, as long in every view.
void Layer::drawAxes(const View& view) {
    constexpr Ink kInks[] = {Ink::XAxis, Ink::YAxis, Ink::ZAxis};
    GDSetPenSize(handle_, 2, 2);
    for (size_t axis = 0; axis < kAxes; ++axis) {
        Point3 tip{};
        tip[axis] = kAxisLength / view.scale();
        setPen(kInks[axis]);
        drawLine(view, {}, tip);
    }
    GDSetPenSize(handle_, 1, 1);
}

void Layer::drawMove(const View& view, const Point3& from, const Point3& to, MoveKind kind,
                     bool done) {
    if (kind == MoveKind::Rapid) {
        setPen(done ? Ink::PathRapidDone : Ink::PathRapid);
        GDSetPenDash(handle_, kShortDashes);
        drawLine(view, from, to);
        GDSetPenDash(handle_, 0);
    } else {
        setPen(done ? Ink::PathDone : Ink::PathAhead);
        drawLine(view, from, to);
    }
}

/// Dashes begin with each line.
void Layer::drawLine(const View& view, const Point3& from, const Point3& to) {
    GLine line;
    if (view.line(from, to, line)) {
        GDMoveTo(handle_, line.x1, line.y1);
        GDLineTo(handle_, line.x2, line.y2);
    }
}

void Layer::setPen(Ink ink) {
    GDSetPenColor(handle_, painter_.color(ink));
}

} // namespace panel
