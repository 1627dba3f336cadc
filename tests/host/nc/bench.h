// The simulated machine on a test's own clock.
#pragma once

#include "nc/sim/sim_controller.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace gpi::nc::test {

/// A control whose time goes on only when a test says so.
class Bench {
  public:
    /// Ready to run programs: powered and referenced, in automatic mode.
    static constexpr int kReady = 1;

    Bench() = default;
    explicit Bench(int /*ready*/) {
        EXPECT_EQ(set(G_NC_SYSTEM_POWER, 1), kDone);
        EXPECT_EQ(command(G_NC_COMMAND_HOME), kDone);
        runToEnd();
        EXPECT_EQ(set(G_NC_SYSTEM_MODE, G_NC_MODE_AUTO), kDone);
    }

    void wait(int64_t milliseconds) { time_ += milliseconds; }

    /// Goes on tick by tick while a condition holds. @return how many, or -1 when it went on too
    /// long
    int64_t waitWhile(const std::function<bool()>& condition, int64_t limit = 10'000'000) {
        int64_t ticks = 0;
        for (; condition(); ++ticks, wait(1)) {
            if (ticks == limit) {
                ADD_FAILURE() << "still so after " << limit << " ms";
                return -1;
            }
        }
        return ticks;
    }

    int64_t runToEnd() {
        return waitWhile([this] { return state() == G_NC_STATE_RUNNING; });
    }

    double value(int32_t area, int32_t number = 0, int32_t index = 0) {
        double value = -1e99;
        EXPECT_EQ(controller.getValue({area, number, index}, value), kDone);
        return value;
    }
    int32_t setValue(int32_t area, int32_t number, int32_t index, double value) {
        return controller.setValue({area, number, index}, value);
    }
    double machine(int32_t axis) { return value(G_NC_MACHINE_POSITION, 0, axis); }
    double work(int32_t axis) { return value(G_NC_WORK_POSITION, 0, axis); }
    Point3 place() { return {machine(0), machine(1), machine(2)}; }

    int32_t system(int32_t number) {
        int32_t value = -99;
        EXPECT_EQ(controller.getSystem(number, value), kDone);
        return value;
    }
    int32_t set(int32_t number, int32_t value) { return controller.setSystem(number, value); }
    int32_t command(int32_t command) { return set(G_NC_SYSTEM_COMMAND, command); }
    int32_t state() { return system(G_NC_SYSTEM_STATE); }

    std::string text(int32_t string, int32_t number = 0) {
        std::string text;
        EXPECT_EQ(controller.getText(string, number, text), kDone);
        return text;
    }

    void choose(const std::string& program) {
        EXPECT_EQ(controller.choose(std::make_shared<Program>("test.nc", "/test.nc", program)),
                  kDone);
    }
    void start(const std::string& program) {
        choose(program);
        EXPECT_EQ(command(G_NC_COMMAND_START), kDone);
    }
    /// Runs a program to its end. @return how long it took, milliseconds
    int64_t run(const std::string& program) {
        start(program);
        return runToEnd();
    }
    /// What a program stops with.
    std::string alarmOf(const std::string& program) {
        run(program);
        EXPECT_EQ(state(), G_NC_STATE_ALARM) << program;
        return text(G_NC_ALARM_TEXT);
    }

  private:
    int64_t time_ = 1000;

  public:
    SimController controller{[this] { return time_; }};
};

} // namespace gpi::nc::test
