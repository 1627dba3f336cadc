// Running what may crash or hang in a process of its own.
#pragma once

#include <chrono>
#include <functional>
#include <string>

namespace doctor {

/// What is wrong, in a few words; empty when nothing is.
using Complaint = std::string;

/// Runs an action in a child process. Its complaint, or that it crashed, ended the process, or did
/// not return in time.
Complaint runApart(const std::function<Complaint()>& action, std::chrono::seconds limit);

} // namespace doctor
