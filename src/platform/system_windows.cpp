// Windows dispatches its own messages and knows the code page of its own 8-bit text.
//
// not counted: Windows alone; tests/platform/system_windows_test.cpp
#include "platform/system.h"

#include <windows.h>

#include <bit>
#include <cstddef>

namespace quarlo {
namespace {

// A platform may fetch a message straight into the record.
static_assert(sizeof(GMessage) == sizeof(MSG));
static_assert(offsetof(GMessage, number) == offsetof(MSG, message));
static_assert(offsetof(GMessage, param1) == offsetof(MSG, wParam));
static_assert(offsetof(GMessage, param2) == offsetof(MSG, lParam));
static_assert(offsetof(GMessage, time) == offsetof(MSG, time));
static_assert(offsetof(GMessage, x) == offsetof(MSG, pt));

} // namespace

void translateMessage(GMessage& message) {
    const MSG native = std::bit_cast<MSG>(message);
    TranslateMessage(&native);
}

void dispatchMessage(GMessage& message) {
    const MSG native = std::bit_cast<MSG>(message);
    DispatchMessageW(&native);
}

void systemTextToUnicode(const char* text, char16_t* out, int32_t units) {
    static_assert(sizeof(wchar_t) == sizeof(char16_t));
    if (text != nullptr) {
        // Text that is too long fails and still fills the room that there is.
        MultiByteToWideChar(CP_ACP, MB_PRECOMPOSED, text, -1, reinterpret_cast<wchar_t*>(out),
                            units);
        out[units - 1] = u'\0';
    }
}

} // namespace quarlo
