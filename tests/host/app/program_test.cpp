#include "support/started_platform.h"

#include <quarlo/app.h>
#include <quarlo/event.h>
#include <quarlo/file.h>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

using namespace gpi::test;
namespace fs = std::filesystem;

const auto execute = service<GPIExecute>(GPI_SERVICE_EXECUTE);
const auto exit_ = service<GPIExit>(GPI_SERVICE_EXIT);

/// A folder with one program, a script.
class Program : public testing::Test {
  protected:
    Program() {
        folder.write("tool", "#!/bin/sh\ncase $1 in\n"
                             "status) exit $2 ;;\n"
                             "kill) kill -9 $$ ;;\n"
                             "write) shift; printf '%s|' \"$@\" > out; pwd >> out ;;\n"
                             "stay) exec cat fifo ;;\n"
                             "esac\n");
        fs::permissions(folder.path("tool"), fs::perms::owner_all);
        fs::create_directory(files.path("sub"));
    }

    int32_t run(const char16_t* arguments, const char16_t* directory = nullptr) {
        return execute(u"tool", arguments, directory, G_APP_WAIT, &result);
    }

    TemporaryFolder folder;
    TemporaryFolder files;
    StartedPlatform platform{{"QUARLO_PROGRAMS", folder.path()}, {"QUARLO_FILES", files.path()}};
    int32_t result = -1;
};

TEST_F(Program, IsWaitedFor) {
    EXPECT_EQ(run(u"status 0"), 1);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(run(u"status 7"), 1);
    EXPECT_EQ(result, 7);
    EXPECT_EQ(run(u"kill"), 1);
    EXPECT_EQ(result, 256 + SIGKILL);
    EXPECT_EQ(run(nullptr), 1);
}

TEST_F(Program, GetsItsWordsWithoutAShell) {
    EXPECT_EQ(run(u"write \"a b\" $HOME *", u"sub"), 1);
    std::ifstream out(files.path("sub/out"));
    const std::string text{std::istreambuf_iterator<char>(out), {}};
    EXPECT_EQ(text, "a b|$HOME|*|" + fs::canonical(files.path("sub")).string() + "\n");
}

TEST_F(Program, OfOneKindRunsOnce) {
    ASSERT_EQ(mkfifo(files.path("fifo").c_str(), 0600), 0);
    EXPECT_EQ(execute(u"tool", u"stay", nullptr, G_APP_SINGLE, &result), 1);
    const int32_t number = result;
    EXPECT_EQ(execute(u"tool", u"stay", nullptr, G_APP_SINGLE, &result), G_IO_IN_USE);
    EXPECT_EQ(run(u"status 4"), 1);
    EXPECT_EQ(exit_(number), 1);
    while (exit_(number) == 1) { // until it has ended
    }
    EXPECT_EQ(exit_(number), G_IO_NOT_FOUND);
    EXPECT_EQ(execute(u"tool", u"status 0", nullptr, G_APP_SINGLE | G_APP_WAIT, &result), 1);
}

TEST_F(Program, OutsideItsFolderIsRefused) {
    EXPECT_EQ(execute(u"../tool", nullptr, nullptr, 0, &result), G_IO_DENIED);
    EXPECT_EQ(execute(u"/bin/sh", nullptr, nullptr, 0, &result), G_IO_DENIED);
    EXPECT_EQ(execute(u"", nullptr, nullptr, 0, &result), G_IO_DENIED);
    EXPECT_EQ(execute(nullptr, nullptr, nullptr, 0, &result), G_IO_ARGUMENT);
    EXPECT_EQ(execute(u"none", nullptr, nullptr, 0, &result), G_IO_NOT_FOUND);
    EXPECT_EQ(execute(u"tool", nullptr, u"..", 0, &result), G_IO_DENIED);
    EXPECT_EQ(execute(u"tool", nullptr, nullptr, 4, &result), G_IO_ARGUMENT);
    fs::create_symlink("/bin/sh", folder.path("shell"));
    EXPECT_EQ(execute(u"shell", nullptr, nullptr, 0, &result), G_IO_DENIED);
}

TEST_F(Program, OfOthersIsLeftAlone) {
    EXPECT_EQ(exit_(1), G_IO_NOT_FOUND);
    EXPECT_EQ(exit_(-1), G_IO_NOT_FOUND);
}

TEST_F(Program, MayAskItselfToEnd) {
    EXPECT_EQ(exit_(0), 1);
    GMessage message{};
    EXPECT_EQ(service<GPINextMessage>(GPI_SERVICE_NEXT_MESSAGE)(&message), 1);
    EXPECT_EQ(message.number, uint32_t{G_MESSAGE_QUIT});
}

} // namespace
