// Draw handles made ready in memory that need not come from the platform.
#pragma once

#include <quarlo/handle.h>

namespace quarlo {

/// Gives a zeroed handle device surface 0 and every default of an opened one; false when the
/// platform has no such surface.
bool initialiseHandle(GDrawHandle& handle);

} // namespace quarlo
