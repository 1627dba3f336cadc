// The error cells: a mailbox between program and platform that the library itself never writes.
#include <quarlo/handle.h>
#include <quarlo/platform.h>

namespace {

uint16_t globalError = 0;

} // namespace

void GDSetGlobalError(uint32_t code) {
    globalError = static_cast<uint16_t>(code);
}

uint32_t GDQueryGlobalError(void) {
    return globalError;
}

uint32_t GDQueryError(const GDrawHandle* handle) {
    return handle == nullptr ? globalError : handle->error;
}
