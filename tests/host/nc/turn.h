// What one process at a time may have.
#pragma once

#include <string>

namespace gpi::nc::test {

/// A turn at something, by the lock of a file that all who want it name. A process that dies gives
/// it back, and programs that it starts do not have it.
class Turn {
  public:
    /// Waits until nobody has it.
    explicit Turn(const std::string& path);
    ~Turn();
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

    /// Whether nobody has it.
    static bool isFree(const std::string& path);

  private:
    int file_;
};

} // namespace gpi::nc::test
