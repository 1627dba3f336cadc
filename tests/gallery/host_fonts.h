// The host platform's fonts under a test's own platform.
#pragma once

#include "support/recording_platform.h"

#include <gpi/gpi.h>

namespace quarlo::test {

/// Runs the host platform and answers the font services by it, while this lives. Whole strings
/// are the library's to draw.
class HostFonts {
  public:
    explicit HostFonts(RecordingPlatform& platform);
    ~HostFonts();
    HostFonts(const HostFonts&) = delete;
    HostFonts& operator=(const HostFonts&) = delete;

  private:
    template <int Number>
    auto* service() const {
        return reinterpret_cast<ServiceSignature<Number>*>(getService_(Number));
    }
    template <int... Numbers>
    void serve(RecordingPlatform& platform) const {
        (platform.serve<Numbers>(service<Numbers>()), ...);
    }

    void* library_;
    GPIFunction (*getService_)(int32_t number) = nullptr;
};

} // namespace quarlo::test
