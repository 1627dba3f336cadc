// Random tests: a seeded source of numbers, and lists of calls that are cut down to the shortest
// list that still fails.
//
// The seed is the same in every run, so that a failure is a change in the code. QUARLO_TEST_SEED
// sets another one; "random" takes a fresh one.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <iterator>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace quarlo::test {

/// The same numbers for the same seed on every machine.
class Random {
  public:
    explicit Random(uint64_t seed) : engine_(seed) {}

    uint64_t bits() { return engine_(); }

    /// A number from low to high, both included.
    int32_t between(int32_t low, int32_t high) {
        const auto count = static_cast<uint64_t>(int64_t{high} - low + 1);
        return static_cast<int32_t>(low + static_cast<int64_t>(bits() % count));
    }

    bool oneIn(int32_t count) { return between(1, count) == 1; }

    template <typename Range>
    auto pick(const Range& range) {
        return std::data(range)[bits() % std::size(range)];
    }

    template <typename Value>
    Value pick(std::initializer_list<Value> range) {
        return range.begin()[bits() % range.size()];
    }

    /// A number from low to high; one in eight is at or beside a limit of 16 bits, or any of 16
    /// bits at all.
    int16_t coordinate(int32_t low, int32_t high) {
        constexpr int32_t kLimits[] = {-32768, -32767, -16384, -1, 0, 1, 16383, 32766, 32767};
        if (!oneIn(8)) {
            return static_cast<int16_t>(between(low, high));
        }
        return static_cast<int16_t>(oneIn(2) ? pick(kLimits) : between(-32768, 32767));
    }

  private:
    std::mt19937_64 engine_;
};

inline uint64_t testSeed() {
    static const uint64_t seed = [] {
        const char* const text = std::getenv("QUARLO_TEST_SEED");
        if (text == nullptr) {
            return uint64_t{20};
        }
        return std::string(text) == "random" ? uint64_t{std::random_device()()}
                                             : uint64_t{std::strtoull(text, nullptr, 0)};
    }();
    return seed;
}

/// The shortest list found by leaving out runs of calls, long runs first, while `fails` holds.
template <typename Call, typename Fails>
std::vector<Call> shortest(std::vector<Call> calls, Fails fails) {
    for (size_t run = calls.size(); run > 0; run = run == 1 ? 0 : run / 2) {
        for (size_t at = 0; at + run <= calls.size();) {
            std::vector<Call> fewer = calls;
            const auto first = fewer.begin() + static_cast<std::ptrdiff_t>(at);
            fewer.erase(first, first + static_cast<std::ptrdiff_t>(run));
            if (fails(fewer)) {
                calls = std::move(fewer);
            } else {
                at += run;
            }
        }
    }
    return calls;
}

/// Makes `rounds` lists of up to `length` random calls and checks each. `make(random)` gives a
/// call, which can be printed; `check(calls)` gives what is wrong, or an empty text, and starts
/// from the same state every time. At the first failure the shortest list that still fails is
/// reported with the seed.
template <typename Make, typename Check>
void forRandomCalls(int rounds, int32_t length, Make make, Check check) {
    using Call = decltype(make(std::declval<Random&>()));
    for (int round = 0; round < rounds; ++round) {
        Random random(testSeed() * 1'000'003 + static_cast<uint64_t>(round));
        std::vector<Call> calls;
        for (int32_t left = random.between(1, length); left > 0; --left) {
            calls.push_back(make(random));
        }
        if (check(calls).empty()) {
            continue;
        }
        calls =
            shortest(calls, [&](const std::vector<Call>& fewer) { return !check(fewer).empty(); });
        std::ostringstream text;
        for (const Call& call : calls) {
            text << "\n    " << call;
        }
        FAIL() << "QUARLO_TEST_SEED=" << testSeed() << ", round " << round << ": " << check(calls)
               << "\nafter" << text.str();
    }
}

} // namespace quarlo::test
