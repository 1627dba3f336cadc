// Captions without a cursor.
#include "geometry/view.h"
#include "text/caption_frame.h"
#include "text/caption_layout.h"
#include "text/string_service.h"

#include <quarlo/draw.h>
#include <quarlo/text.h>

namespace quarlo {
namespace {

/// Lays out a caption and calls draw(lines, box, frame) when there is something to draw.
template <typename Layout, typename Draw>
void withCaption(GDrawHandle* handle, const GRect& rect, const GCaptionAttr& attr,
                 const char16_t* text, const Layout& layOut, const Draw& draw) {
    CaptionBox box;
    if (text == nullptr || handle->font == nullptr || !measureBox(handle, rect, attr, box)) {
        return;
    }
    LineTable<CaptionLine> lines(box.mostLines());
    if (!lines.isReady()) {
        return;
    }
    const CaptionFrame frame(handle, box, attr.color);
    if (frame.isVisible()) {
        layOut(lines, box);
        draw(lines, box, frame);
    }
}

/// Moves the pen to the begin of each line and calls draw(line).
template <typename Draw>
void forEachLine(GDrawHandle* handle, const LineTable<CaptionLine>& lines, const CaptionBox& box,
                 const CaptionFrame& frame, const GCaptionAttr& attr, const Draw& draw) {
    int32_t y = verticalOffset(box, attr.vertical, lines.count(), frame.strayOffset());
    int32_t x = frame.strayOffset();
    for (const CaptionLine& line : lines) {
        x = horizontalOffset(box, attr.horizontal, line.width, x);
        GDMoveTo(handle, low16(box.rect.left + x), low16(box.rect.top + y));
        draw(line);
        y += box.lineHeight;
    }
}

/// Hands a line to a platform's service, from the pen position on the surface.
template <typename LineService>
void drawByService(GDrawHandle* handle, const CaptionLine& line) {
    GPoint at = handle->penPos;
    mapToScreen(*handle, at);
    LineService::checked(handle, line.start, at.x, at.y, handle->target->drawable);
}

void drawLine(const Canvas& canvas, const CaptionBox& box, const CaptionLine& line) {
    const char16_t* text = line.start;
    for (int32_t glyph = 0; glyph < line.glyphs && *text != u'\0'; ++glyph) {
        text = drawCaptionGlyph(canvas, box.scale, text);
    }
}

void drawJoinedLine(const Canvas& canvas, const CaptionBox& box, const CaptionLine& line) {
    const char16_t* text = line.start;
    for (int32_t glyph = 0; glyph < line.glyphs && *text != u'\0';) {
        if (*text == u'\r' || *text == u'\n') {
            ++text;
            continue;
        }
        text = drawCaptionGlyph(canvas, box.scale, text);
        ++glyph;
    }
}

/// Splits a text without a cursor.
auto split(GDrawHandle* handle, const char16_t* text) {
    return [handle, text](LineTable<CaptionLine>& lines, const CaptionBox& box) {
        splitLines(lines, handle->font, text, box.scale.x, box.mostLines());
    };
}

} // namespace
} // namespace quarlo

using namespace quarlo;

void GDDrawCaptionString(GDrawHandle* handle, const GRect* rect, const GCaptionAttr* attr,
                         const char16_t* text) {
    withCaption(
        handle, *rect, *attr, text, split(handle, text),
        [&](const LineTable<CaptionLine>& lines, const CaptionBox& box, const CaptionFrame& frame) {
            const Canvas canvas(*handle);
            const bool byService =
                lines.count() == 1 && DrawStringService::bound() && box.scale.isNatural();
            forEachLine(handle, lines, box, frame, *attr, [&](const CaptionLine& line) {
                if (byService) {
                    drawByService<DrawStringService>(handle, line);
                } else {
                    drawLine(canvas, box, line);
                }
            });
        });
}

void GDDrawCaptionStringDirect(GDrawHandle* handle, const GRect* rect, const GCaptionAttr* attr,
                               const char16_t* text) {
    withCaption(
        handle, *rect, *attr, text, split(handle, text),
        [&](const LineTable<CaptionLine>& lines, const CaptionBox& box, const CaptionFrame& frame) {
            forEachLine(handle, lines, box, frame, *attr, [&](const CaptionLine& line) {
                drawByService<DrawCaptionLineService>(handle, line);
            });
        });
}

void GDDrawCaptionScrollString(GDrawHandle* handle, const GRect* rect, const GCaptionAttr* attr,
                               const char16_t* text, int32_t fromRight, int32_t scroll) {
    const auto joined = [&](LineTable<CaptionLine>& lines, const CaptionBox& box) {
        joinLines(lines, handle->font, text, box.scale.x);
    };
    withCaption(
        handle, *rect, *attr, text, joined,
        [&](const LineTable<CaptionLine>& lines, const CaptionBox& box, const CaptionFrame& frame) {
            const Canvas canvas(*handle);
            const int32_t y = verticalOffset(box, attr->vertical, 1, frame.strayOffset());
            for (const CaptionLine& line : lines) {
                const int32_t x =
                    fromRight != 0
                        ? box.width
                        : horizontalOffset(box, attr->horizontal, line.width, frame.strayOffset());
                GDMoveTo(handle, low16(int64_t{box.rect.left} + x - scroll),
                         low16(box.rect.top + y));
                drawJoinedLine(canvas, box, line);
            }
        });
}
