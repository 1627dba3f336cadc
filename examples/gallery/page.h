// A page of the gallery: a heading, and figures in a grid with a caption below each.
#pragma once

#include "label.h"

#include <quarlo/types.h>

#include <string_view>

namespace gallery {

inline constexpr int kPageWidth = 640;
inline constexpr int kPageHeight = 480;

/// The page's colours, 0x00RRGGBB. They stay apart with 8 bits a pixel too.
inline constexpr uint32_t kPaper = 0xF8F6F0;
inline constexpr uint32_t kInk = 0x22262E;
inline constexpr uint32_t kGrey = 0x6E6E6A;
inline constexpr uint32_t kSand = 0xDCD8B8;
inline constexpr uint32_t kRed = 0xC8452C;
inline constexpr uint32_t kBlue = 0x2E5E8E;
inline constexpr uint32_t kGreen = 0x4F7F5A;
inline constexpr uint32_t kGold = 0xD9A441;

/// The part of the page below the heading.
inline constexpr GRect kContent = {32, 76, 607, 455};

/// Equal cells, counted row by row.
class Grid {
  public:
    constexpr Grid(int columns, int rows, GRect area = kContent)
        : columns_(columns), rows_(rows), area_(area) {}

    /// The cell without its caption.
    GRect figure(int index) const;

  private:
    int columns_;
    int rows_;
    GRect area_;
};

/// Clears the page and draws its heading.
void beginPage(GDrawHandle* handle, int number, std::string_view title, std::string_view remark);

/// Thin solid pen in ink, no fill, copying, no clip, surface coordinates.
void resetState(GDrawHandle* handle);

/// Draws a caption below a figure.
void drawCaption(GDrawHandle* handle, const GRect& figure, std::string_view text);

/// Draws a figure by draw(handle, box), from the state of resetState(), and its caption.
template <typename Draw>
void drawFigure(GDrawHandle* handle, const GRect& box, std::string_view caption, Draw draw) {
    resetState(handle);
    draw(handle, box);
    resetState(handle);
    drawCaption(handle, box, caption);
}

} // namespace gallery
