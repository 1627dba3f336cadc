// The edges of a polygon on their way down the scan lines.
#pragma once

#include <quarlo/handle.h>
#include <quarlo/types.h>

#include <algorithm>
#include <cstdint>

/// An edge: straight, or with its column on each line taken from a table.
struct GEdge {
    int16_t yTop;       ///< its first line
    uint16_t linesLeft; ///< lines still to go, the current one included
    int32_t x;          ///< on the current line, 17.15 fixed point
    union {
        int32_t step;         ///< straight: x per line, 17.15 fixed point
        const int16_t* table; ///< the table's entry for the current line
    };
    uint16_t flags;
    uint16_t sorted; ///< not of this edge: room for another list like the next
    uint32_t order;  ///< not of this edge: which one is the n-th active edge, in the n-th record
};

static_assert(sizeof(void*) != 4 || sizeof(GEdge) == 20, "the block size that platforms see");

namespace quarlo {

/// Edges in one block of memory, in the order in which scan lines reach them. They stay there; the
/// active ones, which cross the current line, are listed by number from left to right.
class EdgeTable {
  public:
    /// Edges are kept for lines `area.top` to `area.bottom` only.
    EdgeTable(GPolygonState& state, const GRect& area) : state_(state), area_(area) {}
    ~EdgeTable();
    EdgeTable(const EdgeTable&) = delete;
    EdgeTable& operator=(const EdgeTable&) = delete;

    /// Whether markers in the point array stand for table edges.
    enum class Tables { Read, Ignore };

    /// Takes the edges of a closed polygon of at least 3 points; false when memory is short or no
    /// line is left.
    bool build(const GPoly& poly, Tables tables);

    /// Calls add(left, right, y) for every run, line by line, from left to right: even-odd, both
    /// ends included. An edge on its last line takes no part.
    template <typename Painter>
    void paint(Painter& painter) {
        for (int32_t y = state_.pending->yTop; y <= area_.bottom; ++y) {
            admit(y);
            if (active_ == 0) {
                break;
            }
            sortActive();
            const int32_t lines = linesOfTwo(y);
            if (lines > 0) {
                paintBetweenTwo(painter, y, lines);
                y += lines - 1;
            } else {
                paintLine(painter, y);
            }
        }
    }

  private:
    static constexpr int kFraction = 15;
    static constexpr uint16_t kFromTable = 1;
    static constexpr uint16_t kBottomUp = 2;

    static int32_t rounded(int32_t x) { return (x + (1 << (kFraction - 1))) >> kFraction; }

    GEdge& active(int32_t number) const { return state_.edges[state_.edges[number].order]; }

    /// Paints the current line, and moves on to the next.
    template <typename Painter>
    void paintLine(Painter& painter, int32_t y) {
        int32_t left = 0;
        bool open = false;
        forCrossings([&](int32_t x) {
            if (open) {
                painter.add(left, x, y);
            }
            left = x;
            open = !open;
        });
    }

    /// Calls visit(column) where active edges cross the current line, moves them on to the next
    /// and forgets those that end here.
    template <typename Visit>
    void forCrossings(const Visit& visit) {
        GEdge* const edges = state_.edges;
        int32_t kept = 0;
        int32_t sorted = active_;
        int32_t previous = INT32_MIN;
        for (int32_t i = 0; i < active_; ++i) {
            const uint32_t number = edges[i].order;
            GEdge& edge = edges[number];
            if (edge.linesLeft == 1) {
                continue;
            }
            visit(rounded(edge.x));
            stepDown(edge);
            sorted = edge.x < previous && kept < sorted ? kept : sorted;
            previous = edge.x;
            edges[kept++].order = number;
        }
        active_ = kept;
        sorted_ = std::min(sorted, kept);
    }

    /// Lines from the current one on that two edges take part in and no other does.
    int32_t linesOfTwo(int32_t y) const {
        if (active_ != 2) {
            return 0;
        }
        const int32_t next = state_.pending != end_ ? state_.pending->yTop : area_.bottom + 1;
        return std::min({active(0).linesLeft - 1, active(1).linesLeft - 1, next - y});
    }

    /// Paints the lines between two edges, and moves on to the one behind them.
    template <typename Painter>
    void paintBetweenTwo(Painter& painter, int32_t y, int32_t lines) {
        GEdge one = active(0);
        GEdge other = active(1);
        for (int32_t i = 0; i < lines; ++i) {
            const int32_t x = rounded(one.x);
            const int32_t otherX = rounded(other.x);
            painter.add(std::min(x, otherX), std::max(x, otherX), y + i);
            stepDown(one);
            stepDown(other);
        }
        active(0) = one;
        active(1) = other;
        sorted_ = 1;
    }

    /// Brings an edge down to the next line, which it still crosses.
    static void stepDown(GEdge& edge) {
        --edge.linesLeft;
        if ((edge.flags & kFromTable) == 0) {
            edge.x += edge.step;
        } else {
            edge.table += (edge.flags & kBottomUp) != 0 ? -1 : 1;
            edge.x = *edge.table * (1 << kFraction);
        }
    }

    void addStraight(const GPoint& from, const GPoint& to);
    void addTable(const GPoint* run);
    GEdge* add(int32_t first, int32_t last);
    void admit(int32_t y);
    void sortActive();
    bool sortByInsertion(int64_t mostMoves);
    void sortByColumn();
    template <typename DigitsOf>
    void sortByDigits(int bits, const DigitsOf& digitsOf);

    GPolygonState& state_; ///< the block and the first pending edge
    GRect area_;
    GEdge* end_ = nullptr;
    int32_t active_ = 0;   ///< how many edges are
    int32_t sorted_ = 0;   ///< how many of them, from the first, stand in order
    bool tangled_ = false; ///< edges change places too often to be sorted one by one
};

} // namespace quarlo
