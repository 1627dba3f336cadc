// Programs that nobody means well with: the reader has to come back from each with a finite path.
#include "traced.h"

#include <algorithm>
#include <random>

namespace toolpath {
namespace {

void expectSane(const Traced& traced) {
    EXPECT_LE(traced.path.moves.size(), ToolPath::kMostMoves);
    const bool finite =
        std::all_of(traced.path.moves.begin(), traced.path.moves.end(), [](const Move& move) {
            return std::all_of(move.end.begin(), move.end.end(),
                               [](double value) { return std::isfinite(value); });
        });
    EXPECT_TRUE(finite);
}

TEST(HostileProgram, RefusesAMegabyteOfDigits) {
    const Traced traced = trace("G1 X" + std::string(1 << 20, '7') + "\nX1");
    expectSane(traced);
    EXPECT_EQ(traced.path.moves.size(), 1U);
    EXPECT_EQ(traced.remarks.list().size(), 1U);
}

TEST(HostileProgram, ReadsALineOfAMegabyte) {
    std::string line = "G1";
    while (line.size() < 1U << 20) {
        line += " X1 G1 M3";
    }
    const Traced traced = trace(line);
    EXPECT_EQ(traced.path.moves.size(), 1U);
    EXPECT_TRUE(traced.remarks.list().empty());
}

TEST(HostileProgram, ReadsAMegabyteOfOneByteLines) {
    EXPECT_TRUE(trace(std::string(1 << 20, '\n')).path.moves.empty());
    EXPECT_TRUE(trace(std::string(1 << 20, '\r')).path.moves.empty());
    EXPECT_TRUE(trace(std::string(1 << 20, '(')).path.moves.empty());
    EXPECT_TRUE(trace(std::string(1 << 20, '/')).path.moves.empty());
    EXPECT_TRUE(trace(std::string(1 << 20, '%')).path.moves.empty());
}

TEST(HostileProgram, NamesAMegabyteOfNulsOnce) {
    const Traced traced = trace(std::string(1 << 20, '\0'));
    ASSERT_EQ(traced.remarks.list().size(), 1U);
    EXPECT_EQ(traced.remarks.list().front().text, "byte 0x00 is not drawn");
}

TEST(HostileProgram, DrawsTheLastLineWithoutANewline) {
    EXPECT_EQ(listMoves("G1 X1\nX2"), "cut 1 0 0\ncut 2 0 0\n");
}

TEST(HostileProgram, StaysFiniteAtTheLargestNumbers) {
    expectSane(trace("G20 G91 G1 X99999999 Y-99999999\nX99999999\nG2 X-99999999 I99999999 J1\n"
                     "G3 X.00001 R-99999999\nG3 X1 R.0000001\nG81 X99999999 Z-99999999 R99999999"));
}

TEST(HostileProgram, StopsWhereThePathIsFull) {
    const Traced traced = trace("G91 G81 X1 Z-1 R1 L99999999\nX1\n");
    expectSane(traced);
    EXPECT_EQ(traced.path.moves.size(), ToolPath::kMostMoves);
    ASSERT_EQ(traced.remarks.list().size(), 1U);
    EXPECT_EQ(traced.remarks.list().front().text, "more than 4000000 moves: the rest is not drawn");
}

TEST(HostileProgram, ComesBackFromRepeatsThatGoNowhere) {
    std::string program = "G81 Z0 R0\n";
    for (int i = 0; i < 10000; ++i) {
        program += "X0 L99999999\n";
    }
    EXPECT_TRUE(trace(program).path.moves.empty());
}

TEST(HostileProgram, StopsInTheMiddleOfArcs) {
    std::string program = "G2\n";
    for (int i = 0; i < 6000; ++i) {
        program += "I99999999\n";
    }
    const Traced traced = trace(program);
    expectSane(traced);
    EXPECT_EQ(traced.path.moves.size(), ToolPath::kMostMoves);
}

TEST(HostileProgram, SurvivesNoise) {
    const unsigned seed = 4711;
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> byte(0, 255);
    for (int round = 0; round < 200; ++round) {
        std::string program(2000, ' ');
        std::generate(program.begin(), program.end(),
                      [&] { return static_cast<char>(byte(random)); });
        expectSane(trace(program));
    }
}

TEST(HostileProgram, SurvivesWordsInAnyOrder) {
    const unsigned seed = 815;
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    constexpr std::string_view kPieces[] = {
        "G0",  "G1",  "G2",   "G3",    "G17",  "G18",   "G19", "G20",  "G21", "G90", "G91",
        "G73", "G80", "G81",  "G83",   "G98",  "G99",   "G33", "G28",  "M98", "M3",  "X1",
        "X-9", "Y2",  "Z-3",  "I1",    "J-2",  "K3",    "R5",  "R-5",  "R0",  "Q1",  "P2",
        "L3",  "L0",  "X.5.", "Y",     "(",    ")",     ";",   "/",    "%",   "#",   "\n",
        "\n",  "\n",  "\n",   "X1e99", "Z999", "I0 J0", "A1",  "L999", "\r",  "\t",  "G2 I1"};
    std::uniform_int_distribution<size_t> pick(0, std::size(kPieces) - 1);
    for (int round = 0; round < 300; ++round) {
        std::string program;
        for (int i = 0; i < 300; ++i) {
            program += kPieces[pick(random)];
            program += ' ';
        }
        const Traced traced = trace(program);
        expectSane(traced);
        for (const Remark& remark : traced.remarks.list()) {
            EXPECT_GE(remark.line, 1);
        }
    }
}

} // namespace
} // namespace toolpath
