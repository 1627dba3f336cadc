// Showing frames in a thread of its own.
#pragma once

#include "display/back_end.h"
#include "display/frame_exchange.h"

#include <memory>

namespace gpi {

/// Something that shows the frames of an exchange.
class FrameShow {
  public:
    FrameShow() = default;
    virtual ~FrameShow() = default;
    FrameShow(const FrameShow&) = delete;
    FrameShow& operator=(const FrameShow&) = delete;

    /// Shows what comes until the exchange is stopped.
    virtual void run(FrameExchange& frames) = 0;
};

/// Whether a program that wants a frame visible waits for it.
enum class Settling { Waits, GoesOn };

/// A back end that people see: its show runs in a thread, out of the way of the program's signals.
std::unique_ptr<BackEnd> showInThread(std::unique_ptr<FrameShow> show, const Frame& frame,
                                      Settling settling);

} // namespace gpi
