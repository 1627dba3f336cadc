// Cairo without antialiasing. It has no surface of three bytes a pixel.
#include "contender.h"
#include "outlines.h"

#include <cairo.h>

#include <stdexcept>
#include <string>

namespace bench {
namespace {

using Surface = std::shared_ptr<cairo_surface_t>;
using Context = std::shared_ptr<cairo_t>;

cairo_format_t cairoFormat(Format format) {
    return format == Format::Rgb332 ? CAIRO_FORMAT_A8 : CAIRO_FORMAT_RGB16_565;
}

bool has(Format format) {
    return format == Format::Rgb332 || format == Format::Rgb565;
}

Surface surfaceOn(uint8_t* pixels, int width, int height, Format format) {
    cairo_surface_t* surface = cairo_image_surface_create_for_data(
        pixels, cairoFormat(format), width, height, width * bytesPerPixel(format));
    if (cairo_surface_status(surface) != CAIRO_STATUS_SUCCESS) {
        throw std::runtime_error(std::string("cairo: ") +
                                 cairo_status_to_string(cairo_surface_status(surface)));
    }
    return Surface(surface, cairo_surface_destroy);
}

Context contextOn(const Surface& surface) {
    Context context(cairo_create(surface.get()), cairo_destroy);
    cairo_set_antialias(context.get(), CAIRO_ANTIALIAS_NONE);
    cairo_set_operator(context.get(), CAIRO_OPERATOR_SOURCE);
    cairo_set_line_width(context.get(), 1);
    cairo_set_line_cap(context.get(), CAIRO_LINE_CAP_SQUARE);
    return context;
}

void useColor(cairo_t* context, Format format) {
    const uint32_t pixel = foreOf(format);
    if (format == Format::Rgb332) {
        cairo_set_source_rgba(context, 0, 0, 0, pixel / 255.0);
        return;
    }
    const Masks masks = masksOf(format);
    cairo_set_source_rgb(context, channelOf(pixel, masks.red) / 255.0,
                         channelOf(pixel, masks.green) / 255.0,
                         channelOf(pixel, masks.blue) / 255.0);
}

Pass fill(const Workload& workload, const Shapes& shapes, const Context& context) {
    return atPlaces(shapes, [=, w = workload.width, h = workload.height](const Place& place) {
        cairo_rectangle(context.get(), place.x, place.y, w, h);
        cairo_fill(context.get());
    });
}

Pass pattern(const Workload& workload, const Shapes& shapes, const Context& context) {
    auto tile = std::make_shared<std::vector<uint8_t>>(patternTile(workload.format));
    const Surface image = surfaceOn(tile->data(), 8, 8, workload.format);
    cairo_set_source_surface(context.get(), image.get(), 0, 0);
    cairo_pattern_set_extend(cairo_get_source(context.get()), CAIRO_EXTEND_REPEAT);
    cairo_pattern_set_filter(cairo_get_source(context.get()), CAIRO_FILTER_NEAREST);
    return [tile, image, pass = fill(workload, shapes, context)] { pass(); };
}

Pass transfer(const Workload& workload, const Shapes& shapes, const Context& context,
              const Surface& source) {
    return atPlaces(shapes, [=, w = workload.width, h = workload.height](const Place& place) {
        cairo_set_source_surface(context.get(), source.get(), place.x - place.sourceX,
                                 place.y - place.sourceY);
        cairo_rectangle(context.get(), place.x, place.y, w, h);
        cairo_fill(context.get());
    });
}

Pass lines(const Shapes& shapes, const Context& context) {
    return alongSegments(shapes, [=](const Segment& line) {
        cairo_move_to(context.get(), line.x1 + 0.5, line.y1 + 0.5);
        cairo_line_to(context.get(), line.x2 + 0.5, line.y2 + 0.5);
        cairo_stroke(context.get());
    });
}

Pass polygons(const Workload& workload, const Shapes& shapes, const Context& context) {
    cairo_set_fill_rule(context.get(), CAIRO_FILL_RULE_EVEN_ODD);
    return atPlaces(shapes, [=, &polygon = polygonOf(workload.operation)](const Place& place) {
        for (const auto& [x, y] : polygon) {
            cairo_line_to(context.get(), place.x + x, place.y + y);
        }
        cairo_close_path(context.get());
        cairo_fill(context.get());
    });
}

double radians(int degrees) {
    return -degrees * 3.14159265358979323846 / 180;
}

/// Part of the ellipse in a box, from one angle to another, added to the path.
void addArc(cairo_t* context, double x, double y, double width, double height, int from, int to) {
    cairo_save(context);
    cairo_translate(context, x + width / 2, y + height / 2);
    cairo_scale(context, width / 2, height / 2);
    cairo_arc(context, 0, 0, 1, radians(from), radians(to));
    cairo_restore(context);
}

void addRoundRect(cairo_t* context, double x, double y, double width, double height) {
    constexpr double kSide = 2 * kCornerRadius;
    const double right = x + width - kSide;
    const double bottom = y + height - kSide;
    cairo_new_path(context);
    addArc(context, right, y, kSide, kSide, 90, 0);
    addArc(context, right, bottom, kSide, kSide, 360, 270);
    addArc(context, x, bottom, kSide, kSide, 270, 180);
    addArc(context, x, y, kSide, kSide, 180, 90);
    cairo_close_path(context);
}

/// Filled shapes have their box's edges for limits, outlines the middles of its pixels.
Pass curves(const Workload& workload, const Shapes& shapes, const Context& shared) {
    const bool fills = !runsOf(workload).empty();
    const double inset = fills ? 0 : 0.5;
    const auto draw = [=, operation = workload.operation, w = workload.width - 2 * inset,
                       h = workload.height - 2 * inset](const Place& place) {
        cairo_t* const context = shared.get();
        const double x = place.x + inset;
        const double y = place.y + inset;
        switch (operation) {
        case Operation::RoundRect:
        case Operation::RoundRectLine:
            addRoundRect(context, x, y, w, h);
            break;
        case Operation::Arc:
            addArc(context, x, y, w, h, kArcEnd, kArcStart);
            break;
        case Operation::Pie:
            cairo_move_to(context, x + w / 2, y + h / 2);
            addArc(context, x, y, w, h, kArcEnd, kArcStart);
            cairo_close_path(context);
            break;
        case Operation::Bezier:
            cairo_move_to(context, x + kCurve[0].x, y + kCurve[0].y);
            cairo_curve_to(context, x + kCurve[1].x, y + kCurve[1].y, x + kCurve[2].x,
                           y + kCurve[2].y, x + kCurve[3].x, y + kCurve[3].y);
            break;
        default:
            addArc(context, x, y, w, h, 360, 0);
        }
        fills ? cairo_fill(context) : cairo_stroke(context);
    };
    return atPlaces(shapes, draw);
}

class Cairo final : public Contender {
  public:
    std::string_view name() const override { return "cairo"; }

    Rule rule(const Workload& workload) const override { return peerRule(workload); }

    Pass prepare(const Workload& workload, const Shapes& shapes, Canvas& canvas) override {
        if (workload.mode != Mode::Copy || !has(workload.format) || !has(workload.source)) {
            return {};
        }
        const Context context =
            contextOn(surfaceOn(canvas.pixels(), kWidth, kHeight, workload.format));
        useColor(context.get(), workload.format);
        switch (workload.operation) {
        case Operation::Fill:
        case Operation::Span:
        case Operation::Column:
            return fill(workload, shapes, context);
        case Operation::Pattern:
            return pattern(workload, shapes, context);
        case Operation::Dash: {
            const double dash = kDash;
            cairo_set_dash(context.get(), &dash, 1, 0);
            cairo_set_line_cap(context.get(), CAIRO_LINE_CAP_BUTT);
            return lines(shapes, context);
        }
        case Operation::WideLine:
            cairo_set_line_width(context.get(), kWidePen);
            cairo_set_line_cap(context.get(), CAIRO_LINE_CAP_BUTT);
            return lines(shapes, context);
        case Operation::Line:
            return lines(shapes, context);
        case Operation::Transfer:
            return transfer(workload, shapes, context,
                            surfaceOn(canvas.source(), kWidth, kHeight, workload.source));
        default:
            if (!isShape(workload.operation)) {
                return {};
            }
            return isPolygon(workload.operation) ? polygons(workload, shapes, context)
                                                 : curves(workload, shapes, context);
        }
    }
};

} // namespace

std::unique_ptr<Contender> makeCairo() {
    return std::make_unique<Cairo>();
}

} // namespace bench
