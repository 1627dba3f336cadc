// Sequences of calls of the event queue, which must do what its plain model does.
#include "input.h"
#include "require.h"

#include "event/queue_model.h"

#include <gtest/gtest.h>

namespace quarlo::fuzz {
namespace {

using namespace quarlo::test;

constexpr size_t kMostCalls = 512;

QueueCall readCall(Input& in) {
    const uint8_t first = in.byte();
    const auto kind = static_cast<QueueCall::Kind>(first % 8);
    const uint8_t second = in.byte();
    return {kind, event(static_cast<uint16_t>(1 + first / 8 % 4), 1U + second % 4,
                        (1U + second / 4 % 4) | 0x10000U, second / 16U % 4)};
}

} // namespace
} // namespace quarlo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    testing::GTEST_FLAG(break_on_failure) = true; // of what the platform watches
    quarlo::fuzz::Input input({data, size});
    std::vector<quarlo::test::QueueCall> calls;
    while (!input.isUsedUp() && calls.size() < quarlo::fuzz::kMostCalls) {
        calls.push_back(quarlo::fuzz::readCall(input));
    }
    const std::string difference = quarlo::test::differenceAfter(calls);
    quarlo::fuzz::require(difference.empty(), difference.c_str());
    return 0;
}
