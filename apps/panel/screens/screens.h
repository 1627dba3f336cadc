// The screens of the panel.
#pragma once

#include "screens/screen.h"

#include <memory>

namespace panel {

std::unique_ptr<Screen> makeStartScreen(Context& context);
std::unique_ptr<Screen> makePositionScreen(Context& context);
std::unique_ptr<Screen> makeProgramScreen(Context& context);
std::unique_ptr<Screen> makeGraphicScreen(Context& context);
std::unique_ptr<Screen> makeOffsetsScreen(Context& context);
std::unique_ptr<Screen> makeManualScreen(Context& context);
std::unique_ptr<Screen> makeAlarmsScreen(Context& context);
std::unique_ptr<Screen> makeDiagnosisScreen(Context& context);
std::unique_ptr<Screen> makeSettingsScreen(Context& context);
std::unique_ptr<Screen> makeHelpScreen(Context& context);
/// Null where the machine builder has none.
std::unique_ptr<Screen> makeServiceScreen(Context& context);

/// The screen that an action shows; null where there is none.
std::unique_ptr<Screen> makeScreen(Action action, Context& context);

} // namespace panel
