// Binary search: service 78.
#pragma once

#include <quarlo/search.h>

namespace gpi {

void* search(const void* key, const void* elements, uint32_t count, uint32_t size,
             GUBCompare compare);

} // namespace gpi
