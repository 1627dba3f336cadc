// The keyboards, mice and touch screens of this computer.
#pragma once

#include "display/screen/screen_pointer.h"
#include "input/input.h"

#include <memory>
#include <string>

namespace gpi {

/// Reads all there are, those that are plugged in later too, and keeps them from everybody else: a
/// text console behind the picture would take the same keys as its own. Belongs to one thread once
/// it is open; releases what is held at its end.
class InputDevices {
  public:
    /// Null where there is no library for it. A device that must not be read is reported in one
    /// line.
    /// @param folder of the devices: /dev/input
    static std::unique_ptr<InputDevices> open(const std::string& folder, Input& input,
                                              ScreenPointer& pointer);

    InputDevices() = default;
    virtual ~InputDevices() = default;
    InputDevices(const InputDevices&) = delete;
    InputDevices& operator=(const InputDevices&) = delete;

    /// Readable when one of them has something to tell.
    virtual int descriptor() const = 0;

    /// Hands on what they tell.
    virtual void read() = 0;
};

} // namespace gpi
