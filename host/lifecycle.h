// Start and stop, and what the platform is called: services 1, 12, 22, 2 and 23.
#pragma once

#include <quarlo/types.h>

namespace gpi {

GWord startPlatform(GWord configuration);
GWord openDisplay(GWord configuration);
GWord closeDisplay();
GWord stopPlatform();
const char16_t* describePlatform();

} // namespace gpi
