// A font file in use.
#pragma once

#include "font/face_file.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <cstdint>
#include <memory>

namespace gpi {

/// A face. All fonts that draw from it share it: its file is mapped once and read in place, unless
/// it is compressed.
class Face {
  public:
    /// Null for a file that is no font. The library must outlive the face.
    static std::unique_ptr<Face> open(FT_Library library, const FaceFile& file);

    explicit Face(FT_Face face);
    ~Face();
    Face(const Face&) = delete;
    Face& operator=(const Face&) = delete;

    FT_Face get() const { return face_; }

    /// 0 for a character that the face lacks.
    FT_UInt glyphOf(uint32_t character) const { return FT_Get_Char_Index(face_, character); }

    /// Whether Latin letters are all of one width.
    bool isFixed() const { return fixed_; }

    /// Whether it has ideographs.
    bool hasIdeographs() const { return ideographs_; }

    bool isOutline() const { return FT_IS_SCALABLE(face_); }

  private:
    FT_Face face_;
    bool fixed_;
    bool ideographs_;
};

} // namespace gpi
