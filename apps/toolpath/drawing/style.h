// The colours of the picture, as the display takes them.
#pragma once

#include <quarlo/quarlo.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace toolpath {

/// What has a colour of its own.
enum class Ink : uint8_t {
    Desk,       ///< around the views
    Frame,      ///< of a view
    Paper,      ///< ground of the plan
    Stock,      ///< work area in the plan
    StockMark,  ///< the pattern on it
    Grid,       ///< every line of the grid
    GridStrong, ///< every fifth
    Edge,       ///< outline of the work area
    FloorGrid,  ///< the grid of the isometric view
    FloorStrong,
    FloorEdge, ///< outline of the work area there
    XAxis,
    YAxis,
    ZAxis,
    Rapid,
    Point,
    Progress,
    CutDeepest, ///< cuts are coloured by their height, in kCutInks steps
    CutHighest = CutDeepest + 11,
};

inline constexpr int kCutInks =
    static_cast<int>(Ink::CutHighest) - static_cast<int>(Ink::CutDeepest) + 1;
inline constexpr size_t kInkCount = static_cast<size_t>(Ink::CutHighest) + 1;

/// How the gradation behind the isometric view is drawn. Gradations pack their bands as pixels of
/// 5-5-5 whatever the surface, so on a surface of another format they are entries of a palette.
struct Sky {
    GGradationInfo gradation;
    bool direct; ///< the display takes its pixels; else they have to be looked up in `palette`
    std::array<uint32_t, 64> palette; ///< 0x00RRGGBB
};

struct Style {
    std::array<uint32_t, kInkCount> colors; ///< to be given to the handle's colour setters
    Sky sky;

    uint32_t operator[](Ink ink) const { return colors[static_cast<size_t>(ink)]; }
};

/// Makes the handle take 0x00RRGGBB colours or, on a display with a palette, sets the palette.
Style prepareStyle(GDrawHandle* handle);

} // namespace toolpath
