// Every curved shape in every format, mode and style, through every kind of operations: the pixels
// are those of the plain shape, and the colours those of the style.
#include "geometry/geometry.h"
#include "raster/curve_test.h"

#include <quarlo/draw.h>
#include <quarlo/platform.h>

#include <ostream>
#include <string>
#include <vector>

using namespace quarlo;
using namespace quarlo::test;

namespace {

constexpr uint32_t kFore = 0x5A3C69;
constexpr uint32_t kBack = 0x96A5C3;
constexpr uint32_t kPen = 0x7E11D8;
constexpr GRect kClip = {3, 2, 50, 40};

/// A shape and its style.
struct StyledShape {
    enum Kind { Oval, RoundRect, Arc, Pie };

    Kind kind;
    CurveBox curve; ///< its numbers are radii or angles
    int16_t style;
    bool outlined;
    int16_t pen;
    int32_t mode;

    friend std::ostream& operator<<(std::ostream& out, const StyledShape& shape) {
        constexpr const char* kNames[] = {"oval", "round rectangle", "arc", "pie"};
        return out << kNames[shape.kind] << " " << shape.curve << " style " << shape.style
                   << " outlined " << shape.outlined << " by " << shape.pen << " mode "
                   << shape.mode;
    }

    void draw(GDrawHandle* handle) const {
        const auto first = static_cast<int16_t>(curve.first);
        const auto second = static_cast<int16_t>(curve.second);
        switch (kind) {
        case Oval:
            return GDDrawOval(handle, &curve.box);
        case RoundRect:
            return GDDrawRRect(handle, &curve.box, static_cast<int16_t>(first / 100),
                               static_cast<int16_t>(second / 100));
        case Arc:
            return GDDrawArc(handle, &curve.box, first, second);
        default:
            return GDDrawPie(handle, &curve.box, first, second);
        }
    }

    /// The pixels that are painted, in exclusive-or mode an odd number of times.
    Pixels pixels(bool fill) const {
        Drawing drawing(kCurveWidth, kCurveHeight);
        GDSetDrawingMode(drawing, mode == G_MODE_XOR ? G_MODE_XOR : G_MODE_COPY);
        GDSetPenSize(drawing, pen, pen);
        GDSetPenColor(drawing, fill ? G_NO_COLOR : 1);
        GDSetFillAttribute(drawing, fill ? G_FILL_FORE : G_FILL_NONE, 1, 1);
        draw(drawing);
        return within(pixelsOf(*drawing.surface()), kClip);
    }

    /// Whether the shape comes near enough to the clip rectangle to be drawn.
    bool isVisible() const {
        const auto grown = static_cast<int16_t>(kind == Oval && pen > 1 ? pen / 2 : 0);
        const GRect box{low16(curve.box.left - grown), low16(curve.box.top - grown),
                        low16(curve.box.right + grown), low16(curve.box.bottom + grown)};
        return !areDisjoint(box, kClip);
    }
};

StyledShape randomShape(Random& random) {
    const auto kind = static_cast<StyledShape::Kind>(random.between(0, 3));
    const CurveBox curve = randomCurve(random);
    return {kind,
            curve,
            static_cast<int16_t>(random.oneIn(2) ? random.between(-3, -1) : random.between(0, 37)),
            !random.oneIn(3),
            random.oneIn(2) ? int16_t{1} : curve.pen,
            random.between(0, 3)};
}

uint32_t combined(uint32_t old, uint32_t color, int32_t mode) {
    const uint32_t results[] = {color, old & color, old | color, old ^ color};
    return results[mode];
}

void drawByModel(GuardedSurface& surface, const GDrawHandle& handle, const StyledShape& shape) {
    const uint32_t mask = 0xFFFFFFU >> (24 - surface->bitsPerPixel);
    const auto plot = [&](const Pixel& pixel, uint32_t color) {
        const auto [y, x] = pixel;
        setPixelAt(*surface, x, y,
                   combined(pixelAt(*surface, x, y), color & mask, shape.mode) & mask);
    };
    if (!shape.isVisible()) {
        return;
    }
    if (shape.style != G_FILL_NONE) {
        for (const Pixel& pixel : shape.pixels(true)) {
            const auto [y, x] = pixel;
            const bool back = shape.style == G_FILL_BACK ||
                              (shape.style >= 0 &&
                               (handle.fillPatterns[shape.style][y & 7] << (x & 7) & 0x80) == 0);
            plot(pixel, back ? kBack : kFore);
        }
    }
    if (shape.outlined) {
        for (const Pixel& pixel : shape.pixels(false)) {
            plot(pixel, kPen);
        }
    }
}

/// Draws on the library's side; `attach` comes before every call.
template <typename Attach>
std::string difference(Drawing& drawing, const std::vector<StyledShape>& shapes, Attach attach) {
    GuardedSurface expected(kCurveWidth, kCurveHeight, drawing.surface()->bitsPerPixel);
    GDSetClipRect(drawing, &kClip);
    for (GuardedSurface* const surface : {&expected, &drawing.surface()}) {
        for (size_t i = 0; i < surface->memory().size(); ++i) {
            surface->memory().data()[i] = static_cast<uint8_t>(i * 151 + i / 7);
        }
    }
    for (const StyledShape& shape : shapes) {
        GDSetDrawingMode(drawing, shape.mode);
        GDSetPenSize(drawing, shape.pen, shape.pen);
        GDSetPenColor(drawing, shape.outlined ? kPen : G_NO_COLOR);
        GDSetFillAttribute(drawing, shape.style, kFore, kBack);
        attach(drawing);
        shape.draw(drawing);
        drawByModel(expected, *drawing.operator->(), shape);
    }
    for (int32_t y = 0; y < kCurveHeight; ++y) {
        for (int32_t x = 0; x < kCurveWidth; ++x) {
            if (pixelAt(*drawing.surface(), x, y) != pixelAt(*expected, x, y)) {
                return "row " + std::to_string(y) + " column " + std::to_string(x);
            }
        }
    }
    return drawing.surface().memory().intact() ? "" : "bytes beside the surface were written";
}

class CurveStyles : public RasterTest {
  protected:
    static void checkOnMemory(bool copied) {
        for (const int16_t bits : kDepths) {
            forRandomCalls(120, 4, randomShape, [&](const auto& shapes) -> std::string {
                Drawing drawing(kCurveWidth, kCurveHeight, bits, Against::Start);
                CopiedOps ops;
                return difference(drawing, shapes, [&](GDrawHandle* handle) {
                    if (copied) {
                        ops.attach(handle);
                    }
                });
            });
        }
    }

    static void checkOnDevice() {
        for (const int16_t bits : kDepths) {
            forRandomCalls(60, 4, randomShape, [&](const auto& shapes) -> std::string {
                DeviceDrawing drawing(kCurveWidth, kCurveHeight, bits);
                return difference(drawing, shapes, [](GDrawHandle*) {});
            });
        }
    }
};

TEST_F(CurveStyles, AreTheSameInKernels) {
    checkOnMemory(false);
}

TEST_F(CurveStyles, AreTheSameSlotBySlot) {
    checkOnMemory(true);
}

TEST_F(CurveStyles, AreTheSameOnADevice) {
    platform.recordOperations(false);
    checkOnDevice();
}

TEST_F(CurveStyles, AreTheSameOnADeviceThatFillsNoRectangles) {
    platform.recordOperations(false);
    platform.remove({67, 68, 70});
    GetGPIFunction();
    checkOnDevice();
}

} // namespace
