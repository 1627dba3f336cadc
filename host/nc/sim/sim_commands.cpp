// The simulated control's commands: what a panel can have it do.
#include "nc/sim/sim_controller.h"

#include <cmath>

namespace gpi::nc {

int32_t SimController::choose(std::shared_ptr<const Program> program) {
    const std::lock_guard lock(mutex_);
    catchUp();
    if (task_ != Task::None) {
        return G_NC_MODE;
    }
    program_ = std::move(program);
    runTicks_ = 0;
    return kDone;
}

int32_t SimController::runBlock(const std::string& block) {
    const std::lock_guard lock(mutex_);
    catchUp();
    if (mode_ != G_NC_MODE_MDI || task_ != Task::None || !ready() || homed_ == 0) {
        return G_NC_MODE;
    }
    block_ = block;
    if (!run_.begin(block, place_, switches_, alarms_)) {
        return G_NC_REFUSED;
    }
    runTicks_ = 0;
    task_ = Task::Block;
    return kDone;
}

int32_t SimController::command(int32_t command) {
    switch (command) {
    case G_NC_COMMAND_NONE:
        return kDone;
    case G_NC_COMMAND_START:
    case G_NC_COMMAND_STEP:
        return start(command == G_NC_COMMAND_STEP);
    case G_NC_COMMAND_HOLD:
        return hold();
    case G_NC_COMMAND_STOP:
        stop();
        return kDone;
    case G_NC_COMMAND_RESET:
        reset();
        return kDone;
    case G_NC_COMMAND_HOME:
        return home();
    default:
        alarms_.clearNewest();
        return kDone;
    }
}

int32_t SimController::start(bool oneBlock) {
    const bool running = task_ == Task::Program || task_ == Task::Block;
    if (!ready() || stopping_ || (task_ != Task::None && !running)) {
        return G_NC_MODE;
    }
    if (!running) {
        if (mode_ != G_NC_MODE_AUTO || program_ == nullptr || homed_ == 0) {
            return G_NC_MODE;
        }
        macros_.forgetLocals();
        run_.begin(program_, place_);
        runTicks_ = 0;
        task_ = Task::Program;
    }
    held_ = holding_ = false;
    oneBlock_ = oneBlock;
    return kDone;
}

int32_t SimController::hold() {
    if (task_ != Task::Program && task_ != Task::Block) {
        return G_NC_MODE;
    }
    holding_ = !held_;
    return kDone;
}

int32_t SimController::home() {
    if (!ready() || mode_ != G_NC_MODE_MANUAL || task_ != Task::None) {
        return G_NC_MODE;
    }
    for (AxisMover& axis : axes_) {
        axis.go(0.0, kHomingSpeed);
    }
    jogFeeds_.fill(0.0);
    task_ = Task::Home;
    return kDone;
}

/// Brakes; what runs has ended when nothing moves any more.
void SimController::stop() {
    if (task_ == Task::None) {
        return;
    }
    if (held_) {
        endTask();
        return;
    }
    stopping_ = true;
    for (AxisMover& axis : axes_) {
        axis.stop();
    }
}

void SimController::reset() {
    stop();
    alarms_.clear();
    switches_.spindle = 0.0;
    switches_.coolant = 0;
    run_.interpreter().reset();
    switches_.zero = run_.interpreter().zero();
}

/// As an emergency stop does it: the brakes of the machine are not simulated.
void SimController::halt() {
    for (AxisMover& axis : axes_) {
        axis.halt();
    }
    endTask();
    switches_.spindle = 0.0;
    switches_.coolant = 0;
    power_ = false;
}

int32_t SimController::mayJog() {
    const bool free = task_ == Task::None || (task_ == Task::Jog && !stopping_);
    return ready() && mode_ == G_NC_MODE_MANUAL && free ? kDone : G_NC_MODE;
}

int32_t SimController::jog(size_t axis, double feed) {
    if (feed == 0.0) {
        if (task_ == Task::Jog) {
            axes_[axis].stop();
            jogFeeds_[axis] = 0.0;
        }
        return kDone;
    }
    const int32_t may = mayJog();
    if (may == kDone) {
        jogFeeds_[axis] = feed;
        jogSpeeds_[axis] = std::abs(feed) / 60.0;
        axes_[axis].go(feed < 0.0 ? kLowerLimit[axis] : kUpperLimit[axis], jogSpeeds_[axis]);
        task_ = Task::Jog;
    }
    return may;
}

int32_t SimController::jogStep(size_t axis, double distance) {
    const double goal = place_[axis] + distance;
    if (goal < kLowerLimit[axis] || goal > kUpperLimit[axis]) {
        return G_NC_RANGE;
    }
    if (axes_[axis].moving()) {
        return G_NC_MODE;
    }
    const int32_t may = mayJog();
    if (may == kDone) {
        jogFeeds_[axis] = 0.0;
        axes_[axis].go(goal, jogSpeeds_[axis]);
        task_ = Task::Jog;
    }
    return may;
}

int32_t SimController::setMode(int32_t mode) {
    if (task_ != Task::None && mode != mode_) {
        return G_NC_MODE;
    }
    mode_ = mode;
    return kDone;
}

int32_t SimController::setPower(bool on) {
    if (on && emergency_) {
        return G_NC_MODE;
    }
    if (!on) {
        halt();
    }
    power_ = on;
    return kDone;
}

} // namespace gpi::nc
