// A display server in front of nobody.
#pragma once

#include "support/process.h"

#include <sys/types.h>

#include <string>

namespace gpi::test {

/// Runs Xvfb, which listens on no network, for the time of a test.
class XServer {
  public:
    /// @param screen width x height x bits
    explicit XServer(const std::string& screen = "640x480x24");
    ~XServer();
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;

    /// The value for DISPLAY; empty when the server did not start.
    const std::string& display() const { return display_; }

  private:
    pid_t process_ = -1;
    std::string display_;
};

} // namespace gpi::test
