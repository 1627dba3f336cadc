// Random captions on the library and on the plain model.
#pragma once

#include "text/caption_model.h"
#include "text/text_test.h"

#include <ostream>

namespace quarlo::test {

enum class CaptionKind { Plain, Scrolled, Cursor, CursorWithoutSelection };

inline std::ostream& operator<<(std::ostream& out, const CaptionCase& call) {
    for (const char16_t unit : call.text) {
        out << std::hex << +unit << std::dec << ' ';
    }
    const GRect& rect = call.rect;
    return out << "in (" << rect.left << ", " << rect.top << ", " << rect.right << ", "
               << rect.bottom << ") aligned " << +call.attr.horizontal << ' ' << +call.attr.vertical
               << " margins " << call.attr.leftMargin << ' ' << call.attr.rightMargin << ' '
               << call.attr.topMargin << ' ' << call.attr.bottomMargin << " cursor "
               << +call.cursor.style << " at " << call.cursorPos << " selection "
               << +call.selection.shown << ' ' << call.selection.first << ' ' << call.selection.last
               << " scroll " << call.fromRight << ' ' << call.scroll << " mode " << call.mode
               << " text mode " << call.textMode << " magnified " << +call.magnifyX << ' '
               << +call.magnifyY << " kind " << call.kind;
}

inline CaptionCase randomCaption(Random& random) {
    const auto low = [](int32_t value) { return static_cast<int16_t>(value); };
    const auto byte = [](int32_t value) { return static_cast<uint8_t>(value); };
    const auto color = [&random] {
        return random.oneIn(6) ? G_NO_COLOR : static_cast<uint32_t>(random.bits() & 0xFFFFFF);
    };
    const int32_t left = random.between(-10, 40);
    const int32_t top = random.between(-10, 30);
    const auto margin = [&] { return low(random.oneIn(2) ? 0 : random.between(-4, 8)); };
    const auto alignment = [&] { return byte(random.oneIn(12) ? 7 : random.between(0, 2)); };
    CaptionCase call;
    call.text = randomText(random, 14, u"\n\n\r\r\n");
    call.rect = {low(left), low(top), low(left + random.between(-2, 90)),
                 low(top + random.between(-2, 50))};
    call.attr = {color(), alignment(), alignment(), margin(), margin(), margin(), margin()};
    call.cursor = {byte(random.between(0, 2)), color()};
    call.selection = {byte(random.between(0, 1)), static_cast<uint16_t>(random.between(0, 5)),
                      static_cast<uint16_t>(random.between(0, 7)), color()};
    call.cursorPos = random.between(-1, 16);
    call.fromRight = random.oneIn(3) ? 256 : 0;
    call.scroll = random.between(-20, 120);
    call.mode = random.between(0, 3);
    call.textMode = random.between(0, 3);
    call.pen = static_cast<uint32_t>(random.between(0, 40));
    call.back = color();
    call.magnifyX = byte(random.oneIn(2) ? 1 : random.between(0, 3));
    call.magnifyY = byte(random.oneIn(2) ? 1 : random.between(0, 3));
    call.kind = static_cast<uint16_t>(random.oneIn(6) ? 1 : 0);
    return call;
}

inline void drawCaption(GDrawHandle* handle, CaptionKind kind, const CaptionCase& call) {
    const char16_t* const text = call.text.c_str();
    switch (kind) {
    case CaptionKind::Plain:
        return GDDrawCaptionString(handle, &call.rect, &call.attr, text);
    case CaptionKind::Scrolled:
        return GDDrawCaptionScrollString(handle, &call.rect, &call.attr, text, call.fromRight,
                                         call.scroll);
    case CaptionKind::Cursor:
        return GDDrawCaptionCursorSelectString(handle, &call.rect, &call.attr, &call.cursor,
                                               &call.selection, call.cursorPos, text);
    case CaptionKind::CursorWithoutSelection:
        return GDDrawCaptionCursorString(handle, &call.rect, &call.attr, &call.cursor,
                                         call.cursorPos, text);
    }
}

inline void drawByModel(CaptionModel model, CaptionKind kind) {
    switch (kind) {
    case CaptionKind::Plain:
        return model.drawPlain();
    case CaptionKind::Scrolled:
        return model.drawScrolled();
    default:
        return model.drawWithCursor();
    }
}

/// What is wrong after a caption; an empty text if nothing is.
inline std::string captionDifference(ScriptedFont& font, CaptionKind kind, CaptionCase call,
                                     int16_t depth, const GRect& clip, TextThrough through) {
    Drawing memory(90, 60, depth);
    DeviceDrawing device(90, 60, depth);
    Drawing& drawing = through == TextThrough::Device ? device : memory;
    if (kind == CaptionKind::CursorWithoutSelection) {
        call.selection = {};
    }
    GDSetFont(drawing, font.get());
    font.magnify(call.magnifyX, call.magnifyY);
    font.setKind(call.kind);
    GDSetClipRect(drawing, &clip);
    GDSetDrawingMode(drawing, call.mode);
    GDSetTextMode(drawing, call.textMode);
    GDSetPenColor(drawing, call.pen);
    GDSetBackColor(drawing, call.back);
    CopiedOps ops;
    if (through == TextThrough::CopiedOps) {
        ops.attach(drawing);
    }
    TextModel canvas(*drawing.surface());
    canvas.clip = clip;
    canvas.mode = call.mode;
    canvas.transparent = (call.textMode & 2) != 0;
    canvas.pen = call.pen;
    canvas.back = call.back;
    drawCaption(drawing, kind, call);
    drawByModel(CaptionModel(canvas, font, call), kind);
    if (drawing->penPixel != call.pen || drawing->penColor != call.pen) {
        return "the pen colour was not restored";
    }
    if (drawing->drawingMode != call.mode) {
        return "the drawing mode was not restored";
    }
    GRect left;
    GDGetClipRect(drawing, &left);
    if (left.left != clip.left || left.bottom != clip.bottom) {
        return "the clip rectangle was not restored";
    }
    return drawing.surface().memory().intact() ? difference(*drawing.surface(), canvas)
                                               : "bytes beside the surface were written";
}

/// Draws random captions of a kind in all formats; fails with the first that the model draws
/// otherwise.
inline void expectLikeModel(RecordingPlatform& platform, CaptionKind kind) {
    for (const int16_t depth : kDepths) {
        for (const TextThrough through : {TextThrough::Kernels, TextThrough::CopiedOps}) {
            ScriptedFont font(platform, depth == 16 ? 2 : 1);
            forRandomCalls(300, 1, randomCaption, [&](const auto& calls) -> std::string {
                return calls.empty() ? ""
                                     : captionDifference(font, kind, calls[0], depth,
                                                         {4, 3, 84, 55}, through);
            });
        }
    }
}

/// Draws random captions of a kind where paint is counted; fails with the first whose pixels the
/// model paints more or less often.
inline void expectPaintedLikeModel(RecordingPlatform& platform, CaptionKind kind) {
    platform.countPaint();
    ScriptedFont font(platform);
    forRandomCalls(500, 1, randomCaption, [&](auto calls) -> std::string {
        if (calls.empty()) {
            return "";
        }
        calls[0].mode = kCountingMode;
        return captionDifference(font, kind, calls[0], 8, {4, 3, 84, 55}, TextThrough::Device);
    });
}

} // namespace quarlo::test
