#include "look/icons.h"

#include "look/style.h"

#include <algorithm>

namespace panel {
namespace {

/// 0x00RRGGBB of a 24-bit pixel value, which has red in its lowest byte.
uint32_t colorOfValue(uint32_t value) {
    return (value & 0xFF) << 16 | (value & 0xFF00) | (value >> 16 & 0xFF);
}

} // namespace

Icons::Icons(GDrawHandle* display) {
    for (size_t i = 0; i < images_.size(); ++i) {
        images_[i] = panel_icons[i];
        const GGrfPalette& given = *panel_icons[i].palette;
        std::transform(given.colors, given.colors + std::min<size_t>(given.count, kColors),
                       colors_[i].begin(),
                       [display](uint32_t value) { return pixelOf(display, colorOfValue(value)); });
        palettes_[i] = {kColors, colors_[i].data()};
        images_[i].palette = &palettes_[i];
    }
}

void Icons::draw(GDrawHandle* handle, Icon icon, int x, int y) const {
    const GGrfImage& image = images_[static_cast<size_t>(icon)];
    GDDrawGrf(handle, &image, image.data, static_cast<int16_t>(x), static_cast<int16_t>(y), 0, 0);
}

} // namespace panel
