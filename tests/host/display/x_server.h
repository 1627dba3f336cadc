// A display server in front of nobody.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace gpi::test {

/// Runs Xvfb, which listens on no network, for the time of a test.
class XServer {
  public:
    XServer();
    ~XServer();
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;

    /// The value for DISPLAY; empty when the server did not start.
    const std::string& display() const { return display_; }

  private:
    pid_t process_ = -1;
    std::string display_;
};

/// Runs a program without a shell, its output thrown away. Its exit status, or -1.
int run(const std::vector<std::string>& words);

} // namespace gpi::test
