// How the panel looks: colours, fonts and measures. Everything that is drawn takes them from here.
#pragma once

#include <quarlo/quarlo.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace panel {

/// What has a colour of its own.
enum class Ink : uint8_t {
    Desk,      ///< behind the cards
    Card,      ///< ground of a card
    CardEdge,  ///< line around it
    CardTitle, ///< its heading
    Rule,      ///< lines between rows
    Stripe,    ///< every second row of a table
    Text,
    TextFaint, ///< units, names of values, what cannot be used now
    Digits,    ///< of the position
    Bar,       ///< ground of the status line
    BarText,
    BarFaint,
    Key,      ///< face of a soft key, which is what icons are made for
    KeyBlank, ///< of one without a function
    KeyEdge,
    Accent, ///< what is chosen
    AccentText,
    AccentSoft, ///< ground of what is chosen but not alone in view
    Good,       ///< running, in order
    Caution,    ///< held, waiting
    Fault,      ///< alarm, lost
    SignQuiet,  ///< nothing to mind
    SignText,   ///< on the four above
    Message,    ///< ground of the message line
    Cursor,     ///< of an edit field
    Selection,  ///< inverts what is selected there
    Damage,     ///< frame around what was redrawn, on demand
    Void,       ///< ground of the graphic
    Grid,
    GridStrong,
    GridText,
    PathAhead, ///< of the program, not yet run
    PathRapid, ///< likewise
    PathDone,  ///< run through
    PathRapidDone,
    XAxis,
    YAxis,
    ZAxis,
    Tool,
    Last = Tool,
};

inline constexpr size_t kInkCount = static_cast<size_t>(Ink::Last) + 1;

/// Fonts, by what they are for.
enum class Face : uint8_t {
    Label,  ///< soft keys and headings
    Text,   ///< all else
    Number, ///< values beside others
    Large,  ///< the position
    Title,  ///< the name on the start page
    Last = Title,
};

inline constexpr size_t kFaceCount = static_cast<size_t>(Face::Last) + 1;

/// Sizes in pixels; what depends on the size of the display.
struct Measures {
    std::array<int16_t, kFaceCount> faces; ///< cell heights; a narrow cell is half as wide
    int16_t margin;                        ///< between cards and around them
    int16_t padding;                       ///< inside a card
    int16_t radius;                        ///< of its corners
    int16_t statusHeight;
    int16_t messageHeight;
    int16_t keyHeight; ///< of the row of soft keys

    int16_t height(Face face) const { return faces[static_cast<size_t>(face)]; }
    int16_t width(Face face) const { return static_cast<int16_t>(height(face) / 2); }
};

/// Those for a display: there is one set each for 640 x 480, 800 x 600 and 1024 x 768, and a
/// display takes the largest that fits.
const Measures& measuresFor(int width, int height);

/// 0x00RRGGBB of an ink.
uint32_t colorOf(Ink ink);

/// Colours as the display takes them.
struct Palette {
    std::array<uint32_t, kInkCount> inks; ///< to be given to the handle's colour setters

    uint32_t operator[](Ink ink) const { return inks[static_cast<size_t>(ink)]; }
};

/// Makes the handle take the palette's colours: 0x00RRGGBB, or entries of the display's palette,
/// which are set.
Palette preparePalette(GDrawHandle* handle);

/// The pixel value that shows a colour best.
/// @param color 0x00RRGGBB
uint32_t pixelOf(GDrawHandle* handle, uint32_t color);

} // namespace panel
