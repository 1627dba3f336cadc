// What FTP servers answer.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace gpi {

/// The number at the begin of a reply's last line; 0 for any other line.
int codeOfFtpReply(std::string_view line);

/// Why a server refused something. Its code alone does not tell a missing file from a forbidden
/// one; its words do.
int32_t errorOfFtpReply(std::string_view line);

/// The folder that a reply of code 257 names.
std::optional<std::string> folderOfFtpReply(std::string_view line);

} // namespace gpi
