#include "raster/edge_table.h"

#include "geometry/geometry.h"
#include "memory/memory.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstring>
#include <utility>

namespace quarlo {
namespace {

/// The columns of a table edge, whose third point holds a reference to them: the pointer itself,
/// or, where that does not fit, the distance from the point.
const int16_t* columnsOf(const GPoint* run) {
    if constexpr (sizeof(void*) == sizeof(GPoint)) { // not counted: 32-bit machines
        const int16_t* columns;
        std::memcpy(&columns, &run[2], sizeof columns);
        return columns;
    } else {
        int32_t distance;
        std::memcpy(&distance, &run[2], sizeof distance);
        return reinterpret_cast<const int16_t*>(reinterpret_cast<const uint8_t*>(&run[2]) +
                                                distance);
    }
}

/// One digit of a radix sort: how many have each value, and then where the next of them belongs.
class ColumnDigits {
  public:
    /// Two such digits hold the columns of any usual surface, and take little of the stack.
    static constexpr int kMostBits = 6;

    void count(uint32_t digit) { ++places_[digit]; }

    /// For digits of so many bits.
    void findPlaces(int bits) {
        uint16_t next = 0;
        for (size_t digit = 0; digit < size_t{1} << bits; ++digit) {
            next = static_cast<uint16_t>(next + std::exchange(places_[digit], next));
        }
    }

    uint16_t take(uint32_t digit) { return places_[digit]++; }

  private:
    std::array<uint16_t, 1 << kMostBits> places_{};
};

/// An object, not a function, so that sorting compares in place.
constexpr auto kDown = [](const GEdge& a, const GEdge& b) {
    return a.yTop != b.yTop ? a.yTop < b.yTop : a.order < b.order;
};

} // namespace

EdgeTable::~EdgeTable() {
    if (state_.edges != nullptr) {
        release(state_.edges);
    }
    state_.edges = state_.active = state_.pending = nullptr;
}

bool EdgeTable::build(const GPoly& poly, Tables tables) {
    const int32_t count = poly.count;
    state_.edges = static_cast<GEdge*>(
        allocateCleared(kLibrarySpace, (count + 1) * static_cast<int32_t>(sizeof(GEdge))));
    if (state_.edges == nullptr) {
        return false;
    }
    end_ = state_.edges;
    int32_t at = 0;
    while (at < count - 1) {
        if (tables == Tables::Read && at + 3 < count && poly.points[at + 1].x == INT16_MIN) {
            addTable(poly.points + at);
            at += 3;
        } else {
            addStraight(poly.points[at], poly.points[at + 1]);
            at += 1;
        }
    }
    addStraight(poly.points[0], poly.points[at]);
    std::sort(state_.edges, end_, kDown);
    state_.active = state_.pending = state_.edges;
    return end_ - state_.edges >= 2;
}

void EdgeTable::addStraight(const GPoint& from, const GPoint& to) {
    if (from.y == to.y) {
        return;
    }
    const GPoint& upper = from.y < to.y ? from : to;
    const GPoint& lower = from.y < to.y ? to : from;
    GEdge* const edge = add(upper.y, lower.y);
    if (edge != nullptr) {
        edge->step = (lower.x - upper.x) * (1 << kFraction) / (lower.y - upper.y);
        edge->x = upper.x * (1 << kFraction) + edge->step * (edge->yTop - upper.y);
    }
}

void EdgeTable::addTable(const GPoint* run) {
    const int32_t first = std::min(run[0].y, run[3].y);
    const int32_t last = std::max(run[0].y, run[3].y);
    GEdge* const edge = add(first, last);
    if (edge != nullptr) {
        const bool bottomUp = run[1].y != first;
        edge->flags = kFromTable | (bottomUp ? kBottomUp : 0);
        edge->table = columnsOf(run) + (bottomUp ? last - edge->yTop : edge->yTop - first);
        edge->x = *edge->table * (1 << kFraction);
    }
}

/// A new edge on the lines that can be seen, or null where none can. Behind the last of them one
/// more is kept, on which an edge that goes on is not yet on its last line.
GEdge* EdgeTable::add(int32_t first, int32_t last) {
    first = std::max<int32_t>(first, area_.top);
    last = std::min(last, area_.bottom + 1);
    if (first > last || first > area_.bottom) {
        return nullptr;
    }
    end_->yTop = static_cast<int16_t>(first);
    end_->linesLeft = static_cast<uint16_t>(last - first + 1);
    end_->order = static_cast<uint32_t>(end_ - state_.edges);
    return end_++;
}

void EdgeTable::admit(int32_t y) {
    for (; state_.pending != end_ && state_.pending->yTop == y; ++state_.pending) {
        state_.edges[active_++].order = static_cast<uint32_t>(state_.pending - state_.edges);
    }
}

/// From line to line few edges change places, if any. Where many do they are sorted anew on each
/// line from then on, which takes half the time that their moves would.
void EdgeTable::sortActive() {
    constexpr int64_t kMovesPerEdge = 8;
    constexpr int32_t kFew = 24;
    tangled_ = tangled_ && active_ >= kFew;
    if (!tangled_) {
        tangled_ = !sortByInsertion(active_ * kMovesPerEdge);
    }
    if (tangled_) {
        sortByColumn();
    }
}

/// Moves each edge that may not stand in order back to its place; equal x keep their order. False
/// when that took too many moves.
bool EdgeTable::sortByInsertion(int64_t mostMoves) {
    GEdge* const edges = state_.edges;
    for (int32_t i = std::max(sorted_, 1); i < active_ && mostMoves >= 0; ++i) {
        const uint32_t moved = edges[i].order;
        const int32_t x = edges[moved].x;
        int32_t place = i;
        for (; place > 0 && x < active(place - 1).x; --place) {
            edges[place].order = edges[place - 1].order;
            --mostMoves;
        }
        edges[place].order = moved;
    }
    return mostMoves >= 0;
}

/// A radix sort by two digits, or four where the area is as wide as that: as few bits each as its
/// columns need. Columns beside the area all count as the one next to it.
void EdgeTable::sortByColumn() {
    constexpr int kPairBits = 2 * ColumnDigits::kMostBits;
    const GEdge* const edges = state_.edges;
    const int32_t first = std::max(area_.left - 1, INT16_MIN);
    const int32_t last = std::min(area_.right + 1, INT16_MAX);
    const auto columnOf = [=](uint32_t number) {
        return static_cast<uint32_t>(std::clamp(rounded(edges[number].x), first, last) - first);
    };
    const auto lowOf = [=](uint32_t number) { return columnOf(number) % (1U << kPairBits); };
    const auto highOf = [=](uint32_t number) { return columnOf(number) >> kPairBits; };
    const int bits = static_cast<int>(std::bit_width(static_cast<uint32_t>(last - first)));
    if (bits <= kPairBits) {
        sortByDigits((bits + 1) / 2, columnOf);
    } else {
        sortByDigits(kPairBits / 2, lowOf);
        sortByDigits((bits - kPairBits + 1) / 2, highOf);
    }
}

/// By two digits of so many bits, the lower one first. Edges that are equal in both keep their
/// order.
template <typename DigitsOf>
void EdgeTable::sortByDigits(int bits, const DigitsOf& digitsOf) {
    GEdge* const edges = state_.edges;
    const uint32_t lowBits = (1U << bits) - 1;
    ColumnDigits low;
    ColumnDigits high;
    for (int32_t i = 0; i < active_; ++i) {
        const uint32_t digits = digitsOf(edges[i].order);
        low.count(digits & lowBits);
        high.count(digits >> bits);
    }
    low.findPlaces(bits);
    high.findPlaces(bits);
    for (int32_t i = 0; i < active_; ++i) {
        const uint32_t number = edges[i].order;
        edges[low.take(digitsOf(number) & lowBits)].sorted = static_cast<uint16_t>(number);
    }
    for (int32_t i = 0; i < active_; ++i) {
        const uint32_t number = edges[i].sorted;
        edges[high.take(digitsOf(number) >> bits)].order = number;
    }
}

} // namespace quarlo
