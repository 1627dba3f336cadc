// Labels in the panel face.
#pragma once

#include <quarlo/types.h>

#include <string>
#include <string_view>

namespace gallery {

/// Heights of label cells; a letter is half as wide.
inline constexpr int kSmallLabel = 12;
inline constexpr int kHeading = 24;

/// UTF-16 of ASCII text.
std::u16string wide(std::string_view text);

/// Width in pixels; 0 where the platform has no fonts.
int labelWidth(GDrawHandle* handle, std::string_view text, int height = kSmallLabel);

/// Draws ASCII text without a background, upper left corner of its first cell at (left, top). The
/// handle stays as it was but for the pen position.
void drawLabel(GDrawHandle* handle, int left, int top, std::string_view text, uint32_t color,
               int height = kSmallLabel);

/// Draws it with its cells around a point.
void drawCentredLabel(GDrawHandle* handle, GPoint centre, std::string_view text, uint32_t color,
                      int height = kSmallLabel);

} // namespace gallery
