// The simulated control's time: what happens from tick to tick.
#include "nc/sim/sim_controller.h"

#include <algorithm>
#include <cmath>

namespace gpi::nc {

SimController::SimController(Clock clock)
    : clock_(std::move(clock)), now_(clock_()), run_(macros_, offsets_) {
    jogSpeeds_.fill(kUsualJog);
}

Extent SimController::extent() const {
    return {kAxes, 1, kTools, kRapidSpeed * 60.0, true, kUpperLimit[0] - kLowerLimit[0]};
}

/// A machine at rest skips the time; one that moves goes through it.
void SimController::catchUp() {
    const int64_t now = clock_();
    while (now_ < now && busy()) {
        ++now_;
        tick();
    }
    now_ = std::max(now, now_);
}

bool SimController::busy() const {
    const double wish = switches_.spindle * overrides_[2] / 100.0;
    return (task_ != Task::None && !held_) || spindle_ != wish;
}

void SimController::tick() {
    turnSpindle();
    if (held_) {
        return;
    }
    switch (task_) {
    case Task::None:
        break;
    case Task::Program:
    case Task::Block:
        runTick();
        break;
    case Task::Home:
    case Task::Jog:
        moveAxes();
        break;
    }
}

void SimController::turnSpindle() {
    const double wish = switches_.spindle * overrides_[2] / 100.0;
    const double change = kSpindleRamp * kTick;
    spindle_ = std::clamp(wish, spindle_ - change, spindle_ + change);
}

void SimController::runTick() {
    ++runTicks_;
    ++allTicks_;
    Pace pace;
    pace.feed = overrides_[0] / 100.0;
    pace.rapid = overrides_[1] / 100.0;
    pace.hold = holding_ || stopping_;
    pace.stopAtBlockEnd = options_.singleBlock || oneBlock_;
    RunOptions options = options_;
    options.singleBlock = pace.stopAtBlockEnd;
    const auto end = run_.advance(pace, options, switches_, alarms_);
    place_ = run_.path().position();
    switch (end) {
    case ProgramRun::End::None:
        break;
    case ProgramRun::End::Held:
        held_ = true;
        holding_ = false;
        oneBlock_ = false;
        if (stopping_) {
            endTask();
        }
        break;
    case ProgramRun::End::Ended:
    case ProgramRun::End::Faulted:
        endTask();
        break;
    }
}

void SimController::moveAxes() {
    bool moving = false;
    for (size_t axis = 0; axis < axes_.size(); ++axis) {
        axes_[axis].advance(place_[axis]);
        moving = moving || axes_[axis].moving();
    }
    if (!moving) {
        if (task_ == Task::Home && !stopping_) {
            homed_ = (1U << kAxes) - 1;
        }
        endTask();
    }
}

/// Nothing moves any more.
void SimController::endTask() {
    if (task_ == Task::Program || task_ == Task::Block) {
        run_.drop();
    }
    task_ = Task::None;
    held_ = holding_ = oneBlock_ = stopping_ = false;
}

int32_t SimController::state() const {
    if (!power_) {
        return G_NC_STATE_OFF;
    }
    if (task_ != Task::None) {
        return held_ ? G_NC_STATE_HELD : G_NC_STATE_RUNNING;
    }
    return alarms_.any() ? G_NC_STATE_ALARM : G_NC_STATE_IDLE;
}

double SimController::velocity(size_t axis) const {
    return task_ == Task::Home || task_ == Task::Jog ? axes_[axis].velocity()
                                                     : run_.path().velocity()[axis];
}

double SimController::distanceToGo(size_t axis) const {
    if (task_ == Task::Home || task_ == Task::Jog) {
        return axes_[axis].moving() ? axes_[axis].goal() - place_[axis] : 0.0;
    }
    return run_.path().empty() ? 0.0 : run_.path().current().end()[axis] - place_[axis];
}

double SimController::actualFeed() const {
    double square = 0.0;
    for (size_t axis = 0; axis < axes_.size(); ++axis) {
        square += velocity(axis) * velocity(axis);
    }
    return std::sqrt(square) * 60.0;
}

} // namespace gpi::nc
