#include "machine/order.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace panel {
namespace {

constexpr double kOverrideStep = 10.0; // percent
constexpr double kMostOverride = 200.0;

int32_t turn(int32_t number) {
    int32_t on = 0;
    const int32_t result = GNCDataGetSystemVal(number, &on);
    return result == 1 ? GNCDataSetSystemVal(number, on == 0 ? 1 : 0) : result;
}

int32_t changeOverride(int32_t number, double change) {
    double percent = 0.0;
    const int32_t result = GNCDataGetGNCValue(kChannel, G_NC_OVERRIDE, number, 0, &percent);
    if (result != 1) {
        return result;
    }
    percent = std::round(percent / kOverrideStep) * kOverrideStep + change;
    percent = std::clamp(percent, 0.0, kMostOverride);
    return GNCDataSetGNCValue(kChannel, G_NC_OVERRIDE, number, 0, &percent);
}

int32_t carryOut(const Order& order) {
    switch (order.kind) {
    case Order::Kind::System:
        return GNCDataSetSystemVal(order.item, static_cast<int32_t>(order.value));
    case Order::Kind::Turn:
        return turn(order.item);
    case Order::Kind::Value:
        return GNCDataSetGNCValue(kChannel, order.item, order.number, order.index, &order.value);
    case Order::Kind::Override:
        return changeOverride(order.number, order.value);
    case Order::Kind::Text:
        return GNCDataSetString(kChannel, order.item, order.number, order.text.c_str());
    }
    return G_NC_UNKNOWN;
}

} // namespace

Order setSystem(int32_t number, int32_t value) {
    return {Order::Kind::System, number, 0, 0, static_cast<double>(value), {}};
}

Order turnOver(int32_t number) {
    return {Order::Kind::Turn, number, 0, 0, 0.0, {}};
}

Order stepOverride(int32_t number, bool up) {
    return {Order::Kind::Override, 0, number, 0, up ? kOverrideStep : -kOverrideStep, {}};
}

Order setValue(int32_t area, int32_t number, int32_t index, double value) {
    return {Order::Kind::Value, area, number, index, value, {}};
}

Order setText(int32_t string, std::u16string text) {
    return {Order::Kind::Text, string, 0, 0, 0.0, std::move(text)};
}

Orders command(int32_t command) {
    return {setSystem(G_NC_SYSTEM_COMMAND, command)};
}

Orders powerUp() {
    return {setSystem(G_NC_SYSTEM_EMERGENCY, 0), setSystem(G_NC_SYSTEM_POWER, 1)};
}

Orders home() {
    return {setSystem(G_NC_SYSTEM_MODE, G_NC_MODE_MANUAL),
            setSystem(G_NC_SYSTEM_COMMAND, G_NC_COMMAND_HOME)};
}

Orders chooseProgram(std::u16string path) {
    return {setSystem(G_NC_SYSTEM_MODE, G_NC_MODE_AUTO),
            setText(G_NC_PROGRAM_NAME, std::move(path))};
}

Orders startCycle(const Snapshot& now) {
    if (now.state == G_NC_STATE_HELD) {
        return command(G_NC_COMMAND_START);
    }
    return {setSystem(G_NC_SYSTEM_MODE, G_NC_MODE_AUTO),
            setSystem(G_NC_SYSTEM_COMMAND, G_NC_COMMAND_START)};
}

Orders runBlock(std::u16string block) {
    return {setSystem(G_NC_SYSTEM_MODE, G_NC_MODE_MDI),
            setText(G_NC_MANUAL_BLOCK, std::move(block))};
}

Orders jog(Axis axis, double feed) {
    return {setValue(G_NC_JOG, 0, axis, feed)};
}

Orders jogStep(Axis axis, double distance) {
    return {setValue(G_NC_JOG_STEP, 0, axis, distance)};
}

int32_t carryOut(const Orders& orders) {
    for (const Order& order : orders) {
        const int32_t result = carryOut(order);
        if (result != 1) {
            return result;
        }
    }
    return 1;
}

} // namespace panel
