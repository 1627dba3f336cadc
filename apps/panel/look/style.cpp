#include "look/style.h"

#include <bit>
#include <limits>

namespace panel {
namespace {

constexpr Measures kSmall{{14, 16, 20, 48, 64}, 6, 6, 3, 48, 24, 56};
constexpr Measures kMedium{{16, 20, 24, 60, 80}, 8, 8, 4, 56, 28, 62};
constexpr Measures kLarge{{20, 24, 30, 80, 104}, 10, 10, 5, 66, 34, 70};

constexpr int32_t kFirstEntry = 0; // of the palette
constexpr int32_t kEntries = 256;
constexpr uint32_t kSelected = 128; // the entry of an ink and that of the ink selected differ by it

/// In the order of Ink.
constexpr std::array<uint32_t, kInkCount> kColors{
    0xDCE2E8, // Desk
    0xFFFFFF, // Card
    0xB4BEC8, // CardEdge
    0x4A5A6A, // CardTitle
    0xE2E6EA, // Rule
    0xF3F6F8, // Stripe
    0x1C242C, // Text
    0x7A8692, // TextFaint
    0x0C1C30, // Digits
    0x1E2C3C, // Bar
    0xF4F8FC, // BarText
    0x9CB0C4, // BarFaint
    0xEEF1F4, // Key
    0x2C3C4E, // KeyBlank
    0x98A4B0, // KeyEdge
    0x2F6FB0, // Accent
    0xFFFFFF, // AccentText
    0xD8E8F8, // AccentSoft
    0x2E8448, // Good
    0xC88A10, // Caution
    0xC03828, // Fault
    0x4C6074, // SignQuiet
    0xFFFFFF, // SignText
    0xC6D0DA, // Message
    0x2F6FB0, // Cursor
    0x271707, // Selection: turns Card into AccentSoft
    0xE020C0, // Damage
    0x101A24, // Void
    0x1E2C3A, // Grid
    0x2C4054, // GridStrong
    0x8098B0, // GridText
    0x44627E, // PathAhead
    0x5C5440, // PathRapid
    0x58D8F0, // PathDone
    0xC89848, // PathRapidDone
    0xFF6058, // XAxis
    0x58D878, // YAxis
    0x6098FF, // ZAxis
    0xFFD840, // Tool
};

/// What a channel of 8 bits becomes where a mask lies.
uint32_t placed(uint32_t channel, uint32_t mask) {
    const int top = static_cast<int>(std::bit_width(mask)) - 8;
    return (top >= 0 ? channel << top : channel >> -top) & mask;
}

/// A selection is drawn by exclusive-or. On entries of a palette that leads to others, which get
/// the colours that exclusive-or of the colours themselves would give.
void setSelectedEntries(GDrawHandle* handle) {
    std::array<uint32_t, kInkCount> selected = kColors;
    for (uint32_t& color : selected) {
        color ^= colorOf(Ink::Selection);
    }
    GDSetPalette(handle, static_cast<int32_t>(kSelected), static_cast<int32_t>(selected.size()),
                 selected.data());
}

uint32_t distance(uint32_t a, uint32_t b) {
    uint32_t sum = 0;
    for (int shift = 0; shift <= 16; shift += 8) {
        const int way = static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF);
        sum += static_cast<uint32_t>(way * way);
    }
    return sum;
}

uint32_t nearestEntry(GDrawHandle* handle, uint32_t color) {
    std::array<uint32_t, kEntries> entries{};
    GDGetPalette(handle, 0, kEntries, entries.data());
    uint32_t nearest = 0;
    uint32_t least = std::numeric_limits<uint32_t>::max();
    for (uint32_t i = 0; i < entries.size(); ++i) {
        const uint32_t off = distance(entries[i], color);
        if (off < least) {
            least = off;
            nearest = i;
        }
    }
    return nearest;
}

} // namespace

const Measures& measuresFor(int width, int height) {
    if (width >= 1024 && height >= 768) {
        return kLarge;
    }
    return width >= 800 && height >= 600 ? kMedium : kSmall;
}

uint32_t colorOf(Ink ink) {
    return kColors[static_cast<size_t>(ink)];
}

Palette preparePalette(GDrawHandle* handle) {
    const GVram& display = *GDGetVram(handle);
    Palette palette{kColors};
    if (display.colorType == G_COLOR_PALETTE) {
        GDSetPalette(handle, kFirstEntry, static_cast<int32_t>(kColors.size()), kColors.data());
        setSelectedEntries(handle);
        for (uint32_t i = 0; i < kInkCount; ++i) {
            palette.inks[i] = static_cast<uint32_t>(kFirstEntry) + i;
        }
        palette.inks[static_cast<size_t>(Ink::Selection)] = kSelected;
    } else {
        GDSetColorMode(handle, 1, display.redMask, display.greenMask, display.blueMask);
    }
    return palette;
}

uint32_t pixelOf(GDrawHandle* handle, uint32_t color) {
    const GVram& display = *GDGetVram(handle);
    if (display.colorType == G_COLOR_PALETTE) {
        return nearestEntry(handle, color);
    }
    return placed(color >> 16 & 0xFF, display.redMask) |
           placed(color >> 8 & 0xFF, display.greenMask) | placed(color & 0xFF, display.blueMask);
}

} // namespace panel
