// Programs that nobody means well with: the control has to come to a stand inside its limits.
#include "bench.h"

#include "support/random_calls.h"

#include <chrono>
#include <cmath>

namespace gpi::nc::test {
namespace {

/// Runs a program for a while. @return what is wrong afterwards
std::string wrongAfter(const std::string& program) {
    Bench bench(Bench::kReady);
    bench.start(program);
    for (int i = 0; i < 40; ++i) {
        bench.wait(100);
        for (int32_t axis = 0; axis < kAxes; ++axis) {
            const double place = bench.machine(axis);
            const auto index = static_cast<size_t>(axis);
            if (!(place >= kLowerLimit[index] - 1e-5 && place <= kUpperLimit[index] + 1e-5)) {
                return "axis " + std::to_string(axis) + " is at " + std::to_string(place);
            }
        }
        if (!std::isfinite(bench.value(G_NC_FEED)) || !std::isfinite(bench.value(G_NC_SPINDLE))) {
            return "a speed is not finite";
        }
    }
    bench.command(G_NC_COMMAND_STOP);
    bench.waitWhile([&] { return bench.state() == G_NC_STATE_RUNNING; }, 10'000);
    return bench.state() == G_NC_STATE_RUNNING ? "it does not stop" : "";
}

TEST(HostileProgram, SurvivesTheLargestNumbers) {
    for (const char* const program :
         {"G0 X99999999 Y-99999999\n", "G20 G91 G1 X99999999 F99999999\n",
          "G2 X-99999999 I99999999 J1 F1\n", "G3 X.00001 R-99999999 F1\n",
          "G3 X1 R99999999 F99999\n", "G3 X1 R.0000001 F1\n", "G2 I99999999 F100\n",
          "G81 X99999999 Z-99999999 R99999999 F1\n", "G1 X1 F.00000001\n",
          "G91 G1 X.00000001 F1\nX.00000001\nX.00000001\n", "G4 P99999999\n", "G4 P86400\n",
          "#100=99999999 #100=[#100*#100]\n", "G10 L2 P1 X99999999\nG0 X-99999999\n",
          "G43 H99999999\n", "T99999999\n", "S99999999 M3\n", "G999\n", "M999\n"}) {
        EXPECT_EQ(wrongAfter(program), "") << program;
    }
    EXPECT_EQ(wrongAfter("G1 X" + std::string(1 << 20, '7') + " F1\n"), "");
}

TEST(HostileProgram, SurvivesProgramsWithoutBlocks) {
    for (const std::string& program :
         {std::string(), std::string(1 << 20, '\n'), std::string(1 << 20, '('),
          std::string(1 << 20, '\0'), std::string(1 << 20, '/'), std::string(1 << 20, '%'),
          std::string(1 << 20, '#'), std::string(1 << 20, '[')}) {
        EXPECT_EQ(wrongAfter(program), "");
    }
}

TEST(HostileProgram, TakesOneTickForABlockThatDoesNothing) {
    std::string program;
    for (int i = 0; i < 100'000; ++i) {
        program += "G17\n";
    }
    Bench bench(Bench::kReady);
    bench.start(program);
    bench.wait(1000);
    EXPECT_NEAR(bench.value(G_NC_LINE), 1000.0, 5.0);
}

TEST(HostileProgram, SurvivesWordsInAnyOrder) {
    constexpr std::string_view kPieces[] = {
        "G0",      "G1",   "G2",     "G3",    "G17",         "G18",  "G19",  "G20", "G21", "G90",
        "G91",     "G81",  "G80",    "G98",   "G99",         "G28",  "G53",  "G54", "G55", "G61",
        "G64",     "G4",   "G10",    "G43",   "G49",         "M3",   "M4",   "M5",  "M6",  "M8",
        "M9",      "M1",   "M30",    "X1",    "X-90",        "Y2",   "Z-3",  "I1",  "J-2", "K3",
        "R5",      "R-5",  "P1",     "L2",    "H2",          "F100", "F9e9", "S50", "T3",  "#100=5",
        "X#100",   "Y[1+", "Z[2*3]", "\n",    "\n",          "\n",   "\n",   "\n",  "(",   ")",
        "G2 I5\n", "X400", "Y-300",  "F5000", "G81 Z-1 R1\n"};
    quarlo::test::forRandomCalls(
        120, 60, [&](quarlo::test::Random& random) { return random.pick(kPieces); },
        [](const std::vector<std::string_view>& pieces) {
            std::string program;
            for (const std::string_view piece : pieces) {
                program += piece;
                program += ' ';
            }
            return wrongAfter(program);
        });
}

} // namespace
} // namespace gpi::nc::test
