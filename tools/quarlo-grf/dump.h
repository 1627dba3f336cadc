// Images as C source, for the tables of a program.
#pragma once

#include <quarlo/grf_file.h>

#include <span>
#include <string>

namespace grf {

/// An image of a table, and the name that it is known by there.
struct Entry {
    std::string name;
    const GGrfFile* file;
};

/// C source that defines an array `table` of GGrfImage records.
std::string dumpSource(const std::string& table, std::span<const Entry> entries);

/// The header that declares it, with a constant for each place in it.
///
/// @throws Failure when two images would have the same constant
std::string dumpHeader(const std::string& table, std::span<const Entry> entries);

/// Whether a name can be that of a table.
bool isIdentifier(const std::string& name);

} // namespace grf
