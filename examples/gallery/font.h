// A font of the panel face for a while.
#pragma once

#include <quarlo/font.h>
#include <quarlo/handle.h>

namespace gallery {

inline constexpr char16_t kPanelFace[] = u"TORVANDELL CNC Gothic";

/// How often glyphs are enlarged, and whether their strokes are widened.
struct FontStyle {
    int magnifyX = 1;
    int magnifyY = 1;
    bool bold = false;
};

/// Makes a font a handle's own while this lives, and the one before it afterwards. Without such a
/// font no text is drawn.
class HandleFont {
  public:
    /// @param size of an ideograph's cell, pixels
    HandleFont(GDrawHandle* handle, int size, const FontStyle& style = {},
               const char16_t* face = kPanelFace);
    ~HandleFont();
    HandleFont(const HandleFont&) = delete;
    HandleFont& operator=(const HandleFont&) = delete;

  private:
    GDrawHandle* handle_;
    GFontRecord* before_;
    GFontRecord* font_;
};

} // namespace gallery
