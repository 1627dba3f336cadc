// What quarlo-grf does for each of its commands.
#pragma once

#include <span>
#include <string>

namespace grf {

enum ExitStatus { kDone = 0, kFailed = 1, kMisused = 2 };

/// Runs a command line without the program's name. Results go to files or the standard output,
/// messages to the standard error stream.
ExitStatus runCommand(std::span<const std::string> words);

} // namespace grf
