#include "every_call/calls.h"

namespace quarlo::test {

ProgramCalls platformCalls() {
    return {
        with("GetGPIFunction", GetGPIFunction),
        with("GDInitPlatform", GDInitPlatform, {0}),
        with("GDQuitPlatform", GDQuitPlatform),
        with("GDSetGlobalError", GDSetGlobalError, {0}),
        with("GDQueryGlobalError", GDQueryGlobalError),
        with("GDQueryError", GDQueryError),
    };
}

} // namespace quarlo::test
