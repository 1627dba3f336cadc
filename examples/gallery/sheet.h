// The sheets of the gallery.
#pragma once

#include <quarlo/types.h>

#include <string_view>
#include <vector>

namespace gallery {

/// A sheet: what the library offers of one kind, on one page.
struct Sheet {
    std::string_view name; ///< as on the command line and in file names
    std::string_view title;
    std::string_view remark;
    void (*drawFigures)(GDrawHandle*);
};

/// All sheets in the order of the book.
const std::vector<Sheet>& sheets();

/// Draws a sheet, by its place in sheets(), on the handle's surface, which must take 0x00RRGGBB
/// colours (GDSetColorMode()) and have at least the size of a page.
void drawSheet(GDrawHandle* handle, size_t index);

} // namespace gallery
