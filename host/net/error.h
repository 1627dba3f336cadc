// Why network calls fail, and the border to callers that know numbers only.
#pragma once

#include <quarlo/network.h>

#include <curl/curl.h>

#include <cstdint>
#include <exception>
#include <string_view>
#include <utility>

namespace gpi {

/// Thrown inside the platform; becomes its number at the border.
class NetError : public std::exception {
  public:
    /// @param number one of G_NET_ARGUMENT and so on
    explicit NetError(int32_t number) : number_(number) {}
    int32_t number() const { return number_; }
    const char* what() const noexcept override { return "a network call failed"; }

  private:
    int32_t number_;
};

/// The number that stands for the end of a transfer.
///
/// @param reply the server's last line, which says more where FTP refuses something
int32_t netErrorOf(CURLcode result, std::string_view reply = {});

/// Throws when a condition for a call does not hold.
inline void require(bool holds, int32_t number = G_NET_ARGUMENT) {
    if (!holds) {
        throw NetError(number);
    }
}

/// Throws what libcurl says when it says that something failed.
inline void require(CURLcode result) {
    if (result != CURLE_OK) {
        throw NetError(netErrorOf(result));
    }
}

/// Why the last call of this thread failed.
int32_t lastNetError();
void setLastNetError(int32_t number);

/// The number of the exception that is being handled.
int32_t numberOfException();

/// Runs an action for a caller that knows no exceptions, and remembers for this thread how it
/// ended.
template <typename Result, typename Action>
Result netCall(Result failure, Action&& action) noexcept {
    try {
        const Result result = std::forward<Action>(action)();
        setLastNetError(G_NET_OK);
        return result;
    } catch (...) {
        setLastNetError(numberOfException());
        return failure;
    }
}

/// As netCall() for an action that answers nothing: 1 or 0.
template <typename Action>
int32_t netDone(Action&& action) noexcept {
    return netCall<int32_t>(0, [&] {
        std::forward<Action>(action)();
        return 1;
    });
}

} // namespace gpi
