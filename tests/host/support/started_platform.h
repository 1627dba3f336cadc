// The platform as a program has it: started, and asked for its services by number.
#pragma once

#include "support/environment.h"

#include <gpi/gpi.h>

#include <memory>

namespace gpi::test {

/// A service by its documented signature.
template <typename Signature>
Signature service(int32_t number) {
    return reinterpret_cast<Signature>(GPIGetService(number));
}

/// Settings under which nothing outside the test counts: no window, no file of the user's.
Environment::Values settings(const Environment::Values& changes = {});

/// A platform that runs for the time of a test.
class StartedPlatform {
  public:
    StartedPlatform() : StartedPlatform(Environment::Values()) {}
    explicit StartedPlatform(const Environment::Values& changes);
    StartedPlatform(std::initializer_list<Environment::Values::value_type> changes)
        : StartedPlatform(Environment::Values(changes)) {}
    ~StartedPlatform();
    StartedPlatform(const StartedPlatform&) = delete;
    StartedPlatform& operator=(const StartedPlatform&) = delete;

    /// What service 12 said at the start.
    GWord started() const { return started_; }

    /// Stops it now. What service 2 says.
    GWord stop();

    static GVram* surface(int32_t number = 0);
    static uint32_t pixel(const GVram& surface, int x, int y);
    static int32_t flushAll();

  private:
    Environment environment_;
    GWord started_;
    bool running_ = true;
};

} // namespace gpi::test
