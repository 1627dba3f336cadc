// The panel in front of the real LinuxCNC, as an operator has it: keys, time that passes, and what
// the machine, asked by itself, says to that.
#include "panel_operator.h"

#include "host/nc/linuxcnc.h"
#include "support/environment.h"
#include "support/png_reader.h"
#include "support/started_platform.h"

#include <gtest/gtest.h>

#include <cmath>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>

namespace panel::test {
namespace {

using gpi::nc::test::LinuxCnc;
using gpi::test::Environment;
using gpi::test::PngPicture;
using gpi::test::StartedPlatform;
using gpi::test::TemporaryFolder;
using std::chrono::steady_clock;

// What the control says, not what the panel has read.

double value(int32_t area, int32_t number = 0, int32_t index = 0) {
    double found = std::nan("");
    GNCDataGetGNCValue(kChannel, area, number, index, &found);
    return found;
}

int32_t system(int32_t number) {
    int32_t found = -1;
    GNCDataGetSystemVal(number, &found);
    return found;
}

bool standsAt(double x, double y) {
    return std::abs(value(G_NC_MACHINE_POSITION, 0, kX) - x) < 1e-4 &&
           std::abs(value(G_NC_MACHINE_POSITION, 0, kY) - y) < 1e-4;
}

bool isIn(int32_t state) {
    return system(G_NC_SYSTEM_STATE) == state;
}

/// Pixels of an ink in an area.
int64_t count(const PngPicture& picture, const GRect& area, Ink ink) {
    int64_t found = 0;
    for (int y = area.top; y <= area.bottom; ++y) {
        for (int x = area.left; x <= area.right; ++x) {
            found += picture.at(x, y) == colorOf(ink) ? 1 : 0;
        }
    }
    return found;
}

bool differ(const PngPicture& a, const PngPicture& b, const GRect& area) {
    for (int y = area.top; y <= area.bottom; ++y) {
        for (int x = area.left; x <= area.right; ++x) {
            if (a.at(x, y) != b.at(x, y)) {
                return true;
            }
        }
    }
    return false;
}

class PanelBeforeLinuxCnc : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        if (LinuxCnc::installed()) {
            folder = std::make_unique<TemporaryFolder>();
            control = std::make_unique<LinuxCnc>(folder->path());
        }
    }
    static void TearDownTestSuite() {
        control.reset();
        folder.reset();
    }

    void SetUp() override {
        if (!LinuxCnc::installed()) {
            GTEST_SKIP() << "LinuxCNC is not installed";
        }
        shots.write("helper", "#!/bin/sh\necho $$ >'" + shots.path("process") +
                                  "'\nexec '" LINUXCNC_HELPER "'\n");
        std::filesystem::permissions(shots.path("helper"), std::filesystem::perms::owner_all);
        platform.emplace(Environment::Values{{"QUARLO_NC", "linuxcnc"},
                                             {"QUARLO_NC_HELPER", shots.path("helper")},
                                             {"QUARLO_FILES", folder->path()},
                                             {"QUARLO_PROFILES", PANEL_FOLDER "/profiles"},
                                             {"QUARLO_USER_PROFILES", shots.path("user")},
                                             {"QUARLO_FORMAT", "24"},
                                             {"HOME", folder->path("home")}});
        GetGPIFunction();
        ASSERT_TRUE(canPaint());
        person.emplace(shots.path());
        ASSERT_TRUE(person->until([] { return system(G_NC_SYSTEM_STATE) >= 0; })) << control->log();
    }

    void TearDown() override {
        if (person) {
            EXPECT_LT(person->longestPass(), kLongestPass) << "the panel waited for the control";
        }
    }

    /// The program that speaks to LinuxCNC for the platform.
    pid_t helper() const {
        pid_t process = 0;
        std::ifstream(shots.path("process")) >> process;
        return process;
    }

    /// The strips of the display, top to bottom.
    GRect status() const {
        GRect strip = person->context().painter.display();
        strip.bottom = static_cast<int16_t>(work().top - 1);
        return strip;
    }
    GRect work() const { return person->context().work; }
    GRect message() const {
        GRect rest = person->context().painter.display();
        rest.top = static_cast<int16_t>(work().bottom + 1);
        return takeTop(rest, person->context().painter.measures().messageHeight);
    }

    /// Shows a screen, by its key in the row of screens.
    void show(const char* key) { person->press({"Esc", "Tab", key}); }

    /// From any state: powered, referenced, at the origin, on the start page.
    void makeReady() {
        show("Esc");
        person->press({"R", "P"});
        ASSERT_TRUE(person->until([] { return isIn(G_NC_STATE_IDLE); }));
        if (system(G_NC_SYSTEM_HOMED) != 7) {
            person->press({"N"});
            ASSERT_TRUE(person->until([] { return system(G_NC_SYSTEM_HOMED) == 7; }));
            ASSERT_TRUE(person->until([] { return isIn(G_NC_STATE_IDLE); }));
        }
        run("G21 G90 G54 G0 X0 Y0 Z0");
        ASSERT_TRUE(person->until([] { return standsAt(0.0, 0.0); }));
        ASSERT_TRUE(person->until([] { return isIn(G_NC_STATE_IDLE); }));
    }

    /// Gives the control a block by the page for manual input. Its number tells it from earlier
    /// ones.
    void run(const std::string& block) {
        std::string numbered = "N";
        numbered.append(std::to_string(++blocks)).append(" ").append(block);
        show("F5");
        person->type(numbered);
        person->press({"Enter"});
        ASSERT_TRUE(person->until([&] {
            return readText(G_NC_MANUAL_BLOCK, 0) ==
                   std::u16string(numbered.begin(), numbered.end());
        }));
    }

    /// Puts a program where the control and the panel find it, and opens it by the list.
    void open(const std::string& name, const std::string& program) {
        for (const auto& entry : std::filesystem::directory_iterator(folder->path())) {
            if (entry.path().extension() == ".ngc") {
                std::filesystem::remove(entry.path());
            }
        }
        folder->write(name, program);
        std::filesystem::permissions(folder->path(name), std::filesystem::perms{0644});
        show("F2");
        person->press({"F5", "Enter"});
        ASSERT_TRUE(person->until([&] {
            return person->context().program.path() == std::u16string(name.begin(), name.end());
        }));
    }

    static inline std::unique_ptr<TemporaryFolder> folder;
    static inline std::unique_ptr<LinuxCnc> control;
    static inline int blocks = 0;
    TemporaryFolder shots;
    std::optional<StartedPlatform> platform;
    std::optional<Operator> person;
};

TEST_F(PanelBeforeLinuxCnc, SwitchesOnAndTakesTheReference) {
    person->press({"Pause"});
    ASSERT_TRUE(person->until([&] { return person->context().now.emergency; }));
    EXPECT_TRUE(isIn(G_NC_STATE_OFF));
    EXPECT_GT(count(person->picture("off"), status(), Ink::Fault), 0) << "the emergency stop";
    ASSERT_TRUE(person->pressUntil("F1", [] { return isIn(G_NC_STATE_IDLE); }));
    person->press({"F2"});
    ASSERT_TRUE(person->until([] { return isIn(G_NC_STATE_RUNNING); }));
    ASSERT_TRUE(person->until([&] { return person->context().now.homed; }));
    EXPECT_EQ(system(G_NC_SYSTEM_HOMED), 7);
    ASSERT_TRUE(person->until([] { return isIn(G_NC_STATE_IDLE); }));
    const auto is = [&] { return person->context().now.state == G_NC_STATE_IDLE; };
    ASSERT_TRUE(person->until(is));
    const PngPicture ready = person->picture("ready");
    EXPECT_EQ(count(ready, status(), Ink::Fault), 0);
    EXPECT_EQ(count(ready, message(), Ink::Fault), 0);
}

TEST_F(PanelBeforeLinuxCnc, JogsWhileAKeyIsHeldAndBySteps) {
    makeReady();
    show("F1");
    const PngPicture before = person->picture("jog-before");
    person->hold("PadAdd");
    ASSERT_TRUE(person->until([] { return value(G_NC_MACHINE_POSITION) > 2.0; }));
    EXPECT_NEAR(value(G_NC_JOG), kJogFeed, 1e-6);
    EXPECT_TRUE(person->until([&] { return person->context().now.state == G_NC_STATE_RUNNING; }));
    const PngPicture moves = person->picture("jog-moves");
    EXPECT_GT(count(moves, status(), Ink::Good), 0);
    EXPECT_TRUE(differ(before, moves, work()));
    person->let("PadAdd");
    ASSERT_TRUE(person->until([] { return isIn(G_NC_STATE_IDLE); }));
    EXPECT_EQ(value(G_NC_JOG), 0.0);
    const double x = value(G_NC_MACHINE_POSITION);
    person->press({"X", "J", "PadSubtract"}); // Y, by one millimetre
    ASSERT_TRUE(person->until([=] { return standsAt(x, -1.0); }));
    ASSERT_TRUE(person->until([] { return isIn(G_NC_STATE_IDLE); }));
    person->press({"J", "PadSubtract"}); // by a tenth
    EXPECT_TRUE(person->until([=] { return standsAt(x, -1.1); }));
    person->picture("jog-stepped");
}

TEST_F(PanelBeforeLinuxCnc, RunsBlocksByHand) {
    makeReady();
    run("G1 X5 Y-3 F1200");
    EXPECT_TRUE(person->until([] { return standsAt(5.0, -3.0); }));
    EXPECT_EQ(system(G_NC_SYSTEM_MODE), G_NC_MODE_MDI);
    person->picture("mdi");
    ASSERT_TRUE(person->until([] { return isIn(G_NC_STATE_IDLE); }));
    run("G0 X999");
    ASSERT_TRUE(person->until([&] { return !person->context().alarms.standing().empty(); }));
    EXPECT_GT(count(person->picture("mdi-alarm"), message(), Ink::Fault), 1000);
    EXPECT_TRUE(standsAt(5.0, -3.0));
    show("F6");
    person->picture("alarms");
    person->press({"R"});
    ASSERT_TRUE(person->until([&] { return person->context().alarms.standing().empty(); }));
    EXPECT_EQ(count(person->picture("alarms-reset"), message(), Ink::Fault), 0);
}

TEST_F(PanelBeforeLinuxCnc, RunsAProgram) {
    makeReady();
    open("part.ngc", "G21 G90 G64\nG1 X8 F600\nG1 Y8\nG1 X0\nG1 Y2\nM2\n");
    person->picture("program");
    person->press({"F1"});
    ASSERT_TRUE(person->until([&] { return person->context().now.line == 3; }));
    const PngPicture runs = person->picture("program-runs");
    EXPECT_GT(count(runs, status(), Ink::Good), 0);
    EXPECT_GT(count(runs, work(), Ink::AccentSoft), 0) << "the line that runs";
    EXPECT_TRUE(isIn(G_NC_STATE_RUNNING));

    show("F3");
    person->press({"F3"}); // plan
    const PngPicture path = person->picture("graphic");
    EXPECT_GT(count(path, work(), Ink::PathDone), 0);
    EXPECT_GT(count(path, work(), Ink::PathAhead), 0);

    person->press({"H"});
    ASSERT_TRUE(person->until([&] { return person->context().now.state == G_NC_STATE_HELD; }));
    EXPECT_TRUE(isIn(G_NC_STATE_HELD));
    const double held = value(G_NC_MACHINE_POSITION, 0, kY);
    EXPECT_GT(count(person->picture("held"), status(), Ink::Caution), 0);
    person->press({"=", "="});
    ASSERT_TRUE(person->until([] { return std::abs(value(G_NC_OVERRIDE) - 120.0) < 1e-6; }));
    EXPECT_EQ(value(G_NC_MACHINE_POSITION, 0, kY), held);
    person->press({"S"});
    ASSERT_TRUE(person->until([&] { return person->context().now.line >= 4; }));
    ASSERT_TRUE(person->until([] { return isIn(G_NC_STATE_IDLE); }));
    EXPECT_TRUE(standsAt(0.0, 2.0));
    const auto rests = [&] { return person->context().now.state == G_NC_STATE_IDLE; };
    ASSERT_TRUE(person->until(rests));
    const PngPicture done = person->picture("graphic-done");
    EXPECT_GT(count(done, work(), Ink::PathDone), count(path, work(), Ink::PathDone));
    person->press({"-", "-"});
    EXPECT_TRUE(person->until([] { return std::abs(value(G_NC_OVERRIDE) - 100.0) < 1e-6; }));
}

TEST_F(PanelBeforeLinuxCnc, StepsByBlocksAndIsReset) {
    makeReady();
    open("steps.ngc", "G1 X1 F600\nG1 X2\nG1 X3\nG1 X90\nM2\n");
    person->press({"B"});
    ASSERT_TRUE(person->until([&] { return person->context().now.singleBlock; }));
    for (const double x : {1.0, 2.0}) {
        person->press({"S"});
        ASSERT_TRUE(person->until([=] { return standsAt(x, 0.0); })) << x;
        ASSERT_TRUE(person->until([&] { return person->context().now.state == G_NC_STATE_HELD; }));
    }
    person->picture("stepped");
    person->press({"B"});
    ASSERT_TRUE(person->until([&] { return !person->context().now.singleBlock; }));
    person->press({"S"});
    ASSERT_TRUE(person->until([] { return value(G_NC_MACHINE_POSITION) > 3.5; }));
    person->press({"F4"});
    ASSERT_TRUE(person->until([] { return isIn(G_NC_STATE_IDLE); }));
    EXPECT_LT(value(G_NC_MACHINE_POSITION), 60.0);
    person->picture("reset");
}

TEST_F(PanelBeforeLinuxCnc, StopsInAnEmergency) {
    makeReady();
    show("F1");
    person->hold("PadAdd");
    ASSERT_TRUE(person->until([] { return value(G_NC_MACHINE_POSITION) > 1.0; }));
    person->press({"Pause"});
    ASSERT_TRUE(person->until([] { return system(G_NC_SYSTEM_EMERGENCY) == 1; }));
    EXPECT_TRUE(isIn(G_NC_STATE_OFF));
    person->let("PadAdd");
    ASSERT_TRUE(person->until([&] { return person->context().now.emergency; }));
    EXPECT_EQ(value(G_NC_FEED), 0.0);
    EXPECT_GT(count(person->picture("emergency"), status(), Ink::Fault), 0);
}

TEST_F(PanelBeforeLinuxCnc, GoesOnWhileNothingAnswers) {
    makeReady();
    show("F1");
    ASSERT_GT(helper(), 0);
    ASSERT_EQ(kill(helper(), SIGSTOP), 0);
    const auto begin = steady_clock::now();
    person->press({"=", "Tab", "F3", "Tab", "F3"}); // an order, and screens meanwhile
    person->picture("waits");
    EXPECT_EQ(person->context().message, nullptr);
    ASSERT_TRUE(person->until([&] { return person->context().message != nullptr; }));
    EXPECT_GT(steady_clock::now() - begin, kLongestPass) << "the order has waited";
    EXPECT_EQ(std::u16string_view(person->context().message), u"RefusedOffline");
    person->picture("waited");
    ASSERT_EQ(kill(helper(), SIGCONT), 0);
    ASSERT_TRUE(person->until([&] {
        person->press({"P"});
        return person->context().now.online && person->context().message == nullptr;
    }));
}

TEST_F(PanelBeforeLinuxCnc, ShowsThatTheControlIsLostAndFindsItAgain) {
    makeReady();
    show("F1");
    const PngPicture before = person->picture("before-lost");
    control.reset();
    ASSERT_TRUE(person->until([&] { return !person->context().now.online; }));
    const PngPicture lost = person->picture("lost");
    EXPECT_GT(count(lost, message(), Ink::Fault), 1000);
    EXPECT_GT(count(lost, status(), Ink::Fault), 0);
    person->press({"P"});
    ASSERT_TRUE(person->until([&] { return person->context().message != nullptr; }));
    EXPECT_EQ(std::u16string_view(person->context().message), u"RefusedOffline");
    control = std::make_unique<LinuxCnc>(folder->path());
    ASSERT_TRUE(person->until([&] { return person->context().now.online; })) << control->log();
    person->picture("found");
    makeReady();
    EXPECT_EQ(count(person->picture("found-ready"), message(), Ink::Fault), 0);
}

} // namespace
} // namespace panel::test
