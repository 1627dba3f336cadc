// The network that the settings describe.
#pragma once

#include "config/settings.h"

#include <memory>

namespace gpi {

class Network;

/// Null where the platform is built without one. @throws NetError when it cannot be used
std::shared_ptr<Network> makeNetwork(const Settings& settings);

} // namespace gpi
