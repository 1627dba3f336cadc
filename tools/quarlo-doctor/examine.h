// Walking through all services of a platform.
#pragma once

#include "apart.h"
#include "platform.h"
#include "services/service.h"

#include <chrono>
#include <set>
#include <vector>

namespace doctor {

enum class State : uint8_t {
    Passed,  ///< there, and its probe found nothing wrong
    Unknown, ///< there, but it could not be probed
    Missing,
    Failed ///< there, and its probe found something wrong
};

struct Finding {
    const Service* service;
    State state;
    Complaint complaint; ///< what is wrong, or why it was not probed
};

/// A finding for each service, or for some by their numbers, in the order of their groups. Every
/// probe runs on a platform that is
/// started for it, in a process of its own and for no longer than the limit.
std::vector<Finding> examine(const Platform& platform, const std::set<int32_t>& some,
                             std::chrono::seconds limit);

} // namespace doctor
