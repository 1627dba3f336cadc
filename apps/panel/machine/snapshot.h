// The machine at one moment.
#pragma once

#include <quarlo/quarlo.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace panel {

/// Axes that the panel shows.
enum Axis : uint8_t { kX, kY, kZ };
inline constexpr size_t kAxes = 3;
inline constexpr char16_t kAxisNames[] = {u'X', u'Y', u'Z'};

/// A place in millimetres, indexed by Axis.
using Place = std::array<double, kAxes>;

inline constexpr int32_t kChannel = 1;

/// G codes in force, by modal group.
inline constexpr size_t kModalGroups = 10;

/// What the control says, read at once. Where it is not online all else is what it was before.
struct Snapshot {
    bool online = false;
    int32_t mode = G_NC_MODE_MANUAL;
    int32_t state = G_NC_STATE_OFF;
    bool emergency = false;
    bool power = false;
    bool homed = false; ///< all axes
    bool singleBlock = false;
    bool blockSkip = false;
    bool optionalStop = false;
    bool dryRun = false;
    bool inches = false; ///< unit of programs

    Place machine{}; ///< position from the machine's own zero
    Place work{};    ///< position from the work zero in force
    Place toGo{};    ///< of the block that runs
    double feed = 0.0;
    double programmedFeed = 0.0;
    double spindle = 0.0;
    double programmedSpindle = 0.0;
    std::array<double, 3> overrides{}; ///< feed, rapid, spindle; percent
    int32_t tool = 0;
    std::array<double, kModalGroups> codes{};

    std::u16string program; ///< path of the chosen one
    int32_t line = 0;       ///< that runs, from 1
    int32_t lines = 0;
    double runTime = 0.0; ///< seconds
    int32_t alarms = 0;
};

/// Reads a moment. Takes no longer than the calls, and none of them waits for the machine.
///
/// @param last what a control that does not answer has said before
Snapshot readSnapshot(const Snapshot& last);

struct Alarm {
    int32_t number;
    std::u16string text;
};

/// Alarms that stand, the newest first.
std::vector<Alarm> readAlarms(int32_t count);

/// A string of the control; empty where there is none.
std::u16string readText(int32_t string, int32_t number);

/// A value of the control; not a number where there is none.
double readValue(int32_t area, int32_t number, int32_t index);

} // namespace panel
