// What a block asks of the machine, in the order in which it is done.
#pragma once

#include "nc/sim/segment.h"

#include <cstdint>
#include <deque>
#include <string>
#include <variant>

namespace gpi::nc {

struct NoOrder {}; ///< a block that only sets modes still is one to stop after

struct Dwell {
    double seconds;
};

struct TurnSpindle {
    double speed; ///< revolutions a minute, negative counterclockwise
};

struct SwitchCoolant {
    int32_t bits; ///< as G_NC_SYSTEM_COOLANT
};

struct PrepareTool {
    int32_t tool;
};

struct ChangeTool {}; ///< the prepared one comes into the spindle

struct ShiftZero {
    Point3 zero; ///< of the program, from the reference
};

struct ProgramStop {
    bool optional;
};

struct ProgramEnd {};

struct Fault {
    int32_t alarm; ///< GPI_NC_ALARM_PROGRAM and so on
    std::string text;
};

struct Order {
    std::variant<NoOrder, Segment, Dwell, TurnSpindle, SwitchCoolant, ShiftZero, PrepareTool,
                 ChangeTool, ProgramStop, ProgramEnd, Fault>
        what;
    int32_t line;
    bool endsBlock = false;
};

using Orders = std::deque<Order>;

} // namespace gpi::nc
