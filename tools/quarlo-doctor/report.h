// What was found, as text.
#pragma once

#include "examine.h"

#include <iosfwd>
#include <vector>

namespace doctor {

/// A line for each service, and a summary.
void printFindings(std::ostream& out, const std::vector<Finding>& findings);

/// The tables of docs/porting.md.
void printServices(std::ostream& out);

} // namespace doctor
