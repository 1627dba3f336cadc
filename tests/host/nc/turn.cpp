#include "turn.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace gpi::nc::test {
namespace {

/// Made only where it is missing: in a folder for all, making another user's file is refused.
int openFile(const std::string& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    return file >= 0 ? file : open(path.c_str(), O_RDONLY | O_CREAT | O_CLOEXEC, 0644);
}

} // namespace

Turn::Turn(const std::string& path) : file_(openFile(path)) {
    EXPECT_EQ(flock(file_, LOCK_EX), 0) << path;
}

Turn::~Turn() {
    close(file_);
}

bool Turn::isFree(const std::string& path) {
    const int file = openFile(path);
    const bool free = flock(file, LOCK_EX | LOCK_NB) == 0;
    close(file);
    return free;
}

} // namespace gpi::nc::test
