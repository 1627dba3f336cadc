// Programs that a test runs, without a shell.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace gpi::test {

/// Turns this process, a fresh fork, into a program without input.
///
/// @param words its path and its arguments
/// @param output the file that all it says is added to
[[noreturn]] void become(const std::vector<std::string>& words,
                         const std::string& output = "/dev/null");

/// A program that runs beside a test, its output thrown away.
class Process {
  public:
    explicit Process(const std::vector<std::string>& words);
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

  private:
    pid_t process_;
};

/// Runs a program, its output thrown away. Its exit status, or -1.
int run(const std::vector<std::string>& words);

} // namespace gpi::test
