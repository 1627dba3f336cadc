#include "parts/keypad.h"

#include <gpi/keys.h>

namespace panel {
namespace {

constexpr KeyCap kNumberCaps[] = {
    {u"7", '7'},           {u"8", '8'},
    {u"9", '9'},           {u"4", '4'},
    {u"5", '5'},           {u"6", '6'},
    {u"1", '1'},           {u"2", '2'},
    {u"3", '3'},           {u"-", GPI_KEY_MINUS},
    {u"0", '0'},           {u".", GPI_KEY_PERIOD},
    {u"←", GPI_KEY_LEFT},  {u"↑", GPI_KEY_UP},
    {u"→", GPI_KEY_RIGHT}, {u"Del", GPI_KEY_BACKSPACE},
    {u"↓", GPI_KEY_DOWN},  {u"Enter", GPI_KEY_ENTER},
};

constexpr KeyCap kBlockCaps[] = {
    {u"G", 'G'},
    {u"X", 'X'},
    {u"Y", 'Y'},
    {u"Z", 'Z'},
    {u"7", '7'},
    {u"8", '8'},
    {u"9", '9'},
    {u"Del", GPI_KEY_BACKSPACE},
    {u"M", 'M'},
    {u"I", 'I'},
    {u"J", 'J'},
    {u"K", 'K'},
    {u"4", '4'},
    {u"5", '5'},
    {u"6", '6'},
    {u"←", GPI_KEY_LEFT},
    {u"F", 'F'},
    {u"S", 'S'},
    {u"T", 'T'},
    {u"R", 'R'},
    {u"1", '1'},
    {u"2", '2'},
    {u"3", '3'},
    {u"→", GPI_KEY_RIGHT},
    {u"H", 'H'},
    {u"P", 'P'},
    {u"#", '3', true},
    {u"=", GPI_KEY_EQUALS},
    {u"-", GPI_KEY_MINUS},
    {u"0", '0'},
    {u".", GPI_KEY_PERIOD},
    {u"Enter", GPI_KEY_ENTER},
};

constexpr int kGap = 4; // pixels between caps

} // namespace

const KeyCap* Keypad::at(GPoint point) const {
    for (size_t i = 0; i < caps_.size(); ++i) {
        if (contains(place(i), point)) {
            return &caps_[i];
        }
    }
    return nullptr;
}

GRect Keypad::place(size_t cap) const {
    const int count = static_cast<int>(caps_.size());
    const int rows = (count + columns_ - 1) / columns_;
    const int row = static_cast<int>(cap) / columns_;
    const int column = static_cast<int>(cap) % columns_;
    const int left = column * widthOf(area_) / columns_;
    const int right = (column + 1) * widthOf(area_) / columns_;
    const int top = row * heightOf(area_) / rows;
    const int bottom = (row + 1) * heightOf(area_) / rows;
    return inside(box(area_.left + left, area_.top + top, right - left, bottom - top), kGap / 2);
}

void Keypad::draw(const Painter& painter, const GRect& area) const {
    for (size_t i = 0; i < caps_.size(); ++i) {
        const GRect cap = place(i);
        if (meet(cap, area)) {
            painter.plate(cap, Ink::Key, Ink::KeyEdge);
            painter.text(cap, {Face::Text, Ink::Text, Align::Centre}, caps_[i].name);
        }
    }
}

Keypad numberPad() {
    return {kNumberCaps, 3};
}

Keypad blockPad() {
    return {kBlockCaps, 8};
}

} // namespace panel
