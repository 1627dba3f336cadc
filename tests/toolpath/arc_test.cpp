#include "traced.h"

#include <numbers>
#include <random>
#include <utility>

namespace toolpath {
namespace {

constexpr double kPi = std::numbers::pi;

struct PlaneCase {
    const char* gCode;
    Plane plane;
    char first, second, normal;     // axis letters
    char centreFirst, centreSecond; // centre letters
};

const PlaneCase kPlanes[] = {
    {"G17", kPlaneXY, 'X', 'Y', 'Z', 'I', 'J'},
    {"G18", kPlaneZX, 'Z', 'X', 'Y', 'K', 'I'},
    {"G19", kPlaneYZ, 'Y', 'Z', 'X', 'J', 'K'},
};

/// The path's points, its start included, as angles about a centre in a plane.
std::vector<double> anglesAbout(const Plane& plane, const ToolPath& path, double first,
                                double second, size_t skip) {
    std::vector<double> angles;
    for (size_t i = skip; i < path.moves.size(); ++i) {
        const Point3& p = path.moves[i].end;
        angles.push_back(std::atan2(p[plane.second] - second, p[plane.first] - first));
    }
    return angles;
}

/// The angle travelled, positive counterclockwise, when no step is half a turn or more.
double travelled(const std::vector<double>& angles) {
    double sum = 0.0;
    for (size_t i = 1; i < angles.size(); ++i) {
        sum += std::remainder(angles[i] - angles[i - 1], 2.0 * kPi);
    }
    return sum;
}

std::string word(char letter, double value) {
    return std::string(" ") + letter + std::to_string(value);
}

/// A program that goes to (10, 0) of the plane's axes and runs an arc from there.
std::string arcProgram(const PlaneCase& on, const char* direction, double endFirst,
                       double endSecond, const std::string& rest) {
    return std::string(on.gCode) + " G1" + word(on.first, 10) + word(on.second, 0) + "\n" +
           direction + word(on.first, endFirst) + word(on.second, endSecond) + rest;
}

class ArcInPlane : public testing::TestWithParam<PlaneCase> {};
INSTANTIATE_TEST_SUITE_P(All, ArcInPlane, testing::ValuesIn(kPlanes),
                         [](const auto& info) { return std::string(info.param.gCode); });

TEST_P(ArcInPlane, RunsCounterclockwiseFromTheFirstAxisToTheSecond) {
    const PlaneCase& on = GetParam();
    const std::string centre = word(on.centreFirst, -10) + word(on.centreSecond, 0);
    const Traced traced = trace(arcProgram(on, "G3", 0, 10, centre));
    EXPECT_NEAR(travelled(anglesAbout(on.plane, traced.path, 0, 0, 0)), kPi / 2, 1e-9);
    EXPECT_NEAR(traced.path.end()[on.plane.second], 10.0, 1e-9);
    EXPECT_TRUE(traced.remarks.list().empty());
}

TEST_P(ArcInPlane, RunsClockwiseTheOtherWayRound) {
    const PlaneCase& on = GetParam();
    const std::string centre = word(on.centreFirst, -10) + word(on.centreSecond, 0);
    const Traced traced = trace(arcProgram(on, "G2", 0, 10, centre));
    EXPECT_NEAR(travelled(anglesAbout(on.plane, traced.path, 0, 0, 0)), -1.5 * kPi, 1e-9);
}

TEST_P(ArcInPlane, GoesAWholeTurnWhereStartMeetsEnd) {
    const PlaneCase& on = GetParam();
    const std::string centre = word(on.centreFirst, -10);
    const Traced ccw = trace(arcProgram(on, "G3", 10, 0, centre));
    EXPECT_NEAR(travelled(anglesAbout(on.plane, ccw.path, 0, 0, 0)), 2 * kPi, 1e-9);
    const Traced cw = trace(arcProgram(on, "G2", 10, 0, centre));
    EXPECT_NEAR(travelled(anglesAbout(on.plane, cw.path, 0, 0, 0)), -2 * kPi, 1e-9);
}

TEST_P(ArcInPlane, ClimbsEvenlyAlongTheNormal) {
    const PlaneCase& on = GetParam();
    const std::string rest =
        word(on.normal, -6) + word(on.centreFirst, -10) + word(on.centreSecond, 0);
    const ToolPath path = trace(arcProgram(on, "G3", 10, 0, rest)).path;
    const size_t chords = path.moves.size() - 1;
    for (size_t i = 0; i <= chords; ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(chords);
        EXPECT_NEAR(path.moves[i].end[on.plane.normal], -6.0 * part, 1e-9);
    }
}

TEST_P(ArcInPlane, TakesTheShorterArcForAPositiveRadius) {
    const PlaneCase& on = GetParam();
    const Traced ccw = trace(arcProgram(on, "G3", 0, 10, " R10"));
    EXPECT_NEAR(travelled(anglesAbout(on.plane, ccw.path, 0, 0, 0)), kPi / 2, 1e-9);
    const Traced cw = trace(arcProgram(on, "G2", 0, 10, " R10"));
    EXPECT_NEAR(travelled(anglesAbout(on.plane, cw.path, 10, 10, 0)), -kPi / 2, 1e-9);
}

TEST_P(ArcInPlane, TakesTheLongerArcForANegativeRadius) {
    const PlaneCase& on = GetParam();
    const Traced ccw = trace(arcProgram(on, "G3", 0, 10, " R-10"));
    EXPECT_NEAR(travelled(anglesAbout(on.plane, ccw.path, 10, 10, 0)), 1.5 * kPi, 1e-9);
    const Traced cw = trace(arcProgram(on, "G2", 0, 10, " R-10"));
    EXPECT_NEAR(travelled(anglesAbout(on.plane, cw.path, 0, 0, 0)), -1.5 * kPi, 1e-9);
}

TEST_P(ArcInPlane, TakesAHalfCircleForTheRadiusThatJustReaches) {
    const PlaneCase& on = GetParam();
    const Traced traced = trace(arcProgram(on, "G3", -10, 0, " R10"));
    const std::vector<double> angles = anglesAbout(on.plane, traced.path, 0, 0, 0);
    EXPECT_NEAR(travelled(angles), kPi, 1e-9);
    EXPECT_NEAR(angles[angles.size() / 2], kPi / 2, 0.1);
    EXPECT_TRUE(traced.remarks.list().empty());
}

TEST_P(ArcInPlane, TakesAHalfCircleForARadiusThatDoesNotReach) {
    const PlaneCase& on = GetParam();
    const Traced traced = trace(arcProgram(on, "G3", -10, 0, " R4"));
    EXPECT_NEAR(travelled(anglesAbout(on.plane, traced.path, 0, 0, 0)), kPi, 1e-9);
    EXPECT_EQ(traced.remarks.list().size(), 1U);
}

TEST(Arc, BecomesASpiralWhereItsRadiiDiffer) {
    const auto arc = arcAboutCentre(kPlaneXY, {10, 0, 0}, {0, 20, 0}, -10, 0, false);
    ASSERT_TRUE(arc);
    EXPECT_TRUE(arc->isSpiral());
    const int count = arc->chordCount();
    double before = 10.0;
    for (int i = 1; i <= count; ++i) {
        const Point3 p = arc->chordEnd(i, count);
        const double radius = std::hypot(p[kX], p[kY]);
        EXPECT_GT(radius, before);
        before = radius;
    }
    EXPECT_EQ(arc->chordEnd(count, count), (Point3{0, 20, 0}));
}

TEST(Arc, TakesRoundedCentresForRound) {
    // Up to a hundredth of a millimetre, or up to a thousandth of the radius.
    for (const auto& [radius, off] : {std::pair(1.0, 0.008), std::pair(1000.0, 0.9)}) {
        const auto arc =
            arcAboutCentre(kPlaneXY, {radius, 0, 0}, {0, radius + off, 0}, -radius, 0, false);
        ASSERT_TRUE(arc);
        EXPECT_FALSE(arc->isSpiral()) << radius;
    }
    for (const auto& [radius, off] : {std::pair(1.0, 0.012), std::pair(1000.0, 1.1)}) {
        const auto arc =
            arcAboutCentre(kPlaneXY, {radius, 0, 0}, {0, radius + off, 0}, -radius, 0, false);
        ASSERT_TRUE(arc);
        EXPECT_TRUE(arc->isSpiral()) << radius;
    }
}

TEST(Arc, HasNoCentreWithoutARadius) {
    EXPECT_FALSE(arcAboutCentre(kPlaneXY, {1, 1, 0}, {2, 2, 0}, 0, 0, false));
    EXPECT_FALSE(arcOfRadius(kPlaneXY, {1, 1, 0}, {2, 2, 0}, 0, false));
    EXPECT_FALSE(arcOfRadius(kPlaneXY, {1, 1, 0}, {1, 1, 5}, 3, false));
}

TEST(Arc, EndsExactlyWhereItIsTold) {
    const Point3 end{1.0 / 3.0, 2.0 / 7.0, -5.0 / 9.0};
    const auto arc = arcOfRadius(kPlaneXY, {5, 5, 0}, end, 40, true);
    ASSERT_TRUE(arc);
    const int count = arc->chordCount();
    EXPECT_EQ(arc->chordEnd(count, count), end);
}

TEST(Arc, BoundsItsChordsAtEveryRadius) {
    const auto tiny = arcAboutCentre(kPlaneXY, {1e-5, 0, 0}, {1e-5, 0, 0}, -1e-5, 0, false);
    ASSERT_TRUE(tiny);
    EXPECT_GE(tiny->chordCount(), 1);
    const auto huge = arcAboutCentre(kPlaneXY, {1e8, 0, 0}, {1e8, 0, 0}, -1e8, 0, false);
    ASSERT_TRUE(huge);
    EXPECT_EQ(huge->chordCount(), 720);
}

TEST(Arc, KeepsItsChordsWithinTheTolerance) {
    const unsigned seed = 20240229;
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> place(-200.0, 200.0);
    for (int round = 0; round < 2000; ++round) {
        const Point3 start{place(random), place(random), 0};
        const Point3 end{place(random), place(random), 0};
        const double half = std::hypot(end[kX] - start[kX], end[kY] - start[kY]) / 2.0;
        const double radius = (half + std::abs(place(random))) * (round % 2 == 0 ? 1 : -1);
        const auto arc = arcOfRadius(kPlaneXY, start, end, radius, round % 4 < 2);
        ASSERT_TRUE(arc);
        EXPECT_NEAR(arc->startRadius, std::abs(radius), 1e-6);
        EXPECT_FALSE(arc->isSpiral());
        const int count = arc->chordCount();
        const double chordAngle = std::abs(arc->sweep) / count;
        EXPECT_LE(arc->startRadius * (1.0 - std::cos(chordAngle / 2.0)), kChordTolerance + 1e-9);
        EXPECT_EQ(radius > 0.0, std::abs(arc->sweep) <= kPi + 1e-6) << "round " << round;
        EXPECT_EQ(arc->sweep < 0.0, round % 4 < 2) << "round " << round;
    }
}

} // namespace
} // namespace toolpath
