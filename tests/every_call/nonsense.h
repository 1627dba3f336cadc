// Services that answer with nonsense, in their result and in whatever they are given to fill.
#pragma once

#include "support/recording_platform.h"

#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <type_traits>

namespace quarlo::test {

/// Of 32 bits; the last is 0 to those who look at 16 of them.
inline constexpr int64_t kNonsenseAnswers[] = {0, -1, INT32_MIN, INT32_MAX, 0x10000};

/// Values that a service is given room for; other pointers lead to what it only reads.
template <typename Argument>
void spoil(Argument argument, int64_t answer) {
    using Value = std::remove_pointer_t<Argument>;
    constexpr bool kIsRoom =
        std::is_pointer_v<Argument> && !std::is_const_v<Value> &&
        (std::is_arithmetic_v<Value> || std::is_same_v<Value, GSystemTime> ||
         std::is_same_v<Value, GMessage> || std::is_same_v<Value, GBrokenDownTime> ||
         std::is_same_v<Value, GFontAttribute> || std::is_same_v<Value, GFontInformation>);
    if constexpr (kIsRoom) {
        if (argument != nullptr) {
            std::memset(argument, static_cast<int>(answer), sizeof(Value));
        }
    }
}

template <int Number, typename Signature = ServiceSignature<Number>>
struct Nonsense;

template <int Number, typename Result, typename... Args>
struct Nonsense<Number, Result(Args...)> {
    /// Pointers are null: of any other the library has to believe what it points to. A block is
    /// freed all the same, and messages end, whatever is said of them.
    static void serve(RecordingPlatform& platform, int64_t answer) {
        if constexpr (Number == GPI_SERVICE_MEMORY_FREE) {
            const std::function<Result(Args...)> release =
                *platform.functionOf<Result(Args...)>(Number);
            platform.serve<Number>([=](Args... args) {
                release(args...);
                return static_cast<Result>(answer);
            });
        } else if constexpr (Number == GPI_SERVICE_NEXT_MESSAGE) {
            platform.serve<Number>([=, left = 3](Args... args) mutable {
                (spoil(args, answer), ...);
                return left-- > 0 ? static_cast<Result>(answer) : 0;
            });
        } else {
            platform.serve<Number>([=](Args... args) -> Result {
                (spoil(args, answer), ...);
                return fromWord<Result>(std::is_pointer_v<Result> ? 0 : answer);
            });
        }
    }
};

} // namespace quarlo::test
