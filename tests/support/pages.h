// Pages of memory as the system gives them. One source file for each system.
#pragma once

#include <cstddef>
#include <cstdint>

namespace quarlo::test {

size_t pageSize();

/// Pages that fault at every access; null when there is no room.
uint8_t* reservePages(size_t size);

/// Lets some of them be read and written.
bool openPages(uint8_t* pages, size_t size);

/// Gives back all that was reserved together.
void releasePages(uint8_t* pages, size_t size);

} // namespace quarlo::test
