// Colours: how 0x00RRGGBB becomes a pixel value of the surface that is drawn on.
#pragma once

#include <quarlo/handle.h>

namespace quarlo {

/// Takes the handle's channel shifts from three masks.
void setChannelShifts(GDrawHandle& handle, uint32_t red, uint32_t green, uint32_t blue);

/// Converts the kept fore, back and pen colours anew.
void reconvertColors(GDrawHandle& handle);

} // namespace quarlo
