// How the simulated machine moves: the speeds, the accelerations, the corners.
#include "bench.h"

#include "nc/sim/path.h"
#include "nc/sim/speed.h"
#include "support/random_calls.h"

#include <algorithm>
#include <cmath>
#include <ctime>
#include <sstream>

namespace gpi::nc::test {
namespace {

double distance(const Point3& a, const Point3& b) {
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

/// The highest feed that a program reaches, millimetres a minute.
double topFeed(Bench& bench, const std::string& program) {
    bench.start(program);
    double top = 0.0;
    bench.waitWhile([&] {
        top = std::max(top, bench.value(G_NC_FEED, 0, 0));
        return bench.state() == G_NC_STATE_RUNNING;
    });
    return top;
}

TEST(Speed, AlwaysLeavesTheWayToBrake) {
    quarlo::test::Random random(quarlo::test::testSeed());
    for (int round = 0; round < 2000; ++round) {
        const double leaving = random.between(0, 100);
        const double most = random.between(1, 300);
        double way = random.between(1, 100'000) / 1000.0;
        double speed = 0.0;
        while (!arrives(std::abs(speed - std::min(leaving, speed)), way, kAcceleration, kTick) &&
               way > 0.0) {
            const double next = nextSpeed(speed, way, leaving, most, kAcceleration, kTick);
            ASSERT_LE(std::abs(next - speed), kAcceleration * kTick + 1e-9);
            ASSERT_LE(next, most + 1e-9);
            way -= (speed + next) / 2.0 * kTick;
            speed = next;
            ASSERT_LE(speed * speed, leaving * leaving + 2.0 * kAcceleration * std::max(way, 0.0) +
                                         most * kAcceleration * kTick);
        }
    }
}

TEST(SimMotion, ReachesTheProgrammedFeedAndNoMore) {
    Bench bench(Bench::kReady);
    EXPECT_NEAR(topFeed(bench, "G1 X100 F3000\n"), 3000.0, 1e-6);
    EXPECT_NEAR(topFeed(bench, "G1 X0 F99999\n"), kFastestCut * 60.0, 1e-6);
}

TEST(SimMotion, LimitsEachAxisInRapids) {
    Bench bench(Bench::kReady);
    EXPECT_NEAR(topFeed(bench, "G0 X200 Y200\n"), kRapidSpeed * 60.0 * std::sqrt(2.0), 1e-6);
    EXPECT_NEAR(topFeed(bench, "G0 X0\n"), kRapidSpeed * 60.0, 1e-6);
}

TEST(SimMotion, SlowsDownInNarrowArcs) {
    Bench bench(Bench::kReady);
    EXPECT_NEAR(topFeed(bench, "G2 X0 Y0 I1 F12000\n"), std::sqrt(kCentripetal) * 60.0, 1e-6);
}

TEST(SimMotion, FollowsTheOverridesAtOnceButSmoothly) {
    Bench bench(Bench::kReady);
    bench.start("G1 X300 F6000\n");
    bench.wait(500);
    EXPECT_NEAR(bench.value(G_NC_FEED), 6000.0, 1e-6);
    bench.setValue(G_NC_OVERRIDE, 0, 0, 50.0);
    bench.wait(10);
    EXPECT_NEAR(bench.value(G_NC_FEED), 6000.0 - 10 * kAcceleration * kTick * 60.0, 1e-6);
    bench.wait(100);
    EXPECT_NEAR(bench.value(G_NC_FEED), 3000.0, 1e-6);
    bench.setValue(G_NC_OVERRIDE, 0, 0, 0.0);
    bench.wait(200);
    EXPECT_EQ(bench.value(G_NC_FEED), 0.0);
    EXPECT_EQ(bench.state(), G_NC_STATE_RUNNING);
    bench.setValue(G_NC_OVERRIDE, 0, 0, 120.0);
    bench.setValue(G_NC_OVERRIDE, 1, 0, 10.0); // rapids only
    bench.wait(300);
    EXPECT_NEAR(bench.value(G_NC_FEED), 7200.0, 1e-6);
    bench.runToEnd();
    EXPECT_NEAR(topFeed(bench, "G0 X0\n"), kRapidSpeed * 6.0, 1e-6);
}

TEST(SimMotion, HoldsOnThePathAndGoesOn) {
    Bench bench(Bench::kReady);
    bench.start("G1 X100 F6000\nG1 Y100\n");
    bench.wait(500);
    bench.command(G_NC_COMMAND_HOLD);
    bench.runToEnd();
    EXPECT_EQ(bench.state(), G_NC_STATE_HELD);
    const Point3 held = bench.place();
    EXPECT_GT(held[0], 30.0);
    EXPECT_LT(held[0], 70.0);
    bench.wait(10'000);
    EXPECT_EQ(bench.place(), held);
    bench.command(G_NC_COMMAND_START);
    bench.runToEnd();
    EXPECT_EQ(bench.place(), (Point3{100.0, 100.0, 0.0}));
}

TEST(SimMotion, KeepsItsSpeedWhereThePathIsStraight) {
    Bench bench(Bench::kReady);
    std::string program = "G1 F6000\n";
    for (int x = 1; x <= 100; ++x) {
        program.append("X").append(std::to_string(x)).append("\n");
    }
    const int64_t pieces = bench.run(program);
    const int64_t whole = bench.run("G1 X0 F6000\n");
    EXPECT_NEAR(static_cast<double>(pieces), static_cast<double>(whole), 10.0);
}

TEST(SimMotion, StopsAtEachCornerInExactStopMode) {
    Bench bench(Bench::kReady);
    bench.start("G61 G1 X10 F6000\nX20\nX30\n");
    int stands = 0;
    bench.waitWhile([&] {
        const double x = bench.machine(0);
        stands += x > 0.0 && x < 30.0 && bench.value(G_NC_FEED) == 0.0 ? 1 : 0;
        return bench.state() == G_NC_STATE_RUNNING;
    });
    EXPECT_EQ(stands, 2);
}

/// A block of a random program.
struct RandomMove {
    std::string text;
    friend std::ostream& operator<<(std::ostream& out, const RandomMove& move) {
        return out << move.text;
    }
};

RandomMove randomMove(quarlo::test::Random& random) {
    std::ostringstream text;
    const auto place = [&](char letter) {
        if (!random.oneIn(3)) {
            text << letter << random.between(-1500, 1500) / 10.0;
        }
    };
    switch (random.between(0, 4)) {
    case 0:
        text << "G0 ";
        break;
    case 1:
        text << "G91\nG3 X" << random.between(1, 200) / 100.0 << " R" << random.between(1, 50)
             << "\nG90";
        return {text.str()};
    case 2:
        text << "G91\nG1 X0." << random.between(1, 9) << " Y0." << random.between(1, 9) << "\nG90";
        return {text.str()};
    default:
        text << "G1 F" << random.between(1, 12000) << ' ';
        break;
    }
    place('X');
    place('Y');
    place('Z');
    return {text.str()};
}

std::string programOf(const std::vector<RandomMove>& moves) {
    std::string program = "G1 F1000\n";
    for (const RandomMove& move : moves) {
        program += move.text + '\n';
    }
    return program;
}

/// Watches each tick of a program. @return what is wrong with its motion
std::string wrongIn(const std::vector<RandomMove>& moves) {
    Bench bench(Bench::kReady);
    bench.start(programOf(moves));
    Point3 place = bench.place();
    Point3 before{};
    std::ostringstream wrong;
    const double mostChange = (kAcceleration + kCentripetal) * kTick + kCornerJump + 1e-6;
    for (int tick = 0; bench.state() == G_NC_STATE_RUNNING && tick < 2'000'000; ++tick) {
        bench.wait(1);
        const Point3 next = bench.place();
        Point3 velocity{};
        for (size_t axis = 0; axis < 3; ++axis) {
            velocity[axis] = (next[axis] - place[axis]) / kTick;
        }
        // Mean velocities of neighbouring ticks differ by what both ticks allow.
        if (distance(velocity, before) > 2.0 * mostChange) {
            wrong << "a jolt of " << distance(velocity, before) << " mm/s at tick " << tick;
            return wrong.str();
        }
        before = velocity;
        place = next;
    }
    if (bench.state() == G_NC_STATE_RUNNING) {
        wrong << "it never ends";
    } else if (bench.state() == G_NC_STATE_ALARM &&
               bench.text(G_NC_ALARM_TEXT).find("limit") == std::string::npos) {
        wrong << bench.text(G_NC_ALARM_TEXT);
    }
    return wrong.str();
}

TEST(SimMotion, NeverJoltsInRandomPrograms) {
    quarlo::test::forRandomCalls(60, 12, randomMove, wrongIn);
}

/// Everything that can be seen of a run at its end and on its way.
std::vector<double> trace(const std::string& program, int64_t every) {
    Bench bench(Bench::kReady);
    bench.start(program);
    std::vector<double> seen;
    for (int64_t time = 0; time < 6000; time += every) {
        bench.wait(every);
        const double speed = bench.value(G_NC_FEED);
        if ((time + every) % 500 == 0) {
            for (const double part : bench.place()) {
                seen.push_back(part);
            }
            seen.push_back(speed);
            seen.push_back(bench.value(G_NC_LINE));
        }
    }
    return seen;
}

TEST(SimMotion, DependsOnTimeAndNotOnWhoLooks) {
    quarlo::test::Random random(quarlo::test::testSeed());
    std::vector<RandomMove> moves;
    for (int i = 0; i < 40; ++i) {
        moves.push_back(randomMove(random));
    }
    const std::string program = programOf(moves);
    const auto seen = trace(program, 1);
    EXPECT_EQ(seen, trace(program, 500));
    EXPECT_EQ(seen, trace(program, 20));
}

TEST(SimMotion, CatchesUpWithAnHourInSeconds) {
    Bench bench(Bench::kReady);
    std::string program = "G1 F3000\n";
    for (int i = 0; i < 1000; ++i) {
        program += "X100\nX0\n";
    }
    bench.start(program);
    const std::clock_t start = std::clock(); // of the processor, which others may use as well
    bench.wait(3'600'000);
    bench.state();
    EXPECT_LT((std::clock() - start) / CLOCKS_PER_SEC, 20) << "an eighth of a second, usually";
    EXPECT_GT(bench.value(G_NC_LINE), 1500.0);
}

} // namespace
} // namespace gpi::nc::test
