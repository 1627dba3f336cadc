// What the panel tells the control to do.
#pragma once

#include "machine/snapshot.h"

#include <cstdint>
#include <string>
#include <vector>

namespace panel {

/// One thing that the control is told. What depends on the value that it has by then, a switch that
/// turns over or an override that goes up, is worked out when it is told: keys may come faster.
struct Order {
    enum class Kind : uint8_t { System, Turn, Value, Override, Text };

    Kind kind;
    int32_t item;   ///< system value, area or string
    int32_t number; ///< of a value
    int32_t index;  ///< likewise
    double value;   ///< or by how much it changes
    std::u16string text;
};

/// Orders that belong together: each is given only when those before it were taken.
using Orders = std::vector<Order>;

Order setSystem(int32_t number, int32_t value);
/// Turns a switch on that is off, and off when it is on.
Order turnOver(int32_t number);
/// Moves an override to the next step up or down.
/// @param number 0 feed, 1 rapid, 2 spindle
Order stepOverride(int32_t number, bool up);
Order setValue(int32_t area, int32_t number, int32_t index, double value);
Order setText(int32_t string, std::u16string text);

Orders command(int32_t command);
/// Makes the machine ready to move: out of the emergency stop, and the drives on.
Orders powerUp();
/// Takes the reference of all axes.
Orders home();
Orders chooseProgram(std::u16string path);
/// Begins the chosen program, or goes on with what is held.
Orders startCycle(const Snapshot& now);
/// Runs a block at once.
Orders runBlock(std::u16string block);
/// @param feed millimetres a minute, negative backwards, 0 stops
Orders jog(Axis axis, double feed);
/// Moves an axis by a distance.
Orders jogStep(Axis axis, double distance);

/// Gives orders to the control, which may take a second to answer.
/// @return 1, or why the first that was not taken was refused (nc_data.h)
int32_t carryOut(const Orders& orders);

} // namespace panel
