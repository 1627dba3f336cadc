// How long the panel takes to draw.
#pragma once

#include "panel.h"

#include <ostream>

namespace panel {

/// Tells how long the screens and single readouts take, each the median and the longest of several
/// times. The clock must be held, and the panel's microseconds be real ones.
void measure(Panel& panel, std::ostream& out);

} // namespace panel
