// The display in a window.
#pragma once

#include "display/back_end.h"
#include "display/sdl_window.h"

namespace gpi {

/// Opens a window in a thread of its own, so that it stays alive while the program computes and a
/// flush need not wait for the display server. The thread asks the server for input as well, and
/// sleeps while there is neither input nor anything to show. Null when there is none to be had;
/// that is reported where any driver would have done.
std::unique_ptr<BackEnd> openSdlBackEnd(const Settings& settings, const Frame& frame, Input& input,
                                        VideoDriver driver);

} // namespace gpi
