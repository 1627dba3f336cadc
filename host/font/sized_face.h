// A face at the size of a font's cells.
#pragma once

#include "font/cell.h"
#include "font/face.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <optional>

namespace gpi {

/// How wide the cells of a face are.
enum class Pitch {
    Fixed,       ///< narrow or wide, whichever the glyph is nearer to
    Proportional ///< as wide as each glyph
};

/// Renders glyphs into cells. A bitmap of the right size is taken as it is; an outline is scaled
/// until letters fill the narrow cell, or ideographs the wide one.
class SizedFace {
  public:
    /// The face must outlive it.
    SizedFace(const Face& face, const CellSize& size, Pitch pitch);
    ~SizedFace();
    SizedFace(const SizedFace&) = delete;
    SizedFace& operator=(const SizedFace&) = delete;

    /// A character's cell; nothing when the face lacks it.
    ///
    /// @param grey whether pixels shall have levels; bitmaps have none whatever is asked
    std::optional<Cell> render(uint32_t character, bool grey) const;

    /// Rows above the base line.
    int ascent() const { return ascent_; }

    /// Whether glyphs come from bitmaps.
    bool hasBitmaps() const { return bitmaps_; }

  private:
    bool selectBitmaps();
    void scale();
    void scaleToIdeographs();
    void scaleToLetters();
    int advance() const;
    int cellWidth() const;
    FT_Int32 renderingOf(uint32_t character, bool grey) const;

    const Face& face_;
    CellSize size_;
    Pitch pitch_;
    FT_Size ftSize_ = nullptr;
    int ascent_ = 0;
    bool bitmaps_ = false;
};

} // namespace gpi
