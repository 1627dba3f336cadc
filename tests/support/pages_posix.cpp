#include "support/pages.h"

#include <sys/mman.h>
#include <unistd.h>

namespace quarlo::test {

size_t pageSize() {
    return static_cast<size_t>(sysconf(_SC_PAGESIZE));
}

uint8_t* reservePages(size_t size) {
    void* const pages = mmap(nullptr, size, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return pages == MAP_FAILED ? nullptr : static_cast<uint8_t*>(pages);
}

bool openPages(uint8_t* pages, size_t size) {
    return mprotect(pages, size, PROT_READ | PROT_WRITE) == 0;
}

void releasePages(uint8_t* pages, size_t size) {
    munmap(pages, size);
}

} // namespace quarlo::test
