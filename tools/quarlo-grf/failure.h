// What ends a command with a message.
#pragma once

#include <stdexcept>

namespace grf {

struct Failure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

} // namespace grf
