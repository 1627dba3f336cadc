// The table of platform services: which there are, in which slot each stands, and the three ways
// in which a function may call one.
#pragma once

#include <gpi/gpi.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>

namespace quarlo {

/// When a slot is filled: with all others by GetGPIFunction(), or by the first call that needs it.
enum class Binding : uint8_t { AtStartup, OnDemand };

/// Consecutive services that stand in consecutive slots.
struct ServiceRun {
    int16_t first;
    int16_t last;
    Binding binding = Binding::AtStartup;
};

/// Every service once, in slot order. 47 precedes 46 on purpose.
inline constexpr ServiceRun kServiceRuns[] = {
    {1, 42},   {57, 57},   {43, 45},   {128, 128}, {47, 47},
    {46, 46},  {48, 49},   {125, 125}, {50, 53},   {126, 126},
    {54, 54},  {127, 127}, {55, 56},   {58, 64},   {65, 66, Binding::OnDemand},
    {67, 124}, {129, 137}, {200, 207},
};

consteval size_t countServices(bool startupOnly) {
    size_t count = 0;
    for (const ServiceRun& run : kServiceRuns) {
        if (!startupOnly || run.binding == Binding::AtStartup) {
            count += static_cast<size_t>(run.last - run.first + 1);
        }
    }
    return count;
}

inline constexpr size_t kServiceCount = countServices(false);
static_assert(kServiceCount == 145);

/// The slot of a service, or kServiceCount for a number that is no service.
constexpr size_t slotOf(int number) {
    size_t slot = 0;
    for (const ServiceRun& run : kServiceRuns) {
        if (number >= run.first && number <= run.last) {
            return slot + static_cast<size_t>(number - run.first);
        }
        slot += static_cast<size_t>(run.last - run.first + 1);
    }
    return kServiceCount;
}

/// The bound services, null where the platform lacks one. Unlocked: bind before drawing starts.
struct ServiceTable {
    std::array<GPIFunction, kServiceCount> slots;
};

extern ServiceTable serviceTable;

/// A service by signature and number: Service<R(Args...), number>.
template <typename Signature, int Number>
struct Service;

template <typename R, typename... Args, int Number>
struct Service<R(Args...), Number> {
    static constexpr size_t kSlot = slotOf(Number);
    static_assert(kSlot < kServiceCount, "no such service");

    static bool bound() { return serviceTable.slots[kSlot] != nullptr; }

    /// For services that every platform must have. A panel must not die of a platform that lacks
    /// one all the same: the result is then 0.
    static R unchecked(Args... args) { return checked(args...); }

    /// For optional services: 0 when the platform lacks it.
    static R checked(Args... args) {
        const auto service = reinterpret_cast<R (*)(Args...)>(serviceTable.slots[kSlot]);
        return service != nullptr ? service(args...) : R();
    }

    /// Asks the platform once more on every call while the slot is empty, so that a service may
    /// turn up late. Two threads may race here: both store the same pointer.
    static R lazy(Args... args) {
        GPIFunction& slot = serviceTable.slots[kSlot];
        if (slot == nullptr) {
            slot = GPIGetService(Number);
        }
        return checked(args...);
    }
};

/// The service behind an exported function of the same signature.
template <auto Function, int Number>
struct ForwardTo;

template <typename R, typename... Args, R (*Function)(Args...), int Number>
struct ForwardTo<Function, Number> : Service<R(Args...), Number> {};

} // namespace quarlo
