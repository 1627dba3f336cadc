// GRF images at their natural size.
#include "draw/clip.h"
#include "geometry/view.h"
#include "image/grf_format.h"
#include "raster/canvas.h"
#include "raster/kernel/run_reader.h"

#include <quarlo/image.h>

namespace quarlo {
namespace {

using kernel::RunControl;
using kernel::RunPiece;
using kernel::RunReader;

/// Where an image goes, and what of it can be seen, in surface coordinates.
struct Placement {
    GPoint origin;
    GRect visible;
    bool whole; ///< all of the image can be seen
};

/// An image of direct values that have the size of pixels, by kernel.
void drawByKernel(const Canvas& canvas, const GGrfImage& image, const uint8_t* stream,
                  const Placement& place) {
    const GRect& visible = place.visible;
    const kernel::RunImage runs{stream,
                                image.width,
                                visible.left - place.origin.x,
                                visible.top - place.origin.y,
                                visible.right - place.origin.x,
                                visible.bottom - place.origin.y};
    const kernel::LastPixel last = canvas.kernels->runs(canvas.addressOf(visible.left, visible.top),
                                                        canvas.surface.bytesPerLine, runs);
    if (last.cursor != nullptr) {
        canvas.leaveCell(last.pixel, last.cursor);
    }
}

/// The same piece by piece. A fill run of an image that can be seen whole is a span; otherwise
/// pixels are plotted singly.
void drawByPieces(const Canvas& canvas, const GGrfImage& image, const uint8_t* stream,
                  const Placement& place) {
    const int32_t unitBytes = GGrfBytesOfUnit(&image);
    const int32_t mode = canvas.handle.drawingMode;
    const GRect& visible = place.visible;
    RunReader reader(stream, image.width, unitBytes);
    RunPiece piece;
    for (int32_t y = place.origin.y; y <= visible.bottom; y = place.origin.y + reader.row()) {
        if (!reader.next(piece)) {
            return;
        }
        const int32_t first = place.origin.x + piece.x;
        const int32_t left = std::max<int32_t>(first, visible.left);
        const int32_t right = std::min<int32_t>(first + piece.count - 1, visible.right);
        if (piece.kind == RunPiece::Skip || y < visible.top || left > right) {
            continue;
        }
        const bool fill = piece.kind == RunPiece::Fill;
        if (fill && (place.whole || canvas.kernels != nullptr)) {
            canvas.span(low16(left), low16(y), right - left + 1,
                        GGrfReadUnit(piece.units, unitBytes), mode);
            continue;
        }
        for (int32_t x = left; x <= right; ++x) {
            const uint8_t* const unit = piece.units + (fill ? 0 : (x - first) * unitBytes);
            canvas.setPixel(low16(x), low16(y), GGrfReadUnit(unit, unitBytes), mode);
        }
    }
}

/// Walks through the pixels of a packed image: skips count pixels, every other unit holds several.
class PackedPainter {
  public:
    PackedPainter(const Canvas& canvas, const GGrfImage& image, const Placement& place)
        : canvas_(canvas), image_(image), place_(place), packing_(image) {}

    void draw(const uint8_t* at) {
        while (!isDone() && *at != 0) {
            const RunControl control{*at++};
            const int32_t count = control.count();
            if (control.skips()) {
                ++at;
                advance(count);
            } else if (control.hasUnits() && control.fills()) {
                const uint32_t unit = GGrfReadUnit(at, packing_.bytes);
                at += packing_.bytes;
                for (int32_t i = 0; i < count && !isDone(); ++i) {
                    plotUnit(unit);
                }
            } else if (control.hasUnits()) {
                for (int32_t i = 0; i < count && !isDone(); ++i, at += packing_.bytes) {
                    plotUnit(GGrfReadUnit(at, packing_.bytes));
                }
            }
        }
    }

  private:
    bool isDone() const {
        return y_ >= image_.height || place_.origin.y + y_ > place_.visible.bottom;
    }

    void advance(int32_t pixels) {
        x_ += pixels;
        y_ += x_ / image_.width;
        x_ %= image_.width;
    }

    void plotUnit(uint32_t unit) {
        for (int32_t i = 0; i < packing_.pixels && y_ < image_.height; ++i) {
            const int32_t x = place_.origin.x + x_;
            const int32_t y = place_.origin.y + y_;
            if (contains(place_.visible, x, y)) {
                plot(x, y, image_.palette->colors[packing_.index(unit, i)]);
            }
            if (++x_ == image_.width) {
                x_ = 0;
                ++y_;
            }
        }
    }

    void plot(int32_t x, int32_t y, uint32_t value) const {
        if (canvas_.kernels != nullptr) {
            uint8_t* const at = canvas_.addressOf(x, y);
            canvas_.kernels->putPixel(at, value);
            canvas_.leaveCell(value, at + canvas_.kernels->bytesPerPixel);
        } else {
            canvas_.setPixel(low16(x), low16(y), value, canvas_.handle.drawingMode);
        }
    }

    const Canvas& canvas_;
    const GGrfImage& image_;
    const Placement& place_;
    const Packing packing_;
    int32_t x_ = 0;
    int32_t y_ = 0;
};

/// The box on the surface that an image fills at its natural size.
GRect naturalBox(const GDrawHandle& handle, const GGrfImage& image, GPoint origin) {
    mapToScreen(handle, origin);
    return {origin.x, origin.y, low16(std::min<int32_t>(origin.x + image.width - 1, INT16_MAX)),
            low16(std::min<int32_t>(origin.y + image.height - 1, INT16_MAX))};
}

/// The same for a box in application coordinates, cut to the image's size; nothing is stretched.
GRect croppedBox(const GDrawHandle& handle, const GGrfImage& image, GRect box) {
    mapToScreen(handle, box);
    box.right = low16(std::min<int32_t>(box.right, box.left + image.width - 1));
    box.bottom = low16(std::min<int32_t>(box.bottom, box.top + image.height - 1));
    return box;
}

void draw(GDrawHandle* handle, const GGrfImage& image, const uint8_t* stream, const GRect& box) {
    const Canvas canvas(*handle);
    Placement place{{box.left, box.top}, box, false};
    if (!clipTo(place.visible, canvas.area)) {
        return;
    }
    place.whole =
        contains(canvas.area, box) && widthOf(box) == image.width && heightOf(box) == image.height;
    if (isPacked(image)) {
        PackedPainter(canvas, image, place).draw(stream);
    } else if (canvas.kernels != nullptr &&
               GGrfBytesOfUnit(&image) == canvas.kernels->bytesPerPixel) {
        drawByKernel(canvas, image, stream, place);
    } else {
        drawByPieces(canvas, image, stream, place);
    }
}

} // namespace
} // namespace quarlo

using namespace quarlo;

int32_t GDDrawGrf(GDrawHandle* handle, const GGrfImage* image, const uint8_t* stream, int16_t x,
                  int16_t y, int16_t width, int16_t height) {
    if (stream == nullptr) {
        return 0;
    }
    if (isReadable(*image)) {
        const GRect box =
            width <= 0 || height <= 0
                ? naturalBox(*handle, *image, {x, y})
                : croppedBox(*handle, *image, {x, y, low16(x + width - 1), low16(y + height - 1)});
        draw(handle, *image, stream, box);
    }
    return 1;
}

int32_t GDDrawImage(GDrawHandle* handle, GGrfImage* const* image, int16_t x, int16_t y,
                    int16_t width, int16_t height) {
    if (image == nullptr || *image == nullptr) {
        return 0;
    }
    return GDDrawGrf(handle, *image, (*image)->data, x, y, width, height);
}
