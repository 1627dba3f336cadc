#include "display/vnc/keysym.h"

#include <rfb/keysym.h>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace gpi {
namespace {

using namespace std::literals;

/// Keys whose symbols are their characters, by place from that of A on. A NUL stands for a key
/// that has another symbol.
constexpr uint8_t kCharacters = 0x04;
constexpr std::string_view kPlain = "abcdefghijklmnopqrstuvwxyz1234567890\0\0\0\0 -=[]\\\0;'`,./"sv;
constexpr std::string_view kShifted =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZ!@#$%^&*()\0\0\0\0\0_+{}|\0:\"~<>?"sv;

/// Symbols that follow each other as their places do.
struct Run {
    uint32_t first;
    uint32_t last;
    uint8_t place;
    bool numberLock = false;
};

constexpr uint32_t kLeftTab = 0xFE20;     // with Shift
constexpr uint32_t kLevel3Shift = 0xFE03; // the right Alt key of many countries

constexpr Run kRuns[] = {
    {XK_Return, XK_Return, 0x28},
    {XK_Escape, XK_Escape, 0x29},
    {XK_BackSpace, XK_BackSpace, 0x2A},
    {XK_Tab, XK_Tab, 0x2B},
    {kLeftTab, kLeftTab, 0x2B},
    {XK_Caps_Lock, XK_Caps_Lock, 0x39},
    {XK_F1, XK_F12, 0x3A},
    {XK_Print, XK_Print, 0x46},
    {XK_Scroll_Lock, XK_Scroll_Lock, 0x47},
    {XK_Pause, XK_Pause, 0x48},
    {XK_Insert, XK_Insert, 0x49},
    {XK_Home, XK_Home, 0x4A},
    {XK_Page_Up, XK_Page_Up, 0x4B},
    {XK_Delete, XK_Delete, 0x4C},
    {XK_End, XK_End, 0x4D},
    {XK_Page_Down, XK_Page_Down, 0x4E},
    {XK_Right, XK_Right, 0x4F},
    {XK_Left, XK_Left, 0x50},
    {XK_Down, XK_Down, 0x51},
    {XK_Up, XK_Up, 0x52},
    {XK_Num_Lock, XK_Num_Lock, 0x53},
    {XK_KP_Divide, XK_KP_Divide, 0x54},
    {XK_KP_Multiply, XK_KP_Multiply, 0x55},
    {XK_KP_Subtract, XK_KP_Subtract, 0x56},
    {XK_KP_Add, XK_KP_Add, 0x57},
    {XK_KP_Enter, XK_KP_Enter, 0x58},
    {XK_KP_1, XK_KP_9, 0x59, true},
    {XK_KP_0, XK_KP_0, 0x62, true},
    {XK_KP_Decimal, XK_KP_Decimal, 0x63, true},
    {XK_KP_End, XK_KP_End, 0x59},
    {XK_KP_Down, XK_KP_Down, 0x5A},
    {XK_KP_Page_Down, XK_KP_Page_Down, 0x5B},
    {XK_KP_Left, XK_KP_Left, 0x5C},
    {XK_KP_Begin, XK_KP_Begin, 0x5D},
    {XK_KP_Right, XK_KP_Right, 0x5E},
    {XK_KP_Home, XK_KP_Home, 0x5F},
    {XK_KP_Up, XK_KP_Up, 0x60},
    {XK_KP_Page_Up, XK_KP_Page_Up, 0x61},
    {XK_KP_Insert, XK_KP_Insert, 0x62},
    {XK_KP_Delete, XK_KP_Delete, 0x63},
    {XK_Menu, XK_Menu, 0x65},
    {XK_F13, XK_F24, 0x68},
    {XK_Execute, XK_Execute, 0x74},
    {XK_Help, XK_Help, 0x75},
    {XK_Select, XK_Select, 0x77},
    {XK_KP_Separator, XK_KP_Separator, 0x85},
    {XK_Cancel, XK_Cancel, 0x9B},
    {XK_Clear, XK_Clear, 0x9C},
    {XK_Control_L, XK_Control_L, 0xE0},
    {XK_Shift_L, XK_Shift_L, 0xE1},
    {XK_Alt_L, XK_Alt_L, 0xE2},
    {XK_Meta_L, XK_Meta_L, 0xE2}, // Alt pressed after Shift
    {XK_Super_L, XK_Super_L, 0xE3},
    {XK_Control_R, XK_Control_R, 0xE4},
    {XK_Shift_R, XK_Shift_R, 0xE5},
    {XK_Alt_R, XK_Alt_R, 0xE6},
    {XK_Meta_R, XK_Meta_R, 0xE6},
    {kLevel3Shift, kLevel3Shift, 0xE6},
    {XK_Super_R, XK_Super_R, 0xE7},
};

std::optional<uint8_t> placeIn(std::string_view characters, uint32_t symbol) {
    if (symbol < ' ' || symbol > '~') {
        return std::nullopt;
    }
    const size_t found = characters.find(static_cast<char>(symbol));
    return found != std::string_view::npos
               ? std::optional(static_cast<uint8_t>(kCharacters + found))
               : std::nullopt;
}

} // namespace

std::optional<Key> keyOfSymbol(uint32_t symbol) {
    for (const std::string_view characters : {kPlain, kShifted}) {
        if (const auto place = placeIn(characters, symbol)) {
            return Key{numberAt(*place, false), *place};
        }
    }
    const auto* const run = std::find_if(std::begin(kRuns), std::end(kRuns), [&](const Run& one) {
        return symbol >= one.first && symbol <= one.last;
    });
    if (run == std::end(kRuns)) {
        return std::nullopt;
    }
    const auto place = static_cast<uint8_t>(run->place + (symbol - run->first));
    return Key{numberAt(place, run->numberLock), place};
}

} // namespace gpi
