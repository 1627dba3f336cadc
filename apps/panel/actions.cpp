#include "actions.h"

#include <gpi/keys.h>

#include <algorithm>
#include <iterator>

namespace panel {
namespace {

constexpr KeyBinding kBindings[] = {
    {'S', Action::CycleStart, u"S", u"StartMeaning"},
    {'H', Action::FeedHold, u"H", u"HoldMeaning"},
    {'B', Action::SingleBlock, u"B", u"SingleMeaning"},
    {'R', Action::Reset, u"R", u"Reset"},
    {GPI_KEY_PAUSE, Action::EmergencyStop, u"Pause", u"EmergencyStop"},
    {'P', Action::PowerUp, u"P", u"PowerMeaning"},
    {'N', Action::Home, u"N", u"TakeReference"},
    {'M', Action::ManualMode, u"M", u"ManualMeaning"},
    {'A', Action::AutoMode, u"A", u"AutoMeaning"},
    {'X', Action::NextAxis, u"X", u"AxisMeaning"},
    {GPI_KEY_PAD_ADD, Action::JogPlus, u"Pad +", u"JogPlusMeaning"},
    {GPI_KEY_PAD_SUBTRACT, Action::JogMinus, u"Pad -", u"JogMinusMeaning"},
    {'J', Action::JogStep, u"J", u"StepMeaning"},
    {GPI_KEY_EQUALS, Action::FeedUp, u"+", u"FeedUp"},
    {GPI_KEY_MINUS, Action::FeedDown, u"-", u"FeedDown"},
    {GPI_KEY_RIGHT_BRACKET, Action::SpindleUp, u"]", u"SpindleUp"},
    {GPI_KEY_LEFT_BRACKET, Action::SpindleDown, u"[", u"SpindleDown"},
    {GPI_KEY_SLASH, Action::BlockSkip, u"/", u"SkipMeaning"},
    {'O', Action::OptionalStop, u"O", u"OptionalStopMeaning"},
    {'D', Action::DryRun, u"D", u"DryRunMeaning"},
    {'Z', Action::ZeroRelative, u"Z", u"ZeroMeaning"},
    {'F', Action::ShowDamage, u"F", u"DamageMeaning"},
    {GPI_KEY_TAB, Action::SwitchKeys, u"Tab", u"SwitchKeys"},
    {GPI_KEY_ESCAPE, Action::ShowStart, u"Esc", u"ShowStart"},
    {GPI_KEY_HELP, Action::ShowHelp, u"Help", u"ShowHelp"},
    {'Q', Action::Quit, u"Q", u"Quit"},
};

} // namespace

const KeyBinding* bindingOf(int32_t key) {
    const auto* const found =
        std::find_if(std::begin(kBindings), std::end(kBindings),
                     [key](const KeyBinding& binding) { return binding.key == key; });
    return found != std::end(kBindings) ? found : nullptr;
}

KeyBindings keyBindings() {
    return {std::begin(kBindings), std::size(kBindings)};
}

} // namespace panel
