// Where the pixels of a frame go on a screen.
#pragma once

#include "display/area.h"
#include "display/back_end.h"
#include "display/placement.h"

#include <cstdint>
#include <vector>

namespace gpi {

struct Size {
    int width;
    int height;

    friend constexpr bool operator==(const Size&, const Size&) = default;
};

/// Shows the part of a frame that a view names in the middle of a screen, enlarged by the largest
/// whole factor that fits, with black beside it.
class Projection {
  public:
    Projection(const View& view, Size frame, Size screen);

    /// The part of the screen that an area of the frame is seen in; empty when it is not.
    GRect onScreen(const GRect& area) const;

    /// Words 0x00RRGGBB of a row of the screen, from column `left` on, taken from the whole frame.
    void copyRow(const std::vector<uint32_t>& rgb, int y, int left, int width, uint32_t* to) const;

    /// The pixel of the frame that a place on the screen shows, or the nearest one to it.
    struct Pixel {
        int16_t x;
        int16_t y;
        bool beside; ///< there is no picture in that place
    };
    Pixel pixelAt(int x, int y) const;

  private:
    /// One of the two directions: which unit of the frame each unit of the screen shows.
    struct Axis {
        Axis(int screenSize, int placeFirst, int placeSize, int partFirst, int partSize);

        /// Where on the screen the frame's units from `unit` on begin.
        int16_t placeOf(int unit) const;
        int16_t nearest(int at) const;
        bool isBeside(int at) const { return at < begin || at >= end; }

        int begin; ///< of the picture on the screen
        int end;   ///< behind it
        std::vector<int16_t> units;
    };

    Projection(const Placement& part, const Placement& place, Size frame, Size screen);

    int frameWidth_;
    Axis columns_;
    Axis rows_;
    bool natural_; ///< columns of both are equally wide
};

} // namespace gpi
