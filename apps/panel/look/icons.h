// The pictures on the soft keys.
#pragma once

#include <panel_icons.h>

#include <quarlo/quarlo.h>

#include <array>
#include <cstdint>

namespace panel {

/// A place in the table of pictures.
using Icon = int16_t;

/// Icons come with palettes of 24-bit values. Here they have those of the display.
class Icons {
  public:
    static constexpr int kSize = 32; ///< pixels either way

    explicit Icons(GDrawHandle* display);
    Icons(const Icons&) = delete;
    Icons& operator=(const Icons&) = delete;

    void draw(GDrawHandle* handle, Icon icon, int x, int y) const;

  private:
    static constexpr size_t kColors = 16;

    std::array<GGrfImage, PANEL_ICONS_COUNT> images_;
    std::array<GGrfPalette, PANEL_ICONS_COUNT> palettes_;
    std::array<std::array<uint32_t, kColors>, PANEL_ICONS_COUNT> colors_{};
};

} // namespace panel
