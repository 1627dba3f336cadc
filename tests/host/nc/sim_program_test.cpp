// What the blocks of a program make the simulated machine do.
#include "bench.h"

#include <cmath>

namespace gpi::nc::test {
namespace {

TEST(SimProgram, GoesWhereItsBlocksLead) {
    Bench bench(Bench::kReady);
    bench.run("G21 G90 G0 X10 Y-20 Z5\nG1 X12.5 F600\nG91 Y1\nG90 G20 G0 Z1\n");
    EXPECT_EQ(bench.state(), G_NC_STATE_IDLE);
    EXPECT_DOUBLE_EQ(bench.machine(0), 12.5);
    EXPECT_DOUBLE_EQ(bench.machine(1), -19.0);
    EXPECT_DOUBLE_EQ(bench.machine(2), 25.4);
}

TEST(SimProgram, TakesTheTimeThatItsFeedSays) {
    Bench bench(Bench::kReady);
    // 100 mm at 10 mm/s, and a hundredth of a second each to start and to stop.
    const int64_t time = bench.run("G1 X100 F600\n");
    EXPECT_NEAR(static_cast<double>(time), 10'010.0, 15.0);
    EXPECT_NEAR(bench.value(G_NC_TIME, 0), static_cast<double>(time) / 1000.0, 0.002);
}

TEST(SimProgram, RunsArcsInEveryPlaneAndHelices) {
    Bench bench(Bench::kReady);
    bench.run("G17 G2 X20 Y0 I10 J0 F2000\nG18 G3 X40 Z0 R10\nG19 G2 Y20 Z5 J10 K0\n");
    EXPECT_EQ(bench.system(G_NC_SYSTEM_ALARMS), 1) << "the last arc misses its end";
    Bench other(Bench::kReady);
    other.run("G17 G2 X20 Y0 I10 J0 F2000\nG18 G3 X40 Z0 R10\nG19 G2 Y20 Z0 J10 K0 X45\n");
    EXPECT_EQ(other.state(), G_NC_STATE_IDLE);
    EXPECT_EQ(other.place(), (Point3{45.0, 20.0, 0.0}));
}

TEST(SimProgram, StaysOnTheCircle) {
    Bench bench(Bench::kReady);
    bench.start("G0 X50\nG3 X50 Y0 I-50 J0 F6000\n");
    bench.waitWhile([&] { return bench.value(G_NC_LINE, 0) < 2.0; });
    double greatest = 0.0;
    bench.waitWhile([&] {
        greatest =
            std::max(greatest, std::abs(std::hypot(bench.machine(0), bench.machine(1)) - 50));
        return bench.state() == G_NC_STATE_RUNNING;
    });
    EXPECT_LT(greatest, 1e-9);
}

TEST(SimProgram, AddsWorkOffsetsAndToolLength) {
    Bench bench(Bench::kReady);
    EXPECT_EQ(bench.setValue(G_NC_WORK_OFFSET, 0, 0, 1.0), kDone);
    EXPECT_EQ(bench.setValue(G_NC_WORK_OFFSET, 2, 0, 10.0), kDone);
    EXPECT_EQ(bench.setValue(G_NC_TOOL_OFFSET, 3, 0, 50.0), kDone);
    EXPECT_EQ(bench.setValue(G_NC_TOOL_OFFSET, 3, 2, -0.5), kDone);
    bench.run("G55 G43 H3 G0 X5 Z2\n");
    EXPECT_DOUBLE_EQ(bench.machine(0), 16.0);
    EXPECT_DOUBLE_EQ(bench.machine(2), 51.5);
    EXPECT_DOUBLE_EQ(bench.work(0), 5.0);
    EXPECT_DOUBLE_EQ(bench.work(2), 2.0);
    EXPECT_EQ(bench.value(G_NC_MODAL, GPI_NC_MODAL_WORK_OFFSET), 55.0);
    EXPECT_EQ(bench.value(G_NC_MODAL, GPI_NC_MODAL_LENGTH), 43.0);
    bench.run("G0 X5\n");
    EXPECT_DOUBLE_EQ(bench.machine(0), 6.0) << "a program starts with G54";
    bench.run("G10 L2 P1 X7\nG0 X1\nG53 G0 X2\n");
    EXPECT_DOUBLE_EQ(bench.machine(0), 2.0);
    EXPECT_DOUBLE_EQ(bench.value(G_NC_WORK_OFFSET, 1, 0), 7.0);
    EXPECT_DOUBLE_EQ(bench.work(0), -6.0);
}

TEST(SimProgram, ShowsWorkPositionsOfTheBlockThatRuns) {
    Bench bench(Bench::kReady);
    bench.setValue(G_NC_WORK_OFFSET, 2, 0, 100.0);
    bench.start("G1 X10 F600\nG55 G1 X10\n");
    bench.waitWhile([&] {
        if (bench.value(G_NC_LINE, 0) == 1.0) {
            EXPECT_DOUBLE_EQ(bench.work(0), bench.machine(0));
        }
        return bench.state() == G_NC_STATE_RUNNING;
    });
    EXPECT_DOUBLE_EQ(bench.machine(0), 110.0);
}

TEST(SimProgram, ReturnsToTheReference) {
    Bench bench(Bench::kReady);
    bench.run("G0 X50 Y50 Z-50\nG28 Z10\n");
    EXPECT_EQ(bench.place(), (Point3{50.0, 50.0, 0.0}));
    bench.run("G28\n");
    EXPECT_EQ(bench.place(), (Point3{0.0, 0.0, 0.0}));
}

TEST(SimProgram, DrillsItsCycles) {
    Bench bench(Bench::kReady);
    double deepest = 0.0;
    bench.start("G0 Z20\nG99 G81 X10 Z-5 R2 F1200\nX20\nX30\nG80\n");
    bench.waitWhile([&] {
        deepest = std::min(deepest, bench.machine(2));
        return bench.state() == G_NC_STATE_RUNNING;
    });
    EXPECT_NEAR(deepest, -5.0, 0.001) << "as seen once a millisecond";
    EXPECT_EQ(bench.place(), (Point3{30.0, 0.0, 2.0}));
}

TEST(SimProgram, DwellsForSeconds) {
    Bench bench(Bench::kReady);
    EXPECT_NEAR(static_cast<double>(bench.run("G4 P2.5\n")), 2500.0, 5.0);
}

TEST(SimProgram, TurnsTheSpindleUpAndDown) {
    Bench bench(Bench::kReady);
    bench.start("S3000 M3\nG4 P1\nM4\nG4 P2\nM5\nG4 P1\nM30\n");
    bench.wait(250);
    EXPECT_NEAR(bench.value(G_NC_SPINDLE, 0, 0), 1500.0, 20.0);
    EXPECT_EQ(bench.value(G_NC_SPINDLE, 0, 1), 3000.0);
    bench.wait(600);
    EXPECT_EQ(bench.value(G_NC_SPINDLE, 0, 0), 3000.0);
    bench.setValue(G_NC_OVERRIDE, 2, 0, 50.0);
    bench.wait(1900);
    EXPECT_EQ(bench.value(G_NC_SPINDLE, 0, 0), -1500.0);
    bench.runToEnd();
    EXPECT_EQ(bench.value(G_NC_SPINDLE, 0, 0), 0.0);
}

TEST(SimProgram, ChangesToolsAndCoolant) {
    Bench bench(Bench::kReady);
    bench.run("T7 M6 M8\nT8\nM7\nM0\nM9\n");
    EXPECT_EQ(bench.state(), G_NC_STATE_HELD);
    EXPECT_EQ(bench.value(G_NC_TOOL, 0), 7.0);
    EXPECT_EQ(bench.value(G_NC_TOOL, 1), 8.0);
    EXPECT_EQ(bench.system(G_NC_SYSTEM_COOLANT), 3);
    bench.command(G_NC_COMMAND_START);
    bench.runToEnd();
    EXPECT_EQ(bench.system(G_NC_SYSTEM_COOLANT), 0);
}

TEST(SimProgram, KeepsMacroVariables) {
    Bench bench(Bench::kReady);
    EXPECT_TRUE(std::isnan(bench.value(G_NC_MACRO, 100)));
    bench.setValue(G_NC_MACRO, 500, 0, 2.5);
    bench.run("#1 = 10\n#100 = [#1 * #500 + 5]\n#101=-#100 G0 X#100\nG0 Y#101\n");
    EXPECT_DOUBLE_EQ(bench.machine(0), 30.0);
    EXPECT_EQ(bench.value(G_NC_MACRO, 100), 30.0);
    EXPECT_EQ(bench.value(G_NC_MACRO, 1), 10.0);
    EXPECT_EQ(bench.alarmOf("G0 X#1\n"), "line 1: #1 is not set") << "locals start unset";
    bench.command(G_NC_COMMAND_RESET);
    bench.setValue(G_NC_MACRO, 100, 0, std::nan(""));
    EXPECT_TRUE(std::isnan(bench.value(G_NC_MACRO, 100)));
    EXPECT_EQ(bench.alarmOf("#100 = [1 + #100]\n"), "line 1: #100 is not set");
}

TEST(SimProgram, NeedsAssignedVariablesInLaterBlocksOnly) {
    Bench bench(Bench::kReady);
    bench.run("#100 = 4\nG0 X#100\n#100 = 5 G0 Y#100\n");
    EXPECT_EQ(bench.place(), (Point3{4.0, 4.0, 0.0})) << "a block reads what was set before it";
}

TEST(SimProgram, StopsWhereItShould) {
    Bench bench(Bench::kReady);
    bench.start("G0 X1\nM1\nG0 X2\nM0\nG0 X3\n/G0 X4\nM30\nG0 X9\n");
    bench.runToEnd();
    EXPECT_EQ(bench.state(), G_NC_STATE_HELD);
    EXPECT_EQ(bench.machine(0), 2.0) << "M1 counts with its switch on only";
    EXPECT_EQ(bench.value(G_NC_LINE, 0), 4.0);
    EXPECT_EQ(bench.text(G_NC_PROGRAM_LINE), "M0");
    bench.command(G_NC_COMMAND_START);
    bench.runToEnd();
    EXPECT_EQ(bench.machine(0), 4.0);

    bench.set(G_NC_SYSTEM_OPTIONAL_STOP, 1);
    bench.set(G_NC_SYSTEM_BLOCK_SKIP, 1);
    bench.command(G_NC_COMMAND_START);
    bench.runToEnd();
    EXPECT_EQ(bench.state(), G_NC_STATE_HELD);
    EXPECT_EQ(bench.machine(0), 1.0);
    for (const double next : {2.0, 3.0}) {
        bench.command(G_NC_COMMAND_START);
        bench.runToEnd();
        EXPECT_EQ(bench.machine(0), next);
    }
    EXPECT_EQ(bench.state(), G_NC_STATE_IDLE);
}

TEST(SimProgram, ShowsItsLinesAndModes) {
    Bench bench(Bench::kReady);
    bench.choose("%\nO1 (PLATE)\r\nG20 G91 G18 G99 G61\nG1 X1 F10\n");
    EXPECT_EQ(bench.system(G_NC_SYSTEM_LINES), 4);
    EXPECT_EQ(bench.text(G_NC_PROGRAM_NAME), "test.nc");
    EXPECT_EQ(bench.text(G_NC_PROGRAM_LINE, 2), "O1 (PLATE)");
    EXPECT_EQ(bench.text(G_NC_PROGRAM_LINE, 0), "");
    std::string text;
    EXPECT_EQ(bench.controller.getText(G_NC_PROGRAM_LINE, 5, text), G_NC_UNKNOWN);
    bench.command(G_NC_COMMAND_START);
    bench.wait(100);
    EXPECT_EQ(bench.value(G_NC_LINE, 0), 4.0);
    EXPECT_EQ(bench.value(G_NC_LINE, 1), 4.0);
    EXPECT_EQ(bench.text(G_NC_PROGRAM_LINE, 0), "G1 X1 F10");
    EXPECT_EQ(bench.system(G_NC_SYSTEM_UNITS), 1);
    const std::pair<int32_t, double> modes[] = {
        {GPI_NC_MODAL_MOTION, 1.0},    {GPI_NC_MODAL_PLANE, 18.0},
        {GPI_NC_MODAL_DISTANCE, 91.0}, {GPI_NC_MODAL_FEED, 94.0},
        {GPI_NC_MODAL_UNITS, 20.0},    {GPI_NC_MODAL_RADIUS, 40.0},
        {GPI_NC_MODAL_LENGTH, 49.0},   {GPI_NC_MODAL_WORK_OFFSET, 54.0},
        {GPI_NC_MODAL_RETRACT, 99.0},  {GPI_NC_MODAL_PATH_CONTROL, 61.0}};
    for (const auto& [group, code] : modes) {
        EXPECT_EQ(bench.value(G_NC_MODAL, group), code) << group;
    }
    EXPECT_DOUBLE_EQ(bench.value(G_NC_FEED, 0, 1), 254.0);
    EXPECT_NEAR(bench.value(G_NC_FEED, 0, 0), 254.0, 1e-6);
    EXPECT_NEAR(bench.value(G_NC_FOLLOWING_ERROR, 0, 0), 254.0 / 60.0 / 40.0, 1e-6);
    EXPECT_NEAR(bench.value(G_NC_DISTANCE_TO_GO, 0, 0), 25.4 - bench.machine(0), 1e-9);
}

TEST(SimProgram, NamesWhatItCannotRun) {
    const std::pair<const char*, const char*> faults[] = {
        {"G0 X1\nG1 Y\n", "line 2: Y without a number"},
        {"G41 X1\n", "line 1: G41 is not supported"},
        {"G54.1 X1\n", "line 1: G54.1 is not supported"},
        {"M98 P5\n", "line 1: M98 is not supported"},
        {"A90\n", "line 1: A is not supported"},
        {"G2 X5 F100\n", "line 1: an arc without a centre or radius"},
        {"G2 X50 R5 F100\n", "line 1: an arc that does not reach its end"},
        {"G2 X50 Y0 I5 F100\n", "line 1: an arc that does not reach its end"},
        {"G81 X5 F100\n", "line 1: G81 without its levels"},
        {"F0\n", "line 1: F must be more than 0"},
        {"S99999\n", "line 1: S out of range"},
        {"T25 M6\n", "line 1: there is no such tool"},
        {"G43\n", "line 1: G43 without the H of a tool"},
        {"G4 P-1\n", "line 1: G4 with a P out of range"},
        {"G10 L20 P1 X0\n", "line 1: G10 without L2 and the P of an offset"},
        {"G28 G53\n", "line 1: G28 and G53 in one block"},
        {"G2 G53 X1\n", "line 1: G53 without G0 or G1"},
        {"G91 G53 G0 X1\n", "line 1: G53 in G91"},
        {"#50=1\n", "line 1: #50 is not a variable"},
        {"G81 X1 Z-1 R1 L1001 F100\n", "line 1: more than 1000 holes"},
    };
    for (const auto& [program, text] : faults) {
        Bench bench(Bench::kReady);
        EXPECT_EQ(bench.alarmOf(program), text);
        EXPECT_EQ(bench.value(G_NC_ALARM, 0), GPI_NC_ALARM_PROGRAM);
    }
    Bench unfed;
    unfed.set(G_NC_SYSTEM_POWER, 1);
    unfed.command(G_NC_COMMAND_HOME);
    unfed.runToEnd();
    unfed.set(G_NC_SYSTEM_MODE, G_NC_MODE_AUTO);
    EXPECT_EQ(unfed.alarmOf("G1 X5\n"), "line 1: a cut without a feed");
}

TEST(SimProgram, FinishesTheBlocksBeforeAFault) {
    Bench bench(Bench::kReady);
    bench.run("G1 X5 F600\nG1 Y5\nG77\n");
    EXPECT_EQ(bench.state(), G_NC_STATE_ALARM);
    EXPECT_EQ(bench.place(), (Point3{5.0, 5.0, 0.0}));
}

TEST(SimProgram, StopsBeforeItsLimits) {
    Bench bench(Bench::kReady);
    EXPECT_EQ(bench.value(G_NC_LIMIT, 0, 1), -300.0);
    EXPECT_EQ(bench.value(G_NC_LIMIT, 1, 0), 400.0);
    EXPECT_EQ(bench.alarmOf("G0 X399\nX400.001\n"), "line 2: X would pass its limit");
    EXPECT_EQ(bench.value(G_NC_ALARM), GPI_NC_ALARM_LIMIT);
    EXPECT_EQ(bench.machine(0), 399.0);
    bench.command(G_NC_COMMAND_CLEAR_ALARM);
    bench.run("G0 X400\n");
    EXPECT_EQ(bench.state(), G_NC_STATE_IDLE);
    EXPECT_EQ(bench.system(G_NC_SYSTEM_LIMITS), 1);
    bench.run("G0 X0 Y-300 Z200\n");
    EXPECT_EQ(bench.system(G_NC_SYSTEM_LIMITS), 6);
    EXPECT_EQ(bench.alarmOf("G0 X0 Y290\nG2 X20 Y290 I10 J0 F1000\nG2 X60 R20\n"),
              "line 3: Y would pass its limit")
        << "the ends are inside, the arc is not";
}

} // namespace
} // namespace gpi::nc::test
