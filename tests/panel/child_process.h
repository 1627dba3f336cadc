// Work that may end its process.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace panel::test {

/// How far a child process has come: memory that its parent sees too.
class Progress {
  public:
    Progress();
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    size_t steps() const { return *steps_; }
    void set(size_t steps) { *steps_ = steps; }

  private:
    volatile size_t* steps_;
};

/// Does work in a process of its own, which has no other threads at first. Sanitizers look for
/// leaks at its end.
///
/// @param work gives what is wrong, or an empty text
/// @return what was wrong, or the process's last words when it died; empty when all was well
std::string inChildProcess(const std::function<std::string()>& work);

/// Bytes that this process has allocated and not freed.
size_t allocatedBytes();

} // namespace panel::test
