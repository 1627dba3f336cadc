// Device surfaces: asked for and handed back by number.
#pragma once

#include "platform/service_table.h"

#include <quarlo/surface.h>

#include <cstdint>

namespace quarlo {

using GetDeviceSurface = Service<GVram*(GDrawHandle*, int32_t), 3>;
using ReleaseDeviceSurface = Service<int32_t(GDrawHandle*, GVram*), 4>;

} // namespace quarlo
