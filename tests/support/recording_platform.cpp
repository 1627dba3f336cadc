#include "support/recording_platform.h"

#include "platform/service_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <set>

namespace quarlo::test {

namespace {

RecordingPlatform* theOne = nullptr;

/// What stands behind a service number: records the call, then answers it.
template <int Number, typename Signature>
struct Recorder;

template <int Number, typename R, typename... Args>
struct Recorder<Number, R(Args...)> {
    static R service(Args... args) {
        RecordingPlatform& platform = RecordingPlatform::current();
        platform.record(call(Number, args...));
        if (const auto* const function = platform.functionOf<R(Args...)>(Number)) {
            return (*function)(args...);
        }
        return fromWord<R>(platform.answerOf(Number, std::is_pointer_v<R> ? 0 : 1));
    }
};

using ServiceFunctions = std::array<GPIFunction, RecordingPlatform::kLastService + 1>;

ServiceFunctions recorders() {
    ServiceFunctions functions{};
    Services::forEach([&]<typename Offer>(Offer) {
        functions[Offer::kNumber] = reinterpret_cast<GPIFunction>(
            &Recorder<Offer::kNumber, typename Offer::Signature>::service);
    });
    return functions;
}

GPIFunction recorderOf(int service) {
    static const ServiceFunctions functions = recorders();
    return functions.at(static_cast<size_t>(service));
}

bool isOperation(int service) {
    static const std::set<int> operations = {5, 6, 7, 43, 67, 68, 70};
    return operations.contains(service);
}

} // namespace

std::ostream& operator<<(std::ostream& out, const ServiceCall& call) {
    out << "service " << call.service << " (";
    const char* separator = "";
    for (const int64_t argument : call.arguments) {
        out << separator << argument;
        separator = ", ";
    }
    return out << ')';
}

RecordingPlatform::RecordingPlatform() {
    EXPECT_EQ(theOne, nullptr) << "one platform at a time";
    theOne = this;
    for (int service = 0; service <= kLastService; ++service) {
        restore(service);
    }
    serveMemory();
    serveDisplay();
    serveOperations();
    serveEvents();
    GetGPIFunction();
    forget();
}

RecordingPlatform::~RecordingPlatform() {
    EXPECT_EQ(blocksInUse(), 0U) << bytesInUse() << " bytes were not freed";
    unbind();
    theOne = nullptr;
}

RecordingPlatform& RecordingPlatform::current() {
    return *theOne;
}

void RecordingPlatform::serveEvents() {
    answer(124, 0); // no message waits
    serve<27>([this](const GSystemTime* time) {
        clock = int64_t{time->high} << 32 | time->low;
        return 1;
    });
    serve<28>([this](GSystemTime* time) {
        *time = {static_cast<uint32_t>(clock), static_cast<int32_t>(clock >> 32)};
        return 1;
    });
}

void RecordingPlatform::unbind() {
    serviceTable.slots.fill(nullptr);
}

void RecordingPlatform::remove(std::initializer_list<int> services) {
    for (const int service : services) {
        offered_.at(static_cast<size_t>(service)) = false;
        serviceTable.slots.at(slotOf(service)) = nullptr;
    }
}

void RecordingPlatform::restore(int service) {
    offered_.at(static_cast<size_t>(service)) = recorderOf(service) != nullptr;
}

bool RecordingPlatform::offers(int service) const {
    return service >= 0 && service <= kLastService && offered_[static_cast<size_t>(service)];
}

std::vector<ServiceCall> RecordingPlatform::callsOf(int service) const {
    std::vector<ServiceCall> found;
    std::copy_if(calls.begin(), calls.end(), std::back_inserter(found),
                 [=](const ServiceCall& call) { return call.service == service; });
    return found;
}

void RecordingPlatform::forget() {
    calls.clear();
    requests.clear();
}

void RecordingPlatform::record(ServiceCall call) {
    if (recordOperations_ || !isOperation(call.service)) {
        calls.push_back(std::move(call));
    }
}

int64_t RecordingPlatform::answerOf(int service, int64_t otherwise) const {
    const auto found = answers_.find(service);
    return found != answers_.end() ? found->second : otherwise;
}

GPIFunction RecordingPlatform::request(int service) {
    requests.push_back(service);
    return offers(service) ? recorderOf(service) : nullptr;
}

} // namespace quarlo::test
