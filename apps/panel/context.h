// What the parts of the panel share.
#pragma once

#include "actions.h"
#include "alarm_log.h"
#include "builder/builder_module.h"
#include "counters.h"
#include "damage.h"
#include "look/painter.h"
#include "machine/order_queue.h"
#include "machine/program_file.h"
#include "machine/snapshot.h"
#include "store/program_store.h"
#include "text/texts.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace panel {

/// How far a jog key takes an axis: as long as it is held, or a step.
inline constexpr std::array<double, 4> kJogSteps{0.0, 1.0, 0.1, 0.01};
inline constexpr double kJogFeed = 2000.0; // mm/min

struct Context {
    Context(bool scripted, const std::u16string& webServer)
        : orders(scripted), store(scripted, webServer) {}

    Painter painter;
    Icons icons{painter.handle()};
    Texts texts;
    Damage damage;
    OrderQueue orders;
    ProgramStore store;
    BuilderModule builder;
    AlarmLog alarms;
    Counters counters;

    Snapshot now;             ///< the machine
    ProgramFile program;      ///< the one that it has chosen
    int32_t programsRead = 0; ///< how often one was read: it is another then
    bool programIsStale = false;
    std::optional<StoredProgram> fetches; ///< to be opened when it is on the panel
    Place relativeZero{};                 ///< work position that the relative position counts from
    Axis axis = kX;                       ///< that jog keys move
    size_t jogStep = 0;                   ///< of kJogSteps
    bool showDamage = false;
    GRect work{}; ///< area of the screens

    Word message = nullptr; ///< shown in the message line
    bool messageIsFault = false;
    bool shifted = false; ///< Shift is held

    /// Has the machine choose a program, and reads it: it may have changed.
    void openProgram(std::u16string path) {
        programIsStale = true;
        orders.give(chooseProgram(std::move(path)));
    }

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
