// A face at the size of a font's cells.
#pragma once

#include "font/cell.h"
#include "font/face.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_SIZES_H

#include <memory>
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
    /// @param face must outlive it
    /// @param grey whether pixels shall have levels; bitmaps have none whatever is asked
    SizedFace(const Face& face, const CellSize& size, Pitch pitch, bool grey);
    SizedFace(const SizedFace&) = delete;
    SizedFace& operator=(const SizedFace&) = delete;

    /// A character's cell; nothing when the face lacks it.
    std::optional<Cell> render(uint32_t character) const;

    /// Rows above the base line.
    int ascent() const { return ascent_; }

    /// Whether glyphs come from bitmaps.
    bool hasBitmaps() const { return bitmaps_; }

  private:
    struct DoneSize {
        void operator()(FT_Size size) const { FT_Done_Size(size); }
    };
    using Size = std::unique_ptr<FT_SizeRec_, DoneSize>;

    Size newSize() const;
    bool selectBitmaps();
    void scaleToIdeographs();
    void scaleToLetters();
    void setEm(FT_F26Dot6 width, FT_F26Dot6 height);
    int advance() const;
    int cellWidth() const;
    FT_Int32 prepare(bool letter) const;

    const Face& face_;
    CellSize size_;
    Pitch pitch_;
    bool grey_;
    Size whole_;   ///< for ideographs and bitmaps
    Size letters_; ///< null with bitmaps
    int ascent_ = 0;
    int letterAscent_ = 0; ///< of letters, where it is another one
    bool bitmaps_ = false;
};

} // namespace gpi
