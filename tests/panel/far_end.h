// Where pictures of the display arrive: what a person would look at.
#pragma once

#include "support/environment.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace panel::test {

/// CRC-32 of colours 0x00RRGGBB, each as the bytes red, green, blue.
uint32_t checksum(const std::vector<uint32_t>& colors);

/// Shows the display of this process and gives its picture back. Made before the platform starts
/// and gone after it has stopped.
class FarEnd {
  public:
    FarEnd() = default;
    virtual ~FarEnd() = default;
    FarEnd(const FarEnd&) = delete;
    FarEnd& operator=(const FarEnd&) = delete;

    /// The settings that bring the display there.
    virtual gpi::test::Environment::Values settings() const = 0;

    /// The platform runs.
    /// @param said what it printed on its start
    virtual void open(const std::string& said) = 0;

    /// Whether the newest picture there has a checksum; waits for the picture where it takes time
    /// to arrive.
    virtual bool shows(uint32_t sum) = 0;
};

/// A window that no display server shows; SDL keeps its picture.
std::unique_ptr<FarEnd> makeWindow();

/// The screen of a display server that the window covers, as another of its clients reads it.
std::unique_ptr<FarEnd> makeServerScreen(int width, int height);

/// A remote viewer.
std::unique_ptr<FarEnd> makeViewer();

} // namespace panel::test
