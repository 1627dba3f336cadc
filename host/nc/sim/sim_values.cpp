// The simulated control's addresses.
#include "nc/sim/sim_controller.h"

namespace gpi::nc {
namespace {

constexpr const char* kAxisNames[kAxes] = {"X", "Y", "Z"};

double secondsOf(int64_t ticks) {
    return static_cast<double>(ticks) * kTick;
}

} // namespace

int32_t SimController::getValue(const ValueAddress& address, double& value) {
    const std::lock_guard lock(mutex_);
    catchUp();
    const auto number = static_cast<size_t>(address.number);
    const auto index = static_cast<size_t>(address.index);
    switch (address.area) {
    case G_NC_MACHINE_POSITION:
        value = place_[index];
        break;
    case G_NC_WORK_POSITION:
        value = place_[index] - switches_.zero[index];
        break;
    case G_NC_DISTANCE_TO_GO:
        value = distanceToGo(index);
        break;
    case G_NC_FOLLOWING_ERROR:
        value = velocity(index) / kServoGain;
        break;
    case G_NC_FEED:
        value = index == 0 ? actualFeed() : run_.interpreter().feed();
        break;
    case G_NC_SPINDLE:
        value = index == 0 ? spindle_ : switches_.spindle;
        break;
    case G_NC_OVERRIDE:
        value = overrides_[number];
        break;
    case G_NC_TOOL:
        value = switches_.tools[number];
        break;
    case G_NC_TOOL_OFFSET:
        value = offsets_.tools[number].sizes[index];
        break;
    case G_NC_WORK_OFFSET:
        value = offsets_.work[number][index];
        break;
    case G_NC_LIMIT:
        value = number == 0 ? kLowerLimit[index] : kUpperLimit[index];
        break;
    case G_NC_MODAL:
        value = run_.interpreter().modal(address.number);
        break;
    case G_NC_LINE:
        value = number == 0 ? run_.lineRunning() : run_.lineRead();
        break;
    case G_NC_TIME:
        value = secondsOf(number == 0 ? runTicks_ : allTicks_);
        break;
    case G_NC_ALARM:
        if (const Alarm* const alarm = alarms_.at(address.number)) {
            value = alarm->number;
            break;
        }
        return G_NC_UNKNOWN;
    case G_NC_MACRO:
        value = macros_.get(address.number);
        break;
    case G_NC_JOG:
        value = axes_[index].moving() ? jogFeeds_[index] : 0.0;
        break;
    case G_NC_JOG_STEP:
        value = task_ == Task::Jog ? distanceToGo(index) : 0.0;
        break;
    default:
        return G_NC_UNKNOWN;
    }
    return kDone;
}

int32_t SimController::setValue(const ValueAddress& address, double value) {
    const std::lock_guard lock(mutex_);
    catchUp();
    const auto number = static_cast<size_t>(address.number);
    const auto index = static_cast<size_t>(address.index);
    switch (address.area) {
    case G_NC_OVERRIDE:
        overrides_[number] = value;
        return kDone;
    case G_NC_TOOL_OFFSET:
    case G_NC_WORK_OFFSET:
        if (task_ != Task::None) {
            return G_NC_MODE; // blocks that were read ahead count on it
        }
        (address.area == G_NC_TOOL_OFFSET ? offsets_.tools[number].sizes[index]
                                          : offsets_.work[number][index]) = value;
        switches_.zero = run_.interpreter().zero();
        return kDone;
    case G_NC_MACRO:
        macros_.set(address.number, value);
        return kDone;
    case G_NC_JOG:
        return jog(index, value);
    case G_NC_JOG_STEP:
        return jogStep(index, value);
    default:
        return G_NC_UNKNOWN;
    }
}

int32_t SimController::getText(int32_t string, int32_t number, std::string& text) {
    const std::lock_guard lock(mutex_);
    catchUp();
    switch (string) {
    case G_NC_PROGRAM_NAME:
        text = program_ != nullptr ? program_->name() : "";
        return kDone;
    case G_NC_PROGRAM_LINE: {
        const int32_t line = number == 0 ? run_.lineRunning() : number;
        if (number != 0 && (program_ == nullptr || line > program_->lineCount())) {
            return G_NC_UNKNOWN;
        }
        text = line != 0 && program_ != nullptr ? program_->line(line) : "";
        return kDone;
    }
    case G_NC_MANUAL_BLOCK:
        text = block_;
        return kDone;
    case G_NC_ALARM_TEXT:
        if (const Alarm* const alarm = alarms_.at(number)) {
            text = alarm->text;
            return kDone;
        }
        return G_NC_UNKNOWN;
    case G_NC_AXIS_NAME:
        text = kAxisNames[number];
        return kDone;
    case G_NC_CONTROL_NAME:
        text = "quarlo sim 1";
        return kDone;
    default:
        return G_NC_UNKNOWN;
    }
}

int32_t SimController::setSystem(int32_t number, int32_t value) {
    const std::lock_guard lock(mutex_);
    catchUp();
    switch (number) {
    case G_NC_SYSTEM_MODE:
        return setMode(value);
    case G_NC_SYSTEM_COMMAND: {
        const int32_t result = command(value);
        if (result == kDone) {
            lastCommand_ = value;
        }
        return result;
    }
    case G_NC_SYSTEM_EMERGENCY:
        emergency_ = value != 0;
        if (emergency_) {
            halt();
        }
        return kDone;
    case G_NC_SYSTEM_POWER:
        return setPower(value != 0);
    case G_NC_SYSTEM_SINGLE_BLOCK:
        options_.singleBlock = value != 0;
        return kDone;
    case G_NC_SYSTEM_OPTIONAL_STOP:
        options_.optionalStop = value != 0;
        return kDone;
    case G_NC_SYSTEM_BLOCK_SKIP:
        options_.blockSkip = value != 0;
        return kDone;
    case G_NC_SYSTEM_DRY_RUN:
        if (task_ != Task::None) {
            return G_NC_MODE;
        }
        options_.dryRun = value != 0;
        return kDone;
    case G_NC_SYSTEM_COOLANT:
        if (!power_) {
            return G_NC_MODE;
        }
        switches_.coolant = value;
        return kDone;
    default:
        return G_NC_UNKNOWN;
    }
}

int32_t SimController::getSystem(int32_t number, int32_t& value) {
    const std::lock_guard lock(mutex_);
    catchUp();
    switch (number) {
    case G_NC_SYSTEM_MODE:
        value = mode_;
        break;
    case G_NC_SYSTEM_STATE:
        value = state();
        break;
    case G_NC_SYSTEM_COMMAND:
        value = lastCommand_;
        break;
    case G_NC_SYSTEM_EMERGENCY:
        value = emergency_ ? 1 : 0;
        break;
    case G_NC_SYSTEM_POWER:
        value = power_ ? 1 : 0;
        break;
    case G_NC_SYSTEM_SINGLE_BLOCK:
        value = options_.singleBlock ? 1 : 0;
        break;
    case G_NC_SYSTEM_OPTIONAL_STOP:
        value = options_.optionalStop ? 1 : 0;
        break;
    case G_NC_SYSTEM_BLOCK_SKIP:
        value = options_.blockSkip ? 1 : 0;
        break;
    case G_NC_SYSTEM_DRY_RUN:
        value = options_.dryRun ? 1 : 0;
        break;
    case G_NC_SYSTEM_COOLANT:
        value = switches_.coolant;
        break;
    case G_NC_SYSTEM_HOMED:
        value = static_cast<int32_t>(homed_);
        break;
    case G_NC_SYSTEM_LIMITS:
        value = 0;
        for (size_t axis = 0; axis < place_.size(); ++axis) {
            const bool at = place_[axis] <= kLowerLimit[axis] || place_[axis] >= kUpperLimit[axis];
            value |= at ? 1 << axis : 0;
        }
        break;
    case G_NC_SYSTEM_ALARMS:
        value = alarms_.count();
        break;
    case G_NC_SYSTEM_AXES:
        value = kAxes;
        break;
    case G_NC_SYSTEM_CHANNELS:
        value = GPI_NC_CHANNELS;
        break;
    case G_NC_SYSTEM_UNITS:
        value = run_.interpreter().modal(GPI_NC_MODAL_UNITS) == 20.0 ? 1 : 0;
        break;
    case G_NC_SYSTEM_LINES:
        value = program_ != nullptr ? program_->lineCount() : 0;
        break;
    default:
        return G_NC_UNKNOWN;
    }
    return kDone;
}

} // namespace gpi::nc
