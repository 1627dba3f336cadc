// Waiting for what another process does.
#pragma once

#include <chrono>
#include <thread>

namespace gpi::nc::test {

/// Whether a condition comes true within half a minute.
template <typename Condition>
bool eventually(Condition condition) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1)); // leaves it a processor
    }
    return true;
}

} // namespace gpi::nc::test
