// Start and stop, and displays.
#include "services/service.h"

namespace doctor {
namespace {

using enum Need;
using enum Asked;

constexpr Service kStarts[] = {
    {1, "START", "GPIStart", Needed, AtStart, "GDInitPlatform(): starts the platform",
     "GDInitPlatform() gives 0, or the result of 12"},
    {2, "STOP", "GPIStop", Expected, AtStart, "GDQuitPlatform(): stops it",
     "GDQuitPlatform() gives 0"},
    {12, "START_SECOND", "GPIStartSecond", Optional, AtStart,
     "GDInitPlatform(): the second step of the start, also after a first one that failed",
     "GDInitPlatform() gives the result of 1"},
    {22, "STOP_FIRST", "GPIStopFirst", Optional, AtStart,
     "GDQuitPlatform(): called before 2; its result is ignored", "GDQuitPlatform() calls 2 alone"},
};

constexpr Service kSurfaces[] = {
    {3, "GET_SURFACE", "GPIGetSurface", Needed, AtStart, "hands out a device surface",
     "GDOpenDrawHandle() gives null, GDSetVram() and GDSetDisplay() give 0; GDDrawErrorMessage() "
     "draws nothing"},
    {4, "RELEASE_SURFACE", "GPIReleaseSurface", Optional, AtStart, "takes a device surface back",
     "device surfaces are not given back"},
    {5, "SET_PIXEL", "GPISetPixel", Needed, AtStart, "sets a pixel of a device surface",
     "there GDSetPixel() gives 0; lines that are not level, dashed lines, glyphs, single image "
     "pixels and, without 70, patterns are not drawn"},
    {6, "SPAN", "GPISpan", Needed, AtStart, "draws a run of pixels of a device surface",
     "there level lines, gradations downwards and runs of images are not drawn; without 68 nothing "
     "solid is"},
    {7, "NEXT_PIXEL", "GPINextPixel", Optional, AtStart,
     "draws the pixel after the last one of 5 or 6", "nothing: only programs call that slot"},
    {8, "BLOCK_TRANSFER", "GPIBlockTransfer", Optional, AtStart,
     "GDBitBlt(): copies pixels to device surface 0",
     "GDBitBlt() copies nothing, between memory surfaces neither"},
    {9, "FLUSH", "GPIFlush", Needed, AtStart, "GDFlushScreen(): shows a rectangle",
     "GDFlushScreen() gives 0, and nothing shows"},
    {10, "SET_PALETTE", "GPISetPalette", Expected, AtStart, "GDSetPalette(): sets palette entries",
     "GDSetPalette() gives 0"},
    {11, "GET_PALETTE", "GPIGetPalette", Expected, AtStart, "GDGetPalette(): reads palette entries",
     "GDGetPalette() gives 0"},
    {43, "COVERAGE_PIXEL", "GPICoveragePixel", Optional, AtStart,
     "plots a glyph pixel of a device surface by coverage",
     "5 draws every pixel of a smooth glyph that is not clear"},
    {55, "SET_ZOOM_SCALE", "GPISetZoomScale", Expected, AtStart,
     "GDSetZoomScale(): sets how large the display shows", "GDSetZoomScale() gives 0"},
    {56, "SET_SCROLL_POS", "GPISetScrollPos", Expected, AtStart,
     "GDSetScrollPos(): sets which part of it shows", "GDSetScrollPos() gives 0"},
    {58, "FLUSH_FORCE", "GPIFlushForce", Expected, AtStart,
     "GDFlushScreenForce(): shows a rectangle at once", "GDFlushScreenForce() gives 0"},
    {59, "SET_DRAWABLE_REGION", "GPISetDrawableRegion", Optional, AtStart,
     "GDSetDrawableRegion(): confines drawing to a rectangle", "GDSetDrawableRegion() gives 0"},
    {60, "REMOVE_DRAWABLE_REGION", "GPIRemoveDrawableRegion", Optional, AtStart,
     "GDRemoveDrawableRegion(): undoes 59", "GDRemoveDrawableRegion() gives 0"},
    {67, "DRAW_RECT", "GPIDrawRect", Optional, AtStart,
     "fills the rectangle of GDDrawRect() on a device surface", "68 fills it, or 6"},
    {68, "FILL_RECT", "GPIFillRect", Optional, AtStart, "fills a rectangle of a device surface",
     "6 fills it, row by row"},
    {69, "FILL_PATTERN_NOTICE", "GPIFillPatternNotice", Optional, AtStart,
     "tells of a pattern that is about to be filled with", "nothing"},
    {70, "PATTERN_RECT", "GPIPatternRect", Optional, AtStart,
     "fills a rectangle of a device surface with a pattern", "5 does, pixel by pixel"},
    {119, "CHANGE_VIRTUAL_SURFACE", "GPIChangeVirtualSurface", Optional, Late,
     "GDChangeVirtualVram(): chooses the device surface that is shown",
     "GDChangeVirtualVram() gives 0"},
};

} // namespace

const Group kStartAndStop{"Start and stop", kStarts};
const Group kDisplays{"Displays", kSurfaces};

} // namespace doctor
