// Everything that a key can do.
#pragma once

#include "look/icons.h"
#include "text/texts.h"

#include <cstdint>

namespace panel {

enum class Action : uint8_t {
    None,
    // Screens.
    ShowStart,
    ShowPosition,
    ShowProgram,
    ShowGraphic,
    ShowOffsets,
    ShowManual,
    ShowAlarms,
    ShowDiagnosis,
    ShowSettings,
    ShowHelp,
    ShowService,
    SwitchKeys, ///< between the row of screens and the functions of the screen in view
    // The machine.
    CycleStart,
    FeedHold,
    SingleBlock,
    Reset,
    EmergencyStop,
    PowerUp,
    Home,
    ManualMode,
    AutoMode,
    NextAxis,
    JogMinus,
    JogPlus,
    JogStep,
    FeedUp,
    FeedDown,
    SpindleUp,
    SpindleDown,
    BlockSkip,
    OptionalStop,
    DryRun,
    // Single screens.
    ZeroRelative,
    OpenProgram,
    FollowProgram,
    ViewPlan,
    ViewElevation,
    ViewIsometric,
    ZoomIn,
    ZoomOut,
    ZoomFit,
    ClearGraphic,
    WorkOffsets,
    ToolOffsets,
    Macros,
    EditValue,
    UnsetValue,
    RunBlock,
    ClearAlarm,
    ActiveAlarms,
    AlarmHistory,
    ShowDamage,
    ClearCounters,
    UseEnglish,
    UseJapanese,
    UseChinese,
    Quit,
};

/// A key of the soft-key row.
struct SoftKey {
    Action action = Action::None;
    Word label = u"";
    Icon icon = 0;
};

/// A key of the keyboard with an action of its own, on every screen that does not use it.
struct KeyBinding {
    int32_t key; ///< gpi/keys.h
    Action action;
    const char16_t* name; ///< as it stands on the key
    Word meaning;
};

/// The binding of a key, or null.
const KeyBinding* bindingOf(int32_t key);

/// All of them, in the order of the help page.
struct KeyBindings {
    const KeyBinding* first;
    size_t count;
    const KeyBinding* begin() const { return first; }
    const KeyBinding* end() const { return first + count; }
};
KeyBindings keyBindings();

} // namespace panel
