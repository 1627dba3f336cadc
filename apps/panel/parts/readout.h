// A text at a fixed place that knows what it shows.
#pragma once

#include "damage.h"
#include "look/painter.h"

#include <optional>
#include <string>

namespace panel {

struct Readout {
    GRect rect{};
    TextLook look;
    std::optional<Ink> ground; ///< a sign: the text stands on a plate of its own
    std::u16string text;

    /// Shows another text. Only a change is damage.
    void show(const std::u16string& now, Damage& damage) {
        if (text != now) {
            text = now;
            damage.add(rect);
        }
    }

    /// Shows another text on another plate.
    void show(const std::u16string& now, Ink plate, Damage& damage) {
        if (ground != plate) {
            ground = plate;
            damage.add(rect);
        }
        show(now, damage);
    }

    /// Draws it where an area needs it.
    void draw(const Painter& painter, const GRect& area) const {
        if (!meet(rect, area)) {
            return;
        }
        if (ground) {
            painter.plate(rect, *ground, *ground);
        }
        painter.text(rect, look, text);
    }
};

} // namespace panel
