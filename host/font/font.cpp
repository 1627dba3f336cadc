#include "font/font.h"

#include "font/script.h"

#include <algorithm>
#include <utility>

namespace gpi {
namespace {

constexpr int kMostHeight = 256;
constexpr int kMostFactor = 8;

bool isSize(const CellSize& size) {
    return size.narrow >= 1 && size.wide <= 2 * kMostHeight && size.height >= 1 &&
           size.height <= kMostHeight;
}

bool isDepth(int bits) {
    return bits == 1 || bits == 2 || bits == 4;
}

} // namespace

Font::Font(std::u16string name, const FaceChoice& faces)
    : name_(std::move(name)),
      faces_{faces.own, faces.japanese, faces.chinese},
      panel_(faces.panel) {
    scale_.magnifyX = 1;
    scale_.magnifyY = 1;
    record_.scale = &scale_;
}

void Font::setStyle(const Style& style) {
    if (style != style_) {
        style_ = style;
        styleNumber = 0;
        sized_ = {};
    }
}

bool Font::setSize(int width, int height) {
    Style style = style_;
    style.size = {width, 2 * width, height};
    if (!isSize(style.size)) {
        return false;
    }
    setStyle(style);
    return true;
}

bool Font::setAttribute(const GFontAttribute& attribute) {
    Style style = style_;
    if (attribute.height != 0) {
        style.size.height = attribute.height;
    }
    if (attribute.wideWidth != 0) {
        style.size.wide = attribute.wideWidth;
        style.size.narrow = attribute.wideWidth / 2;
    }
    if (attribute.bitsPerPixel != 0) {
        style.bits = attribute.bitsPerPixel;
    }
    style.bold = attribute.bold != 0;
    const int factorX = std::max(attribute.magnification & 0xFF, 1);
    const int factorY = std::max(attribute.magnification >> 8, 1);
    if (!isSize(style.size) || !isDepth(style.bits) || factorX > kMostFactor ||
        factorY > kMostFactor) {
        return false;
    }
    setStyle(style);
    scale_.magnifyX = static_cast<uint8_t>(factorX);
    scale_.magnifyY = static_cast<uint8_t>(factorY);
    return true;
}

GFontAttribute Font::attribute() const {
    GFontAttribute attribute{};
    attribute.height = static_cast<uint16_t>(style_.size.height);
    attribute.wideWidth = static_cast<uint16_t>(style_.size.wide);
    attribute.bitsPerPixel = static_cast<uint16_t>(style_.bits);
    attribute.bold = style_.bold ? 1 : 0;
    attribute.magnification = static_cast<uint16_t>(scale_.magnifyX | scale_.magnifyY << 8);
    return attribute;
}

SizedFace& Font::sized(Source source) {
    if (sized_[source] == nullptr) {
        Face& face = *faces_[source];
        const bool fixed = &face != faces_[kOwn] || face.isFixed();
        sized_[source] = std::make_unique<SizedFace>(
            face, style_.size, fixed ? Pitch::Fixed : Pitch::Proportional, style_.bits > 1);
    }
    return *sized_[source];
}

Font::Order Font::orderFor(uint32_t character, bool chineseFirst) const {
    if (!chineseFirst) {
        return {kOwn, kJapanese, kChinese};
    }
    return panel_ && isHan(character) ? Order{kChinese, kOwn, kJapanese}
                                      : Order{kOwn, kChinese, kJapanese};
}

std::optional<Cell> Font::render(uint32_t character, bool chineseFirst) {
    for (const Source source : orderFor(character, chineseFirst)) {
        const bool may = source == kOwn || isIdeographic(character);
        if (!may || faces_[source] == nullptr || faces_[source]->glyphOf(character) == 0) {
            continue;
        }
        auto cell = sized(source).render(character);
        if (cell) {
            if (style_.bold) {
                cell->embolden();
            }
            return cell;
        }
    }
    return std::nullopt;
}

GFontInformation Font::information() {
    const SizedFace& own = sized(kOwn);
    const bool ideographs = face().hasIdeographs() || faces_[kJapanese] || faces_[kChinese];
    GFontInformation information{};
    name_.copy(information.face, G_FACE_SIZE - 1);
    information.flags = static_cast<uint16_t>((face().isFixed() ? G_FONT_FIXED : 0) |
                                              (own.hasBitmaps() ? G_FONT_BITMAP : 0) |
                                              (ideographs ? G_FONT_IDEOGRAPHS : 0));
    information.width = static_cast<int16_t>(style_.size.narrow);
    information.height = static_cast<int16_t>(style_.size.height);
    information.ascent = static_cast<int16_t>(own.ascent());
    information.bitsPerPixel = static_cast<uint16_t>(style_.bits);
    return information;
}

} // namespace gpi
