// The display on a screen of this computer, without a window system.
#pragma once

#include "display/back_end.h"

namespace gpi {

/// Shows the display in the middle of a screen, enlarged by the largest whole factor that fits.
/// A thread of its own writes the screen's memory and reads the computer's input devices. Null, and
/// one line is reported, when there is no screen to be had.
std::unique_ptr<BackEnd> openFbdevBackEnd(const Settings& settings, const Frame& frame,
                                          Input& input);
std::unique_ptr<BackEnd> openDrmBackEnd(const Settings& settings, const Frame& frame, Input& input);

} // namespace gpi
