// The display for remote viewers.
#pragma once

#include "display/back_end.h"

namespace gpi {

/// Serves viewers from a thread of its own: drawing waits for none of them, and neither does
/// settle(). Null, and one line is reported, when nobody can connect.
std::unique_ptr<BackEnd> openVncBackEnd(const Settings& settings, const Frame& frame, Input& input);

} // namespace gpi
