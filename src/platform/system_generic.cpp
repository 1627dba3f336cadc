// Systems without a message loop of their own leave messages to the platform library.
#include "platform/system.h"

#include <gpi/gpi.h>

namespace quarlo {

void translateMessage(GMessage& message) {
    GPITranslateMessage(&message);
}

void dispatchMessage(GMessage& message) {
    GPIDispatchMessage(&message);
}

} // namespace quarlo
