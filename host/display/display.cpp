#include "display/display.h"

#include <algorithm>

namespace gpi {

Display::Display(const Settings& settings, Input& input)
    : settings_(settings),
      input_(input),
      frame_(settings.width, settings.height, settings.format),
      palette_(defaultPalette()),
      shown_(page(0)) {}

Display::~Display() = default;

bool Display::open() {
    if (backEnd_ == nullptr) {
        backEnd_ = openBackEnd(settings_, frame_, input_);
        if (backEnd_ != nullptr) {
            backEnd_->setView(view_);
        }
    }
    return backEnd_ != nullptr;
}

bool Display::close() {
    if (backEnd_ != nullptr) {
        kept_ = backEnd_->finish(frame_);
        backEnd_.reset();
    }
    return kept_;
}

Page* Display::page(int32_t number) {
    if (number < 0 || number >= kPageCount) {
        return nullptr;
    }
    auto& page = pages_[static_cast<size_t>(number)];
    if (page == nullptr) {
        page = std::make_unique<Page>(static_cast<int16_t>(number), frame_.width, frame_.height,
                                      frame_.format, palette_);
    }
    return page.get();
}

Page* Display::pageOf(const GVram* surface) {
    for (const auto& page : pages_) {
        if (page != nullptr && &page->record() == surface) {
            return page.get();
        }
    }
    return nullptr;
}

bool Display::flush(const GRect& area, bool now) {
    const GRect visible = intersection(area, shown_->whole());
    if (backEnd_ == nullptr || isEmpty(visible)) {
        return false;
    }
    copyInto(frame_, shown_->pixels(), visible);
    change(visible);
    if (now) {
        showChanges();
        backEnd_->settle();
    }
    return true;
}

bool Display::endFrame() {
    byFrames_ = true;
    if (backEnd_ == nullptr) {
        return false;
    }
    showChanges();
    return true;
}

void Display::change(const GRect& area) {
    changes_.add(area);
    if (!byFrames_) {
        showChanges();
    }
}

void Display::showChanges() {
    if (!changes_.isEmpty()) {
        backEnd_->show(frame_, changes_.areas());
        changes_.clear();
    }
}

bool Display::showPage(int32_t number) {
    Page* const next = page(number);
    if (next == nullptr) {
        return false;
    }
    shown_ = next;
    flush(next->whole(), false);
    return true;
}

void Display::repaint() {
    if (backEnd_ != nullptr) {
        change(shown_->whole());
    }
}

bool Display::setPalette(int32_t first, std::span<const uint32_t> colors) {
    if (!holdsEntries(first, colors.size())) {
        return false;
    }
    std::transform(colors.begin(), colors.end(), palette_.begin() + first,
                   [](uint32_t color) { return color & 0xFFFFFF; });
    frame_.palette = palette_;
    repaint();
    return true;
}

bool Display::getPalette(int32_t first, std::span<uint32_t> colors) const {
    if (!holdsEntries(first, colors.size())) {
        return false;
    }
    std::copy_n(palette_.begin() + first, colors.size(), colors.begin());
    return true;
}

bool Display::holdsEntries(int32_t first, size_t count) const {
    return frame_.format.palette && first >= 0 && count >= 1 && count <= palette_.size() &&
           static_cast<size_t>(first) <= palette_.size() - count;
}

bool Display::setZoom(int32_t x, int32_t y) {
    constexpr int32_t kLargest = 16;
    if (x < 1 || x > kLargest || y < 1 || y > kLargest) {
        return false;
    }
    applyView({x, y, view_.left, view_.top});
    return true;
}

bool Display::setScroll(int32_t left, int32_t top) {
    if (left < 0 || left >= frame_.width || top < 0 || top >= frame_.height) {
        return false;
    }
    applyView({view_.zoomX, view_.zoomY, left, top});
    return true;
}

void Display::applyView(View view) {
    view.left = std::min(view.left, frame_.width - view.visibleWidth(frame_));
    view.top = std::min(view.top, frame_.height - view.visibleHeight(frame_));
    view_ = view;
    if (backEnd_ != nullptr) {
        backEnd_->setView(view_);
    }
}

bool Display::hasWindow() const {
    return backEnd_ != nullptr && backEnd_->isWindow();
}

bool Display::waitForClose() {
    return backEnd_ != nullptr && backEnd_->waitForClose();
}

} // namespace gpi
