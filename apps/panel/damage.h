// What has to be drawn anew.
#pragma once

#include <quarlo/quarlo.h>

namespace panel {

/// Areas of the display, at most five: the library merges those whose union wastes the least.
class Damage {
  public:
    void add(const GRect& area) { GDRAddDirtyRect(&list_, &area, 1); }
    bool any() const { return GDRGetDirtyRectNum(&list_) > 0; }

    /// Calls a function with each area, and forgets them.
    template <class Draw>
    void take(Draw draw) {
        GDirtyRectList taken;
        GDRRefreshDirtyRect(&list_);
        GDRDuplicateDirtyRect(&list_, &taken);
        GDRClearDirtyRect(&list_);
        for (int32_t i = 0; i < GDRGetDirtyRectNum(&taken); ++i) {
            draw(GDRGetDirtyRect(&taken)[i]);
        }
    }

  private:
    GDirtyRectList list_{};
};

} // namespace panel
