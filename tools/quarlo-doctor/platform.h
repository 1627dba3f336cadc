// A platform library, loaded by its path.
#pragma once

#include <gpi/gpi.h>

#include <cstdint>
#include <string>

namespace doctor {

/// Stays loaded to the end: a platform's threads may outlive their use.
class Platform {
  public:
    /// Loads a library. `isLoaded()` says whether that worked, `error()` why not.
    explicit Platform(const std::string& path);

    bool isLoaded() const { return getService_ != nullptr; }
    const std::string& error() const { return error_; }

    bool offers(int32_t number) const { return getService_(number) != nullptr; }

    /// A service by its type in gpi/services.h or gpi/forwards.h.
    template <typename Function>
    Function service(int32_t number) const {
        return reinterpret_cast<Function>(getService_(number));
    }

  private:
    decltype(&GPIGetService) getService_ = nullptr;
    std::string error_;
};

} // namespace doctor
