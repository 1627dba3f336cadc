// A control behind a helper: helpers that behave and helpers that do not.
#include "nc/helper/helper_controller.h"

#include "eventually.h"
#include "support/environment.h"

#include <gpi/nc.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <thread>
#include <vector>

namespace gpi::nc::test {
namespace {

using namespace std::chrono_literals;
using gpi::test::TemporaryFolder;

constexpr const char* kHello = R"(
echo "extent 3 1 10 1000 100"
echo "value 1 0 0 1.5"
echo "value 13 0 0 2"
echo "system 2 1"
echo "text 1 0 /parts/a.nc"
echo "text 5 0 X"
echo show
)";

/// A helper that is a shell script, and the control behind it.
class Helper {
  public:
    explicit Helper(const std::string& script) {
        folder_.write("helper", "#!/bin/sh\nfolder=" + folder_.path() + "\n" + script);
        std::filesystem::permissions(folder_.path("helper"), std::filesystem::perms::owner_all);
        testing::internal::CaptureStderr();
        controller.emplace(folder_.path("helper"), HelperController::Times{300ms, 10ms});
    }
    ~Helper() {
        controller.reset();
        testing::internal::GetCapturedStderr();
    }

    int32_t system(int32_t number) {
        int32_t value = -99;
        const int32_t result = controller->getSystem(number, value);
        return result == kDone ? value : result;
    }
    bool comes() {
        return eventually([this] { return system(G_NC_SYSTEM_STATE) == G_NC_STATE_IDLE; });
    }
    bool goes() {
        return eventually([this] { return system(G_NC_SYSTEM_STATE) == G_NC_OFFLINE; });
    }
    std::string text(int32_t string, int32_t number = 0) {
        std::string text;
        EXPECT_EQ(controller->getText(string, number, text), kDone);
        return text;
    }
    /// What the helper wrote to a file of its folder.
    std::string file(const std::string& name) {
        std::ifstream in(folder_.path(name));
        return {std::istreambuf_iterator<char>(in), {}};
    }
    void write(const std::string& name) { folder_.write(name, ""); }

  private:
    TemporaryFolder folder_;

  public:
    std::optional<HelperController> controller;
};

TEST(HelperController, ShowsWhatItsHelperTells) {
    Helper helper(std::string(kHello) + "read end");
    ASSERT_TRUE(helper.comes());
    EXPECT_EQ(helper.controller->extent().axes, 3);
    double value = 0.0;
    EXPECT_EQ(helper.controller->getValue({G_NC_MACHINE_POSITION, 0, 0}, value), kDone);
    EXPECT_EQ(value, 1.5);
    EXPECT_EQ(helper.controller->getValue({G_NC_MACHINE_POSITION, 0, 1}, value), G_NC_UNKNOWN);
    EXPECT_EQ(value, 1.5);
    EXPECT_EQ(helper.system(G_NC_SYSTEM_MODE), G_NC_UNKNOWN);
    EXPECT_EQ(helper.system(G_NC_SYSTEM_ALARMS), 0);
    EXPECT_EQ(helper.text(G_NC_AXIS_NAME), "X");
    std::string text;
    EXPECT_EQ(helper.controller->getText(G_NC_CONTROL_NAME, 0, text), G_NC_UNKNOWN);
}

TEST(HelperController, HandsOnRequestsAndTheirReplies) {
    Helper helper(std::string(kHello) + R"(
while read number request; do
    echo "$request" >>"$folder/log"
    case $request in
    "system 3 2") echo "reply $number -4" ;;
    "system 3 6") echo "reply $number 0" ;;
    program*) echo "text 1 0 /parts/b.nc"; echo show; echo "reply $number 1" ;;
    *) echo "reply $number 1" ;;
    esac
done)");
    ASSERT_TRUE(helper.comes());
    HelperController& controller = *helper.controller;
    EXPECT_EQ(controller.setSystem(G_NC_SYSTEM_POWER, 1), kDone);
    EXPECT_EQ(controller.setSystem(G_NC_SYSTEM_COMMAND, G_NC_COMMAND_HOLD), G_NC_MODE);
    EXPECT_EQ(controller.setSystem(G_NC_SYSTEM_COMMAND, G_NC_COMMAND_HOME), G_NC_REFUSED)
        << "0 is no result";
    EXPECT_EQ(controller.setValue({G_NC_JOG, 0, 1}, -0.1), kDone);
    EXPECT_EQ(controller.runBlock("G0 X 5"), kDone);
    EXPECT_EQ(helper.text(G_NC_PROGRAM_NAME), "/parts/a.nc") << "the control's own";
    EXPECT_EQ(helper.text(G_NC_PROGRAM_LINE), "");
    std::string text;
    EXPECT_EQ(controller.getText(G_NC_PROGRAM_LINE, 1, text), G_NC_UNKNOWN);
    EXPECT_EQ(
        controller.choose(std::make_shared<Program>("b", "/parts/b.nc", "G0 X1\nG0 X2\nM30\n")),
        kDone);
    EXPECT_EQ(helper.text(G_NC_PROGRAM_NAME), "b");
    EXPECT_EQ(helper.text(G_NC_PROGRAM_LINE, 3), "M30");
    EXPECT_EQ(helper.text(G_NC_PROGRAM_LINE, 0), "G0 X2") << "the line that runs";
    EXPECT_EQ(helper.system(G_NC_SYSTEM_LINES), 3);
    EXPECT_EQ(controller.choose(std::make_shared<Program>("c", "/a\nb", "")), G_NC_RANGE);
    EXPECT_EQ(helper.file("log"), "system 5 1\nsystem 3 2\nsystem 3 6\nvalue 17 0 1 -0.1\n"
                                  "block G0 X 5\nprogram /parts/b.nc\n");
}

TEST(HelperController, KeepsAlarmsUntilTheyAreCleared) {
    Helper helper(std::string(kHello) + R"(
echo "alarm 300 first"
echo "alarm 300 second"
while read number request; do echo "reply $number 1"; done)");
    ASSERT_TRUE(eventually([&] { return helper.system(G_NC_SYSTEM_ALARMS) == 2; }));
    EXPECT_EQ(helper.text(G_NC_ALARM_TEXT, 0), "second");
    double number = 0.0;
    EXPECT_EQ(helper.controller->getValue({G_NC_ALARM, 1, 0}, number), kDone);
    EXPECT_EQ(number, GPI_NC_ALARM_CONTROL);
    EXPECT_EQ(helper.controller->getValue({G_NC_ALARM, 2, 0}, number), G_NC_UNKNOWN);
    helper.controller->setSystem(G_NC_SYSTEM_COMMAND, G_NC_COMMAND_CLEAR_ALARM);
    EXPECT_EQ(helper.text(G_NC_ALARM_TEXT, 0), "first");
    EXPECT_EQ(helper.controller->setSystem(G_NC_SYSTEM_COMMAND, G_NC_COMMAND_RESET), kDone);
    EXPECT_EQ(helper.system(G_NC_SYSTEM_ALARMS), 0);
}

TEST(HelperController, WaitsNoLongerThanAgreed) {
    Helper helper(std::string(kHello) + "while read request; do :; done");
    ASSERT_TRUE(helper.comes());
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(helper.controller->setSystem(G_NC_SYSTEM_POWER, 1), G_NC_OFFLINE);
    const auto waited = std::chrono::steady_clock::now() - start;
    EXPECT_GE(waited, 300ms);
    EXPECT_LT(waited, 5s);
    EXPECT_EQ(helper.system(G_NC_SYSTEM_STATE), G_NC_STATE_IDLE) << "it is still there";
}

TEST(HelperController, TellsWhenTheControlIsLostAndFindsItAgain) {
    Helper helper(std::string(kHello) + R"(
while read number request; do
    echo "lost LinuxCNC has ended"
    while [ ! -e "$folder/again" ]; do :; done
    echo "extent 3 1 10 1000 100"
    echo "system 2 1"
    echo show
done)");
    ASSERT_TRUE(helper.comes());
    EXPECT_EQ(helper.controller->setSystem(G_NC_SYSTEM_POWER, 1), G_NC_OFFLINE)
        << "those who wait are told too";
    ASSERT_TRUE(helper.goes());
    double value = 0.0;
    std::string text;
    EXPECT_EQ(helper.controller->getValue({G_NC_MACHINE_POSITION, 0, 0}, value), G_NC_OFFLINE);
    EXPECT_EQ(helper.controller->getText(G_NC_AXIS_NAME, 0, text), G_NC_OFFLINE);
    EXPECT_EQ(helper.controller->runBlock("G0 X1"), G_NC_OFFLINE);
    EXPECT_EQ(helper.controller->getValue({G_NC_ALARM, 0, 0}, value), kDone);
    EXPECT_EQ(value, GPI_NC_ALARM_CONTROL_LOST);
    EXPECT_EQ(helper.text(G_NC_ALARM_TEXT), "the control does not answer: LinuxCNC has ended");
    helper.write("again");
    ASSERT_TRUE(helper.comes());
    EXPECT_EQ(helper.controller->getValue({G_NC_MACHINE_POSITION, 0, 0}, value), G_NC_UNKNOWN)
        << "what the helper has not told again";
}

TEST(HelperController, StartsAHelperThatEndedAgain) {
    Helper helper(std::string(kHello) + R"(
echo started >>"$folder/starts"
read end)");
    ASSERT_TRUE(helper.comes());
    helper.controller->setSystem(G_NC_SYSTEM_POWER, 1); // it ends
    ASSERT_TRUE(eventually([&] { return helper.file("starts") == "started\nstarted\n"; }));
    ASSERT_TRUE(helper.comes());
    EXPECT_EQ(helper.system(G_NC_SYSTEM_ALARMS), 1);
    EXPECT_EQ(helper.text(G_NC_ALARM_TEXT), "the control does not answer: its helper has ended");
}

TEST(HelperController, GivesUpAHelperThatRaves) {
    for (const char* const raving : {"echo hello", "echo 'value 1 0 0 x'", "printf 'x%05000d\\n' 1",
                                     "printf '%05000d' 1", "while :; do echo; done"}) {
        Helper helper(std::string(kHello) + "while [ ! -e \"$folder/rave\" ]; do :; done\n" +
                      raving + "\nread end");
        ASSERT_TRUE(helper.comes());
        helper.write("rave");
        EXPECT_TRUE(eventually([&] { return helper.system(G_NC_SYSTEM_ALARMS) > 0; })) << raving;
    }
}

TEST(HelperController, NeedsAnExtentBeforeItShows) {
    Helper helper("echo 'system 2 1'\necho show\necho x >>\"$folder/starts\"\nread end");
    ASSERT_TRUE(eventually([&] { return helper.file("starts").size() > 4; })) << "tried again";
    EXPECT_EQ(helper.system(G_NC_SYSTEM_STATE), G_NC_OFFLINE);
}

TEST(HelperController, IsOfflineWithoutAHelper) {
    testing::internal::CaptureStderr();
    {
        HelperController controller("/nonexistent/helper", {300ms, 1ms});
        int32_t value = 0;
        EXPECT_EQ(controller.getSystem(G_NC_SYSTEM_STATE, value), G_NC_OFFLINE);
        EXPECT_EQ(controller.setSystem(G_NC_SYSTEM_POWER, 1), G_NC_OFFLINE);
        EXPECT_EQ(controller.getSystem(G_NC_SYSTEM_ALARMS, value), kDone);
        EXPECT_EQ(value, 0);
    }
    testing::internal::GetCapturedStderr();
}

TEST(HelperController, EndsAHelperThatIgnoresItsEnd) {
    Helper helper(std::string(kHello) + "trap '' HUP PIPE TERM\nwhile :; do sleep 1; done");
    ASSERT_TRUE(helper.comes());
    const auto start = std::chrono::steady_clock::now();
    helper.controller.reset();
    EXPECT_LT(std::chrono::steady_clock::now() - start, 10s);
}

TEST(HelperController, AnswersSeveralThreads) {
    Helper helper(std::string(kHello) +
                  "while read number request; do echo \"reply $number ${request##* }\"; done");
    ASSERT_TRUE(helper.comes());
    std::vector<std::thread> panels;
    for (int panel = 0; panel < 4; ++panel) {
        panels.emplace_back([&helper, panel] {
            for (int round = 1; round <= 100; ++round) {
                const int32_t own = panel * 1000 + round;
                EXPECT_EQ(helper.controller->setSystem(G_NC_SYSTEM_COOLANT, own), own);
                EXPECT_EQ(helper.system(G_NC_SYSTEM_STATE), G_NC_STATE_IDLE);
            }
        });
    }
    for (std::thread& panel : panels) {
        panel.join();
    }
}

} // namespace
} // namespace gpi::nc::test
