#include "screens/screens.h"

namespace panel {

std::unique_ptr<Screen> makeScreen(Action action, Context& context) {
    switch (action) {
    case Action::ShowStart:
        return makeStartScreen(context);
    case Action::ShowPosition:
        return makePositionScreen(context);
    case Action::ShowProgram:
        return makeProgramScreen(context);
    case Action::ShowGraphic:
        return makeGraphicScreen(context);
    case Action::ShowOffsets:
        return makeOffsetsScreen(context);
    case Action::ShowManual:
        return makeManualScreen(context);
    case Action::ShowAlarms:
        return makeAlarmsScreen(context);
    case Action::ShowDiagnosis:
        return makeDiagnosisScreen(context);
    case Action::ShowSettings:
        return makeSettingsScreen(context);
    case Action::ShowHelp:
        return makeHelpScreen(context);
    case Action::ShowService:
        return makeServiceScreen(context);
    default:
        return nullptr;
    }
}

} // namespace panel
