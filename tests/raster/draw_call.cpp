#include "raster/draw_call.h"

#include <quarlo/clip.h>
#include <quarlo/draw.h>

namespace quarlo::test {

namespace {

int16_t low(int32_t value) {
    return static_cast<int16_t>(value);
}

GRect rectOf(const DrawCall& call) {
    const auto& a = call.arguments;
    return {low(a[0]), low(a[1]), low(a[2]), low(a[3])};
}

GLine lineOf(const DrawCall& call) {
    const auto& a = call.arguments;
    return {low(a[0]), low(a[1]), low(a[2]), low(a[3])};
}

/// Eight bytes from two numbers.
std::array<uint8_t, 8> bytesOf(int32_t first, int32_t second) {
    std::array<uint8_t, 8> bytes;
    for (size_t i = 0; i < 4; ++i) {
        bytes[i] = static_cast<uint8_t>(first >> (8 * i));
        bytes[i + 4] = static_cast<uint8_t>(second >> (8 * i));
    }
    return bytes;
}

GGradationInfo gradationOf(const DrawCall& call) {
    const auto& a = call.arguments;
    return {static_cast<uint8_t>(a[0]), static_cast<uint32_t>(a[1]), static_cast<uint32_t>(a[2]),
            static_cast<uint16_t>(a[3]), static_cast<uint16_t>(a[4])};
}

/// Setters are the library's own for the model's handle too. False for a call that draws.
bool set(GDrawHandle* handle, const DrawCall& call) {
    const auto& a = call.arguments;
    const auto eight = bytesOf(a[1], a[2]);
    const GRect rect = rectOf(call);
    const GGradationInfo gradation = gradationOf(call);
    const GPoint origin{low(a[0]), low(a[1])};
    switch (call.kind) {
    case DrawCall::PenColor:
        GDSetPenColor(handle, static_cast<uint32_t>(a[0]));
        return true;
    case DrawCall::FillColor:
        GDSetFillColor(handle, static_cast<uint32_t>(a[0]), static_cast<uint32_t>(a[1]));
        return true;
    case DrawCall::FillPattern:
        GDSetFillPattern(handle, a[0]);
        return true;
    case DrawCall::DrawingMode:
        GDSetDrawingMode(handle, a[0]);
        return true;
    case DrawCall::Dash:
        GDSetPenDash(handle, a[0]);
        GDSetPenSize(handle, low(a[1]), low(a[2]));
        return true;
    case DrawCall::DashPhase:
        handle->dashPhase = low(a[0]);
        return true;
    case DrawCall::DefineDash:
        GDDefinePenDash(handle, a[0], eight.data());
        return true;
    case DrawCall::DefinePattern:
        GDDefineFillPattern(handle, low(a[0]), eight.data());
        return true;
    case DrawCall::Gradation:
        GDSetGradationInfo(handle, &gradation);
        return true;
    case DrawCall::LocalMode:
        GDSetLocalMode(handle);
        GDSetLocalOrigin(handle, &origin);
        return true;
    case DrawCall::VirtualMode:
        GDSetVirtualMode(handle);
        GDSetVirtualRect(handle, &rect);
        return true;
    case DrawCall::ClipRect:
        GDSetClipRect(handle, &rect);
        return true;
    default:
        return false;
    }
}

DrawResult resultOf(int64_t value, const GLine& line = {}) {
    return {value, line.x1, line.y1, line.x2, line.y2};
}

/// False for a call that draws no curved shape.
bool drawCurve(GDrawHandle* handle, const DrawCall& call) {
    const GRect box = rectOf(call);
    const int16_t first = low(call.arguments[4]);
    const int16_t second = low(call.arguments[4] >> 16);
    switch (call.kind) {
    case DrawCall::Oval:
        GDDrawOval(handle, &box);
        return true;
    case DrawCall::RoundRect:
        GDDrawRRect(handle, &box, first, second);
        return true;
    case DrawCall::Arc:
        GDDrawArc(handle, &box, first, second);
        return true;
    case DrawCall::Pie:
        GDDrawPie(handle, &box, first, second);
        return true;
    default:
        return false;
    }
}

DrawResult draw(GDrawHandle* handle, const DrawCall& call) {
    const int16_t x = low(call.arguments[0]);
    const int16_t y = low(call.arguments[1]);
    GLine line = lineOf(call);
    const GRect rect = rectOf(call);
    switch (call.kind) {
    case DrawCall::MoveTo:
        GDMoveTo(handle, x, y);
        return {};
    case DrawCall::LineTo:
        GDLineTo(handle, x, y);
        return {};
    case DrawCall::DrawLine: {
        const int32_t drawn = GDDrawLine(handle, &line);
        return resultOf(drawn, line);
    }
    case DrawCall::DrawRect:
        GDDrawRect(handle, &rect);
        return {};
    case DrawCall::SetPixel:
        return resultOf(GDSetPixel(handle, x, y));
    default:
        return resultOf(GDGetPixel(handle, x, y));
    }
}

DrawResult draw(Model& model, const DrawCall& call) {
    const int16_t x = low(call.arguments[0]);
    const int16_t y = low(call.arguments[1]);
    GLine line = lineOf(call);
    switch (call.kind) {
    case DrawCall::MoveTo:
        model.moveTo(x, y);
        return {};
    case DrawCall::LineTo:
        model.lineTo(x, y);
        return {};
    case DrawCall::DrawLine: {
        const int32_t drawn = model.drawLine(line);
        return resultOf(drawn, line);
    }
    case DrawCall::DrawRect:
        model.drawRect(rectOf(call));
        return {};
    case DrawCall::SetPixel:
        return resultOf(model.setPixel(x, y));
    default:
        return resultOf(model.getPixel(x, y));
    }
}

} // namespace

DrawResult make(const DrawCall& call, GDrawHandle* handle) {
    return set(handle, call) || drawCurve(handle, call) ? DrawResult{} : draw(handle, call);
}

DrawResult make(const DrawCall& call, Model& model) {
    return set(&model.handle, call) ? DrawResult{} : draw(model, call);
}

std::ostream& operator<<(std::ostream& out, const DrawCall& call) {
    constexpr const char* kNames[] = {
        "pen colour",   "fill colours", "fill pattern",   "drawing mode", "dash and pen size",
        "dash phase",   "define dash",  "define pattern", "gradation",    "local mode",
        "virtual mode", "clip",         "move to",        "line to",      "line",
        "rectangle",    "set pixel",    "get pixel",      "oval",         "round rectangle",
        "arc",          "pie"};
    out << kNames[call.kind];
    for (const int32_t argument : call.arguments) {
        out << ' ' << argument;
    }
    return out;
}

} // namespace quarlo::test
