// What the panel does when a key asks for it.
#include "panel.h"

#include "text/format.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace panel {
namespace {

constexpr double kOverrideStep = 10.0; // percent
constexpr double kMostOverride = 200.0;

constexpr char16_t kProfile[] = u"panel.ini";
constexpr char16_t kProfileSection[] = u"Panel";
constexpr char16_t kLanguageKey[] = u"Language";

void keepLanguage(size_t language) {
    const std::u16string number = wholeText(static_cast<double>(language));
    GIOSetPrivateProfileString(kProfileSection, kLanguageKey, number.c_str(), G_PROFILE_USER,
                               kProfile);
}

} // namespace

size_t keptLanguage() {
    const int32_t kept = GIOGetPrivateProfileIntEx(kProfileSection, kLanguageKey, 0, kProfile);
    return kept >= 0 && kept < static_cast<int32_t>(kLanguages.size()) ? static_cast<size_t>(kept)
                                                                       : 0;
}

void Panel::act(Action action) {
    const Snapshot& now = context_.now;
    OrderQueue& orders = context_.orders;
    if (action == held_ || screen_->act(action)) {
        return; // nothing, a key that repeats, or the screen's own
    }
    switch (action) {
    case Action::SwitchKeys:
        showKeys(!showsFunctions_);
        break;
    case Action::CycleStart:
        orders.give(startCycle(now));
        break;
    case Action::FeedHold:
        orders.give(command(G_NC_COMMAND_HOLD));
        break;
    case Action::Reset:
        orders.give(command(G_NC_COMMAND_RESET));
        break;
    case Action::EmergencyStop:
        orders.give({setSystem(G_NC_SYSTEM_EMERGENCY, 1)});
        break;
    case Action::PowerUp:
        orders.give(powerUp());
        break;
    case Action::Home:
        orders.give(home());
        break;
    case Action::ManualMode:
        orders.give({setSystem(G_NC_SYSTEM_MODE, G_NC_MODE_MANUAL)});
        break;
    case Action::AutoMode:
        orders.give({setSystem(G_NC_SYSTEM_MODE, G_NC_MODE_AUTO)});
        break;
    case Action::SingleBlock:
        toggle(G_NC_SYSTEM_SINGLE_BLOCK, now.singleBlock);
        break;
    case Action::BlockSkip:
        toggle(G_NC_SYSTEM_BLOCK_SKIP, now.blockSkip);
        break;
    case Action::OptionalStop:
        toggle(G_NC_SYSTEM_OPTIONAL_STOP, now.optionalStop);
        break;
    case Action::DryRun:
        toggle(G_NC_SYSTEM_DRY_RUN, now.dryRun);
        break;
    case Action::NextAxis:
        context_.axis = static_cast<Axis>((context_.axis + 1) % kAxes);
        break;
    case Action::JogStep:
        context_.jogStep = (context_.jogStep + 1) % kJogSteps.size();
        break;
    case Action::JogPlus:
        held_ = action;
        startJog(1.0);
        break;
    case Action::JogMinus:
        held_ = action;
        startJog(-1.0);
        break;
    case Action::FeedUp:
        changeOverride(0, kOverrideStep);
        break;
    case Action::FeedDown:
        changeOverride(0, -kOverrideStep);
        break;
    case Action::SpindleUp:
        changeOverride(2, kOverrideStep);
        break;
    case Action::SpindleDown:
        changeOverride(2, -kOverrideStep);
        break;
    case Action::ShowDamage:
        context_.showDamage = !context_.showDamage;
        redrawAll();
        break;
    case Action::UseEnglish:
    case Action::UseJapanese:
    case Action::UseChinese:
        choose(static_cast<size_t>(action) - static_cast<size_t>(Action::UseEnglish));
        keepLanguage(context_.texts.language());
        break;
    case Action::Quit:
        GAppExit(0);
        break;
    default:
        open(action);
        break;
    }
}

void Panel::release(Action action) {
    held_ = Action::None;
    const bool jogs = action == Action::JogPlus || action == Action::JogMinus;
    if (jogs && kJogSteps[context_.jogStep] == 0.0) {
        context_.orders.give(jog(context_.axis, 0.0));
    }
}

bool Panel::isOn(Action action) const {
    const Snapshot& now = context_.now;
    switch (action) {
    case Action::CycleStart:
        return now.online && now.state == G_NC_STATE_RUNNING;
    case Action::FeedHold:
        return now.online && now.state == G_NC_STATE_HELD;
    case Action::SingleBlock:
        return now.singleBlock;
    case Action::BlockSkip:
        return now.blockSkip;
    case Action::OptionalStop:
        return now.optionalStop;
    case Action::DryRun:
        return now.dryRun;
    case Action::EmergencyStop:
        return now.emergency;
    case Action::PowerUp:
        return now.power;
    case Action::Home:
        return now.homed;
    case Action::ManualMode:
        return now.mode == G_NC_MODE_MANUAL;
    case Action::AutoMode:
        return now.mode == G_NC_MODE_AUTO;
    case Action::ShowDamage:
        return context_.showDamage;
    default:
        return action == screenAction_ || screen_->isOn(action);
    }
}

void Panel::startJog(double direction) {
    Orders orders;
    if (context_.now.mode != G_NC_MODE_MANUAL) {
        orders.push_back(setSystem(G_NC_SYSTEM_MODE, G_NC_MODE_MANUAL));
    }
    const double step = kJogSteps[context_.jogStep];
    const Orders move = step == 0.0 ? jog(context_.axis, direction * kJogFeed)
                                    : jogStep(context_.axis, direction * step);
    orders.insert(orders.end(), move.begin(), move.end());
    context_.orders.give(std::move(orders));
}

void Panel::changeOverride(int32_t number, double change) {
    const double now = context_.now.overrides[static_cast<size_t>(number)];
    const double next =
        std::clamp(std::round(now / kOverrideStep) * kOverrideStep + change, 0.0, kMostOverride);
    context_.orders.give({setValue(G_NC_OVERRIDE, number, 0, next)});
}

void Panel::toggle(int32_t systemValue, bool on) {
    context_.orders.give({setSystem(systemValue, on ? 0 : 1)});
}

} // namespace panel
