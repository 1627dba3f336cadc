// Drawing of whole strings: services 44 and 75.
#pragma once

#include <quarlo/handle.h>

namespace gpi {

int32_t drawString(GDrawHandle* handle, const char16_t* text, int16_t x, int16_t y,
                   const GRect* clip);
int32_t drawCaptionLine(GDrawHandle* handle, const char16_t* line, int16_t x, int16_t y,
                        const GRect* clip);

/// Whether the platform is configured to draw whole strings. Asked before the start, by a library
/// that is being loaded, it goes by what is configured without an argument.
bool drawsWholeStrings();

} // namespace gpi
