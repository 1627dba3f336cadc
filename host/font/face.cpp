#include "font/face.h"

namespace gpi {
namespace {

/// Advance of a character in the units of the face; -1 when it is not there.
FT_Long advanceOf(FT_Face face, FT_ULong character) {
    const FT_UInt glyph = FT_Get_Char_Index(face, character);
    if (glyph == 0 || FT_Load_Glyph(face, glyph, FT_LOAD_NO_SCALE) != 0) {
        return -1;
    }
    return face->glyph->metrics.horiAdvance;
}

bool hasOneWidth(FT_Face face) {
    // Faces of ideographs do not call themselves fixed: their cells have two widths.
    return FT_IS_FIXED_WIDTH(face) || !FT_IS_SCALABLE(face) ||
           (advanceOf(face, 'i') == advanceOf(face, 'W') &&
            advanceOf(face, 'i') == advanceOf(face, '0'));
}

} // namespace

std::unique_ptr<Face> Face::open(FT_Library library, const FaceFile& file) {
    FT_Face face = nullptr;
    if (file.path.empty() || FT_New_Face(library, file.path.c_str(), file.index, &face) != 0) {
        return nullptr;
    }
    return std::make_unique<Face>(face);
}

Face::Face(FT_Face face)
    : face_(face), fixed_(hasOneWidth(face)), ideographs_(glyphOf(0x4E00) != 0) {}

Face::~Face() {
    FT_Done_Face(face_);
}

} // namespace gpi
