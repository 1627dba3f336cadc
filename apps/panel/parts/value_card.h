// A card of named values below each other.
#pragma once

#include "parts/card.h"
#include "parts/readout.h"
#include "text/texts.h"

#include <span>
#include <vector>

namespace panel {

class ValueCard {
  public:
    explicit ValueCard(std::span<const Word> names) : names_(names), values_(names.size()) {}

    /// @param nameCells room for the names, narrow cells
    void layOut(const GRect& area, const Measures& measures, int nameCells, Align align) {
        card_.rect = area;
        GRect content = card_.content(measures);
        takeRight(content, measures.padding);
        const int height = heightOf(content) / static_cast<int>(values_.size());
        for (Readout& value : values_) {
            value.rect = takeTop(content, height);
            takeLeft(value.rect, nameCells * measures.width(Face::Text));
            value.look = {Face::Text, Ink::Text, align};
        }
    }

    void show(size_t row, const std::u16string& text, Damage& damage) {
        values_[row].show(text, damage);
    }

    void draw(const Painter& painter, const Texts& texts, const GRect& area, Word title) const {
        card_.draw(painter, area, texts[title]);
        for (size_t i = 0; i < values_.size(); ++i) {
            GRect name = values_[i].rect;
            name.right = static_cast<int16_t>(name.left - 1);
            name.left = card_.content(painter.measures()).left;
            if (meet(name, area)) {
                painter.text(name, {Face::Text, Ink::TextFaint, Align::Left}, texts[names_[i]]);
            }
            values_[i].draw(painter, area);
        }
    }

  private:
    std::span<const Word> names_;
    Card card_;
    std::vector<Readout> values_;
};

} // namespace panel
