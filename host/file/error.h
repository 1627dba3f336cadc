// Why work on files fails, and the border to callers that know numbers only.
#pragma once

#include <quarlo/file.h>

#include <cstdint>
#include <exception>
#include <new>
#include <system_error>
#include <utility>

namespace gpi {

/// Thrown inside the platform; becomes its number at the border.
class IoError : public std::exception {
  public:
    /// @param number one of G_IO_END and so on
    explicit IoError(int32_t number) : number_(number) {}
    int32_t number() const { return number_; }
    const char* what() const noexcept override { return "input or output failed"; }

  private:
    int32_t number_;
};

/// The number that stands for an error of the system.
int32_t ioErrorOf(int systemError);

/// Throws what errno says.
[[noreturn]] void throwSystemError();

/// Runs an action for a caller that knows no exceptions. What it throws becomes a number.
template <typename Action>
int32_t ioResult(Action&& action) noexcept {
    try {
        return std::forward<Action>(action)();
    } catch (const IoError& error) {
        return error.number();
    } catch (const std::bad_alloc&) {
        return G_IO_NO_MEMORY;
    } catch (const std::system_error& error) {
        return ioErrorOf(error.code().value());
    } catch (const std::exception&) {
        return G_IO_DEVICE;
    }
}

/// As ioResult() for a call that answers with a handle: null, and the number in `error`, which may
/// be null.
template <typename Handle, typename Action>
Handle* ioHandle(int32_t* error, Action&& action) noexcept {
    Handle* handle = nullptr;
    const int32_t number = ioResult([&] {
        handle = std::forward<Action>(action)();
        return 1;
    });
    if (error != nullptr) {
        *error = number;
    }
    return handle;
}

} // namespace gpi
