// Start and stop: services 1, 12, 22 and 2.
#pragma once

#include <quarlo/types.h>

namespace gpi {

GWord startPlatform(GWord configuration);
GWord openDisplay(GWord configuration);
GWord closeDisplay();
GWord stopPlatform();

} // namespace gpi
