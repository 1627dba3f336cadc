#include "nc/helper/helper_controller.h"

#include "report.h"

#include <gpi/nc.h>

#include <poll.h>
#include <sys/eventfd.h>

#include <array>
#include <charconv>

namespace gpi::nc {
namespace {

/// A number as helpers write and read it: nothing is lost.
std::string written(double value) {
    std::array<char, 32> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return {digits.data(), end};
}

std::string written(int32_t value) {
    return std::to_string(value);
}

} // namespace

HelperController::HelperController(std::filesystem::path program, Times times)
    : program_(std::move(program)),
      times_(times),
      stop_(eventfd(0, EFD_CLOEXEC)),
      listener_([this] { listen(); }) {}

HelperController::~HelperController() {
    eventfd_write(stop_.get(), 1);
    listener_.join();
}

/// The listener's life: one helper after the other.
void HelperController::listen() {
    bool first = true;
    while (first || pause()) {
        first = false;
        LineChannel channel(program_);
        {
            const std::lock_guard lock(mutex_);
            channel_ = &channel;
        }
        const bool ended = listenTo(channel);
        const std::lock_guard lock(mutex_);
        channel_ = nullptr;
        if (ended) {
            lose("its helper has ended");
        }
    }
}

/// @return false when it is time to end
bool HelperController::pause() {
    pollfd waiting{stop_.get(), POLLIN, 0};
    return poll(&waiting, 1, static_cast<int>(times_.restart.count())) == 0;
}

/// @return whether the helper has ended, rather than the platform
bool HelperController::listenTo(LineChannel& channel) {
    constexpr auto kLong = std::chrono::hours(1);
    ReportReader reader;
    std::string_view line;
    for (;;) {
        switch (channel.receive(line, kLong, stop_.get())) {
        case LineChannel::Event::Nothing:
            break;
        case LineChannel::Event::Broken:
            return true;
        case LineChannel::Event::Cancelled:
            return false;
        case LineChannel::Event::Line: {
            const ReportReader::Report report = reader.read(line);
            const std::lock_guard lock(mutex_);
            if (!take(report, reader.picture())) {
                return true;
            }
            break;
        }
        }
    }
}

/// @return false when the helper makes no sense
bool HelperController::take(const ReportReader::Report& report, const Picture& picture) {
    switch (report.kind) {
    case ReportReader::Kind::Part:
        return true;
    case ReportReader::Kind::Show:
        if (picture.extent.axes == 0) {
            return false;
        }
        picture_ = picture;
        online_ = true;
        complained_ = false;
        return true;
    case ReportReader::Kind::Alarm:
        alarms_.raise(report.number, std::string(report.text));
        return true;
    case ReportReader::Kind::Reply:
        if (const auto waiting = replies_.find(report.number); waiting != replies_.end()) {
            waiting->second =
                report.result == 0 ? static_cast<int32_t>(G_NC_REFUSED) : report.result;
            replied_.notify_all();
        }
        return true;
    case ReportReader::Kind::Lost:
        lose(report.text);
        return true;
    case ReportReader::Kind::Nonsense:
        return false;
    }
    return false;
}

/// Tells those who wait, and the user, that the control is gone.
void HelperController::lose(std::string_view reason) {
    for (auto& [number, result] : replies_) {
        result = result == 0 ? static_cast<int32_t>(G_NC_OFFLINE) : result;
    }
    replied_.notify_all();
    picture_ = {};
    const std::string text = "the control does not answer: " + std::string(reason);
    if (std::exchange(online_, false)) {
        alarms_.raise(GPI_NC_ALARM_CONTROL_LOST, text);
    }
    if (!std::exchange(complained_, true)) {
        gpi::report(text);
    }
}

/// Sends a request and waits for its reply, no longer than agreed.
int32_t HelperController::request(const std::string& what) {
    std::unique_lock lock(mutex_);
    if (!online_ || channel_ == nullptr) {
        return G_NC_OFFLINE;
    }
    lastRequest_ = lastRequest_ % INT32_MAX + 1;
    const int32_t number = lastRequest_;
    if (!channel_->send(written(number) + ' ' + what)) {
        return G_NC_OFFLINE;
    }
    int32_t& result = replies_[number];
    const bool answered = replied_.wait_for(lock, times_.reply, [&result] { return result != 0; });
    const int32_t outcome = answered ? result : static_cast<int32_t>(G_NC_OFFLINE);
    replies_.erase(number);
    return outcome;
}

Extent HelperController::extent() const {
    const std::lock_guard lock(mutex_);
    // Before anything is known every address may be one: the control says so when it is there.
    return online_ ? picture_.extent : Extent{9, 8, 99'999, 1e9, true, 1e9};
}

int32_t HelperController::setValue(const ValueAddress& address, double value) {
    return request("value " + written(address.area) + ' ' + written(address.number) + ' ' +
                   written(address.index) + ' ' + written(value));
}

int32_t HelperController::getValue(const ValueAddress& address, double& value) {
    const std::lock_guard lock(mutex_);
    if (address.area == G_NC_ALARM) {
        const Alarm* const alarm = alarms_.at(address.number);
        value = alarm != nullptr ? alarm->number : value;
        return alarm != nullptr ? kDone : G_NC_UNKNOWN;
    }
    if (!online_) {
        return G_NC_OFFLINE;
    }
    const auto entry = picture_.values.find({address.area, address.number, address.index});
    if (entry == picture_.values.end()) {
        return G_NC_UNKNOWN;
    }
    value = entry->second;
    return kDone;
}

int32_t HelperController::choose(std::shared_ptr<const Program> program) {
    const std::string path = program->path().string();
    if (path.find('\n') != std::string::npos) {
        return G_NC_RANGE;
    }
    const int32_t result = request("program " + path);
    if (result == kDone) {
        const std::lock_guard lock(mutex_);
        chosen_ = std::move(program);
    }
    return result;
}

int32_t HelperController::runBlock(const std::string& block) {
    return request("block " + block);
}

/// Whether the control's program is the one that was chosen here.
bool HelperController::showsOurProgram() const {
    const auto name = picture_.texts.find({G_NC_PROGRAM_NAME, 0});
    return chosen_ != nullptr && name != picture_.texts.end() && name->second == chosen_->path();
}

int32_t HelperController::getText(int32_t string, int32_t number, std::string& text) {
    const std::lock_guard lock(mutex_);
    if (string == G_NC_ALARM_TEXT) {
        const Alarm* const alarm = alarms_.at(number);
        text = alarm != nullptr ? alarm->text : text;
        return alarm != nullptr ? kDone : G_NC_UNKNOWN;
    }
    if (!online_) {
        return G_NC_OFFLINE;
    }
    if (string == G_NC_PROGRAM_NAME && showsOurProgram()) {
        text = chosen_->name();
        return kDone;
    }
    if (string == G_NC_PROGRAM_LINE) {
        const auto running = picture_.values.find({G_NC_LINE, 0, 0});
        const bool runs = running != picture_.values.end();
        const auto line = number != 0 ? number : runs ? static_cast<int32_t>(running->second) : 0;
        const bool known = showsOurProgram() && line >= 1 && line <= chosen_->lineCount();
        text = known ? chosen_->line(line) : "";
        return known || number == 0 ? kDone : G_NC_UNKNOWN;
    }
    const auto entry = picture_.texts.find({string, number});
    if (entry == picture_.texts.end()) {
        return G_NC_UNKNOWN;
    }
    text = entry->second;
    return kDone;
}

int32_t HelperController::setSystem(int32_t number, int32_t value) {
    if (number == G_NC_SYSTEM_COMMAND && value == G_NC_COMMAND_CLEAR_ALARM) {
        const std::lock_guard lock(mutex_);
        alarms_.clearNewest();
        return kDone;
    }
    const int32_t result = request("system " + written(number) + ' ' + written(value));
    if (number == G_NC_SYSTEM_COMMAND && value == G_NC_COMMAND_RESET && result == kDone) {
        const std::lock_guard lock(mutex_);
        alarms_.clear();
    }
    return result;
}

int32_t HelperController::getSystem(int32_t number, int32_t& value) {
    const std::lock_guard lock(mutex_);
    if (number == G_NC_SYSTEM_ALARMS) {
        value = alarms_.count();
        return kDone;
    }
    if (!online_) {
        return G_NC_OFFLINE;
    }
    if (number == G_NC_SYSTEM_LINES && showsOurProgram()) {
        value = chosen_->lineCount();
        return kDone;
    }
    const auto entry = picture_.system.find(number);
    if (entry == picture_.system.end()) {
        return G_NC_UNKNOWN;
    }
    value = entry->second;
    return kDone;
}

} // namespace gpi::nc
