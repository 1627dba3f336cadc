#include "support/pages.h"

#include <windows.h>

namespace quarlo::test {

size_t pageSize() {
    SYSTEM_INFO info;
    GetSystemInfo(&info);
    return info.dwPageSize;
}

uint8_t* reservePages(size_t size) {
    return static_cast<uint8_t*>(VirtualAlloc(nullptr, size, MEM_RESERVE, PAGE_NOACCESS));
}

bool openPages(uint8_t* pages, size_t size) {
    return VirtualAlloc(pages, size, MEM_COMMIT, PAGE_READWRITE) != nullptr;
}

void releasePages(uint8_t* pages, size_t) {
    VirtualFree(pages, 0, MEM_RELEASE);
}

} // namespace quarlo::test
