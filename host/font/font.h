// Fonts as programs hold them.
#pragma once

#include "font/cell.h"
#include "font/face.h"
#include "font/sized_face.h"

#include <quarlo/font.h>

#include <array>
#include <compare>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace gpi {

/// The faces that a font may look a character up in.
struct FaceChoice {
    Face* own = nullptr;
    Face* japanese = nullptr; ///< lends ideographs that the own face lacks; may be null
    Face* chinese = nullptr;  ///< likewise
    bool panel = false; ///< the panel face: which script's ideographs it shows is for the program
};

/// What decides how a glyph looks, beside its font's faces and the script that goes first.
struct Style {
    CellSize size;
    int bits = 1;
    bool bold = false;

    auto operator<=>(const Style&) const = default;
};

/// A font: the record that programs read, and what it draws from. A program that scribbles on the
/// record spoils its magnification at most.
class Font {
  public:
    Font(std::u16string name, const FaceChoice& faces);
    Font(const Font&) = delete;
    Font& operator=(const Font&) = delete;

    GFontRecord& record() { return record_; }
    const std::u16string& name() const { return name_; }
    const GFontScale& scale() const { return scale_; }
    const Style& style() const { return style_; }
    const Face& face() const { return *faces_[kOwn]; }
    bool isPanel() const { return panel_; }

    /// Changes how glyphs look. False, and nothing changes, for what cannot be.
    bool setSize(int width, int height);
    bool setAttribute(const GFontAttribute& attribute);
    GFontAttribute attribute() const;

    /// Renders a character; nothing when none of the faces has it.
    std::optional<Cell> render(uint32_t character, bool chineseFirst);

    GFontInformation information();

    GFontUserAttribute user{};

    /// Stands for the faces and the style in the glyph cache's keys; 0 when the style has changed.
    uint32_t styleNumber = 0;

  private:
    enum Source { kOwn, kJapanese, kChinese, kSources };
    using Order = std::array<Source, kSources>;

    Order orderFor(uint32_t character, bool chineseFirst) const;
    void setStyle(const Style& style);
    SizedFace& sized(Source source);

    GFontRecord record_{};
    GFontScale scale_{};
    std::u16string name_;
    std::array<Face*, kSources> faces_;
    bool panel_;
    Style style_;
    std::array<std::unique_ptr<SizedFace>, kSources> sized_; ///< made when first drawn from
};

} // namespace gpi
