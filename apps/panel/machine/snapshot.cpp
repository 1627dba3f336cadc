#include "machine/snapshot.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace panel {
namespace {

bool readSystem(int32_t number, int32_t& value) {
    return GNCDataGetSystemVal(number, &value) == 1;
}

void readSwitch(int32_t number, bool& on) {
    int32_t value = 0;
    if (readSystem(number, value)) {
        on = value != 0;
    }
}

/// Leaves the value as it was where the control has none.
void readValueTo(int32_t area, int32_t number, int32_t index, double& value) {
    double read = 0.0;
    if (GNCDataGetGNCValue(kChannel, area, number, index, &read) == 1) {
        value = read;
    }
}

int32_t readCount(int32_t area, int32_t number) {
    double value = 0.0;
    readValueTo(area, number, 0, value);
    return static_cast<int32_t>(std::lround(value));
}

void readState(Snapshot& now) {
    readSystem(G_NC_SYSTEM_STATE, now.state);
    readSystem(G_NC_SYSTEM_ALARMS, now.alarms);
    readSystem(G_NC_SYSTEM_LINES, now.lines);
    readSwitch(G_NC_SYSTEM_EMERGENCY, now.emergency);
    readSwitch(G_NC_SYSTEM_POWER, now.power);
    readSwitch(G_NC_SYSTEM_SINGLE_BLOCK, now.singleBlock);
    readSwitch(G_NC_SYSTEM_BLOCK_SKIP, now.blockSkip);
    readSwitch(G_NC_SYSTEM_OPTIONAL_STOP, now.optionalStop);
    readSwitch(G_NC_SYSTEM_DRY_RUN, now.dryRun);
    readSwitch(G_NC_SYSTEM_UNITS, now.inches);
    constexpr int32_t kAllHomed = (1 << kAxes) - 1;
    int32_t homed = 0;
    readSystem(G_NC_SYSTEM_HOMED, homed);
    now.homed = (homed & kAllHomed) == kAllHomed;
}

void readMotion(Snapshot& now) {
    for (size_t axis = 0; axis < kAxes; ++axis) {
        const auto index = static_cast<int32_t>(axis);
        readValueTo(G_NC_MACHINE_POSITION, 0, index, now.machine[axis]);
        readValueTo(G_NC_WORK_POSITION, 0, index, now.work[axis]);
        readValueTo(G_NC_DISTANCE_TO_GO, 0, index, now.toGo[axis]);
    }
    readValueTo(G_NC_FEED, 0, 0, now.feed);
    readValueTo(G_NC_FEED, 0, 1, now.programmedFeed);
    readValueTo(G_NC_SPINDLE, 0, 0, now.spindle);
    readValueTo(G_NC_SPINDLE, 0, 1, now.programmedSpindle);
    for (size_t i = 0; i < now.overrides.size(); ++i) {
        readValueTo(G_NC_OVERRIDE, static_cast<int32_t>(i), 0, now.overrides[i]);
    }
}

void readProgram(Snapshot& now) {
    now.tool = readCount(G_NC_TOOL, 0);
    now.line = readCount(G_NC_LINE, 0);
    readValueTo(G_NC_TIME, 0, 0, now.runTime);
    for (size_t group = 0; group < kModalGroups; ++group) {
        readValueTo(G_NC_MODAL, static_cast<int32_t>(group), 0, now.codes[group]);
    }
    now.program = readText(G_NC_PROGRAM_NAME, 0);
}

} // namespace

Snapshot readSnapshot(const Snapshot& last) {
    Snapshot now = last;
    now.online = readSystem(G_NC_SYSTEM_MODE, now.mode);
    if (now.online) {
        readState(now);
        readMotion(now);
        readProgram(now);
    }
    return now;
}

std::vector<Alarm> readAlarms(int32_t count) {
    std::vector<Alarm> alarms;
    for (int32_t i = 0; i < count; ++i) {
        double number = 0.0;
        if (GNCDataGetGNCValue(kChannel, G_NC_ALARM, i, 0, &number) == 1) {
            alarms.push_back(
                {static_cast<int32_t>(std::lround(number)), readText(G_NC_ALARM_TEXT, i)});
        }
    }
    return alarms;
}

std::u16string readText(int32_t string, int32_t number) {
    constexpr int32_t kRoom = 512;
    std::array<char16_t, kRoom> text{};
    if (GNCDataGetString(kChannel, string, number, text.data(), kRoom) != 1) {
        return {};
    }
    return text.data();
}

double readValue(int32_t area, int32_t number, int32_t index) {
    double value = std::numeric_limits<double>::quiet_NaN();
    readValueTo(area, number, index, value);
    return value;
}

} // namespace panel
