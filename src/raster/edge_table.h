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
    uint32_t flags;
    uint32_t order; ///< decides between edges that compare alike
};

static_assert(sizeof(void*) != 4 || sizeof(GEdge) == 20, "the block size that platforms see");

namespace quarlo {

/// Edges in one block of memory, in the order in which scan lines reach them. The active ones,
/// which cross the current line, stand side by side in order of x, right before those to come.
class EdgeTable {
  public:
    /// Edges are kept for lines `top` to `bottom` only.
    EdgeTable(GPolygonState& state, int32_t top, int32_t bottom)
        : state_(state), top_(top), bottom_(bottom) {}
    ~EdgeTable();
    EdgeTable(const EdgeTable&) = delete;
    EdgeTable& operator=(const EdgeTable&) = delete;

    /// Whether markers in the point array stand for table edges.
    enum class Tables { Read, Ignore };

    /// Takes the edges of a closed polygon of at least 3 points; false when memory is short or no
    /// line is left.
    bool build(const GPoly& poly, Tables tables);

    /// The first line that any edge crosses.
    int32_t firstLine() const { return state_.pending->yTop; }

    /// Moves on to the next line, or to the first; false when no edge crosses it.
    bool advanceTo(int32_t y);

    /// Calls add(left, right, y) for the current line: even-odd, both ends included. An edge on its
    /// last line takes no part.
    template <typename Painter>
    void paintLine(Painter& painter, int32_t y) const {
        int32_t left = 0;
        bool open = false;
        for (const GEdge* edge = state_.active; edge != state_.pending; ++edge) {
            if (edge->linesLeft == 1) {
                continue;
            }
            const int32_t x = (edge->x + (1 << (kFraction - 1))) >> kFraction;
            if (open) {
                painter.add(left, x, y);
            }
            left = x;
            open = !open;
        }
    }

  private:
    static constexpr int kFraction = 15;
    static constexpr uint32_t kFromTable = 1;
    static constexpr uint32_t kBottomUp = 2;

    void addStraight(const GPoint& from, const GPoint& to);
    void addTable(const GPoint* run);
    void add(GEdge& edge, int32_t first, int32_t last);
    void dropFinished();
    void admit(int32_t y);
    void sortActive();

    GPolygonState& state_; ///< the block, the first active and the first pending edge
    GEdge* end_ = nullptr;
    int32_t top_;
    int32_t bottom_;
};

} // namespace quarlo
