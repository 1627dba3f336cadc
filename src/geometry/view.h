// The view of a draw handle: how its application coordinates meet surface coordinates.
#pragma once

#include "geometry/geometry.h"
#include "geometry/map.h"

#include <quarlo/handle.h>

namespace quarlo {

/// The destination frame of virtual mode, one for all handles: the view of the handle that was
/// opened or given a surface last.
extern GRect physicalRect;

inline bool isVirtual(const GDrawHandle& handle) {
    return (handle.modeFlags & G_FLAG_VIRTUAL) != 0;
}

inline FrameMap virtualToPhysical(const GDrawHandle& handle) {
    return {handle.virtualRect, physicalRect};
}

inline FrameMap physicalToVirtual(const GDrawHandle& handle) {
    return {physicalRect, handle.virtualRect};
}

/// Never inline, so that local mode, the common one, is a few instructions in its callers.
template <typename Shape>
[[gnu::noinline]] void mapVirtual(const GDrawHandle& handle, Shape& shape) {
    virtualToPhysical(handle)(shape);
}

/// Application to surface coordinates, in place: a point, a line or a rectangle.
template <typename Shape>
inline void mapToScreen(const GDrawHandle& handle, Shape& shape) {
    const GPoint& origin = handle.localOrigin;
    if (isVirtual(handle)) {
        mapVirtual(handle, shape);
    } else if (origin.x != 0 || origin.y != 0) {
        offset(shape, -origin.x, -origin.y);
    }
}

/// Surface to application coordinates, in place. In virtual mode both directions round: a value
/// taken there and back may differ from what it was.
template <typename Shape>
void mapFromScreen(const GDrawHandle& handle, Shape& shape) {
    if (isVirtual(handle)) {
        physicalToVirtual(handle)(shape);
    } else {
        offset(shape, handle.localOrigin.x, handle.localOrigin.y);
    }
}

inline void GRMapFromScreenRect(const GDrawHandle* handle, GRect* rect) {
    mapFromScreen(*handle, *rect);
}

inline void GPTMapToScreenPoint(const GDrawHandle* handle, GPoint* point) {
    mapToScreen(*handle, *point);
}

inline void GPTMapFromScreenPoint(const GDrawHandle* handle, GPoint* point) {
    mapFromScreen(*handle, *point);
}

} // namespace quarlo
