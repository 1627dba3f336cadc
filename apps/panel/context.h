// What the parts of the panel share.
#pragma once

#include "actions.h"
#include "alarm_log.h"
#include "counters.h"
#include "damage.h"
#include "look/painter.h"
#include "machine/order_queue.h"
#include "machine/program_file.h"
#include "machine/snapshot.h"
#include "text/texts.h"

#include <string>
#include <vector>

namespace panel {

/// How far a jog key takes an axis: as long as it is held, or a step.
inline constexpr std::array<double, 4> kJogSteps{0.0, 1.0, 0.1, 0.01};
inline constexpr double kJogFeed = 2000.0; // mm/min

struct Context {
    explicit Context(bool scripted) : orders(scripted) {}

    Painter painter;
    Icons icons{painter.handle()};
    Texts texts;
    Damage damage;
    OrderQueue orders;
    AlarmLog alarms;
    Counters counters;

    Snapshot now;         ///< the machine
    ProgramFile program;  ///< the one that it has chosen
    Place relativeZero{}; ///< work position that the relative position counts from
    Axis axis = kX;       ///< that jog keys move
    size_t jogStep = 0;   ///< of kJogSteps
    bool showDamage = false;
    GRect work{}; ///< area of the screens

    Word message = nullptr; ///< shown in the message line
    bool messageIsFault = false;
    bool shifted = false; ///< Shift is held

    /// What a screen asks the panel to do next.
    Action asked = Action::None;
    void ask(Action action) { asked = action; }

    /// Tells the operator something, or nothing; replaces what was told before.
    void tell(Word text, bool fault) {
        message = text;
        messageIsFault = fault;
    }
};

} // namespace panel
