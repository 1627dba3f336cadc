#include "parts/edit_field.h"

#include "keyboard/key_names.h"

#include <gpi/keys.h>

#include <algorithm>

namespace panel {

void EditField::begin(const std::u16string& text) {
    text_ = text.substr(0, most_);
    anchor_ = 0;
    cursor_ = text_.size();
}

bool EditField::key(int32_t key, bool shifted) {
    switch (key) {
    case GPI_KEY_LEFT:
        moveTo(cursor_ == 0 ? 0 : cursor_ - 1, shifted);
        return true;
    case GPI_KEY_RIGHT:
        moveTo(std::min(cursor_ + 1, text_.size()), shifted);
        return true;
    case GPI_KEY_HOME:
        moveTo(0, shifted);
        return true;
    case GPI_KEY_END:
        moveTo(text_.size(), shifted);
        return true;
    case GPI_KEY_BACKSPACE:
        if (cursor_ == anchor_ && cursor_ > 0) {
            --anchor_;
        }
        eraseSelection();
        return true;
    case GPI_KEY_DELETE:
        if (cursor_ == anchor_ && cursor_ < text_.size()) {
            ++anchor_;
        }
        eraseSelection();
        return true;
    default:
        break;
    }
    const char character = characterOf({key, shifted});
    if (character == '\0') {
        return characterOf({key, false}) != '\0'; // Shift makes no command of it
    }
    eraseSelection();
    insert(static_cast<char16_t>(character));
    return true;
}

void EditField::moveTo(size_t position, bool selecting) {
    cursor_ = position;
    if (!selecting) {
        anchor_ = position;
    }
}

void EditField::eraseSelection() {
    const size_t begin = low();
    text_.erase(begin, high() - begin);
    cursor_ = anchor_ = begin;
}

void EditField::insert(char16_t character) {
    if (text_.size() < most_) {
        text_.insert(cursor_, 1, character);
        cursor_ = anchor_ = cursor_ + 1;
    }
}

void EditField::draw(const Painter& painter, const GRect& rect, Face face, Align align) const {
    painter.select(face);
    const GCaptionAttr attr{
        painter.color(Ink::Text), static_cast<uint8_t>(align), G_ALIGN_MIDDLE, 0, 2, 0, 0};
    const GCaptionCursor cursor{G_CURSOR_BAR, painter.color(Ink::Cursor)};
    const bool selects = cursor_ != anchor_;
    const GCaptionSelect selection{
        static_cast<uint8_t>(selects ? 1 : 0), static_cast<uint16_t>(low()),
        static_cast<uint16_t>(selects ? high() - 1 : low()), painter.color(Ink::Selection)};
    GDDrawCaptionCursorSelectString(painter.handle(), &rect, &attr, &cursor, &selection,
                                    static_cast<int32_t>(cursor_), text_.c_str());
}

} // namespace panel
