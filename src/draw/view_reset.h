// What opening a handle and giving it another surface do to its geometry.
#pragma once

#include "geometry/view.h"

#include <quarlo/handle.h>

namespace quarlo {

/// View, virtual rectangle and the shared physical rectangle become the whole target; local origin
/// and pen position go to (0, 0).
inline void resetView(GDrawHandle& handle) {
    const GVram& target = *handle.target;
    handle.view = {0, 0, low16(target.width - 1), low16(target.height - 1)};
    handle.virtualRect = handle.view;
    physicalRect = handle.view;
    handle.localOrigin = {0, 0};
    handle.penPos = {0, 0};
}

} // namespace quarlo
