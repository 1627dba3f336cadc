// Starting a platform as GDInitPlatform() does.
#pragma once

#include "platform.h"

namespace doctor {

/// What GDInitPlatform() would give.
GWord start(const Platform& platform);

} // namespace doctor
