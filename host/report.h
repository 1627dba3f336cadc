// What the platform has to say to the person in front of it.
#pragma once

#include <string_view>

namespace gpi {

/// Writes one line to the standard error stream, marked as the platform's.
void report(std::string_view message);

} // namespace gpi
