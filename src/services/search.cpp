// Binary search.
#include "platform/service_table.h"

#include <quarlo/search.h>

using quarlo::ForwardTo;

void* GUBSearch(const void* key, const void* elements, uint32_t count, uint32_t size,
                GUBCompare compare) {
    return ForwardTo<GUBSearch, 78>::unchecked(key, elements, count, size, compare);
}
