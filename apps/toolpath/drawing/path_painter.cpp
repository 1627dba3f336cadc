#include "drawing/path_painter.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace toolpath {
namespace {

constexpr int32_t kSolid = 0;
constexpr int32_t kShortDashes = 4; // four pixels on, four off
constexpr int16_t kCrossArm = 3;    // pixels

/// Draws a line whose dashes lie on the same pixels in whichever direction it runs, so that a way
/// gone and come back keeps its gaps. GDLineTo() starts the dash anew.
void drawDashed(GDrawHandle* handle, GLine line) {
    if (std::pair(line.x1, line.y1) > std::pair(line.x2, line.y2)) {
        std::swap(line.x1, line.x2);
        std::swap(line.y1, line.y2);
    }
    GDMoveTo(handle, line.x1, line.y1);
    GDLineTo(handle, line.x2, line.y2);
}

} // namespace

PathPainter::PathPainter(GDrawHandle* handle, const Style& style, const ToolPath& path)
    : handle_(handle), style_(style), path_(path) {
    double low = std::numeric_limits<double>::max();
    double high = std::numeric_limits<double>::lowest();
    for (const Move& move : path.moves) {
        if (move.kind == MoveKind::Cut) {
            low = std::min(low, move.end[kZ]);
            high = std::max(high, move.end[kZ]);
        }
    }
    if (low < high) {
        lowest_ = low;
        highest_ = high;
    }
}

void PathPainter::paint(const View& view, MoveKind kind, size_t begin, size_t end) const {
    view.select(handle_);
    switch (kind) {
    case MoveKind::Rapid:
        paintRapids(view, begin, end);
        break;
    case MoveKind::Cut:
        paintCuts(view, begin, end);
        break;
    case MoveKind::Point:
        paintPoints(view, begin, end);
        break;
    }
}

/// Calls draw(from, to) for every move of a kind.
template <class Draw>
void PathPainter::forEach(MoveKind kind, size_t begin, size_t end, Draw draw) const {
    for (size_t i = begin; i < end; ++i) {
        const Move& move = path_.moves[i];
        if (move.kind == kind) {
            draw(i == 0 ? path_.start : path_.moves[i - 1].end, move.end);
        }
    }
}

void PathPainter::paintRapids(const View& view, size_t begin, size_t end) const {
    GDSetPenDash(handle_, kShortDashes);
    GDSetPenColor(handle_, style_[Ink::Rapid]);
    forEach(MoveKind::Rapid, begin, end, [&](const Point3& from, const Point3& to) {
        GLine line;
        if (view.line(from, to, line)) {
            drawDashed(handle_, line);
        }
    });
    GDSetPenDash(handle_, kSolid);
}

void PathPainter::paintCuts(const View& view, size_t begin, size_t end) const {
    Ink ink = Ink::Desk;
    forEach(MoveKind::Cut, begin, end, [&](const Point3& from, const Point3& to) {
        GLine line;
        if (!view.line(from, to, line) || (line.x1 == line.x2 && line.y1 == line.y2)) {
            return;
        }
        const Ink depth = cutInk((from[kZ] + to[kZ]) / 2);
        if (depth != ink) {
            GDSetPenColor(handle_, style_[depth]);
            ink = depth;
        }
        GDDrawLine(handle_, &line);
    });
}

void PathPainter::paintPoints(const View& view, size_t begin, size_t end) const {
    GDSetPenColor(handle_, style_[Ink::Point]);
    forEach(MoveKind::Point, begin, end, [&](const Point3& from, const Point3& to) {
        GLine plunge;
        if (!view.line(from, to, plunge)) {
            return;
        }
        GLine level{static_cast<int16_t>(plunge.x2 - kCrossArm), plunge.y2,
                    static_cast<int16_t>(plunge.x2 + kCrossArm), plunge.y2};
        GLine upright{plunge.x2, static_cast<int16_t>(plunge.y2 - kCrossArm), plunge.x2,
                      static_cast<int16_t>(plunge.y2 + kCrossArm)};
        GDDrawLine(handle_, &plunge);
        GDDrawLine(handle_, &level);
        GDDrawLine(handle_, &upright);
    });
}

Ink PathPainter::cutInk(double height) const {
    if (highest_ <= lowest_) {
        return Ink::CutHighest;
    }
    const double part = (height - lowest_) / (highest_ - lowest_);
    const int step = std::clamp(static_cast<int>(part * kCutInks), 0, kCutInks - 1);
    return static_cast<Ink>(static_cast<int>(Ink::CutDeepest) + step);
}

} // namespace toolpath
