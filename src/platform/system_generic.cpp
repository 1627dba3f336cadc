// Systems without a message loop and code pages of their own leave both to the platform library.
#include "platform/system.h"

#include <gpi/gpi.h>
#include <quarlo/convert.h>

namespace quarlo {

void translateMessage(GMessage& message) {
    GPITranslateMessage(&message);
}

void dispatchMessage(GMessage& message) {
    GPIDispatchMessage(&message);
}

void systemTextToUnicode(const char* text, char16_t* out, int32_t units) {
    if (text != nullptr) {
        GRCMultiByteToUnicode(text, -1, out, units);
        out[units - 1] = u'\0';
    }
}

} // namespace quarlo
