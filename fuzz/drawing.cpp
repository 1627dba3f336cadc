// Programs of drawing calls on a small surface between inaccessible pages: nothing outside the clip
// rectangle may change, and no memory may be left behind.
#include "input.h"
#include "require.h"
#include "scene.h"

#include <quarlo/quarlo.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <vector>

namespace quarlo::fuzz {
namespace {

constexpr int kMostCalls = 64;

/// Makes the calls that an input spells.
class Program {
  public:
    explicit Program(Input& input) : in_(input), scene_(input), handle_(*scene_.handle()) {}

    void run() { runSteps(*this, in_, kMostCalls, kDraws, kSettings); }

  private:
    using Step = void (Program::*)();

    GPoint point() { return readPoint(in_); }
    GRect rect() { return readRect(in_); }

    // Settings.

    void penColor() { GDSetPenColor(&handle_, in_.pixel()); }
    void noPen() { GDSetPenColor(&handle_, G_NO_COLOR); }
    void fillColor() {
        const uint32_t fore = in_.pixel();
        GDSetFillColor(&handle_, fore, in_.pixel());
    }
    void fillPattern() { GDSetFillPattern(&handle_, in_.below(44) - 5); }
    void drawingMode() { GDSetDrawingMode(&handle_, in_.below(4)); }
    void wildMode() { GDSetDrawingMode(&handle_, in_.word()); }
    void penDash() { GDSetPenDash(&handle_, in_.below(G_DASH_COUNT + 1)); }
    void dashPhase() { handle_.dashPhase = static_cast<int16_t>(in_.below(64)); }
    void penSize() {
        const auto width = static_cast<int16_t>(in_.below(16));
        GDSetPenSize(&handle_, width, static_cast<int16_t>(in_.below(16)));
    }
    void wildPenSize() {
        const int16_t width = in_.word();
        GDSetPenSize(&handle_, width, in_.word());
    }
    void penJoin() { GDSetPenJoin(&handle_, in_.below(4)); }
    void defineDash() { GDDefinePenDash(&handle_, in_.below(12), in_.eightBytes().data()); }
    void definePattern() { GDDefineFillPattern(&handle_, in_.byte(), in_.eightBytes().data()); }
    void colorMode() {
        const GVram& surface = scene_.surface();
        GDSetColorMode(&handle_, in_.byte(), surface.redMask, surface.greenMask, surface.blueMask);
    }
    void gradation() {
        const GGradationInfo info = {static_cast<uint8_t>(in_.below(3)), in_.pixel(), in_.pixel(),
                                     static_cast<uint16_t>(in_.word()),
                                     static_cast<uint16_t>(in_.word())};
        GDSetGradationInfo(&handle_, &info);
    }
    void localMode() { GDSetLocalMode(&handle_); }
    void localOrigin() {
        const GPoint origin = point();
        GDSetLocalOrigin(&handle_, &origin);
    }
    void virtualMode() {
        const GRect frame = rect();
        GDSetVirtualRect(&handle_, &frame);
        GDSetVirtualMode(&handle_);
    }
    void clip() {
        const GRect clip = rect();
        GDSetClipRect(&handle_, &clip);
    }
    void wholeClip() { GDSetClipRect(&handle_, nullptr); }
    /// A clip rectangle is a record that programs may write.
    void wildClip() { *scene_.surface().drawable = rect(); }

    static constexpr Step kSettings[] = {
        &Program::penColor,      &Program::noPen,       &Program::fillColor, &Program::fillPattern,
        &Program::drawingMode,   &Program::wildMode,    &Program::penDash,   &Program::dashPhase,
        &Program::penSize,       &Program::wildPenSize, &Program::penJoin,   &Program::defineDash,
        &Program::definePattern, &Program::colorMode,   &Program::gradation, &Program::localMode,
        &Program::localOrigin,   &Program::virtualMode, &Program::clip,      &Program::wholeClip,
        &Program::wildClip};

    // Drawing.

    template <typename Draw>
    void check(Draw draw) {
        checkDrawing(scene_, draw);
    }

    template <typename Draw>
    void checkWith(const GRect& rect, Draw draw) {
        check([&] { draw(&handle_, &rect); });
    }

    void setPixel() {
        const GPoint at = point();
        check([&] { GDSetPixel(&handle_, at.x, at.y); });
    }
    void getPixel() {
        const GPoint at = point();
        check([&] { GDGetPixel(&handle_, at.x, at.y); });
    }
    void moveTo() {
        const GPoint at = point();
        GDMoveTo(&handle_, at.x, at.y);
    }
    void lineTo() {
        const GPoint at = point();
        check([&] { GDLineTo(&handle_, at.x, at.y); });
    }
    void line() {
        const GRect ends = rect();
        GLine line = {ends.left, ends.top, ends.right, ends.bottom};
        check([&] { GDDrawLine(&handle_, &line); });
    }
    void rectangle() { checkWith(rect(), GDDrawRect); }
    void oval() { checkWith(rect(), GDDrawOval); }
    void roundRectangle() {
        const GRect box = rect();
        const GPoint radii = point();
        check([&] { GDDrawRRect(&handle_, &box, radii.x, radii.y); });
    }
    void arc() {
        const GRect box = rect();
        const int16_t start = in_.word();
        const int16_t end = in_.word();
        check([&] { GDDrawArc(&handle_, &box, start, end); });
    }
    void pie() {
        const GRect box = rect();
        const int16_t start = in_.word();
        const int16_t end = in_.word();
        check([&] { GDDrawPie(&handle_, &box, start, end); });
    }

    GBorderStyle border() {
        return {in_.byte(), in_.pixel(), in_.pixel(), in_.flag() ? in_.pixel() : G_NO_COLOR,
                in_.coordinate()};
    }
    void rectBorder() {
        const GRect box = rect();
        const GBorderStyle style = border();
        const auto kind = static_cast<uint16_t>(in_.below(3));
        GRect inner;
        check([&] { GDDrawRectBorder(&handle_, &box, &inner, &style, kind); });
    }
    void ovalBorder() {
        const GRect box = rect();
        const GBorderStyle style = border();
        const bool pressed = in_.flag();
        GRect inner;
        check([&] { GDDrawOvalBorder(&handle_, &box, &inner, &style, pressed ? 1 : 0); });
    }
    void bezier() {
        GPoint points[] = {point(), point(), point(), point()};
        const GPoly poly = {4, points, {}};
        check([&] { GDDrawBezier(&handle_, &poly); });
    }
    void transfer() {
        const GRect from = rect();
        const GPoint to = point();
        const int32_t mode = in_.below(5);
        const GVram* const source = in_.flag() ? &scene_.surface() : scene_.source();
        check([&] {
            GDBitBlt(&handle_, source, from.left, from.top, from.right, from.bottom, handle_.target,
                     to.x, to.y, mode);
        });
    }

    /// A vertex of a polygon. No other x can be taken for the mark of a table edge.
    GPoint vertex() {
        GPoint vertex = point();
        if (vertex.x == G_TABLE_EDGE) {
            ++vertex.x;
        }
        return vertex;
    }
    void polygon() {
        std::vector<GPoint> points(static_cast<size_t>(in_.below(24)));
        for (GPoint& point : points) {
            point = vertex();
        }
        GPoly poly = {static_cast<int16_t>(points.size()), points.data(), {}};
        check([&] { GDDrawPoly(&handle_, &poly); });
    }
    /// A polygon of a few vertices and one edge that follows a table. Points and table are one
    /// block, with nothing behind it.
    void tablePolygon() {
        constexpr size_t kRun = 4;
        const auto before = static_cast<size_t>(in_.below(4));
        const auto after = static_cast<size_t>(in_.below(4));
        const int16_t top = in_.coordinate();
        const int32_t rows = std::min<int32_t>(in_.byte(), INT16_MAX - top);
        const auto bottom = static_cast<int16_t>(top + rows);
        const size_t count = before + kRun + after;
        const size_t columns = static_cast<size_t>(rows) + 1;
        const auto block = std::make_unique<int16_t[]>(2 * count + columns);
        auto* const points = reinterpret_cast<GPoint*>(block.get());
        int16_t* const table = &block[2 * count];
        for (size_t i = 0; i < count; ++i) {
            points[i] = vertex();
        }
        for (size_t i = 0; i < columns; ++i) {
            table[i] = in_.coordinate();
        }
        const bool bottomUp = in_.flag();
        const bool falling = in_.flag();
        GPoint* const run = &points[before];
        run[0].y = falling ? top : bottom;
        run[3].y = falling ? bottom : top;
        require(GDSetTableEdge(run, table, bottomUp ? 1 : 0) == 1, "a table is out of reach");
        GPoly poly = {static_cast<int16_t>(count), points, {}};
        check([&] { GDDrawPoly(&handle_, &poly); });
    }

    static constexpr Step kDraws[] = {
        &Program::setPixel, &Program::getPixel,  &Program::moveTo,     &Program::lineTo,
        &Program::line,     &Program::rectangle, &Program::oval,       &Program::roundRectangle,
        &Program::arc,      &Program::pie,       &Program::rectBorder, &Program::ovalBorder,
        &Program::bezier,   &Program::transfer,  &Program::polygon,    &Program::tablePolygon};

    Input& in_;
    Scene scene_;
    GDrawHandle& handle_;
};

} // namespace
} // namespace quarlo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    testing::GTEST_FLAG(break_on_failure) = true; // of what the platform watches
    quarlo::fuzz::Input input({data, size});
    quarlo::fuzz::Program(input).run();
    return 0;
}
