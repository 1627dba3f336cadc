// AGG: its pixel formats and renderers, and its rasterizer with coverage cut at one half where
// nothing simpler fills a shape. The templates are compiled here, with the flags of everything
// else.
#include "contender.h"
#include "outlines.h"

#include <agg_arc.h>
#include <agg_conv_dash.h>
#include <agg_conv_stroke.h>
#include <agg_curves.h>
#include <agg_gamma_functions.h>
#include <agg_image_accessors.h>
#include <agg_path_storage.h>
#include <agg_pixfmt_gray.h>
#include <agg_pixfmt_rgb.h>
#include <agg_pixfmt_rgb_packed.h>
#include <agg_rasterizer_outline.h>
#include <agg_rasterizer_scanline_aa.h>
#include <agg_renderer_base.h>
#include <agg_renderer_primitives.h>
#include <agg_renderer_scanline.h>
#include <agg_rendering_buffer.h>
#include <agg_rounded_rect.h>
#include <agg_scanline_bin.h>
#include <agg_span_pattern_gray.h>
#include <agg_span_pattern_rgb.h>

namespace bench {
namespace {

/// What one pixel format needs: its class, and the formats that pattern tiles have.
template <Format F>
struct Traits;

template <>
struct Traits<Format::Rgb332> {
    using Pixels = agg::pixfmt_gray8;
    using Tile = agg::pixfmt_gray8;
    template <typename Image>
    using Spans = agg::span_pattern_gray<Image>;
    static constexpr Format kTile = Format::Rgb332;
    static agg::gray8 color(uint32_t pixel) { return agg::gray8(pixel); }
};

agg::rgba8 rgbColor(Format format, uint32_t pixel) {
    const Masks masks = masksOf(format);
    return {channelOf(pixel, masks.red), channelOf(pixel, masks.green),
            channelOf(pixel, masks.blue)};
}

/// Spans of packed pixels carry wide colours, so their tile has three bytes a pixel.
template <>
struct Traits<Format::Rgb565> {
    using Pixels = agg::pixfmt_rgb565;
    using Tile = agg::pixfmt_rgb24;
    template <typename Image>
    using Spans = agg::span_pattern_rgb<Image>;
    static constexpr Format kTile = Format::Rgb24;
    static agg::rgba8 color(uint32_t pixel) { return rgbColor(Format::Rgb565, pixel); }
};

template <>
struct Traits<Format::Rgb24> {
    using Pixels = agg::pixfmt_rgb24;
    using Tile = agg::pixfmt_rgb24;
    template <typename Image>
    using Spans = agg::span_pattern_rgb<Image>;
    static constexpr Format kTile = Format::Rgb24;
    static agg::rgba8 color(uint32_t pixel) { return rgbColor(Format::Rgb24, pixel); }
};

template <Format F>
class Surface {
    using Pixels = typename Traits<F>::Pixels;
    using Base = agg::renderer_base<Pixels>;
    using Primitives = agg::renderer_primitives<Base>;

  public:
    explicit Surface(uint8_t* bytes)
        : buffer_(bytes, kWidth, kHeight, bytesPerLine(F)), pixels_(buffer_), base_(pixels_) {}

    const agg::rendering_buffer& buffer() const { return buffer_; }
    Base& base() { return base_; }

  private:
    agg::rendering_buffer buffer_;
    Pixels pixels_;
    Base base_;
};

/// One format's operations, each drawing on a surface that the pass keeps.
template <Format F>
class Operations {
    using T = Traits<F>;
    using Target = std::shared_ptr<Surface<F>>;
    using Primitives = agg::renderer_primitives<agg::renderer_base<typename T::Pixels>>;

  public:
    Operations(const Workload& workload, const Shapes& shapes, Canvas& canvas)
        : workload_(workload),
          shapes_(shapes),
          canvas_(canvas),
          target_(std::make_shared<Surface<F>>(canvas.pixels())) {}

    Pass prepare() const {
        switch (workload_.operation) {
        case Operation::Fill:
            return fill();
        case Operation::Pattern:
            return pattern();
        case Operation::Span:
            return span();
        case Operation::Column:
            return column();
        case Operation::Line:
            return lines();
        case Operation::Dash:
            return dashes();
        case Operation::WideLine:
            return wideLines();
        case Operation::Transfer:
            return transfer();
        case Operation::Scroll:
            return scroll();
        case Operation::Oval:
        case Operation::OvalLine:
            return ellipses();
        case Operation::RoundRect:
            return roundRects();
        case Operation::Arc:
        case Operation::Bezier:
            return curves();
        case Operation::Triangle:
        case Operation::Star:
        case Operation::Ragged:
        case Operation::Scribble:
            return polygons();
        default:
            return {};
        }
    }

  private:
    auto color() const { return T::color(foreOf(F)); }

    Pass fill() const {
        return atPlaces(shapes_, [target = target_, color = color(), w = workload_.width,
                                  h = workload_.height](const Place& place) {
            target->base().copy_bar(place.x, place.y, place.x + w - 1, place.y + h - 1, color);
        });
    }

    Pass span() const {
        return atPlaces(
            shapes_, [target = target_, color = color(), w = workload_.width](const Place& place) {
                target->base().copy_hline(place.x, place.y, place.x + w - 1, color);
            });
    }

    Pass column() const {
        return atPlaces(
            shapes_, [target = target_, color = color(), h = workload_.height](const Place& place) {
                target->base().copy_vline(place.x, place.y, place.y + h - 1, color);
            });
    }

    /// A span generator over a repeating tile, row by row.
    Pass pattern() const {
        using Wrap = agg::wrap_mode_repeat_pow2;
        using Image = agg::image_accessor_wrap<typename T::Tile, Wrap, Wrap>;
        struct Tile {
            std::vector<uint8_t> bytes = tileBytes();
            agg::rendering_buffer buffer{bytes.data(), 8, 8, 8 * bytesPerPixel(T::kTile)};
            typename T::Tile pixels{buffer};
            Image image{pixels};
            typename T::template Spans<Image> spans{image, 0, 0};
            std::vector<typename T::Pixels::color_type> row{kWidth};
        };
        return atPlaces(shapes_, [target = target_, tile = std::make_shared<Tile>(),
                                  w = workload_.width, h = workload_.height](const Place& place) {
            for (int y = place.y; y < place.y + h; ++y) {
                tile->spans.generate(tile->row.data(), place.x, y, static_cast<unsigned>(w));
                target->base().blend_color_hspan(place.x, y, w, tile->row.data(), nullptr);
            }
        });
    }

    static std::vector<uint8_t> tileBytes() {
        if constexpr (F == T::kTile) {
            return patternTile(F);
        } else {
            std::vector<uint8_t> bytes;
            for (int i = 0; i < 64; ++i) {
                const auto color = T::color(patternPixel(F, i % 8, i / 8));
                bytes.insert(bytes.end(), {color.r, color.g, color.b});
            }
            return bytes;
        }
    }

    Pass lines() const {
        auto primitives = std::make_shared<Primitives>(target_->base());
        primitives->line_color(color());
        return alongSegments(shapes_, [target = target_, primitives](const Segment& line) {
            primitives->line(Primitives::coord(line.x1), Primitives::coord(line.y1),
                             Primitives::coord(line.x2), Primitives::coord(line.y2), true);
        });
    }

    Pass dashes() const {
        struct Dashes {
            explicit Dashes(agg::renderer_base<typename T::Pixels>& base)
                : primitives(base), outline(primitives), dashed(path) {
                dashed.add_dash(kDash, kDash);
            }
            Primitives primitives;
            agg::rasterizer_outline<Primitives> outline;
            agg::path_storage path;
            agg::conv_dash<agg::path_storage> dashed;
        };
        auto dashes = std::make_shared<Dashes>(target_->base());
        dashes->primitives.line_color(color());
        return alongSegments(shapes_, [target = target_, dashes](const Segment& line) {
            dashes->path.remove_all();
            dashes->path.move_to(line.x1, line.y1);
            dashes->path.line_to(line.x2, line.y2);
            dashes->outline.add_path(dashes->dashed);
        });
    }

    /// Fills paths without antialiasing.
    struct Filler {
        Filler() {
            rasterizer.gamma(agg::gamma_threshold(0.5));
            rasterizer.filling_rule(agg::fill_even_odd);
        }
        template <typename Path, typename Color>
        void fill(Surface<F>& target, Path& path, const Color& color) {
            rasterizer.add_path(path);
            agg::render_scanlines_bin_solid(rasterizer, scanline, target.base(), color);
        }
        agg::rasterizer_scanline_aa<> rasterizer;
        agg::scanline_bin scanline;
        agg::path_storage path;
    };

    Pass polygons() const {
        return atPlaces(shapes_,
                        [target = target_, color = color(), filler = std::make_shared<Filler>(),
                         &polygon = polygonOf(workload_.operation)](const Place& place) {
                            filler->path.remove_all();
                            for (const auto& [x, y] : polygon) {
                                filler->path.line_to(place.x + x, place.y + y);
                            }
                            filler->path.modify_command(0, agg::path_cmd_move_to);
                            filler->fill(*target, filler->path, color);
                        });
    }

    Pass wideLines() const {
        return alongSegments(shapes_, [target = target_, color = color(),
                                       filler = std::make_shared<Filler>()](const Segment& line) {
            filler->path.remove_all();
            filler->path.move_to(line.x1 + 0.5, line.y1 + 0.5);
            filler->path.line_to(line.x2 + 0.5, line.y2 + 0.5);
            agg::conv_stroke<agg::path_storage> stroke(filler->path);
            stroke.width(kWidePen);
            filler->fill(*target, stroke, color);
        });
    }

    Pass roundRects() const {
        return atPlaces(shapes_, [target = target_, color = color(),
                                  filler = std::make_shared<Filler>(), w = workload_.width,
                                  h = workload_.height](const Place& place) {
            agg::rounded_rect rect(place.x, place.y, place.x + w, place.y + h, kCornerRadius);
            filler->fill(*target, rect, color);
        });
    }

    Pass ellipses() const {
        auto primitives = std::make_shared<Primitives>(target_->base());
        primitives->line_color(color());
        primitives->fill_color(color());
        return atPlaces(shapes_,
                        [target = target_, primitives, rx = workload_.width / 2,
                         ry = workload_.height / 2,
                         fills = workload_.operation == Operation::Oval](const Place& place) {
                            if (fills) {
                                primitives->solid_ellipse(place.x + rx, place.y + ry, rx, ry);
                            } else {
                                primitives->ellipse(place.x + rx, place.y + ry, rx, ry);
                            }
                        });
    }

    /// Thin arcs and Bezier curves, as chains of lines.
    Pass curves() const {
        struct Outline {
            explicit Outline(agg::renderer_base<typename T::Pixels>& base)
                : primitives(base), lines(primitives) {}
            Primitives primitives;
            agg::rasterizer_outline<Primitives> lines;
        };
        auto outline = std::make_shared<Outline>(target_->base());
        outline->primitives.line_color(color());
        if (workload_.operation == Operation::Bezier) {
            return atPlaces(shapes_, [target = target_, outline](const Place& place) {
                agg::curve4 curve(place.x + kCurve[0].x, place.y + kCurve[0].y,
                                  place.x + kCurve[1].x, place.y + kCurve[1].y,
                                  place.x + kCurve[2].x, place.y + kCurve[2].y,
                                  place.x + kCurve[3].x, place.y + kCurve[3].y);
                outline->lines.add_path(curve);
            });
        }
        return atPlaces(shapes_, [target = target_, outline,
                                  radius = (workload_.width - 1) / 2.0](const Place& place) {
            agg::arc arc(place.x + radius, place.y + radius, radius, radius,
                         -agg::deg2rad(kArcStart), -agg::deg2rad(kArcEnd), false);
            outline->lines.add_path(arc);
        });
    }

    Pass transfer() const {
        auto source = std::make_shared<Surface<F>>(canvas_.source());
        return atPlaces(shapes_, [target = target_, source, w = workload_.width,
                                  h = workload_.height](const Place& place) {
            const agg::rect_i from(place.sourceX, place.sourceY, place.sourceX + w - 1,
                                   place.sourceY + h - 1);
            target->base().copy_from(source->buffer(), &from, place.x - place.sourceX,
                                     place.y - place.sourceY);
        });
    }

    Pass scroll() const {
        return atPlaces(shapes_, [target = target_, step = workload_.step](const Place&) {
            target->base().copy_from(target->buffer(), nullptr, step.x, step.y);
        });
    }

    const Workload& workload_;
    const Shapes& shapes_;
    Canvas& canvas_;
    Target target_;
};

class Agg final : public Contender {
  public:
    std::string_view name() const override { return "agg"; }

    Rule rule(const Workload& workload) const override { return peerRule(workload); }

    Pass prepare(const Workload& workload, const Shapes& shapes, Canvas& canvas) override {
        if (workload.mode != Mode::Copy || workload.operation == Operation::Convert) {
            return {};
        }
        switch (workload.format) {
        case Format::Rgb332:
            return Operations<Format::Rgb332>(workload, shapes, canvas).prepare();
        case Format::Rgb565:
            return Operations<Format::Rgb565>(workload, shapes, canvas).prepare();
        case Format::Rgb24:
            return Operations<Format::Rgb24>(workload, shapes, canvas).prepare();
        default:
            return {};
        }
    }
};

} // namespace

std::unique_ptr<Contender> makeAgg() {
    return std::make_unique<Agg>();
}

} // namespace bench
