// The platform's own drawing of whole strings.
#pragma once

#include "platform/service_table.h"

#include <quarlo/handle.h>

namespace quarlo {

/// Draws a string, or a line of a caption, at a place on the surface; the platform moves the pen.
using DrawStringService =
    Service<int32_t(GDrawHandle*, const char16_t*, int16_t, int16_t, const GRect*), 44>;

/// Draws a line of a caption of any font.
using DrawCaptionLineService =
    Service<int32_t(GDrawHandle*, const char16_t*, int16_t, int16_t, const GRect*), 75>;

} // namespace quarlo
