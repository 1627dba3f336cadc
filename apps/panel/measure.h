// What the panel costs: time to draw, and the processor while nothing happens.
#pragma once

#include "panel.h"

#include <ostream>

namespace panel {

/// Tells how long after the process's start this moment is, how much of that the processor worked
/// for it, and how much memory is resident.
void measureStart(std::ostream& out);

/// Runs a panel for some seconds of real time, its clock going, and tells what share of a core it
/// took. Ends with the panel's end.
void measureIdle(Panel& panel, std::ostream& out);

/// Tells how long the screens and single readouts take up to the flush, each the median and the
/// longest of several times. The clock must be held, and the panel's microseconds must pass.
void measureDrawing(Panel& panel, std::ostream& out);

} // namespace panel
