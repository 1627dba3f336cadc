// A LinuxCNC for the time of a test.
#pragma once

#include <sys/types.h>

#include <string>

namespace gpi::nc::test {

/// Runs LinuxCNC in simulation. There is one at a time on a computer, whose memory and ports it
/// takes.
class LinuxCnc {
  public:
    static bool installed();

    /// Waits for other processes that run one. From then on the turn is this process's until it
    /// ends.
    ///
    /// @param folder of its own; its part programs lie there, and its HOME is `home` below it
    explicit LinuxCnc(std::string folder);
    /// Ends it.
    ~LinuxCnc();
    LinuxCnc(const LinuxCnc&) = delete;
    LinuxCnc& operator=(const LinuxCnc&) = delete;

    /// The turn at it.
    static std::string turn();

    /// What it says.
    std::string log() const;

  private:
    std::string folder_;
    pid_t process_;
};

} // namespace gpi::nc::test
