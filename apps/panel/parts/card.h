// A plate with a heading that values stand on.
#pragma once

#include "look/painter.h"

#include <string>

namespace panel {

struct Card {
    GRect rect{};

    /// What is left below the heading and inside the padding.
    GRect content(const Measures& measures) const {
        GRect left = inside(rect, measures.padding);
        takeTop(left, measures.height(Face::Label) + measures.padding / 2);
        return left;
    }

    void draw(const Painter& painter, const GRect& area, const std::u16string& title) const {
        if (!meet(rect, area)) {
            return;
        }
        const Measures& measures = painter.measures();
        painter.plate(rect, Ink::Card, Ink::CardEdge);
        GRect heading = inside(rect, measures.padding);
        heading = takeTop(heading, measures.height(Face::Label));
        if (meet(heading, area)) {
            painter.text(heading, {Face::Label, Ink::CardTitle, Align::Left}, title);
        }
    }
};

} // namespace panel
