#include "turn.h"

#include "support/environment.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <thread>

namespace gpi::nc::test {
namespace {

using gpi::test::TemporaryFolder;

TEST(Turns, AreTakenOneAfterTheOther) {
    const TemporaryFolder folder;
    const std::string path = folder.path("turn");
    EXPECT_TRUE(Turn::isFree(path));
    std::optional<Turn> first(path);
    EXPECT_FALSE(Turn::isFree(path));
    std::atomic<bool> over = false;
    std::thread other([&] {
        const Turn second(path);
        EXPECT_TRUE(over);
    });
    over = true;
    first.reset();
    other.join();
    EXPECT_TRUE(Turn::isFree(path));
}

TEST(Turns, AreGivenBackByAProcessThatDies) {
    const TemporaryFolder folder;
    const std::string path = folder.path("turn");
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t other = fork();
    if (other == 0) {
        const Turn turn(path);
        if (write(ends[1], "", 1) == 1) {
            pause();
        }
        _exit(1);
    }
    char byte = 1;
    EXPECT_EQ(read(ends[0], &byte, 1), 1);
    EXPECT_FALSE(Turn::isFree(path));
    kill(other, SIGKILL);
    waitpid(other, nullptr, 0);
    EXPECT_TRUE(Turn::isFree(path));
    close(ends[0]);
    close(ends[1]);
}

TEST(Turns, AreNotHandedToPrograms) {
    const TemporaryFolder folder;
    const std::string path = folder.path("turn");
    const Turn turn(path);
    const std::string isOpen = "ls -l /proc/self/fd | grep -q '" + path + "'";
    EXPECT_NE(std::system(isOpen.c_str()), 0);
    EXPECT_EQ(std::system(("exec 9<'" + path + "'; " + isOpen).c_str()), 0) << "it would be seen";
}

} // namespace
} // namespace gpi::nc::test
