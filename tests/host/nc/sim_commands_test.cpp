// What a panel can have the simulated control do, and when.
#include "bench.h"

#include <cmath>

namespace gpi::nc::test {
namespace {

TEST(SimCommands, StartOffAndUnreferenced) {
    Bench bench;
    EXPECT_EQ(bench.state(), G_NC_STATE_OFF);
    EXPECT_EQ(bench.system(G_NC_SYSTEM_POWER), 0);
    EXPECT_EQ(bench.system(G_NC_SYSTEM_EMERGENCY), 0);
    EXPECT_EQ(bench.system(G_NC_SYSTEM_HOMED), 0);
    EXPECT_EQ(bench.system(G_NC_SYSTEM_MODE), G_NC_MODE_MANUAL);
    EXPECT_EQ(bench.system(G_NC_SYSTEM_AXES), 3);
    EXPECT_EQ(bench.system(G_NC_SYSTEM_CHANNELS), 1);
    EXPECT_EQ(bench.text(G_NC_AXIS_NAME, 2), "Z");
    EXPECT_EQ(bench.text(G_NC_CONTROL_NAME), "quarlo sim 1");
    EXPECT_EQ(bench.text(G_NC_PROGRAM_NAME), "");
}

TEST(SimCommands, NeedPowerReferenceAndMode) {
    Bench bench;
    bench.choose("G0 X1\n");
    EXPECT_EQ(bench.command(G_NC_COMMAND_HOME), G_NC_MODE);
    EXPECT_EQ(bench.setValue(G_NC_JOG, 0, 0, 100.0), G_NC_MODE);
    EXPECT_EQ(bench.set(G_NC_SYSTEM_COOLANT, 1), G_NC_MODE);
    bench.set(G_NC_SYSTEM_POWER, 1);
    EXPECT_EQ(bench.state(), G_NC_STATE_IDLE);
    bench.set(G_NC_SYSTEM_MODE, G_NC_MODE_AUTO);
    EXPECT_EQ(bench.command(G_NC_COMMAND_START), G_NC_MODE) << "not referenced";
    EXPECT_EQ(bench.command(G_NC_COMMAND_HOME), G_NC_MODE) << "not in manual mode";
    bench.set(G_NC_SYSTEM_MODE, G_NC_MODE_MDI);
    EXPECT_EQ(bench.controller.runBlock("G0 X1"), G_NC_MODE);
    bench.set(G_NC_SYSTEM_MODE, G_NC_MODE_MANUAL);
    EXPECT_EQ(bench.command(G_NC_COMMAND_HOME), kDone);
    EXPECT_EQ(bench.state(), G_NC_STATE_RUNNING);
    bench.runToEnd();
    EXPECT_EQ(bench.system(G_NC_SYSTEM_HOMED), 7);
    EXPECT_EQ(bench.command(G_NC_COMMAND_START), G_NC_MODE) << "manual mode starts nothing";
    EXPECT_EQ(bench.command(G_NC_COMMAND_HOLD), G_NC_MODE);
    EXPECT_EQ(bench.system(G_NC_SYSTEM_COMMAND), G_NC_COMMAND_HOME) << "the last that was taken";
}

TEST(SimCommands, NeedAProgramToStart) {
    Bench bench(Bench::kReady);
    EXPECT_EQ(bench.command(G_NC_COMMAND_START), G_NC_MODE);
}

TEST(SimCommands, RefuseWhatWouldDisturbAProgram) {
    Bench bench(Bench::kReady);
    bench.start("G1 X100 F600\n");
    bench.wait(100);
    EXPECT_EQ(bench.set(G_NC_SYSTEM_MODE, G_NC_MODE_MANUAL), G_NC_MODE);
    EXPECT_EQ(bench.set(G_NC_SYSTEM_MODE, G_NC_MODE_AUTO), kDone);
    EXPECT_EQ(bench.set(G_NC_SYSTEM_DRY_RUN, 1), G_NC_MODE);
    EXPECT_EQ(bench.controller.choose(nullptr), G_NC_MODE);
    EXPECT_EQ(bench.controller.runBlock("X0"), G_NC_MODE);
    EXPECT_EQ(bench.setValue(G_NC_WORK_OFFSET, 1, 0, 1.0), G_NC_MODE);
    EXPECT_EQ(bench.setValue(G_NC_TOOL_OFFSET, 1, 0, 1.0), G_NC_MODE);
    EXPECT_EQ(bench.setValue(G_NC_JOG, 0, 0, 100.0), G_NC_MODE);
    EXPECT_EQ(bench.setValue(G_NC_JOG_STEP, 0, 0, 1.0), G_NC_MODE);
    EXPECT_EQ(bench.command(G_NC_COMMAND_HOME), G_NC_MODE);
    EXPECT_EQ(bench.command(G_NC_COMMAND_START), kDone) << "it runs already";
    EXPECT_EQ(bench.setValue(G_NC_MACRO, 100, 0, 1.0), kDone);
    EXPECT_EQ(bench.setValue(G_NC_OVERRIDE, 0, 0, 100.0), kDone);
    bench.runToEnd();
    EXPECT_EQ(bench.place(), (Point3{100.0, 0.0, 0.0}));
}

TEST(SimCommands, JogUntilToldToStop) {
    Bench bench;
    bench.set(G_NC_SYSTEM_POWER, 1);
    EXPECT_EQ(bench.setValue(G_NC_JOG, 0, 0, 600.0), kDone);
    EXPECT_EQ(bench.setValue(G_NC_JOG, 0, 1, -1200.0), kDone);
    bench.wait(1000);
    EXPECT_EQ(bench.value(G_NC_JOG, 0, 0), 600.0);
    EXPECT_EQ(bench.value(G_NC_JOG, 0, 1), -1200.0);
    EXPECT_NEAR(bench.machine(0), 10.0, 0.1);
    EXPECT_NEAR(bench.machine(1), -20.0, 0.3);
    EXPECT_NEAR(bench.value(G_NC_FEED), std::hypot(600.0, 1200.0), 1e-6);
    EXPECT_EQ(bench.state(), G_NC_STATE_RUNNING);
    bench.setValue(G_NC_JOG, 0, 1, 0.0);
    bench.wait(100);
    EXPECT_EQ(bench.value(G_NC_JOG, 0, 1), 0.0);
    EXPECT_NEAR(bench.value(G_NC_FEED), 600.0, 1e-6);
    bench.setValue(G_NC_JOG, 0, 0, -600.0); // brakes and turns round
    bench.wait(1000);
    EXPECT_NEAR(bench.machine(0), 1.4, 0.3);
    bench.setValue(G_NC_JOG, 0, 0, 0.0);
    bench.runToEnd();
    EXPECT_EQ(bench.state(), G_NC_STATE_IDLE);
}

TEST(SimCommands, JogToTheLimitAndNoFurther) {
    Bench bench;
    bench.set(G_NC_SYSTEM_POWER, 1);
    bench.setValue(G_NC_JOG, 0, 2, -6000.0);
    double lowest = 0.0;
    bench.waitWhile([&] {
        lowest = std::min(lowest, bench.machine(2));
        return bench.state() == G_NC_STATE_RUNNING;
    });
    EXPECT_EQ(bench.machine(2), -200.0);
    EXPECT_EQ(lowest, -200.0);
    EXPECT_EQ(bench.system(G_NC_SYSTEM_LIMITS), 4);
    EXPECT_EQ(bench.system(G_NC_SYSTEM_ALARMS), 0);
    bench.setValue(G_NC_JOG, 0, 2, 600.0);
    bench.wait(500);
    EXPECT_EQ(bench.system(G_NC_SYSTEM_LIMITS), 0);
}

TEST(SimCommands, JogBySteps) {
    Bench bench;
    bench.set(G_NC_SYSTEM_POWER, 1);
    EXPECT_EQ(bench.setValue(G_NC_JOG_STEP, 0, 0, 0.001), kDone);
    bench.runToEnd();
    EXPECT_EQ(bench.machine(0), 0.001);
    EXPECT_EQ(bench.setValue(G_NC_JOG_STEP, 0, 0, -5.0), kDone);
    bench.wait(50);
    EXPECT_NEAR(bench.value(G_NC_JOG_STEP, 0, 0), -4.999 - bench.machine(0), 1e-12);
    EXPECT_EQ(bench.setValue(G_NC_JOG_STEP, 0, 0, 1.0), G_NC_MODE) << "it still moves";
    bench.runToEnd();
    EXPECT_EQ(bench.machine(0), 0.001 - 5.0);
    EXPECT_EQ(bench.setValue(G_NC_JOG_STEP, 0, 0, -396.0), G_NC_RANGE);
    EXPECT_EQ(bench.setValue(G_NC_JOG_STEP, 0, 0, 0.0), kDone);
    bench.runToEnd();
    EXPECT_EQ(bench.machine(0), 0.001 - 5.0);
}

TEST(SimCommands, RunSingleBlocksByHand) {
    Bench bench(Bench::kReady);
    EXPECT_EQ(bench.controller.runBlock("G0 X1"), G_NC_MODE) << "automatic mode";
    bench.set(G_NC_SYSTEM_MODE, G_NC_MODE_MDI);
    EXPECT_EQ(bench.controller.runBlock("G91 G0 X10"), kDone);
    EXPECT_EQ(bench.state(), G_NC_STATE_RUNNING);
    bench.runToEnd();
    EXPECT_EQ(bench.controller.runBlock("Y5"), kDone);
    bench.runToEnd();
    EXPECT_EQ(bench.place(), (Point3{10.0, 5.0, 0.0})) << "modes stay in force";
    EXPECT_EQ(bench.text(G_NC_MANUAL_BLOCK), "Y5");
    EXPECT_EQ(bench.controller.runBlock("G90 Y"), G_NC_REFUSED);
    EXPECT_EQ(bench.text(G_NC_ALARM_TEXT), "Y without a number");
    EXPECT_EQ(bench.state(), G_NC_STATE_ALARM);
    EXPECT_EQ(bench.controller.runBlock("X0"), G_NC_MODE) << "an alarm comes first";
    EXPECT_EQ(bench.command(G_NC_COMMAND_CLEAR_ALARM), kDone);
    EXPECT_EQ(bench.controller.runBlock("X-5"), kDone);
    bench.wait(10);
    EXPECT_EQ(bench.command(G_NC_COMMAND_HOLD), kDone);
    bench.runToEnd();
    EXPECT_EQ(bench.state(), G_NC_STATE_HELD);
    EXPECT_EQ(bench.command(G_NC_COMMAND_START), kDone);
    bench.runToEnd();
    EXPECT_EQ(bench.machine(0), 5.0);
}

TEST(SimCommands, StepBlockByBlock) {
    Bench bench(Bench::kReady);
    bench.choose("G0 X1\n(NOTE)\nG17\nG0 X2\nM30\n");
    const double lines[] = {1, 3, 4};
    for (const double line : lines) {
        EXPECT_EQ(bench.command(G_NC_COMMAND_STEP), kDone);
        bench.runToEnd();
        EXPECT_EQ(bench.state(), G_NC_STATE_HELD);
        EXPECT_EQ(bench.value(G_NC_LINE, 0), line);
        EXPECT_EQ(bench.value(G_NC_LINE, 1), line) << "nothing is read ahead";
    }
    EXPECT_EQ(bench.command(G_NC_COMMAND_STEP), kDone);
    bench.runToEnd();
    EXPECT_EQ(bench.state(), G_NC_STATE_IDLE);
}

TEST(SimCommands, StopAfterEveryBlockInSingleBlockMode) {
    Bench bench(Bench::kReady);
    bench.start("G1 X10 F1200\nX20\nX30\nX40\n");
    bench.waitWhile([&] { return bench.machine(0) < 5.0; });
    bench.set(G_NC_SYSTEM_SINGLE_BLOCK, 1);
    EXPECT_EQ(bench.system(G_NC_SYSTEM_SINGLE_BLOCK), 1);
    for (const double x : {10.0, 20.0, 30.0}) {
        bench.runToEnd();
        EXPECT_EQ(bench.state(), G_NC_STATE_HELD);
        EXPECT_EQ(bench.machine(0), x);
        EXPECT_EQ(bench.value(G_NC_FEED), 0.0);
        bench.command(G_NC_COMMAND_START);
    }
    bench.set(G_NC_SYSTEM_SINGLE_BLOCK, 0);
    bench.runToEnd();
    EXPECT_EQ(bench.machine(0), 40.0);
    EXPECT_EQ(bench.state(), G_NC_STATE_IDLE);
}

TEST(SimCommands, SingleBlockPassesAnEndThatComesTooSoon) {
    Bench bench(Bench::kReady);
    bench.start("G1 X10 F6000\nX20\nX30\n");
    bench.waitWhile([&] { return bench.machine(0) < 9.9; });
    bench.set(G_NC_SYSTEM_SINGLE_BLOCK, 1);
    bench.runToEnd();
    EXPECT_EQ(bench.machine(0), 20.0);
}

TEST(SimCommands, StopEndsAProgramAndRewindsIt) {
    Bench bench(Bench::kReady);
    bench.start("G1 X100 F6000\nX0\n");
    bench.wait(500);
    EXPECT_EQ(bench.command(G_NC_COMMAND_STOP), kDone);
    EXPECT_EQ(bench.command(G_NC_COMMAND_START), G_NC_MODE) << "it still brakes";
    bench.runToEnd();
    EXPECT_EQ(bench.state(), G_NC_STATE_IDLE);
    EXPECT_EQ(bench.value(G_NC_LINE, 0), 0.0);
    const double place = bench.machine(0);
    EXPECT_GT(place, 40.0);
    EXPECT_LT(place, 60.0);
    bench.wait(1000);
    EXPECT_EQ(bench.machine(0), place);
    bench.command(G_NC_COMMAND_STEP);
    bench.runToEnd();
    EXPECT_EQ(bench.machine(0), 100.0) << "from the first block again";
    bench.command(G_NC_COMMAND_STOP);
    EXPECT_EQ(bench.state(), G_NC_STATE_IDLE) << "held before";
}

TEST(SimCommands, StopEndsReferencingAndJogs) {
    Bench bench;
    bench.set(G_NC_SYSTEM_POWER, 1);
    bench.setValue(G_NC_JOG, 0, 0, 6000.0);
    bench.wait(1000);
    bench.command(G_NC_COMMAND_STOP);
    EXPECT_EQ(bench.setValue(G_NC_JOG, 0, 0, 600.0), G_NC_MODE) << "it still brakes";
    bench.runToEnd();
    EXPECT_EQ(bench.state(), G_NC_STATE_IDLE);
    bench.command(G_NC_COMMAND_HOME);
    bench.wait(100);
    bench.command(G_NC_COMMAND_STOP);
    bench.runToEnd();
    EXPECT_EQ(bench.system(G_NC_SYSTEM_HOMED), 0);
}

TEST(SimCommands, ResetClearsAlarmsAndFunctions) {
    Bench bench(Bench::kReady);
    bench.run("S1000 M3 M8 G91\nG4 P1\nG77\n");
    EXPECT_EQ(bench.system(G_NC_SYSTEM_ALARMS), 1);
    EXPECT_EQ(bench.command(G_NC_COMMAND_START), G_NC_MODE);
    EXPECT_EQ(bench.command(G_NC_COMMAND_RESET), kDone);
    EXPECT_EQ(bench.system(G_NC_SYSTEM_ALARMS), 0);
    EXPECT_EQ(bench.state(), G_NC_STATE_IDLE);
    EXPECT_EQ(bench.value(G_NC_SPINDLE, 0, 1), 0.0);
    EXPECT_EQ(bench.system(G_NC_SYSTEM_COOLANT), 0);
    EXPECT_EQ(bench.value(G_NC_MODAL, GPI_NC_MODAL_DISTANCE), 90.0);
    bench.wait(1000);
    EXPECT_EQ(bench.value(G_NC_SPINDLE, 0, 0), 0.0);
}

TEST(SimCommands, KeepAlarmsNewestFirst) {
    Bench bench(Bench::kReady);
    bench.set(G_NC_SYSTEM_MODE, G_NC_MODE_MDI);
    bench.controller.runBlock("G77");
    double value = 0.0;
    EXPECT_EQ(bench.controller.getValue({G_NC_ALARM, 1, 0}, value), G_NC_UNKNOWN);
    std::string text;
    EXPECT_EQ(bench.controller.getText(G_NC_ALARM_TEXT, 1, text), G_NC_UNKNOWN);
    EXPECT_EQ(bench.text(G_NC_ALARM_TEXT, 0), "G77 is not supported");
    bench.command(G_NC_COMMAND_CLEAR_ALARM);
    EXPECT_EQ(bench.system(G_NC_SYSTEM_ALARMS), 0);
    EXPECT_EQ(bench.command(G_NC_COMMAND_CLEAR_ALARM), kDone) << "nothing to clear";
}

TEST(Alarms, AreBounded) {
    Alarms alarms;
    for (int i = 0; i < 100; ++i) {
        alarms.raise(i, std::to_string(i));
    }
    EXPECT_EQ(alarms.count(), GPI_NC_MOST_ALARMS);
    EXPECT_EQ(alarms.at(0)->number, 99);
    EXPECT_EQ(alarms.at(31)->text, "68");
    EXPECT_EQ(alarms.at(32), nullptr);
    EXPECT_EQ(alarms.at(-1), nullptr);
}

TEST(SimCommands, EmergencyStopsEverythingAtOnce) {
    Bench bench(Bench::kReady);
    bench.start("S1000 M3 M8\nG1 X100 F6000\n");
    bench.wait(500);
    EXPECT_EQ(bench.set(G_NC_SYSTEM_EMERGENCY, 1), kDone);
    const Point3 place = bench.place();
    EXPECT_EQ(bench.state(), G_NC_STATE_OFF);
    EXPECT_EQ(bench.value(G_NC_FEED), 0.0);
    EXPECT_EQ(bench.system(G_NC_SYSTEM_COOLANT), 0);
    EXPECT_EQ(bench.set(G_NC_SYSTEM_POWER, 1), G_NC_MODE);
    bench.wait(5000);
    EXPECT_EQ(bench.place(), place);
    EXPECT_EQ(bench.value(G_NC_SPINDLE), 0.0);
    EXPECT_EQ(bench.set(G_NC_SYSTEM_EMERGENCY, 0), kDone);
    EXPECT_EQ(bench.state(), G_NC_STATE_OFF);
    EXPECT_EQ(bench.set(G_NC_SYSTEM_POWER, 1), kDone);
    EXPECT_EQ(bench.state(), G_NC_STATE_IDLE);
    EXPECT_EQ(bench.system(G_NC_SYSTEM_HOMED), 7) << "it knows where it is";
    bench.command(G_NC_COMMAND_START);
    bench.runToEnd();
    EXPECT_EQ(bench.machine(0), 100.0);
}

TEST(SimCommands, PowerOffStopsToo) {
    Bench bench;
    bench.set(G_NC_SYSTEM_POWER, 1);
    bench.setValue(G_NC_JOG, 0, 0, 600.0);
    bench.wait(100);
    bench.set(G_NC_SYSTEM_POWER, 0);
    const double place = bench.machine(0);
    bench.wait(100);
    EXPECT_EQ(bench.machine(0), place);
    EXPECT_EQ(bench.state(), G_NC_STATE_OFF);
}

TEST(SimCommands, DryRunLeavesSpindleAndCoolantOff) {
    Bench bench(Bench::kReady);
    bench.set(G_NC_SYSTEM_DRY_RUN, 1);
    bench.start("S1000 M3 M8\nG0 X10\nM0\n");
    bench.runToEnd();
    EXPECT_EQ(bench.value(G_NC_SPINDLE, 0, 1), 0.0);
    EXPECT_EQ(bench.system(G_NC_SYSTEM_COOLANT), 0);
    EXPECT_EQ(bench.machine(0), 10.0);
}

TEST(SimCommands, CountTheTimeOfRuns) {
    Bench bench(Bench::kReady);
    bench.run("G4 P1\n");
    EXPECT_NEAR(bench.value(G_NC_TIME, 0), 1.0, 0.01);
    bench.wait(5000);
    bench.run("G4 P2\n");
    EXPECT_NEAR(bench.value(G_NC_TIME, 0), 2.0, 0.01);
    EXPECT_NEAR(bench.value(G_NC_TIME, 1), 3.0, 0.02);
}

TEST(SimCommands, ShrugOffAClockThatGoesBack) {
    Bench bench(Bench::kReady);
    bench.start("G1 X10 F600\n");
    bench.wait(500);
    const Point3 place = bench.place();
    bench.wait(-400);
    EXPECT_EQ(bench.place(), place);
}

} // namespace
} // namespace gpi::nc::test
