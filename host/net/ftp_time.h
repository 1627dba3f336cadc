// Times as FTP servers list them.
#pragma once

#include <cstdint>
#include <string>

namespace gpi {

/// Seconds since 1970 of a time such as "Nov 21 07:15", "Nov 21  2025" or "11-21-25  07:15AM",
/// taken as UTC; 0 for any other text. A time without a year lies in the year before `now`.
///
/// @param now seconds since 1970
uint32_t listedTime(const std::string& text, uint32_t now);

} // namespace gpi
