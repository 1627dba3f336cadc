// A card of a value for each axis.
#pragma once

#include "machine/snapshot.h"
#include "parts/card.h"
#include "parts/readout.h"
#include "text/format.h"

namespace panel {

class AxisCard {
  public:
    void layOut(const GRect& area, const Measures& measures, Face face) {
        card_.rect = area;
        face_ = face;
        GRect content = card_.content(measures);
        const int height = heightOf(content) / static_cast<int>(kAxes);
        for (size_t axis = 0; axis < kAxes; ++axis) {
            GRect row = takeTop(content, height);
            takeRight(row, measures.padding);
            names_[axis] = takeLeft(row, 2 * measures.width(face));
            values_[axis].rect = row;
            values_[axis].look = {face, Ink::Digits, Align::Right};
        }
    }

    void show(const Snapshot& now, const Place& place, Damage& damage) {
        for (size_t axis = 0; axis < kAxes; ++axis) {
            values_[axis].show(now.online ? lengthText(place[axis], now.inches) : u"----.---",
                               damage);
        }
    }

    void draw(const Painter& painter, const GRect& area, const std::u16string& title) const {
        card_.draw(painter, area, title);
        for (size_t axis = 0; axis < kAxes; ++axis) {
            if (meet(names_[axis], area)) {
                painter.text(names_[axis], {face_, Ink::Accent, Align::Left},
                             std::u16string(1, kAxisNames[axis]));
            }
            values_[axis].draw(painter, area);
        }
    }

  private:
    Card card_;
    Face face_ = Face::Number;
    std::array<GRect, kAxes> names_{};
    std::array<Readout, kAxes> values_;
};

} // namespace panel
