// What the operating system itself supplies. One source file for each system.
#pragma once

#include <quarlo/event.h>

#include <cstdint>

namespace quarlo {

/// Readies a message for dispatching.
void translateMessage(GMessage& message);

/// Hands a message to the window that it is for.
void dispatchMessage(GMessage& message);

/// Converts 8-bit text of the system's code page, up to its NUL, into `units` units that are all 0
/// before. Text that is too long is cut; the last unit stays 0.
void systemTextToUnicode(const char* text, char16_t* out, int32_t units);

} // namespace quarlo
