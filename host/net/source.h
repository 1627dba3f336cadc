// Where the bytes of a file come from.
#pragma once

#include <cstddef>
#include <cstdint>

namespace gpi {

class Source {
  public:
    virtual ~Source() = default;

    /// Waits for bytes. @return fewer than `size` at the end only @throws NetError
    virtual size_t read(uint8_t* buffer, size_t size) = 0;

    /// Bytes that are there without waiting. @throws NetError
    virtual size_t available() = 0;

    /// False when it broke off: nothing more can come.
    virtual bool good() const = 0;
};

} // namespace gpi
