// Every exported function as a call that a program makes with what its panel gives out.
#pragma once

#include "every_call/panel.h"

#include <functional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace quarlo::test {

/// A function of the library and a call of it.
struct ProgramCall {
    std::string function;
    bool needsHandle;
    std::function<void(Panel&)> make;
};

using ProgramCalls = std::vector<ProgramCall>;

ProgramCalls platformCalls();
ProgramCalls geometryCalls();
ProgramCalls handleCalls();
ProgramCalls drawingCalls();
ProgramCalls textCalls();
ProgramCalls memoryCalls();
ProgramCalls eventCalls();
ProgramCalls fileCalls();
ProgramCalls networkCalls();
ProgramCalls machineCalls();

/// All of them.
const ProgramCalls& everyCall();

/// Makes a call, unless it needs a draw handle and there is none.
inline void makeCall(const ProgramCall& call, Panel& panel) {
    if (!call.needsHandle || panel.hasHandle()) {
        panel.startCall();
        call.make(panel);
    }
}

/// Makes every call twice: with a display as it was opened, and with all that the calls have set.
void runEveryCall(RecordingPlatform& platform);

/// An argument of any type. @param usual what a number would be
template <typename Argument>
Argument argumentOf(Panel& panel, int64_t usual) {
    if constexpr (std::is_arithmetic_v<Argument>) {
        return panel.number<Argument>(usual);
    } else if constexpr (std::is_same_v<Argument, GEventMsg>) {
        return panel.event();
    } else if constexpr (std::is_class_v<std::remove_pointer_t<Argument>>) {
        return panel.pointer(static_cast<const std::remove_pointer_t<Argument>*>(nullptr));
    } else {
        return panel.pointer(static_cast<Argument>(nullptr));
    }
}

/// A function called with arguments by their types. Numbers that matter are given in their order,
/// one for each argument that is a number.
template <typename Result, typename... Args>
ProgramCall with(const char* name, Result (*function)(Args...), std::vector<int64_t> usual = {}) {
    constexpr bool kTakesHandle =
        ((std::is_same_v<Args, GDrawHandle*> || std::is_same_v<Args, const GDrawHandle*>) || ...);
    return {name, kTakesHandle, [=, usual = std::move(usual)](Panel& panel) {
                size_t numbers = 0;
                [[maybe_unused]] const auto next = [&](bool isNumber) {
                    const size_t n = numbers;
                    numbers += isNumber ? 1 : 0;
                    return n < usual.size() ? usual[n] : static_cast<int64_t>(3 + 5 * n);
                };
                // Braces, so that arguments are asked for in their order.
                const std::tuple<Args...> arguments{
                    argumentOf<Args>(panel, next(std::is_arithmetic_v<Args>))...};
                std::apply(function, arguments);
            }};
}

/// A call in words of its own.
inline ProgramCall own(const char* name, std::function<void(Panel&)> make) {
    return {name, false, std::move(make)};
}

inline ProgramCall onHandle(const char* name, std::function<void(Panel&)> make) {
    return {name, true, std::move(make)};
}

} // namespace quarlo::test
