// A screen of this computer whose memory can be written.
#pragma once

#include "display/projection.h"
#include "display/screen/screen_format.h"
#include "unique_fd.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace gpi {

/// The memory of one picture.
struct ScreenBuffer {
    uint8_t* pixels;
    ptrdiff_t stride;
};

/// Belongs to one thread once it is open. Gives the screen back at its end.
class ScreenDevice {
  public:
    ScreenDevice() = default;
    virtual ~ScreenDevice() = default;
    ScreenDevice(const ScreenDevice&) = delete;
    ScreenDevice& operator=(const ScreenDevice&) = delete;

    virtual Size size() const = 0;
    virtual ScreenFormat format() const = 0;

    /// One buffer that is always seen, or several of which one is, at first the first.
    virtual std::span<const ScreenBuffer> buffers() const = 0;

    /// Makes a buffer the one that is seen, and returns when it is.
    virtual void show(size_t buffer) = 0;
};

/// A frame buffer device. Null when it cannot be had; `failure` says why.
/// @param path the first one if empty
std::unique_ptr<ScreenDevice> openFbdev(const std::string& path, std::string& failure);

/// A graphics card, by the kernel's mode setting: the first connected screen in the mode that it
/// prefers, and two buffers that change places between two pictures of the screen.
/// @param path the first one with a screen if empty
std::unique_ptr<ScreenDevice> openDrm(const std::string& path, std::string& failure);

} // namespace gpi
