// Waking a thread that waits for descriptors.
#pragma once

#include "unique_fd.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>

namespace gpi {

/// A bell with a descriptor to wait for. Rings before the first answer() count as one.
class Wakeup {
  public:
    Wakeup() : bell_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

    /// Readable from the first ring() to answer().
    int descriptor() const { return bell_.get(); }

    void ring() const {
        const uint64_t once = 1;
        static_cast<void>(!write(bell_.get(), &once, sizeof once));
    }

    void answer() const {
        uint64_t rings = 0;
        static_cast<void>(!read(bell_.get(), &rings, sizeof rings));
    }

  private:
    UniqueFd bell_;
};

} // namespace gpi
