#include "font/grey.h"

#include FT_OUTLINE_H

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <type_traits>
#include <utility>
#include <vector>

namespace gpi {
namespace {

/// Contours of lines and cubic curves, put together point by point.
class Contours {
  public:
    explicit Contours(FT_Outline& outline) : flags_(outline.flags) {
        FT_Outline_Funcs ways{};
        ways.move_to = [](const FT_Vector* to, void* self) {
            return of(self).extended([&](Contours& contours) { contours.moveTo(*to); });
        };
        ways.line_to = [](const FT_Vector* to, void* self) {
            return of(self).extended([&](Contours& contours) { contours.lineTo(*to); });
        };
        ways.conic_to = [](const FT_Vector* control, const FT_Vector* to, void* self) {
            return of(self).extended([&](Contours& contours) { contours.conicTo(*control, *to); });
        };
        ways.cubic_to = [](const FT_Vector* first, const FT_Vector* second, const FT_Vector* to,
                           void* self) {
            return of(self).extended(
                [&](Contours& contours) { contours.cubicTo(*first, *second, *to); });
        };
        whole_ = FT_Outline_Decompose(&outline, &ways, this) == 0;
        endContour();
    }

    /// Whether it is all there: FreeType cannot count any number of points.
    explicit operator bool() const { return whole_; }

    /// For FreeType, as long as this lives.
    FT_Outline record() {
        FT_Outline outline{};
        outline.n_contours = static_cast<Count>(ends_.size());
        outline.n_points = static_cast<Count>(points_.size());
        outline.points = points_.data();
        outline.tags = tags_.data();
        outline.contours = ends_.data();
        outline.flags = flags_;
        return outline;
    }

  private:
    using Tag = std::remove_pointer_t<decltype(FT_Outline::tags)>;
    using Count = std::remove_pointer_t<decltype(FT_Outline::contours)>;

    static Contours& of(void* self) { return *static_cast<Contours*>(self); }

    /// An error of FreeType's, through which nothing may be thrown, or 0.
    template <typename Extend>
    int extended(Extend extend) {
        try {
            extend(*this);
            return points_.size() <= SHRT_MAX ? 0 : FT_Err_Raster_Overflow;
        } catch (const std::bad_alloc&) {
            return FT_Err_Out_Of_Memory;
        }
    }

    void moveTo(const FT_Vector& to) {
        endContour();
        lineTo(to);
    }

    void lineTo(const FT_Vector& to) { add(to, FT_CURVE_TAG_ON); }

    /// Lines that leave the curve by a sixteenth of a pixel at most. Halving them divides the
    /// distance by four.
    void conicTo(const FT_Vector& control, const FT_Vector& to) {
        const FT_Vector from = points_.back();
        const FT_Vector bend{from.x - 2 * control.x + to.x, from.y - 2 * control.y + to.y};
        constexpr FT_Pos kQuarterPixel = 16;
        int halvings = 0;
        for (FT_Pos most = std::max(std::abs(bend.x), std::abs(bend.y)); most > kQuarterPixel;
             most /= 4) {
            ++halvings;
        }
        const int64_t count = int64_t{1} << halvings;
        for (int64_t i = 1; i < count; ++i) {
            const auto at = [&](FT_Pos start, FT_Pos middle, FT_Pos second) {
                const int64_t part = 2 * i * count * (middle - start) + i * i * second;
                return start + static_cast<FT_Pos>((part + count * count / 2) >> 2 * halvings);
            };
            lineTo({at(from.x, control.x, bend.x), at(from.y, control.y, bend.y)});
        }
        lineTo(to);
    }

    void cubicTo(const FT_Vector& first, const FT_Vector& second, const FT_Vector& to) {
        add(first, FT_CURVE_TAG_CUBIC);
        add(second, FT_CURVE_TAG_CUBIC);
        lineTo(to);
    }

    void add(const FT_Vector& point, Tag tag) {
        points_.push_back(point);
        tags_.push_back(tag);
    }

    void endContour() {
        if (!points_.empty()) {
            ends_.push_back(static_cast<Count>(points_.size() - 1));
        }
    }

    std::vector<FT_Vector> points_;
    std::vector<Tag> tags_;
    std::vector<Count> ends_; ///< the last point of each contour
    int flags_;
    bool whole_ = false;
};

} // namespace

FT_Error renderGrey(FT_GlyphSlot glyph) {
    const auto render = [&] { return FT_Render_Glyph(glyph, FT_RENDER_MODE_NORMAL); };
    if (glyph->format != FT_GLYPH_FORMAT_OUTLINE) {
        return render();
    }
    Contours contours(glyph->outline);
    if (!contours) {
        return render();
    }
    const FT_Outline own = std::exchange(glyph->outline, contours.record());
    const FT_Error error = render();
    glyph->outline = own;
    return error;
}

} // namespace gpi
