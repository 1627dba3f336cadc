// The clip rectangle. It belongs to the surface, in surface coordinates: all handles that draw on
// one surface share it.
#include "draw/surface.h"

#include "geometry/view.h"

#include <quarlo/clip.h>

using namespace quarlo;

namespace {

/// A rectangle in surface coordinates within the view; false when nothing of it is left.
bool toView(const GDrawHandle& handle, GRect& rect) {
    mapToScreen(handle, rect);
    return clipTo(rect, handle.view);
}

} // namespace

int32_t GDSetClipRect(GDrawHandle* handle, const GRect* rect) {
    GRect clip = handle->view;
    if (rect != nullptr) {
        clip = *rect;
        if (!toView(*handle, clip)) {
            return 0;
        }
    }
    if (handle->target->drawable == nullptr) {
        return 0;
    }
    *handle->target->drawable = clip;
    return 1;
}

void GDGetClipRect(const GDrawHandle* handle, GRect* rect) {
    *rect = drawableOf(*handle->target);
    mapFromScreen(*handle, *rect);
}

int32_t GDInceptClipRect(GDrawHandle* handle, const GRect* rect, GRect* previous) {
    if (rect == nullptr) {
        return 0;
    }
    GRect narrowed = *rect;
    if (!toView(*handle, narrowed) || !clipTo(narrowed, drawableOf(*handle->target))) {
        return 0;
    }
    if (previous != nullptr) {
        GDGetClipRect(handle, previous);
    }
    *handle->target->drawable = narrowed;
    return 1;
}
