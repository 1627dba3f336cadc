#include "nc/sim/program_run.h"

namespace gpi::nc {
namespace {

// Lines without a block that are passed over in a tick.
constexpr int kMostIdleLines = 1000;

} // namespace

void ProgramRun::begin(std::shared_ptr<const Program> program, const Point3& place) {
    drop();
    path_.place(place);
    interpreter_.reset();
    interpreter_.moveTo(place);
    orders_.push_back({ShiftZero{interpreter_.zero()}, 0});
    program_ = std::move(program);
    nextLine_ = 1;
}

bool ProgramRun::begin(const std::string& block, const Point3& place, Switches& switches,
                       Alarms& alarms) {
    drop();
    path_.place(place);
    interpreter_.moveTo(place);
    interpreter_.read(block, 0, false, orders_);
    if (orders_.empty() || !std::holds_alternative<Fault>(orders_.back().what)) {
        return true;
    }
    perform(orders_.back(), {}, switches, alarms);
    drop();
    interpreter_.moveTo(place);
    return false;
}

void ProgramRun::drop() {
    orders_.clear();
    path_.clear();
    program_.reset();
    dwelt_ = 0.0;
    lineRunning_ = 0;
    nextLine_ = 1;
    interpreter_.moveTo(path_.position());
}

/// Reads lines while there is room for their orders. @return whether something is left to do
bool ProgramRun::readAhead(const RunOptions& options) {
    const size_t room = options.singleBlock ? 1 : Path::kLookAhead;
    for (int line = 0; line < kMostIdleLines && orders_.size() + path_.size() < room &&
                       program_ != nullptr && nextLine_ <= program_->lineCount();
         ++line) {
        if (!orders_.empty() && std::holds_alternative<Fault>(orders_.back().what)) {
            break;
        }
        interpreter_.read(program_->line(nextLine_), nextLine_, options.blockSkip, orders_);
        ++nextLine_;
    }
    const bool unread = program_ != nullptr && nextLine_ <= program_->lineCount();
    return unread || !orders_.empty() || !path_.empty();
}

/// Hands moves that follow each other without an order between them to the path.
void ProgramRun::feedPath() {
    while (!orders_.empty() && path_.size() < Path::kLookAhead) {
        const auto* const segment = std::get_if<Segment>(&orders_.front().what);
        if (segment == nullptr) {
            return;
        }
        path_.add(*segment);
        orders_.pop_front();
    }
}

ProgramRun::End ProgramRun::advance(const Pace& pace, const RunOptions& options, Switches& switches,
                                    Alarms& alarms) {
    if (!readAhead(options)) {
        return End::Ended;
    }
    feedPath();
    bool blockEnded = false;
    if (!path_.empty()) {
        lineRunning_ = path_.current().line;
        blockEnded = path_.advance(pace);
        if (pace.hold && path_.speed() == 0.0) {
            return End::Held;
        }
    } else if (pace.hold) {
        return End::Held;
    } else if (!orders_.empty()) {
        const Order& order = orders_.front();
        lineRunning_ = order.line;
        if (stillDwells(order)) {
            return End::None;
        }
        const End end = perform(order, options, switches, alarms);
        blockEnded = order.endsBlock;
        orders_.pop_front();
        if (end != End::None) {
            return end;
        }
    }
    return blockEnded && pace.stopAtBlockEnd ? End::Held : End::None;
}

/// Whether an order is a dwell that has not lasted long enough.
bool ProgramRun::stillDwells(const Order& order) {
    const auto* const dwell = std::get_if<Dwell>(&order.what);
    if (dwell == nullptr) {
        return false;
    }
    dwelt_ += kTick;
    if (dwelt_ < dwell->seconds) {
        return true;
    }
    dwelt_ = 0.0;
    return false;
}

namespace {

/// One function for each kind of order.
struct Performer {
    const RunOptions& options;
    Switches& switches;
    Alarms& alarms;
    using End = ProgramRun::End;

    End operator()(const NoOrder& /*order*/) const { return End::None; }
    End operator()(const Segment& /*order*/) const { return End::None; } // the path's
    End operator()(const Dwell& /*order*/) const { return End::None; }
    End operator()(const TurnSpindle& order) const {
        switches.spindle = options.dryRun ? 0.0 : order.speed;
        return End::None;
    }
    End operator()(const SwitchCoolant& order) const {
        switches.coolant = options.dryRun ? 0 : order.bits;
        return End::None;
    }
    End operator()(const ShiftZero& order) const {
        switches.zero = order.zero;
        return End::None;
    }
    End operator()(const PrepareTool& order) const {
        switches.tools[1] = order.tool;
        return End::None;
    }
    End operator()(const ChangeTool& /*order*/) const {
        switches.tools[0] = switches.tools[1];
        return End::None;
    }
    End operator()(const ProgramStop& order) const {
        return order.optional && !options.optionalStop ? End::None : End::Held;
    }
    End operator()(const ProgramEnd& /*order*/) const {
        switches.spindle = 0.0;
        switches.coolant = 0;
        return End::Ended;
    }
    End operator()(const Fault& order) const {
        alarms.raise(order.alarm, order.text);
        return End::Faulted;
    }
};

} // namespace

ProgramRun::End ProgramRun::perform(const Order& order, const RunOptions& options,
                                    Switches& switches, Alarms& alarms) {
    return std::visit(Performer{options, switches, alarms}, order.what);
}

} // namespace gpi::nc
