// Captions with a cursor and a selection: the contents of edit fields.
#include "geometry/geometry.h"
#include "text/caption_frame.h"
#include "text/caption_layout.h"

#include <quarlo/draw.h>
#include <quarlo/text.h>

namespace quarlo {
namespace {

/// Columns kept free right of the cursor.
constexpr int32_t kCursorRoom = 4;

/// How far a caption is moved so that its cursor can be seen.
struct Scroll {
    int32_t x;
    int32_t y; ///< of the first line, alignment included
};

/// A caption that is being drawn with its cursor.
class CursorCaption {
  public:
    CursorCaption(GDrawHandle* handle, const CaptionBox& box, const GCaptionAttr& attr,
                  const GCaptionCursor& cursor, const GCaptionSelect& selection)
        : handle_(*handle),
          canvas_(*handle),
          box_(box),
          attr_(attr),
          cursor_(cursor),
          selection_(selection) {}

    void draw(const LineTable<CursorLine>& lines, const Scroll& scroll) const {
        int32_t y = scroll.y;
        for (const CursorLine& line : lines) {
            const int64_t x = int64_t{alignedX(line)} + scroll.x;
            GDMoveTo(&handle_, low16(box_.rect.left + x), low16(box_.rect.top + y));
            drawLine(line);
            y += box_.lineHeight;
        }
    }

  private:
    /// An unknown alignment is like the left one here.
    int32_t alignedX(const CursorLine& line) const {
        return horizontalOffset(box_, attr_.horizontal, line.width, 0);
    }

    void drawLine(const CursorLine& line) const {
        const char16_t* text = line.start;
        GRect selected{0, 0, -1, -1};
        for (int32_t glyph = 0; glyph < line.glyphs; ++glyph) {
            const GRect mark = markAtPen();
            if (glyph == selection_.first) {
                selected = mark;
            }
            if (*text != u'\0') {
                text = drawCaptionGlyph(canvas_, box_.scale, text);
            }
            if (selection_.shown != 0 && glyph == selection_.last &&
                selection_.first <= selection_.last) {
                selected.right = handle_.penPos.x;
                invert(selected, selection_.color);
            }
            if (glyph == line.cursor) {
                drawCursor(mark, handle_.penPos.x - mark.left);
            }
        }
        if (line.cursor == line.glyphs) {
            drawCursor(markAtPen(), isBlock() ? GDGetCharWidth(&handle_, u' ') : 0);
        }
    }

    bool isBlock() const { return cursor_.style == G_CURSOR_BLOCK; }

    /// A bar cursor at the pen position.
    GRect markAtPen() const {
        const GPoint& pen = handle_.penPos;
        return {pen.x, pen.y, low16(pen.x + 1), low16(pen.y + box_.lineHeight)};
    }

    /// @param width of a block
    void drawCursor(GRect mark, int32_t width) const {
        if (isBlock()) {
            mark.right = low16(mark.left + width - 1);
            invert(mark, cursor_.color);
        } else {
            fill(mark, cursor_.color, handle_.drawingMode);
        }
    }

    void invert(const GRect& rect, uint32_t color) const { fill(rect, color, G_MODE_XOR); }

    /// Leaves the fill style and the fore colour behind, deliberately; the pen colour not.
    void fill(const GRect& rect, uint32_t color, int32_t mode) const {
        const int32_t oldMode = handle_.drawingMode;
        const uint32_t penColor = handle_.penColor;
        const uint32_t penPixel = handle_.penPixel;
        GDSetDrawingMode(&handle_, mode);
        GDSetPenColor(&handle_, G_NO_COLOR);
        GDSetFillPattern(&handle_, G_FILL_FORE);
        GDSetForeColor(&handle_, color);
        if (isValid(rect)) {
            GDDrawRect(&handle_, &rect);
        }
        GDSetDrawingMode(&handle_, oldMode);
        handle_.penColor = penColor;
        handle_.penPixel = penPixel;
    }

    GDrawHandle& handle_;
    const Canvas canvas_;
    const CaptionBox& box_;
    const GCaptionAttr& attr_;
    const GCaptionCursor& cursor_;
    const GCaptionSelect& selection_;
};

int32_t scrollAcross(const CaptionBox& box, const GCaptionAttr& attr,
                     const LineTable<CursorLine>& lines, const CursorPlace& cursor) {
    if (cursor.line == kNoCursor) {
        return attr.horizontal == G_ALIGN_RIGHT ? 1 : 0; // deliberately
    }
    const int32_t width = cursor.line < lines.count() ? lines.begin()[cursor.line].width : 0;
    const int64_t column = int64_t{horizontalOffset(box, attr.horizontal, width, 0)} + cursor.x;
    if (column < 0) {
        return static_cast<int32_t>(-column);
    }
    const int64_t beyond = column + kCursorRoom - box.width;
    return static_cast<int32_t>(beyond > 0 ? -beyond : 0);
}

int32_t scrollDown(const CaptionBox& box, int32_t aligned, const CursorPlace& cursor) {
    const int32_t y = cursor.line == kNoCursor ? 0 : cursor.line * box.lineHeight;
    if (aligned + y < 0) {
        return -y;
    }
    return box.height < aligned + y + box.lineHeight ? box.height - y - box.lineHeight : aligned;
}

} // namespace
} // namespace quarlo

using namespace quarlo;

void GDDrawCaptionCursorSelectString(GDrawHandle* handle, const GRect* rect,
                                     const GCaptionAttr* attr, const GCaptionCursor* cursor,
                                     const GCaptionSelect* selection, int32_t cursorPos,
                                     const char16_t* text) {
    CaptionBox box;
    if (text == nullptr || handle->font == nullptr || !measureBox(handle, *rect, *attr, box)) {
        return;
    }
    if (*text == u'\0' && cursorPos == 0) {
        text = u" "; // the cursor needs a line
    }
    LineTable<CursorLine> lines(box.mostLines() + 1);
    if (!lines.isReady()) {
        return;
    }
    const CaptionFrame frame(handle, box, attr->color);
    if (!frame.isVisible()) {
        return;
    }
    const CursorPlace place =
        splitLines(lines, handle->font, text, box.scale.x, box.mostLines(), cursorPos);
    const int32_t aligned = verticalOffset(box, attr->vertical, lines.count(), frame.strayOffset());
    const Scroll scroll{scrollAcross(box, *attr, lines, place), scrollDown(box, aligned, place)};
    CursorCaption(handle, box, *attr, *cursor, *selection).draw(lines, scroll);
}

void GDDrawCaptionCursorString(GDrawHandle* handle, const GRect* rect, const GCaptionAttr* attr,
                               const GCaptionCursor* cursor, int32_t cursorPos,
                               const char16_t* text) {
    const GCaptionSelect none{};
    GDDrawCaptionCursorSelectString(handle, rect, attr, cursor, &none, cursorPos, text);
}
