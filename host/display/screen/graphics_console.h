// The text console behind a picture.
#pragma once

#include "unique_fd.h"

namespace gpi {

/// Keeps the console of this computer, if it has one in front, from writing over a picture. It gets
/// its text back when this ends, or the process does: by a signal, whatever it is, too.
///
/// A process of its own waits for that end, since no handler of a signal could be sure to run, and
/// the program's handlers are its own.
class GraphicsConsole {
  public:
    GraphicsConsole();
    ~GraphicsConsole();
    GraphicsConsole(const GraphicsConsole&) = delete;
    GraphicsConsole& operator=(const GraphicsConsole&) = delete;

  private:
    UniqueFd console_;
    UniqueFd guard_; ///< the guarding process sees its other end close
};

} // namespace gpi
