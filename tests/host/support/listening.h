// Where this process waits for connections.
#pragma once

#include <string>
#include <vector>

namespace gpi::test {

/// The addresses, in numbers, at which sockets of this process listen.
std::vector<std::string> listening();

} // namespace gpi::test
