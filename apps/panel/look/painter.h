// Draws what the panel is made of in its style.
#pragma once

#include "look/box.h"
#include "look/style.h"

#include <string>

namespace panel {

enum class Align : uint8_t { Left = G_ALIGN_LEFT, Centre = G_ALIGN_CENTRE, Right = G_ALIGN_RIGHT };

/// How a text looks.
struct TextLook {
    Face face = Face::Text;
    Ink ink = Ink::Text;
    Align align = Align::Left;
};

/// Whether there is a display, and the panel's face. Nothing else here works without.
bool canPaint();

/// The display with colours and fonts. What is drawn is seen when it is flushed, not before.
class Painter {
  public:
    /// Opens the display. The platform must run, and canPaint().
    Painter();
    ~Painter();
    Painter(const Painter&) = delete;
    Painter& operator=(const Painter&) = delete;

    GDrawHandle* handle() const { return handle_; }
    const Measures& measures() const { return *measures_; }
    uint32_t color(Ink ink) const { return palette_[ink]; }
    GRect display() const { return handle_->view; }

    /// Confines drawing to an area.
    void clip(const GRect& area) const { GDSetClipRect(handle_, &area); }

    void fill(const GRect& rect, Ink ink) const;
    /// Outline of one pixel.
    void frame(const GRect& rect, Ink ink) const;
    /// With round corners, filled and outlined.
    void plate(const GRect& rect, Ink ground, Ink edge) const;
    /// A text in the middle of a rectangle's height, cut off at its edges. It may have lines.
    void text(const GRect& rect, const TextLook& look, const std::u16string& text) const;

    /// Makes a font the handle's, for calls that draw with it.
    void select(Face face) const;

  private:
    GDrawHandle* handle_;
    const Measures* measures_;
    Palette palette_;
    std::array<GFontRecord*, kFaceCount> fonts_{};
};

} // namespace panel
