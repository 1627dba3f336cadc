// A program, or a single block, on its way through the control.
#pragma once

#include "nc/alarms.h"
#include "nc/program.h"
#include "nc/sim/interpreter.h"
#include "nc/sim/path.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>

namespace gpi::nc {

/// What a program switches.
struct Switches {
    double spindle = 0.0; ///< programmed, revolutions a minute, negative counterclockwise
    int32_t coolant = 0;
    std::array<int32_t, 2> tools{}; ///< in the spindle, prepared
    Point3 zero{};                  ///< program zero, from the reference
};

/// How a panel wants a program to be run.
struct RunOptions {
    bool singleBlock = false;
    bool optionalStop = false;
    bool blockSkip = false;
    bool dryRun = false;
};

/// Reads blocks ahead, moves along the path and does the rest in between.
class ProgramRun {
  public:
    ProgramRun(Macros& macros, Offsets& offsets) : interpreter_(macros, offsets) {}

    enum class End {
        None,    ///< it goes on
        Held,    ///< it waits to be resumed
        Ended,   ///< the program's end
        Faulted, ///< an alarm was raised
    };

    /// Begins with a program's first line. @param place where the machine stands
    void begin(std::shared_ptr<const Program> program, const Point3& place);

    /// Begins with a block given by hand. @return false when it cannot be run; alarms say why
    bool begin(const std::string& block, const Point3& place, Switches& switches, Alarms& alarms);

    /// Goes on by a tick: along the path, or an order.
    End advance(const Pace& pace, const RunOptions& options, Switches& switches, Alarms& alarms);

    /// Forgets what was to come. The modes stay.
    void drop();

    /// Puts the machine elsewhere while nothing runs.
    void place(const Point3& position) { path_.place(position); }

    Interpreter& interpreter() { return interpreter_; }
    const Interpreter& interpreter() const { return interpreter_; }
    const Path& path() const { return path_; }
    int32_t lineRunning() const { return lineRunning_; }
    int32_t lineRead() const { return nextLine_ - 1; }

  private:
    bool readAhead(const RunOptions& options);
    void feedPath();
    bool stillDwells(const Order& order);
    End perform(const Order& order, const RunOptions& options, Switches& switches, Alarms& alarms);

    Interpreter interpreter_;
    Path path_;
    Orders orders_; ///< read, and not on the path yet
    std::shared_ptr<const Program> program_;
    int32_t nextLine_ = 1;
    int32_t lineRunning_ = 0;
    double dwelt_ = 0.0; ///< seconds of the dwell that runs
};

} // namespace gpi::nc
