// What all captions have in common: their rectangle, their colour and their clip.
#pragma once

#include "text/glyph.h"

#include <quarlo/handle.h>
#include <quarlo/text.h>

#include <cstdint>

namespace quarlo {

/// A caption's rectangle less its margins, measured in lines of its font.
struct CaptionBox {
    GRect rect;          ///< application coordinates
    Magnification scale; ///< that of an ordinary font, else natural
    int32_t lineHeight;  ///< of one line, magnified
    int32_t width;
    int32_t height;

    /// Lines that begin in the rectangle.
    int32_t mostLines() const { return (height + lineHeight - 1) / lineHeight; }
};

/// Measures a caption's rectangle; false when nothing can be drawn: it is empty, or the font has no
/// letter A.
bool measureBox(GDrawHandle* handle, const GRect& rect, const GCaptionAttr& attr, CaptionBox& box);

/// While it lives the handle is clipped to the caption's rectangle and its pen has the caption's
/// colour.
class CaptionFrame {
  public:
    CaptionFrame(GDrawHandle* handle, const CaptionBox& box, uint32_t color);
    ~CaptionFrame();
    CaptionFrame(const CaptionFrame&) = delete;
    CaptionFrame& operator=(const CaptionFrame&) = delete;

    /// False when nothing of the rectangle can be seen.
    bool isVisible() const { return visible_; }

    /// What an unknown alignment stands for: the low 16 bits of the pen colour that was there.
    int32_t strayOffset() const { return static_cast<int16_t>(penPixel_); }

  private:
    GDrawHandle* handle_;
    GRect clip_{};
    const uint32_t penColor_;
    const uint32_t penPixel_;
    const bool visible_;
};

/// Pixels between the upper edge of a caption and its first line.
int32_t verticalOffset(const CaptionBox& box, uint8_t alignment, int32_t lines, int32_t stray);

/// Pixels between its left edge and a line; `previous` for an unknown alignment.
int32_t horizontalOffset(const CaptionBox& box, uint8_t alignment, int32_t width, int32_t previous);

/// Draws the glyph that a text begins with, and steps over it or over one unit.
const char16_t* drawCaptionGlyph(const Canvas& canvas, const Magnification& scale,
                                 const char16_t* text);

} // namespace quarlo
