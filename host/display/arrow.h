// The shape of a pointer.
#pragma once

#include <cstddef>
#include <string_view>

namespace gpi {

/// An arrow, row by row: 'o' inside, '#' its edge. Its tip is the first character.
inline constexpr int kArrowWidth = 8;
inline constexpr int kArrowHeight = 12;
inline constexpr std::string_view kArrow = "#       "
                                           "##      "
                                           "#o#     "
                                           "#oo#    "
                                           "#ooo#   "
                                           "#oooo#  "
                                           "#ooooo# "
                                           "#oooooo#"
                                           "#ooo####"
                                           "#o#oo#  "
                                           "## #oo# "
                                           "    ### ";
static_assert(kArrow.size() == size_t{kArrowWidth} * kArrowHeight);

} // namespace gpi
