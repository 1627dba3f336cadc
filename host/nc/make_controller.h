// Which control the settings ask for.
#pragma once

#include "config/settings.h"
#include "nc/controller.h"

#include <memory>

namespace gpi::nc {

std::unique_ptr<Controller> makeController(const Settings& settings);

} // namespace gpi::nc
