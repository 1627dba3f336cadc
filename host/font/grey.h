// Glyphs in levels of grey.
#pragma once

#include <ft2build.h>
#include FT_FREETYPE_H

namespace gpi {

/// Renders a loaded glyph in grey levels that are the same on every processor. Quadratic curves go
/// to FreeType as cubic ones: only those it divides into the same lines everywhere.
FT_Error renderGrey(FT_GlyphSlot glyph);

} // namespace gpi
