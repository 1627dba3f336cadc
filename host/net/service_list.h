// The table of the network's services.
#pragma once

#include <gpi/gpi.h>

#include <cstdint>

namespace gpi {

/// The service of a number, or null; null for all where the platform is built without a network.
GPIFunction networkServiceOf(int32_t number);

} // namespace gpi
