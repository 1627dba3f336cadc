#include "display/vnc/arrow.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace gpi {
namespace {

constexpr int kWidth = 8;
constexpr int kHeight = 12;
constexpr std::string_view kArrow = "#       "
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
static_assert(kArrow.size() == size_t{kWidth} * kHeight);

constexpr char kSet = 'x';
constexpr char kClear = ' ';

} // namespace

VncCursor makeArrow() {
    std::string inside(kArrow);
    std::replace(inside.begin(), inside.end(), '#', kClear);
    std::replace(inside.begin(), inside.end(), 'o', kSet);
    std::string mask(kArrow);
    std::replace(mask.begin(), mask.end(), '#', kSet);
    std::replace(mask.begin(), mask.end(), 'o', kSet);
    VncCursor arrow(rfbMakeXCursor(kWidth, kHeight, inside.data(), mask.data()));
    if (arrow != nullptr) {
        arrow->foreRed = arrow->foreGreen = arrow->foreBlue = 0xFFFF;
        arrow->backRed = arrow->backGreen = arrow->backBlue = 0;
    }
    return arrow;
}

} // namespace gpi
