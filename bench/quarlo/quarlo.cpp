// The library through its public calls, on memory surfaces attached to draw handles.
#include "contender.h"
#include "outlines.h"
#include "quarlo/contents.h"

#include <quarlo/clip.h>
#include <quarlo/draw.h>
#include <quarlo/handle.h>
#include <quarlo/platform.h>
#include <quarlo/surface.h>
#include <quarlo/transfer.h>

#include <array>
#include <stdexcept>

namespace bench {
namespace {

constexpr int kFormats = 5;

/// A default dash: eight steps on, eight off.
constexpr int kDashNumber = 3;
constexpr int kPatternNumber = 0;

/// A surface over memory of ours. Its handle never frees it, since nothing else is attached after.
GVram surfaceOn(uint8_t* pixels, Format format, std::vector<uint32_t>& colors) {
    const Masks masks = masksOf(format);
    const bool indexed = format == Format::Palette8;
    GVram surface{};
    surface.id = G_MEMORY_SURFACE;
    surface.width = kWidth;
    surface.height = kHeight;
    surface.bitsPerPixel = static_cast<int16_t>(8 * bytesPerPixel(format));
    surface.bytesPerLine = static_cast<int16_t>(bytesPerLine(format));
    surface.pixels = pixels;
    surface.colorType = indexed ? G_COLOR_PALETTE : G_COLOR_DIRECT;
    surface.redMask = masks.red;
    surface.greenMask = masks.green;
    surface.blueMask = masks.blue;
    surface.paletteCount = static_cast<uint16_t>(indexed ? colors.size() : 0);
    surface.palette = indexed ? colors.data() : nullptr;
    surface.bounds = {0, 0, kWidth - 1, kHeight - 1};
    return surface;
}

/// A draw handle on a surface of one format, and a surface to copy from.
class Drawing {
  public:
    Drawing(Canvas& canvas, Format format)
        : colors_(palette().begin(), palette().end()),
          target_(surfaceOn(canvas.pixels(), format, colors_)),
          source_(surfaceOn(canvas.source(), format, colors_)),
          handle_(GDOpenDrawHandle(0, 0)) {
        target_.drawable = &target_.bounds;
        source_.drawable = &source_.bounds;
        if (handle_ == nullptr || GDSetVram(handle_, G_MEMORY_SURFACE, &target_) != 1) {
            throw std::runtime_error("quarlo: no draw handle");
        }
        GDDefineFillPattern(handle_, kPatternNumber, kPattern.data());
    }
    ~Drawing() { GDCloseDrawHandle(handle_); }
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    GDrawHandle* handle() { return handle_; }
    GVram* target() { return &target_; }
    const GVram* source() const { return &source_; }

  private:
    std::vector<uint32_t> colors_;
    GVram target_;
    GVram source_;
    GDrawHandle* handle_;
};

int16_t narrow(int value) {
    return static_cast<int16_t>(value);
}

/// The far edges belong to a rectangle and to a line.
int16_t last(int first, int extent) {
    return narrow(first + extent - 1);
}

Pass rectangles(const Workload& workload, const Shapes& shapes, GDrawHandle* handle) {
    return atPlaces(shapes, [=, w = workload.width, h = workload.height](const Place& place) {
        const GRect rect = {place.x, place.y, last(place.x, w), last(place.y, h)};
        GDDrawRect(handle, &rect);
    });
}

/// Spans and columns.
Pass straightLines(const Workload& workload, const Shapes& shapes, GDrawHandle* handle) {
    return atPlaces(shapes, [=, w = workload.width, h = workload.height](const Place& place) {
        GLine line = {place.x, place.y, last(place.x, w), last(place.y, h)};
        GDDrawLine(handle, &line);
    });
}

Pass lines(const Shapes& shapes, GDrawHandle* handle) {
    return alongSegments(shapes, [=](const Segment& segment) {
        GLine line = {segment.x1, segment.y1, segment.x2, segment.y2};
        GDDrawLine(handle, &line);
    });
}

/// The dash starts anew at each line, as those of peers do.
Pass linesTo(const Shapes& shapes, GDrawHandle* handle) {
    return alongSegments(shapes, [=](const Segment& segment) {
        GDMoveTo(handle, segment.x1, segment.y1);
        GDLineTo(handle, segment.x2, segment.y2);
    });
}

Pass transfer(const Workload& workload, const Shapes& shapes, const GVram* source,
              Drawing& drawing) {
    return atPlaces(shapes, [=, handle = drawing.handle(), target = drawing.target(),
                             w = narrow(workload.width), h = narrow(workload.height),
                             mode = static_cast<int>(workload.mode)](const Place& place) {
        GDBitBlt(handle, source, place.sourceX, place.sourceY, w, h, target, place.x, place.y,
                 mode);
    });
}

Pass scroll(const Workload& workload, const Shapes& shapes, Drawing& drawing) {
    const auto [x, y] = workload.step;
    return atPlaces(shapes, [=, handle = drawing.handle(), target = drawing.target(), dx = x,
                             dy = y](const Place&) {
        GDBitBlt(handle, target,
                 dx<0, dy<0, narrow(kWidth - (dx != 0)), narrow(kHeight - (dy != 0)), target, dx> 0,
                    dy> 0,
                 G_MODE_COPY);
    });
}

/// Polygons are points that a program has; they are moved to their places beforehand.
Pass polygons(const Workload& workload, const Shapes& shapes, GDrawHandle* handle) {
    std::vector<std::vector<GPoint>> moved;
    for (const Place& place : shapes.places) {
        auto& points = moved.emplace_back();
        for (const auto& [x, y] : polygonOf(workload.operation)) {
            points.push_back({narrow(place.x + x), narrow(place.y + y)});
        }
    }
    return [=]() mutable {
        for (auto& points : moved) {
            GPoly poly = {narrow(static_cast<int>(points.size())), points.data(), {}};
            GDDrawPoly(handle, &poly);
        }
    };
}

/// Shapes in a rectangle, by draw(rect).
template <typename Draw>
Pass inscribed(const Workload& workload, const Shapes& shapes, Draw draw) {
    return atPlaces(shapes, [=, w = workload.width, h = workload.height](const Place& place) {
        const GRect rect = {place.x, place.y, last(place.x, w), last(place.y, h)};
        draw(rect);
    });
}

Pass beziers(const Shapes& shapes, GDrawHandle* handle) {
    return atPlaces(shapes, [=](const Place& place) {
        GPoint points[kCurve.size()];
        for (size_t i = 0; i < kCurve.size(); ++i) {
            points[i] = {narrow(place.x + kCurve[i].x), narrow(place.y + kCurve[i].y)};
        }
        const GPoly poly = {4, points, {}};
        GDDrawBezier(handle, &poly);
    });
}

Pass curves(const Workload& workload, const Shapes& shapes, GDrawHandle* handle) {
    constexpr int kTenths = 10;
    switch (workload.operation) {
    case Operation::Oval:
    case Operation::OvalLine:
        return inscribed(workload, shapes, [=](const GRect& rect) { GDDrawOval(handle, &rect); });
    case Operation::RoundRect:
    case Operation::RoundRectLine:
        return inscribed(workload, shapes, [=](const GRect& rect) {
            GDDrawRRect(handle, &rect, kCornerRadius, kCornerRadius);
        });
    case Operation::Arc:
        return inscribed(workload, shapes, [=](const GRect& rect) {
            GDDrawArc(handle, &rect, kArcStart * kTenths, kArcEnd * kTenths);
        });
    case Operation::Pie:
        return inscribed(workload, shapes, [=](const GRect& rect) {
            GDDrawPie(handle, &rect, kArcStart * kTenths, kArcEnd * kTenths);
        });
    case Operation::Bezier:
        return beziers(shapes, handle);
    default:
        return {};
    }
}

/// Whether a workload draws with the pen rather than fill.
bool isDrawnWithPen(Operation operation) {
    switch (operation) {
    case Operation::Span:
    case Operation::Column:
    case Operation::OvalLine:
    case Operation::RoundRectLine:
    case Operation::Arc:
    case Operation::Bezier:
        return true;
    default:
        return isLine(operation) || isText(operation);
    }
}

class Quarlo final : public Contender {
  public:
    std::string_view name() const override { return "quarlo"; }

    Rule rule(const Workload&) const override { return Rule::Same; }

    Pass prepare(const Workload& workload, const Shapes& shapes, Canvas& canvas) override {
        Drawing& drawing = drawingOn(canvas, workload.format);
        GDrawHandle* const handle = drawing.handle();
        setState(handle, workload);
        switch (workload.operation) {
        case Operation::Fill:
        case Operation::Pattern:
            return rectangles(workload, shapes, handle);
        case Operation::Span:
        case Operation::Column:
            return straightLines(workload, shapes, handle);
        case Operation::Line:
        case Operation::WideLine:
            return lines(shapes, handle);
        case Operation::LineTo:
        case Operation::Dash:
            return linesTo(shapes, handle);
        case Operation::Transfer:
        case Operation::Convert:
            return transfer(workload, shapes, drawingOn(canvas, workload.source).source(), drawing);
        case Operation::Scroll:
            return scroll(workload, shapes, drawing);
        default:
            break;
        }
        if (isText(workload.operation)) {
            return textPass(workload, shapes, handle);
        }
        if (isImage(workload.operation)) {
            return imagePass(workload, shapes, handle);
        }
        return isPolygon(workload.operation) ? polygons(workload, shapes, handle)
                                             : curves(workload, shapes, handle);
    }

  private:
    Drawing& drawingOn(Canvas& canvas, Format format) {
        auto& drawing = drawings_[static_cast<size_t>(format)];
        if (!drawing) {
            drawing = std::make_unique<Drawing>(canvas, format);
        }
        return *drawing;
    }

    static void setState(GDrawHandle* handle, const Workload& workload) {
        const bool draws = isDrawnWithPen(workload.operation);
        const bool opaque = workload.operation == Operation::OpaqueText;
        const int16_t pen = workload.operation == Operation::WideLine ? kWidePen : 1;
        GDSetDrawingMode(handle, static_cast<int>(workload.mode));
        GDSetFillColor(handle, foreOf(workload.format), backOf(workload.format));
        GDSetPenColor(handle, draws ? foreOf(workload.format) : G_NO_COLOR);
        GDSetBackColor(handle, backOf(workload.format));
        GDSetTextMode(handle, opaque ? 0 : G_TEXT_TRANSPARENT);
        GDSetClipRect(handle, nullptr);
        GDSetPenSize(handle, pen, pen);
        GDSetPenDash(handle, workload.operation == Operation::Dash ? kDashNumber : 0);
        GDSetFillPattern(handle, workload.operation == Operation::Pattern ? kPatternNumber
                                 : draws                                  ? int{G_FILL_NONE}
                                                                          : int{G_FILL_FORE});
    }

    std::array<std::unique_ptr<Drawing>, kFormats> drawings_;
};

} // namespace

std::unique_ptr<Contender> makeQuarlo() {
    GetGPIFunction();
    return std::make_unique<Quarlo>();
}

} // namespace bench
