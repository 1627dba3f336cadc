// The words of a command line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gpi {

/// Words separated by spaces; one in double quotes may hold spaces, and "" there stands for a
/// quote.
std::vector<std::string> wordsOf(std::string_view line);

} // namespace gpi
