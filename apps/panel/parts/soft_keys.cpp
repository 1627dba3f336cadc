#include "parts/soft_keys.h"

#include <algorithm>
#include <utility>

namespace panel {
namespace {

constexpr int kGap = 2;         // pixels between keys
constexpr int kStripHeight = 4; // pixels, of the light on a key that is on

} // namespace

SoftKeys::SoftKeys(Context& context, const GRect& area, IsOn isOn)
    : context_(context), area_(area), isOn_(std::move(isOn)) {}

void SoftKeys::show(std::span<const SoftKey> keys, const SoftKey& last) {
    keys_ = {};
    std::copy_n(keys.begin(), std::min(keys.size(), kCount - 1), keys_.begin());
    keys_.back() = last;
    pressed_.reset();
    context_.damage.add(area_);
}

void SoftKeys::update() {
    for (size_t i = 0; i < kCount; ++i) {
        const bool on = isOn_(keys_[i].action);
        if (on != on_[i]) {
            on_[i] = on;
            context_.damage.add(place(i));
        }
    }
}

void SoftKeys::draw(const GRect& area) const {
    if (!meet(area_, area)) {
        return;
    }
    context_.painter.fill(area_, Ink::Bar);
    for (size_t i = 0; i < kCount; ++i) {
        if (meet(place(i), area)) {
            drawKey(i);
        }
    }
}

void SoftKeys::drawKey(size_t key) const {
    const Painter& painter = context_.painter;
    const SoftKey& shown = keys_[key];
    const GRect face = inside(place(key), kGap / 2);
    if (shown.action == Action::None) {
        painter.plate(face, Ink::KeyBlank, Ink::KeyBlank);
        return;
    }
    painter.plate(face, Ink::Key, Ink::KeyEdge);
    if (pressed_ == key) {
        painter.plate(face, Ink::Key, Ink::Accent);
        painter.plate(inside(face, 1), Ink::Key, Ink::Accent);
    }
    const GRect strip = inside(face, kStripHeight);
    if (on_[key]) {
        painter.fill(box(strip.left, face.top + 2, widthOf(strip), kStripHeight), Ink::Accent);
    }
    const GRect caption = captionPlace(key);
    context_.icons.draw(painter.handle(), shown.icon,
                        face.left + (widthOf(face) - Icons::kSize) / 2, caption.top - Icons::kSize);
    painter.text(caption, {Face::Label, Ink::Text, Align::Centre}, context_.texts[shown.label]);
}

GRect SoftKeys::captionPlace(size_t key) const {
    GRect face = inside(place(key), kGap / 2);
    return takeBottom(face, context_.painter.measures().height(Face::Label) + 2 * kGap);
}

std::optional<size_t> SoftKeys::at(GPoint point) const {
    for (size_t i = 0; i < kCount; ++i) {
        if (contains(place(i), point)) {
            return i;
        }
    }
    return std::nullopt;
}

void SoftKeys::press(std::optional<size_t> key) {
    for (const auto& changed : {pressed_, key}) {
        if (changed && pressed_ != key) {
            context_.damage.add(place(*changed));
        }
    }
    pressed_ = key;
}

/// The width need not be a multiple of ten.
GRect SoftKeys::place(size_t key) const {
    const int width = widthOf(area_);
    const int left = static_cast<int>(key) * width / static_cast<int>(kCount);
    const int right = static_cast<int>(key + 1) * width / static_cast<int>(kCount);
    return box(area_.left + left, area_.top, right - left, heightOf(area_));
}

} // namespace panel
