#include "nc/address.h"

#include "nc/macros.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace gpi::nc {
namespace {

/// What numbers and indexes count.
enum class Counts : uint8_t {
    Nothing, ///< 0 only
    Axes,
    Spindles,
    Pair, ///< 0 and 1
    Overrides,
    Tools,
    ToolSizes,
    WorkOffsets,
    ModalGroups,
    Alarms,
    Macros,
    Lines,
};

bool contains(Counts counts, int32_t number, const Extent& extent) {
    const auto below = [number](int32_t count) { return number >= 0 && number < count; };
    switch (counts) {
    case Counts::Nothing:
        return number == 0;
    case Counts::Axes:
        return below(extent.axes);
    case Counts::Spindles:
        return below(extent.spindles);
    case Counts::Pair:
        return below(2);
    case Counts::Overrides:
        return below(3);
    case Counts::Tools:
        return number >= 1 && number <= extent.tools;
    case Counts::ToolSizes:
        return below(4);
    case Counts::WorkOffsets:
        return below(GPI_NC_WORK_OFFSETS);
    case Counts::ModalGroups:
        return below(GPI_NC_MODAL_GROUPS);
    case Counts::Alarms:
        return below(GPI_NC_MOST_ALARMS);
    case Counts::Macros:
        return extent.macros && Macros::exists(number);
    case Counts::Lines:
        return number >= 0;
    }
    return false;
}

constexpr double kAny = std::numeric_limits<double>::max();
constexpr double kLargestOffset = 100'000.0; // millimetres

struct Area {
    int32_t area;
    Counts number;
    Counts index;
    bool writable = false;
    double least = 0.0; ///< of a value that is written
    double most = 0.0;
};

constexpr Area kAreas[] = {
    {G_NC_MACHINE_POSITION, Counts::Nothing, Counts::Axes},
    {G_NC_WORK_POSITION, Counts::Nothing, Counts::Axes},
    {G_NC_DISTANCE_TO_GO, Counts::Nothing, Counts::Axes},
    {G_NC_FOLLOWING_ERROR, Counts::Nothing, Counts::Axes},
    {G_NC_FEED, Counts::Nothing, Counts::Pair},
    {G_NC_SPINDLE, Counts::Spindles, Counts::Pair},
    {G_NC_OVERRIDE, Counts::Overrides, Counts::Nothing, true, 0.0, 200.0},
    {G_NC_TOOL, Counts::Pair, Counts::Nothing},
    {G_NC_TOOL_OFFSET, Counts::Tools, Counts::ToolSizes, true, -kLargestOffset, kLargestOffset},
    {G_NC_WORK_OFFSET, Counts::WorkOffsets, Counts::Axes, true, -kLargestOffset, kLargestOffset},
    {G_NC_LIMIT, Counts::Pair, Counts::Axes},
    {G_NC_MODAL, Counts::ModalGroups, Counts::Nothing},
    {G_NC_LINE, Counts::Pair, Counts::Nothing},
    {G_NC_TIME, Counts::Pair, Counts::Nothing},
    {G_NC_ALARM, Counts::Alarms, Counts::Nothing},
    {G_NC_MACRO, Counts::Macros, Counts::Nothing, true, -kAny, kAny},
    {G_NC_JOG, Counts::Nothing, Counts::Axes, true, -kAny, kAny},
    {G_NC_JOG_STEP, Counts::Nothing, Counts::Axes, true, -kAny, kAny},
};

struct String {
    int32_t string;
    Counts number;
    bool writable = false;
};

constexpr String kStrings[] = {
    {G_NC_PROGRAM_NAME, Counts::Nothing, true},
    {G_NC_PROGRAM_LINE, Counts::Lines},
    {G_NC_MANUAL_BLOCK, Counts::Nothing, true},
    {G_NC_ALARM_TEXT, Counts::Alarms},
    {G_NC_AXIS_NAME, Counts::Axes},
    {G_NC_CONTROL_NAME, Counts::Nothing},
};

struct SystemValue {
    int32_t number;
    bool writable = false;
    int32_t most = 1; ///< of a value that is written; the least is 0
};

constexpr SystemValue kSystemValues[] = {
    {G_NC_SYSTEM_MODE, true, G_NC_MODE_MDI},
    {G_NC_SYSTEM_STATE},
    {G_NC_SYSTEM_COMMAND, true, G_NC_COMMAND_CLEAR_ALARM},
    {G_NC_SYSTEM_EMERGENCY, true},
    {G_NC_SYSTEM_POWER, true},
    {G_NC_SYSTEM_SINGLE_BLOCK, true},
    {G_NC_SYSTEM_OPTIONAL_STOP, true},
    {G_NC_SYSTEM_BLOCK_SKIP, true},
    {G_NC_SYSTEM_DRY_RUN, true},
    {G_NC_SYSTEM_COOLANT, true, 3},
    {G_NC_SYSTEM_HOMED},
    {G_NC_SYSTEM_LIMITS},
    {G_NC_SYSTEM_ALARMS},
    {G_NC_SYSTEM_AXES},
    {G_NC_SYSTEM_CHANNELS},
    {G_NC_SYSTEM_UNITS},
    {G_NC_SYSTEM_LINES},
};

/// The entry of a table that has a number in a member, or null.
template <typename Entry, size_t N>
const Entry* find(const Entry (&table)[N], int32_t Entry::*member, int32_t number) {
    const auto* const entry =
        std::find_if(std::begin(table), std::end(table),
                     [&](const Entry& candidate) { return candidate.*member == number; });
    return entry != std::end(table) ? entry : nullptr;
}

bool isChannel(int32_t channel) {
    return channel >= 1 && channel <= GPI_NC_CHANNELS;
}

/// The area of an address, or null where there is no such address.
const Area* areaOf(const Extent& extent, int32_t channel, const ValueAddress& address) {
    const Area* const area = find(kAreas, &Area::area, address.area);
    return area != nullptr && isChannel(channel) &&
                   contains(area->number, address.number, extent) &&
                   contains(area->index, address.index, extent)
               ? area
               : nullptr;
}

const String* stringOf(const Extent& extent, int32_t channel, int32_t string, int32_t number) {
    const String* const entry = find(kStrings, &String::string, string);
    return entry != nullptr && isChannel(channel) && contains(entry->number, number, extent)
               ? entry
               : nullptr;
}

bool isAllowed(const Area& area, const Extent& extent, double value) {
    switch (area.area) {
    case G_NC_MACRO:
        return !std::isinf(value); // not a number unsets it
    case G_NC_JOG:
        return std::abs(value) <= extent.mostFeed;
    case G_NC_JOG_STEP:
        return std::abs(value) <= extent.mostTravel;
    default:
        return value >= area.least && value <= area.most;
    }
}

} // namespace

int32_t checkRead(const Extent& extent, int32_t channel, const ValueAddress& address) {
    return areaOf(extent, channel, address) != nullptr ? kDone : G_NC_UNKNOWN;
}

int32_t checkWrite(const Extent& extent, int32_t channel, const ValueAddress& address,
                   double value) {
    const Area* const area = areaOf(extent, channel, address);
    if (area == nullptr) {
        return G_NC_UNKNOWN;
    }
    if (!area->writable) {
        return G_NC_READ_ONLY;
    }
    return isAllowed(*area, extent, value) ? kDone : G_NC_RANGE;
}

int32_t checkTextRead(const Extent& extent, int32_t channel, int32_t string, int32_t number) {
    return stringOf(extent, channel, string, number) != nullptr ? kDone : G_NC_UNKNOWN;
}

int32_t checkTextWrite(const Extent& extent, int32_t channel, int32_t string, int32_t number) {
    const String* const entry = stringOf(extent, channel, string, number);
    if (entry == nullptr) {
        return G_NC_UNKNOWN;
    }
    return entry->writable ? kDone : G_NC_READ_ONLY;
}

int32_t checkSystemRead(int32_t number) {
    return find(kSystemValues, &SystemValue::number, number) != nullptr ? kDone : G_NC_UNKNOWN;
}

int32_t checkSystemWrite(int32_t number, int32_t value) {
    const SystemValue* const entry = find(kSystemValues, &SystemValue::number, number);
    if (entry == nullptr) {
        return G_NC_UNKNOWN;
    }
    if (!entry->writable) {
        return G_NC_READ_ONLY;
    }
    return value >= 0 && value <= entry->most ? kDone : G_NC_RANGE;
}

} // namespace gpi::nc
