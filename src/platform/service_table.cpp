#include "platform/service_table.h"

#include <quarlo/platform.h>

#include <algorithm>
#include <array>

namespace quarlo {

ServiceTable serviceTable;

namespace {

constexpr size_t kStartupCount = countServices(true);
static_assert(kStartupCount == 143);

using Requests = std::array<int16_t, kStartupCount>;

consteval void exchange(Requests& requests, int16_t a, int16_t b) {
    auto* const first = std::find(requests.begin(), requests.end(), a);
    auto* const second = std::find(requests.begin(), requests.end(), b);
    std::swap(*first, *second);
}

/// The order in which platforms are asked: slot order, but for two pairs that trade places.
consteval Requests startupRequests() {
    Requests requests{};
    size_t count = 0;
    for (const ServiceRun& run : kServiceRuns) {
        for (int number = run.first; run.binding == Binding::AtStartup && number <= run.last;
             ++number) {
            requests[count++] = static_cast<int16_t>(number);
        }
    }
    exchange(requests, 47, 46);
    exchange(requests, 126, 54);
    return requests;
}

constexpr Requests kStartupRequests = startupRequests();

} // namespace
} // namespace quarlo

using namespace quarlo;

int32_t GetGPIFunction(void) {
    for (const int16_t number : kStartupRequests) {
        serviceTable.slots[slotOf(number)] = GPIGetService(number);
    }
    const auto last = reinterpret_cast<uintptr_t>(serviceTable.slots[slotOf(207)]);
    return static_cast<int32_t>(static_cast<uint32_t>(last));
}
