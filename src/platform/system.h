// What the operating system itself supplies. One source file for each system.
#pragma once

#include <quarlo/event.h>

namespace quarlo {

/// Readies a message for dispatching.
void translateMessage(GMessage& message);

/// Hands a message to the window that it is for.
void dispatchMessage(GMessage& message);

} // namespace quarlo
