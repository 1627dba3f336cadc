// What the panel does when a key asks for it.
#include "panel.h"

#include "settings.h"

#include <utility>

namespace panel {
namespace {

// Numbers of overrides.
constexpr int32_t kFeed = 0;
constexpr int32_t kSpindle = 2;

} // namespace

void Panel::act(Action action) {
    OrderQueue& orders = context_.orders;
    if (action == held_ || screen_->act(action)) {
        return; // nothing, a key that repeats, or the screen's own
    }
    switch (action) {
    case Action::SwitchKeys:
        showKeys(!showsFunctions_);
        break;
    case Action::CycleStart:
        orders.give(startCycle(context_.now));
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
        orders.give({turnOver(G_NC_SYSTEM_SINGLE_BLOCK)});
        break;
    case Action::BlockSkip:
        orders.give({turnOver(G_NC_SYSTEM_BLOCK_SKIP)});
        break;
    case Action::OptionalStop:
        orders.give({turnOver(G_NC_SYSTEM_OPTIONAL_STOP)});
        break;
    case Action::DryRun:
        orders.give({turnOver(G_NC_SYSTEM_DRY_RUN)});
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
        orders.give({stepOverride(kFeed, true)});
        break;
    case Action::FeedDown:
        orders.give({stepOverride(kFeed, false)});
        break;
    case Action::SpindleUp:
        orders.give({stepOverride(kSpindle, true)});
        break;
    case Action::SpindleDown:
        orders.give({stepOverride(kSpindle, false)});
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
        return now.online && now.state == G_NC_STATE_RUNNING && now.mode != G_NC_MODE_MANUAL;
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

} // namespace panel
