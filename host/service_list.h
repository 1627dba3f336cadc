// The one table of the services that this platform offers.
#pragma once

#include <gpi/gpi.h>

#include <cstdint>

namespace gpi {

/// The service of a number, or null.
GPIFunction serviceOf(int32_t number);

} // namespace gpi
