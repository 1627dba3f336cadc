// Profiles under several writers: threads of one program, and several programs.
#include "support/started_platform.h"

#include <quarlo/profile.h>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <string>
#include <thread>
#include <vector>

namespace {

using namespace gpi::test;

const auto getInt = service<GPIGetProfileIntEx>(GPI_SERVICE_GET_PROFILE_INT_EX);
const auto setString = service<GPISetProfileString>(GPI_SERVICE_SET_PROFILE_STRING);

constexpr int kWriters = 4;
constexpr int kRounds = 25;

std::u16string keyOf(int writer, int round) {
    const std::string key = std::to_string(writer * kRounds + round);
    return {key.begin(), key.end()};
}

bool writeKeys(int writer) {
    bool all = true;
    for (int round = 0; round < kRounds; ++round) {
        all = setString(u"A", keyOf(writer, round).c_str(), u"1", G_PROFILE_USER, u"p.ini") == 1 &&
              all;
    }
    return all;
}

void expectAllKeys() {
    for (int writer = 0; writer < kWriters; ++writer) {
        for (int round = 0; round < kRounds; ++round) {
            EXPECT_EQ(getInt(u"A", keyOf(writer, round).c_str(), 0, u"p.ini"), 1)
                << writer << ' ' << round;
        }
    }
}

TEST(ProfileWriters, OfOneProgramLoseNothing) {
    const TemporaryFolder folder;
    const StartedPlatform platform{{"QUARLO_USER_PROFILES", folder.path()}};
    std::vector<std::thread> threads;
    for (int writer = 0; writer < kWriters; ++writer) {
        threads.emplace_back([writer] { EXPECT_TRUE(writeKeys(writer)); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    expectAllKeys();
}

TEST(ProfileWriters, OfSeveralProgramsLoseNothing) {
    const TemporaryFolder folder;
    const StartedPlatform platform{{"QUARLO_USER_PROFILES", folder.path()}};
    std::vector<pid_t> programs;
    for (int writer = 0; writer < kWriters; ++writer) {
        const pid_t program = fork();
        if (program == 0) {
            _exit(writeKeys(writer) ? 0 : 1);
        }
        programs.push_back(program);
    }
    for (const pid_t program : programs) {
        int status = -1;
        EXPECT_EQ(waitpid(program, &status, 0), program);
        EXPECT_EQ(status, 0);
    }
    expectAllKeys();
}

} // namespace
