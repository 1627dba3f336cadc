// The border between C++ and the plain functions that the platform hands out.
#pragma once

#include <exception>
#include <utility>

namespace gpi {

/// Runs an action for a caller that knows no exceptions: one that gets this far (memory is short,
/// usually) becomes the result that says failure.
template <typename Result, typename Action>
Result guarded(Result failure, Action&& action) noexcept {
    try {
        return std::forward<Action>(action)();
    } catch (const std::exception&) {
        return failure;
    }
}

} // namespace gpi
