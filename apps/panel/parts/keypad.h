// Keys to type with where there is no keyboard.
#pragma once

#include "look/painter.h"

#include <optional>
#include <span>

namespace panel {

/// A cap of a keypad: what stands on it, and the key of a keyboard that it stands for.
struct KeyCap {
    const char16_t* name;
    int32_t key;
    bool shifted = false;
};

/// Caps in rows and columns, all of a size.
class Keypad {
  public:
    Keypad(std::span<const KeyCap> caps, int columns) : caps_(caps), columns_(columns) {}

    void layOut(const GRect& area) { area_ = area; }
    const GRect& area() const { return area_; }

    const KeyCap* at(GPoint point) const;
    void draw(const Painter& painter, const GRect& area) const;

  private:
    GRect place(size_t cap) const;

    std::span<const KeyCap> caps_;
    int columns_;
    GRect area_{};
};

/// Digits, sign and point, and what an edit field needs.
Keypad numberPad();
/// Letters of part programs too.
Keypad blockPad();

} // namespace panel
