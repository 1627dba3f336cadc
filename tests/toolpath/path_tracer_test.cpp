#include "traced.h"

namespace toolpath {
namespace {

TEST(PathTracer, TellsRapidsFromCuts) {
    EXPECT_EQ(listMoves("G0 X1 Y2\nZ-1\nG1 X3\nY4 Z0\nG0 X0"), "rapid 1 2 0\n"
                                                               "rapid 1 2 -1\n"
                                                               "cut 3 2 -1\n"
                                                               "cut 3 4 0\n"
                                                               "rapid 0 4 0\n");
}

TEST(PathTracer, StartsAtRapid) {
    EXPECT_EQ(listMoves("X1"), "rapid 1 0 0\n");
}

TEST(PathTracer, KeepsTheLineOfEachMove) {
    const Traced traced = trace("(head)\nG1 X1\n\nG2 X3 I1\n");
    ASSERT_GT(traced.path.moves.size(), 2U);
    EXPECT_EQ(traced.path.moves.front().line, 2);
    EXPECT_EQ(traced.path.moves[1].line, 4);
    EXPECT_EQ(traced.path.moves.back().line, 4);
}

TEST(PathTracer, AddsIncrementalMoves) {
    EXPECT_EQ(listMoves("G1 X10 Y10\nG91 X1\nY-2 Z3\nG90 X1"), "cut 10 10 0\n"
                                                               "cut 11 10 0\n"
                                                               "cut 11 8 3\n"
                                                               "cut 1 8 3\n");
}

TEST(PathTracer, TurnsInchesIntoMillimetres) {
    EXPECT_EQ(listMoves("G20 G1 X1\nG91 Y0.5\nG21 Y1"), "cut 25.4 0 0\n"
                                                        "cut 25.4 12.7 0\n"
                                                        "cut 25.4 13.7 0\n");
}

TEST(PathTracer, SetsModesBeforeItMovesWhereverTheyStand) {
    EXPECT_EQ(listMoves("X1 G20 Y1 G1"), "cut 25.4 25.4 0\n");
}

TEST(PathTracer, MovesNothingWithoutAnAxisWord) {
    EXPECT_EQ(listMoves("G0\nG1 F100\nN5 T1 M6\nS2000 M3\nG2\nG3 F20"), "");
}

TEST(PathTracer, EndsWithTheProgram) {
    for (const char* end : {"M2", "M02", "M30", "M99"}) {
        EXPECT_EQ(listMoves("X1\nX2 " + std::string(end) + "\nX3"), "rapid 1 0 0\nrapid 2 0 0\n");
    }
    EXPECT_EQ(listMoves("M3\nM5\nM0\nM1\nX1"), "rapid 1 0 0\n");
}

TEST(PathTracer, AcceptsItsWordsWithoutARemark) {
    EXPECT_EQ(listRemarks("%\nO1 (ALL)\nN1 G0 G17 G21 G90 X0 Y0 Z0 F1 S1 T1 M6\n/G1 X1\n"
                          "G2 X2 I.5 J0\nG3 X3 R1\nG18 G2 X4 I.5 K0\nG19 G3 Y1 J.5 K0\nG17\n"
                          "G73 X1 Z-1 R1 Q1\nG99 G81 X1 Z-1 R1 L2\nG82 X1 P5\nG83 X2 Q1\nG84 X3\n"
                          "G85 X4\nG86 X5\nG87 X6\nG88 X7\nG98 G89 X8 K2\nG80\nG20 G91\nM30\n%\n"),
              "");
}

TEST(PathTracer, NamesEachUnknownWordOnceWithItsFirstLine) {
    EXPECT_EQ(listRemarks("G41 D1 X1\nG41 X2 H3\nG38.2 Z-1\nA90\nM98 P100\nG41 A0 H1 M98\n"),
              "line 1: D is not drawn\n"
              "line 1: G41 is not drawn\n"
              "line 2: H is not drawn\n"
              "line 3: G38.2 is not drawn\n"
              "line 4: A is not drawn\n"
              "line 5: M98 is not drawn\n");
}

TEST(PathTracer, MovesBesideAModeThatItDoesNotDraw) {
    for (const char* mode : {"G40", "G41 D1", "G43 H1", "G43.1 K2", "G49", "G54", "G59.3", "G61.1",
                             "G64 P0.1", "G90.1", "G94", "G97"}) {
        EXPECT_EQ(listMoves("G1 " + std::string(mode) + " X5"), "cut 5 0 0\n") << mode;
    }
}

TEST(PathTracer, LeavesAxisWordsToTheCodesTheyBelongTo) {
    for (const char* taker : {"G4 X2", "G28 X0 Y0", "G30 Z0", "G53 Z9", "G92 X0", "G10 L2 P1 X9",
                              "G68 X1 Y1 R30", "G65 P100 X3"}) {
        EXPECT_EQ(listMoves("G1 X5\n" + std::string(taker) + "\nX6"), "cut 5 0 0\ncut 6 0 0\n")
            << taker;
    }
}

TEST(PathTracer, DrawsNothingWhileAnUnknownMotionStaysInForce) {
    EXPECT_EQ(listMoves("G0 X5\nG33 Z-20 K1.5\nX4 Z-20\nG0 X6"), "rapid 5 0 0\nrapid 6 0 0\n");
    EXPECT_EQ(listMoves("G76 X1 Y1 Z-1 R1\nX2\nG80\nX3"), "rapid 3 0 0\n");
}

TEST(PathTracer, RemarksOnArcsThatItCannotDraw) {
    EXPECT_EQ(listRemarks("G2 X1"), "line 1: an arc without a centre or radius is not drawn\n");
    EXPECT_EQ(listRemarks("G2 X1 I0 J0"),
              "line 1: an arc without a centre or radius is not drawn\n");
    EXPECT_EQ(listRemarks("G2 X1 K5"), "line 1: an arc without a centre or radius is not drawn\n");
    EXPECT_EQ(listRemarks("G2 X1 R0"), "line 1: an arc without a centre or radius is not drawn\n");
    EXPECT_EQ(listRemarks("G2 X0 R1"), "line 1: an arc without a centre or radius is not drawn\n");
    EXPECT_EQ(listRemarks("G2 X4 R1"),
              "line 1: an arc of too short a radius is drawn as a half circle\n");
    EXPECT_EQ(listRemarks("G2 X4 I1"),
              "line 1: an arc that ends off its circle is drawn as a spiral\n");
    EXPECT_EQ(listRemarks("G2 X2 I1 P3"), "line 1: P of an arc is not drawn\n");
}

TEST(PathTracer, GoesOnAtTheEndOfAnArcThatItCannotDraw) {
    EXPECT_EQ(listMoves("G1 X1\nG2 X5 Y5\nG1 X6"), "cut 1 0 0\nrapid 5 5 0\ncut 6 5 0\n");
}

TEST(PathTracer, TakesCentresFromTheStartInEitherDistanceMode) {
    const Traced absolute = trace("G1 X10\nG3 X10 Y10 I0 J5");
    const Traced incremental = trace("G1 X10\nG91 G3 X0 Y10 I0 J5");
    EXPECT_EQ(listMoves(absolute.path), listMoves(incremental.path));
    EXPECT_EQ(absolute.path.end(), (Point3{10, 10, 0}));
}

TEST(PathTracer, KeepsArcsModal) {
    const Traced traced = trace("G2 X2 I1\nX4 I1");
    EXPECT_EQ(traced.path.end(), (Point3{4, 0, 0}));
    EXPECT_EQ(traced.path.moves.back().line, 2);
    EXPECT_TRUE(traced.remarks.list().empty());
}

TEST(MachinedBox, HoldsCutsAndPointsButNoRapids) {
    const Box3 box = machinedBox(trace("G0 X-50 Z90\nX10 Z2\nG1 Z-1\nX20 Y5\nG0 Z90 X300").path);
    EXPECT_EQ(box.low, (Point3{10, 0, -1}));
    EXPECT_EQ(box.high, (Point3{20, 5, 2}));
}

TEST(MachinedBox, HoldsAllMovesWhereNothingIsMachined) {
    const Box3 box = machinedBox(trace("G0 X-5\nX7 Y3").path);
    EXPECT_EQ(box.low, (Point3{-5, 0, 0}));
    EXPECT_EQ(box.high, (Point3{7, 3, 0}));
    EXPECT_EQ(machinedBox(ToolPath{}).low, (Point3{0, 0, 0}));
}

} // namespace
} // namespace toolpath
