// A line of text that is being edited.
#pragma once

#include "look/painter.h"

#include <string>

namespace panel {

/// Text with a cursor and a selection. Positions count characters.
class EditField {
  public:
    /// @param most characters that it takes
    explicit EditField(size_t most) : most_(most) {}

    /// Begins with a text, all of it selected: what is typed first takes its place.
    void begin(const std::u16string& text);

    const std::u16string& text() const { return text_; }

    /// A key goes down.
    /// @param shifted whether Shift is held: characters of its own, and selecting
    /// @return whether the field has used it
    bool key(int32_t key, bool shifted);

    /// Draws it; the ground is drawn, and the area of the display confined.
    void draw(const Painter& painter, const GRect& rect, Face face, Align align) const;

  private:
    size_t low() const { return std::min(cursor_, anchor_); }
    size_t high() const { return std::max(cursor_, anchor_); }
    void moveTo(size_t position, bool selecting);
    void eraseSelection();
    void insert(char16_t character);

    size_t most_;
    std::u16string text_;
    size_t cursor_ = 0;
    size_t anchor_ = 0; ///< where the selection began; at the cursor there is none
};

} // namespace panel
