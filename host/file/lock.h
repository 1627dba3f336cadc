// Who may have a file open: one that writes, or any number that read.
#pragma once

#include <cstdint>

namespace gpi {

enum class Sharing { Readers, OneWriter };

/// Locks an open file against this and other programs until it is closed.
///
/// @param file descriptor
/// @param wait milliseconds to wait for others; -1 without limit
/// @throws IoError G_IO_IN_USE when others still have it
void lockFile(int file, Sharing sharing, int32_t wait);

} // namespace gpi
