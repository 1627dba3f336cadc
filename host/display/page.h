// Device surfaces.
#pragma once

#include "display/area.h"
#include "display/pixel_format.h"
#include "raster/kernel/transfer.h"

#include <quarlo/surface.h>

#include <cstdint>
#include <vector>

namespace gpi {

/// One of the display's pages: a device surface with its memory.
///
/// The record is there for programs to read. The page itself goes by what it keeps beside the
/// record, so that a program that scribbles on it spoils its own drawing at most.
class Page {
  public:
    /// @param palette the display's, of which the record tells; kept
    Page(int16_t number, int width, int height, const PixelFormat& format, Palette& palette);
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;

    GVram& record() { return record_; }
    const PixelFormat& format() const { return format_; }
    const uint8_t* pixels() const { return memory_.data(); }
    ptrdiff_t stride() const { return stride_; }

    /// The address of a pixel.
    uint8_t* at(int x, int y) {
        return memory_.data() + y * stride_ + static_cast<ptrdiff_t>(x) * format_.bytes();
    }

    /// How transfers read and write the page.
    quarlo::kernel::PixelLayout layout() const;

    /// All of the page.
    const GRect& whole() const { return whole_; }

    /// What drawing is confined to, whatever the clip rectangle: the page's share of all regions.
    const GRect& limit() const { return limit_; }

    /// Adds a region. False, and nothing changes, when drawing would have no place left.
    ///
    /// Adding and removing a region sets the clip rectangle to the new limit.
    bool addRegion(const GRect& region);

    /// Removes a region that equals this one. False when there is none.
    bool removeRegion(const GRect& region);

  private:
    void setLimit(const GRect& limit);

    GVram record_;
    PixelFormat format_;
    const Palette& palette_;
    ptrdiff_t stride_;
    std::vector<uint8_t> memory_;
    GRect whole_;
    GRect limit_;
    GRect clip_;
    std::vector<GRect> regions_;
};

} // namespace gpi
