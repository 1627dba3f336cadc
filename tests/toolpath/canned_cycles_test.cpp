#include "traced.h"

namespace toolpath {
namespace {

TEST(CannedCycles, GoesToThePlaceToTheRetractLevelDownAndBackUp) {
    EXPECT_EQ(listMoves("G0 Z10\nG81 X5 Y6 Z-3 R2"), "rapid 0 0 10\n"
                                                     "rapid 5 6 10\n"
                                                     "rapid 5 6 2\n"
                                                     "point 5 6 -3\n"
                                                     "rapid 5 6 10\n");
}

TEST(CannedCycles, EndsAtTheRetractLevelForG99) {
    EXPECT_EQ(listMoves("G0 Z10\nG99 G81 X5 Z-3 R2\nX6\nG98 X7"), "rapid 0 0 10\n"
                                                                  "rapid 5 0 10\n"
                                                                  "rapid 5 0 2\n"
                                                                  "point 5 0 -3\n"
                                                                  "rapid 5 0 2\n"
                                                                  "rapid 6 0 2\n"
                                                                  "point 6 0 -3\n"
                                                                  "rapid 6 0 2\n"
                                                                  "rapid 7 0 2\n"
                                                                  "point 7 0 -3\n"
                                                                  "rapid 7 0 10\n");
}

TEST(CannedCycles, RisesToTheRetractLevelBeforeItTravels) {
    EXPECT_EQ(listMoves("G0 Z-1\nG81 X5 Z-3 R2"), "rapid 0 0 -1\n"
                                                  "rapid 0 0 2\n"
                                                  "rapid 5 0 2\n"
                                                  "point 5 0 -3\n"
                                                  "rapid 5 0 2\n");
}

TEST(CannedCycles, DrawsEveryCycleAsAPoint) {
    for (const char* cycle :
         {"G73", "G81", "G82", "G83", "G84", "G85", "G86", "G87", "G88", "G89"}) {
        EXPECT_EQ(listMoves(std::string(cycle) + " X5 Z-3 R2 Q1 P100"), "rapid 0 0 2\n"
                                                                        "rapid 5 0 2\n"
                                                                        "point 5 0 -3\n"
                                                                        "rapid 5 0 2\n")
            << cycle;
    }
}

TEST(CannedCycles, RepeatsIncrementalHoles) {
    EXPECT_EQ(listMoves("G0 X10 Z5\nG91 G99 G81 X2 Z-4 R-3 L3"), "rapid 10 0 5\n"
                                                                 "rapid 12 0 5\n"
                                                                 "rapid 12 0 2\n"
                                                                 "point 12 0 -2\n"
                                                                 "rapid 12 0 2\n"
                                                                 "rapid 14 0 2\n"
                                                                 "point 14 0 -2\n"
                                                                 "rapid 14 0 2\n"
                                                                 "rapid 16 0 2\n"
                                                                 "point 16 0 -2\n"
                                                                 "rapid 16 0 2\n");
}

TEST(CannedCycles, CountsRepeatsByKAsWell) {
    EXPECT_EQ(listMoves("G91 G81 X2 Z-4 R3 K3"), listMoves("G91 G81 X2 Z-4 R3 L3"));
    EXPECT_EQ(listMoves("G91 G81 X2 Z-4 R3 K9 L3"), listMoves("G91 G81 X2 Z-4 R3 L3"));
}

TEST(CannedCycles, OnlySetsUpForZeroRepeats) {
    EXPECT_EQ(listMoves("G81 Z-3 R2 L0\nX5"), "rapid 0 0 2\n"
                                              "rapid 5 0 2\n"
                                              "point 5 0 -3\n"
                                              "rapid 5 0 2\n");
    EXPECT_EQ(listMoves("G81 X5 Z-3 R2 L-4"), "");
}

TEST(CannedCycles, KeepsTheInitialLevelFromCycleToCycle) {
    EXPECT_EQ(listMoves("G0 Z10\nG99 G81 X1 Z-3 R2\nG98 G82 X2 P1"), "rapid 0 0 10\n"
                                                                     "rapid 1 0 10\n"
                                                                     "rapid 1 0 2\n"
                                                                     "point 1 0 -3\n"
                                                                     "rapid 1 0 2\n"
                                                                     "rapid 2 0 2\n"
                                                                     "point 2 0 -3\n"
                                                                     "rapid 2 0 10\n");
}

TEST(CannedCycles, EndsWithG80AndWithEveryOtherMotion) {
    EXPECT_EQ(listMoves("G81 X1 Z-3 R2\nG80\nX9"), listMoves("G81 X1 Z-3 R2\nG0 X9"));
    EXPECT_EQ(listMoves("G81 X1 Z-3 R2\nG80 X9"), listMoves("G81 X1 Z-3 R2\nG0 X9"));
}

TEST(CannedCycles, ForgetsItsLevelsWhenItEnds) {
    EXPECT_EQ(listRemarks("G81 X1 Z-3 R2\nG80\nG81 X5"),
              "line 3: G81 without its levels is not drawn\n");
}

TEST(CannedCycles, DrillsAlongTheNormalOfThePlane) {
    EXPECT_EQ(listMoves("G18 G0 Y9\nG81 X5 Z6 Y-3 R2"), "rapid 0 9 0\n"
                                                        "rapid 5 9 6\n"
                                                        "rapid 5 2 6\n"
                                                        "point 5 -3 6\n"
                                                        "rapid 5 9 6\n");
    EXPECT_EQ(listMoves("G19 G0 X9\nG81 Y5 Z6 X-3 R2"), "rapid 9 0 0\n"
                                                        "rapid 9 5 6\n"
                                                        "rapid 2 5 6\n"
                                                        "point -3 5 6\n"
                                                        "rapid 9 5 6\n");
}

TEST(CannedCycles, TakesInches) {
    EXPECT_EQ(listMoves("G20 G81 X1 Z-1 R1"), "rapid 0 0 25.4\n"
                                              "rapid 25.4 0 25.4\n"
                                              "point 25.4 0 -25.4\n"
                                              "rapid 25.4 0 25.4\n");
}

TEST(CannedCycles, DrillsNothingOnBlocksWithoutAPlace) {
    EXPECT_EQ(listMoves("G81 X1 Z-3 R2\nG99\nF100\nM8"), listMoves("G81 X1 Z-3 R2"));
}

TEST(CannedCycles, RemarksOnMissingLevels) {
    EXPECT_EQ(listRemarks("G83 X1 Z-3\n"), "line 1: G83 without its levels is not drawn\n");
    EXPECT_EQ(listMoves("G83 X1 Z-3\nR2"), "rapid 0 0 2\npoint 0 0 -3\nrapid 0 0 2\n");
}

} // namespace
} // namespace toolpath
