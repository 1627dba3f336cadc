// The services in front of the real LinuxCNC, which runs in simulation for the time of the tests.
#include "linuxcnc.h"
#include "panel.h"
#include "turn.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <memory>
#include <set>

namespace gpi::nc::test {
namespace {

using gpi::test::Environment;
using gpi::test::StartedPlatform;
using gpi::test::TemporaryFolder;

/// One control and one platform for all tests.
class LinuxCncServices : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        if (!LinuxCnc::installed()) {
            return;
        }
        folder = std::make_unique<TemporaryFolder>();
        control = std::make_unique<LinuxCnc>(folder->path());
        platform = std::make_unique<StartedPlatform>(
            Environment::Values{{"QUARLO_NC", "linuxcnc"},
                                {"QUARLO_NC_HELPER", LINUXCNC_HELPER},
                                {"QUARLO_FILES", folder->path()},
                                {"HOME", folder->path("home")}});
        EXPECT_TRUE(comes()) << control->log();
    }
    static void TearDownTestSuite() {
        platform.reset();
        control.reset();
        folder.reset();
    }

    void SetUp() override {
        if (!LinuxCnc::installed()) {
            GTEST_SKIP() << "LinuxCNC is not installed";
        }
    }

    static bool comes() {
        return eventually([] {
            int32_t state = 0;
            return getSystem(G_NC_SYSTEM_STATE, &state) == 1;
        });
    }

    /// Powered and referenced, in a mode, at a place, without alarms.
    static void makeReady(int32_t mode) {
        setSystem(G_NC_SYSTEM_EMERGENCY, 0);
        ASSERT_EQ(setSystem(G_NC_SYSTEM_POWER, 1), 1);
        ASSERT_TRUE(reaches(G_NC_STATE_IDLE));
        if (system(G_NC_SYSTEM_HOMED) != 7) {
            ASSERT_EQ(setSystem(G_NC_SYSTEM_MODE, G_NC_MODE_MANUAL), 1);
            ASSERT_EQ(command(G_NC_COMMAND_HOME), 1);
            ASSERT_TRUE(eventually([] { return system(G_NC_SYSTEM_HOMED) == 7; }));
            ASSERT_TRUE(reaches(G_NC_STATE_IDLE));
        }
        write(G_NC_OVERRIDE, 0, 0, 100.0);
        ASSERT_EQ(setSystem(G_NC_SYSTEM_MODE, G_NC_MODE_MDI), 1);
        runBlock(u"G21 G90 G54 G0 X0 Y0 Z0");
        ASSERT_EQ(setSystem(G_NC_SYSTEM_MODE, mode), 1);
        ASSERT_EQ(command(G_NC_COMMAND_RESET), 1);
        ASSERT_TRUE(reaches(G_NC_STATE_IDLE));
    }

    static void runBlock(const char16_t* block) {
        ASSERT_EQ(setString(1, G_NC_MANUAL_BLOCK, 0, block), 1);
        ASSERT_TRUE(reaches(G_NC_STATE_IDLE));
    }

    static bool standsAt(double x, double y) {
        return eventually([=] {
            return std::abs(value(G_NC_MACHINE_POSITION, 0, 0) - x) < 1e-4 &&
                   std::abs(value(G_NC_MACHINE_POSITION, 0, 1) - y) < 1e-4;
        });
    }

    static void choose(const char* name, const std::string& program) {
        folder->write(name, program);
        std::filesystem::permissions(folder->path(name), std::filesystem::perms{0644});
        const std::string text(name);
        ASSERT_EQ(
            setString(1, G_NC_PROGRAM_NAME, 0, std::u16string(text.begin(), text.end()).c_str()),
            1);
    }

    static inline std::unique_ptr<TemporaryFolder> folder;
    static inline std::unique_ptr<LinuxCnc> control;
    static inline std::unique_ptr<StartedPlatform> platform;
};

TEST_F(LinuxCncServices, HaveTheOnlyOne) {
    EXPECT_FALSE(Turn::isFree(LinuxCnc::turn()));
}

TEST_F(LinuxCncServices, TellWhatTheMachineIs) {
    EXPECT_EQ(text(G_NC_CONTROL_NAME).substr(0, 9), u"LinuxCNC ");
    EXPECT_EQ(system(G_NC_SYSTEM_AXES), 3);
    EXPECT_EQ(system(G_NC_SYSTEM_CHANNELS), 1);
    EXPECT_EQ(text(G_NC_AXIS_NAME, 2), u"Z");
    EXPECT_EQ(value(G_NC_LIMIT, 0, 0), -254.0);
    EXPECT_EQ(value(G_NC_LIMIT, 1, 2), 101.6);
    double unknown = 0.0;
    EXPECT_EQ(getValue(1, G_NC_MACHINE_POSITION, 0, 3, &unknown), G_NC_UNKNOWN);
    EXPECT_EQ(getValue(1, G_NC_MACRO, 100, 0, &unknown), G_NC_UNKNOWN);
    EXPECT_EQ(isUnset(1, 100), G_NC_UNKNOWN);
}

TEST_F(LinuxCncServices, SwitchOnAndTakeTheReference) {
    ASSERT_EQ(setSystem(G_NC_SYSTEM_EMERGENCY, 1), 1);
    EXPECT_EQ(system(G_NC_SYSTEM_STATE), G_NC_STATE_OFF);
    EXPECT_EQ(setSystem(G_NC_SYSTEM_POWER, 1), G_NC_MODE);
    EXPECT_EQ(command(G_NC_COMMAND_START), G_NC_MODE);
    EXPECT_EQ(write(G_NC_JOG, 0, 0, 100.0), G_NC_MODE);
    makeReady(G_NC_MODE_MANUAL);
    EXPECT_EQ(system(G_NC_SYSTEM_EMERGENCY), 0);
    EXPECT_EQ(system(G_NC_SYSTEM_POWER), 1);
    EXPECT_EQ(system(G_NC_SYSTEM_MODE), G_NC_MODE_MANUAL);
    EXPECT_TRUE(standsAt(0.0, 0.0));
}

TEST_F(LinuxCncServices, Jog) {
    makeReady(G_NC_MODE_MANUAL);
    ASSERT_EQ(write(G_NC_JOG, 0, 0, 600.0), 1);
    EXPECT_TRUE(eventually([] { return value(G_NC_JOG, 0, 0) == 600.0; }));
    EXPECT_TRUE(eventually([] { return std::abs(value(G_NC_FEED) - 600.0) < 1.0; }));
    EXPECT_TRUE(eventually([] { return value(G_NC_MACHINE_POSITION, 0, 0) > 1.0; }));
    EXPECT_EQ(system(G_NC_SYSTEM_STATE), G_NC_STATE_RUNNING);
    ASSERT_EQ(write(G_NC_JOG, 0, 0, 0.0), 1);
    ASSERT_TRUE(reaches(G_NC_STATE_IDLE));
    EXPECT_EQ(value(G_NC_JOG, 0, 0), 0.0);
    const double x = value(G_NC_MACHINE_POSITION, 0, 0);
    ASSERT_EQ(write(G_NC_JOG_STEP, 0, 0, -2.5), 1);
    EXPECT_TRUE(standsAt(x - 2.5, 0.0));
    ASSERT_EQ(write(G_NC_JOG_STEP, 0, 1, 1.25), 1);
    EXPECT_TRUE(standsAt(x - 2.5, 1.25));
    ASSERT_TRUE(reaches(G_NC_STATE_IDLE));
    EXPECT_EQ(write(G_NC_JOG_STEP, 0, 1, 300.0), G_NC_RANGE);
    EXPECT_EQ(write(G_NC_JOG, 0, 0, 1e6), G_NC_RANGE);
}

TEST_F(LinuxCncServices, SetOverrides) {
    makeReady(G_NC_MODE_MANUAL);
    for (const double percent : {50.0, 110.0, 100.0}) {
        ASSERT_EQ(write(G_NC_OVERRIDE, 0, 0, percent), 1);
        EXPECT_TRUE(eventually([=] { return std::abs(value(G_NC_OVERRIDE, 0) - percent) < 1e-6; }));
    }
    ASSERT_EQ(write(G_NC_OVERRIDE, 1, 0, 25.0), 1);
    EXPECT_TRUE(eventually([] { return value(G_NC_OVERRIDE, 1) == 25.0; }));
    ASSERT_EQ(write(G_NC_OVERRIDE, 1, 0, 100.0), 1);
}

TEST_F(LinuxCncServices, RunBlocksByHand) {
    makeReady(G_NC_MODE_MDI);
    ASSERT_EQ(setString(1, G_NC_MANUAL_BLOCK, 0, u"G1 X5 Y-3 F1200"), 1);
    EXPECT_TRUE(standsAt(5.0, -3.0));
    ASSERT_TRUE(reaches(G_NC_STATE_IDLE));
    EXPECT_EQ(text(G_NC_MANUAL_BLOCK), u"G1 X5 Y-3 F1200");
    EXPECT_TRUE(eventually([] { return value(G_NC_MODAL, GPI_NC_MODAL_MOTION) == 1.0; }));
    EXPECT_TRUE(eventually([] { return value(G_NC_FEED, 0, 1) == 1200.0; }));
    ASSERT_TRUE(setSystem(G_NC_SYSTEM_MODE, G_NC_MODE_MANUAL) == 1);
    EXPECT_EQ(setString(1, G_NC_MANUAL_BLOCK, 0, u"G0 X0"), G_NC_MODE);
}

TEST_F(LinuxCncServices, TellTheControlsErrors) {
    makeReady(G_NC_MODE_MDI);
    EXPECT_EQ(setString(1, G_NC_MANUAL_BLOCK, 0, u"G1 X"), G_NC_REFUSED);
    ASSERT_TRUE(eventually([] { return system(G_NC_SYSTEM_ALARMS) > 0; }));
    EXPECT_EQ(value(G_NC_ALARM), GPI_NC_ALARM_CONTROL);
    EXPECT_FALSE(text(G_NC_ALARM_TEXT).empty());
    ASSERT_EQ(command(G_NC_COMMAND_RESET), 1);
    ASSERT_TRUE(reaches(G_NC_STATE_IDLE));
    EXPECT_EQ(setString(1, G_NC_MANUAL_BLOCK, 0, u"G0 X999"), G_NC_REFUSED);
    ASSERT_TRUE(eventually([] { return system(G_NC_SYSTEM_ALARMS) > 0; }));
    std::u16string said;
    for (int32_t alarm = 0; alarm < system(G_NC_SYSTEM_ALARMS); ++alarm) {
        said += text(G_NC_ALARM_TEXT, alarm) + u'\n';
    }
    EXPECT_NE(said.find(u"exceed X's positive limit"), std::u16string::npos);
    EXPECT_EQ(command(G_NC_COMMAND_CLEAR_ALARM), 1);
}

TEST_F(LinuxCncServices, RunAProgram) {
    makeReady(G_NC_MODE_AUTO);
    choose("part.ngc", "G21 G90 G64\nG1 X4 F600\nG1 Y4\nG1 X0\nG1 Y2\nM2\n");
    EXPECT_EQ(text(G_NC_PROGRAM_NAME), u"part.ngc");
    EXPECT_EQ(text(G_NC_PROGRAM_LINE, 3), u"G1 Y4");
    EXPECT_EQ(system(G_NC_SYSTEM_LINES), 6);
    ASSERT_EQ(command(G_NC_COMMAND_START), 1);
    const std::set<double> kMoves = {2.0, 3.0, 4.0, 5.0};
    std::set<double> lines;
    EXPECT_TRUE(eventually([&] {
        lines.insert(value(G_NC_LINE, 0));
        return std::abs(value(G_NC_MACHINE_POSITION, 0, 1) - 4.0) < 0.01;
    }));
    EXPECT_EQ(setSystem(G_NC_SYSTEM_MODE, G_NC_MODE_MANUAL), G_NC_MODE);
    ASSERT_EQ(command(G_NC_COMMAND_HOLD), 1);
    ASSERT_TRUE(reaches(G_NC_STATE_HELD));
    ASSERT_EQ(command(G_NC_COMMAND_START), 1);
    ASSERT_TRUE(eventually([&] {
        lines.insert(value(G_NC_LINE, 0));
        return system(G_NC_SYSTEM_STATE) == G_NC_STATE_IDLE;
    }));
    EXPECT_TRUE(standsAt(0.0, 2.0));
    EXPECT_TRUE(std::includes(lines.begin(), lines.end(), kMoves.begin(), kMoves.end()))
        << testing::PrintToString(lines);
    EXPECT_GT(value(G_NC_TIME, 0), 0.5);
}

TEST_F(LinuxCncServices, StopAProgram) {
    makeReady(G_NC_MODE_AUTO);
    choose("long.ngc", "G21 G90\nG1 X100 F300\nM2\n");
    ASSERT_EQ(command(G_NC_COMMAND_START), 1);
    ASSERT_TRUE(eventually([] { return value(G_NC_MACHINE_POSITION, 0, 0) > 0.5; }));
    ASSERT_EQ(command(G_NC_COMMAND_STOP), 1);
    ASSERT_TRUE(reaches(G_NC_STATE_IDLE));
    EXPECT_LT(value(G_NC_MACHINE_POSITION, 0, 0), 50.0);
}

TEST_F(LinuxCncServices, StepThroughAProgram) {
    makeReady(G_NC_MODE_AUTO);
    choose("steps.ngc", "G1 X1 F600\nG1 X2\nG1 X3\nG1 X4\nM2\n");
    for (const double x : {1.0, 2.0, 3.0}) {
        ASSERT_EQ(command(G_NC_COMMAND_STEP), 1);
        EXPECT_TRUE(standsAt(x, 0.0)) << x;
        ASSERT_TRUE(reaches(G_NC_STATE_HELD));
    }
    ASSERT_EQ(command(G_NC_COMMAND_STOP), 1);
    ASSERT_TRUE(reaches(G_NC_STATE_IDLE));
}

TEST_F(LinuxCncServices, RefuseAProgramOutsideTheRoot) {
    makeReady(G_NC_MODE_AUTO);
    EXPECT_EQ(setString(1, G_NC_PROGRAM_NAME, 0, u"../part.ngc"), G_NC_RANGE);
    EXPECT_EQ(setString(1, G_NC_PROGRAM_NAME, 0, u"none.ngc"), G_NC_RANGE);
}

TEST_F(LinuxCncServices, SetOffsets) {
    makeReady(G_NC_MODE_MDI);
    ASSERT_EQ(write(G_NC_WORK_OFFSET, 1, 0, 5.5), 1);
    EXPECT_TRUE(eventually([] { return value(G_NC_WORK_OFFSET, 1, 0) == 5.5; }));
    EXPECT_TRUE(eventually([] { return std::abs(value(G_NC_WORK_POSITION, 0, 0) + 5.5) < 1e-4; }));
    ASSERT_EQ(write(G_NC_WORK_OFFSET, 1, 0, 0.0), 1);
    ASSERT_EQ(write(G_NC_TOOL_OFFSET, 1, 0, 12.5), 1);
    EXPECT_TRUE(eventually([] { return std::abs(value(G_NC_TOOL_OFFSET, 1, 0) - 12.5) < 1e-6; }));
    EXPECT_EQ(system(G_NC_SYSTEM_MODE), G_NC_MODE_MDI) << "the mode is as it was";
}

TEST_F(LinuxCncServices, StopInAnEmergency) {
    makeReady(G_NC_MODE_MANUAL);
    ASSERT_EQ(write(G_NC_JOG, 0, 1, 600.0), 1);
    ASSERT_TRUE(eventually([] { return value(G_NC_MACHINE_POSITION, 0, 1) > 0.5; }));
    ASSERT_EQ(setSystem(G_NC_SYSTEM_EMERGENCY, 1), 1);
    EXPECT_EQ(system(G_NC_SYSTEM_EMERGENCY), 1);
    EXPECT_EQ(system(G_NC_SYSTEM_STATE), G_NC_STATE_OFF);
    EXPECT_EQ(system(G_NC_SYSTEM_POWER), 0);
    EXPECT_EQ(value(G_NC_JOG, 0, 1), 0.0);
}

TEST_F(LinuxCncServices, LoseTheControlAndFindItAgain) {
    makeReady(G_NC_MODE_MANUAL);
    control.reset();
    int32_t state = 0;
    ASSERT_TRUE(eventually([&] { return getSystem(G_NC_SYSTEM_STATE, &state) == G_NC_OFFLINE; }));
    EXPECT_EQ(setSystem(G_NC_SYSTEM_POWER, 1), G_NC_OFFLINE);
    EXPECT_EQ(value(G_NC_ALARM), GPI_NC_ALARM_CONTROL_LOST);
    EXPECT_EQ(text(G_NC_ALARM_TEXT), u"the control does not answer: LinuxCNC has ended");
    control = std::make_unique<LinuxCnc>(folder->path());
    ASSERT_TRUE(comes()) << control->log();
    makeReady(G_NC_MODE_MANUAL);
    EXPECT_EQ(system(G_NC_SYSTEM_STATE), G_NC_STATE_IDLE);
}

} // namespace
} // namespace gpi::nc::test
