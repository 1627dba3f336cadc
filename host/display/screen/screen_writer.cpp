#include "display/screen/screen_writer.h"

#include <utility>

namespace gpi {

ScreenWriter::ScreenWriter(ScreenDevice& device, Size frame)
    : device_(device),
      frame_(frame),
      packer_(device.format()),
      projection_(View(), frame, device.size()),
      pointer_(projection_, frame, device.size()),
      arrow_(pointer_.arrow()),
      missing_(device.buffers().size()),
      row_(static_cast<size_t>(device.size().width)),
      next_(1 % missing_.size()) {}

void ScreenWriter::write(const FrameExchange::News& news) {
    const Size screen = device_.size();
    if (news.view != nullptr) {
        projection_ = Projection(*news.view, frame_, screen);
        pointer_.setProjection(projection_);
        addMissing(wholeArea(screen.width, screen.height));
    }
    for (const GRect& area : news.areas) {
        addMissing(projection_.onScreen(area));
    }
    if (pointerHasMoved()) {
        addMissing(std::exchange(arrow_, pointer_.arrow()));
        addMissing(arrow_);
    }
    for (const GRect& area : missing_[next_].areas()) {
        writeArea(news, device_.buffers()[next_], area);
    }
    missing_[next_].clear();
}

void ScreenWriter::show() {
    device_.show(next_);
    next_ = (next_ + 1) % missing_.size();
}

void ScreenWriter::addMissing(const GRect& area) {
    for (Damage& missing : missing_) {
        missing.add(area);
    }
}

void ScreenWriter::writeArea(const FrameExchange::News& news, const ScreenBuffer& buffer,
                             const GRect& area) {
    const ptrdiff_t left = ptrdiff_t{area.left} * device_.format().bytes();
    for (int y = area.top; y <= area.bottom; ++y) {
        projection_.copyRow(news.rgb, y, area.left, widthOf(area), row_.data());
        pointer_.draw(y, area.left, widthOf(area), row_.data());
        packer_.pack(row_.data(), widthOf(area), buffer.pixels + y * buffer.stride + left);
    }
}

} // namespace gpi
