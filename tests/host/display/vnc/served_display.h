// A platform whose display viewers can connect to.
#pragma once

#include "support/png_reader.h"
#include "support/started_platform.h"

#include <gpi/host.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace gpi::test {

/// The number at the end of the line that tells where viewers connect; 0 when there is none.
inline int portIn(const std::string& said) {
    const size_t at = said.rfind(' ');
    return at != std::string::npos ? std::atoi(said.c_str() + at) : 0;
}

/// Runs for the time of a test, at any port that is free.
class ServedDisplay {
  public:
    explicit ServedDisplay(Environment::Values changes = {}) {
        changes.insert({{"QUARLO_DISPLAY", "vnc"}, {"QUARLO_VNC_PORT", "0"}});
        testing::internal::CaptureStderr();
        platform_.emplace(changes);
        said_ = testing::internal::GetCapturedStderr();
    }

    bool started() const { return platform_->started() == 1; }

    /// All that the platform said on its start.
    const std::string& said() const { return said_; }

    int port() const { return portIn(said_); }

    void stop() { platform_.reset(); }

    /// What was flushed, 0x00RRGGBB.
    std::vector<uint32_t> frame() const {
        EXPECT_EQ(GPIHostWritePng(folder_.path("frame.png").c_str()), 1);
        const PngPicture picture = readPng(folder_.path("frame.png"));
        std::vector<uint32_t> pixels = picture.pixels;
        if (picture.palette) {
            for (uint32_t& pixel : pixels) {
                pixel = picture.colors[pixel];
            }
        }
        return pixels;
    }

  private:
    TemporaryFolder folder_;
    std::optional<StartedPlatform> platform_;
    std::string said_;
};

} // namespace gpi::test
