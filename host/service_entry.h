// An entry in the table of services.
#pragma once

#include <gpi/gpi.h>

#include <cstdint>
#include <span>

namespace gpi {

struct ServiceEntry {
    int32_t number;
    GPIFunction function;
};

/// `Signature` is the documented one, which the function must have to the letter.
template <typename Signature>
ServiceEntry offer(int32_t number, Signature function) noexcept {
    return {number, reinterpret_cast<GPIFunction>(function)};
}

/// The function of a number, or null.
inline GPIFunction find(std::span<const ServiceEntry> services, int32_t number) {
    for (const ServiceEntry& service : services) {
        if (service.number == number) {
            return service.function;
        }
    }
    return nullptr;
}

} // namespace gpi
