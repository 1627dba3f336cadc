#include "report.h"

#include <iostream>
#include <string>

namespace gpi {

void report(std::string_view message) {
    // One write, so that lines of several threads do not mix.
    std::cerr << "gpi: " + std::string(message) + '\n';
}

} // namespace gpi
