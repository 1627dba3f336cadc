#include "display/frame_exchange.h"

namespace gpi {

FrameExchange::FrameExchange(const Frame& frame)
    : rgb_(static_cast<size_t>(frame.width) * static_cast<size_t>(frame.height)) {
    const GRect whole = wholeArea(frame.width, frame.height);
    convertToRgb(frame, whole, rgb_);
    damage_.add(whole);
    wakeup_.ring();
}

void FrameExchange::put(const Frame& frame, std::span<const GRect> areas) {
    change([&] {
        for (const GRect& area : areas) {
            convertToRgb(frame, area, rgb_);
            damage_.add(area);
        }
    });
}

void FrameExchange::setView(const View& view) {
    change([&] {
        view_ = view;
        viewChanged_ = true;
    });
}

void FrameExchange::settle() {
    std::unique_lock lock(mutex_);
    const uint64_t wanted = put_;
    progress_.wait(lock, [&] { return shown_ >= wanted || ended_; });
}

void FrameExchange::stop() {
    change([&] { stopped_ = true; });
}

void FrameExchange::waitForEnd() {
    std::unique_lock lock(mutex_);
    progress_.wait(lock, [&] { return ended_; });
}

void FrameExchange::again() {
    change([] {});
}

void FrameExchange::confirm() {
    const std::lock_guard lock(mutex_);
    shown_ = taken_;
    progress_.notify_all();
}

void FrameExchange::end() {
    const std::lock_guard lock(mutex_);
    ended_ = true;
    progress_.notify_all();
}

} // namespace gpi
