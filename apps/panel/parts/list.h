// Rows of equal height, of which some are in view.
#pragma once

#include "context.h"

#include <gpi/keys.h>

#include <algorithm>
#include <optional>

namespace panel {

/// Which rows of a list are in view, and where. What they show is the business of its owner.
class List {
  public:
    void layOut(const GRect& area, int rowHeight) {
        area_ = area;
        rowHeight_ = rowHeight;
        setCount(count_);
    }

    void setCount(int32_t count) {
        count_ = count;
        scrollTo(first_);
    }

    const GRect& area() const { return area_; }
    int32_t count() const { return count_; }
    /// The first row in view, from 0.
    int32_t first() const { return first_; }
    /// Rows that fit.
    int32_t rows() const { return std::max(1, heightOf(area_) / rowHeight_); }
    bool shows(int32_t row) const { return row >= first_ && row < first_ + rows() && row < count_; }

    GRect place(int32_t row) const {
        return box(area_.left, area_.top + (row - first_) * rowHeight_, widthOf(area_), rowHeight_);
    }

    /// @return whether other rows are in view now
    bool scrollTo(int32_t first) {
        const int32_t before = first_;
        first_ = std::max(0, std::min(first, count_ - rows()));
        return first_ != before;
    }

    /// Brings a row into view with as little movement as can be.
    bool reveal(int32_t row) {
        if (row < first_) {
            return scrollTo(row);
        }
        return row >= first_ + rows() && scrollTo(row - rows() + 1);
    }

    std::optional<int32_t> at(GPoint point) const {
        const int32_t row = first_ + (point.y - area_.top) / rowHeight_;
        return contains(area_, point) && shows(row) ? std::optional(row) : std::nullopt;
    }

    /// Where a key moves to from a row; nothing for other keys.
    std::optional<int32_t> moved(int32_t row, int32_t key) const {
        const int32_t last = std::max(0, count_ - 1);
        switch (key) {
        case GPI_KEY_UP:
            return std::max(0, row - 1);
        case GPI_KEY_DOWN:
            return std::min(last, row + 1);
        case GPI_KEY_PAGE_UP:
            return std::max(0, row - rows());
        case GPI_KEY_PAGE_DOWN:
            return std::min(last, row + rows());
        case GPI_KEY_HOME:
            return 0;
        case GPI_KEY_END:
            return last;
        default:
            return std::nullopt;
        }
    }

    /// Calls a function with the rows that an area needs, and their places.
    template <class Draw>
    void forRows(const GRect& area, Draw draw) const {
        for (int32_t row = first_; shows(row); ++row) {
            if (meet(place(row), area)) {
                draw(row, place(row));
            }
        }
    }

  private:
    GRect area_{};
    int rowHeight_ = 1;
    int32_t count_ = 0;
    int32_t first_ = 0;
};

} // namespace panel
