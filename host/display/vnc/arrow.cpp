#include "display/vnc/arrow.h"

#include "display/arrow.h"

#include <algorithm>
#include <string>

namespace gpi {
namespace {

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
    VncCursor arrow(rfbMakeXCursor(kArrowWidth, kArrowHeight, inside.data(), mask.data()));
    if (arrow != nullptr) {
        arrow->foreRed = arrow->foreGreen = arrow->foreBlue = 0xFFFF;
        arrow->backRed = arrow->backGreen = arrow->backBlue = 0;
    }
    return arrow;
}

} // namespace gpi
