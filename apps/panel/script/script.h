// A run of the panel that can be repeated: what a person does, and when.
#pragma once

#include "panel.h"

#include <filesystem>
#include <iostream>
#include <optional>
#include <string>

namespace panel {

/// Carries a script out, a command a line. Words are separated by spaces; # begins a comment.
///
///     key NAME          presses and releases a key: A, 7, F1, Enter, Left...
///     down NAME         presses a key
///     up NAME           releases it
///     type TEXT         presses and releases the key of each character
///     tap X Y           presses and releases the left button, or touches, at a place
///     press X Y         presses it
///     move X Y          moves the pointer
///     release X Y       releases the button
///     wait N            lets N milliseconds pass
///     shot NAME         writes the display to NAME.png
///     checksum NAME     prints NAME and a checksum of the display, once people see it
///
/// The clock must be held (GPIHostHoldClock()): time passes by `wait` only.
class Script {
  public:
    /// @param shots folder of the pictures
    /// @param out where checksums go
    Script(Panel& panel, std::filesystem::path shots, std::ostream& out = std::cout);

    /// @return what is wrong with the script, and in which line; nothing at its end
    std::optional<std::string> run(std::istream& lines);

  private:
    bool carryOut(const std::string& line);
    bool press(const std::string& name, bool down, bool up);
    bool type(const std::string& text);
    bool point(int x, int y, uint32_t buttons);
    bool wait(int milliseconds);
    bool shoot(const std::string& name);
    bool sum(const std::string& name);

    Panel& panel_;
    std::filesystem::path shots_;
    std::ostream& out_;
    uint32_t buttons_ = 0;
};

} // namespace panel
