#include "search/services.h"

#include <cstdlib>

namespace gpi {

void* search(const void* key, const void* elements, uint32_t count, uint32_t size,
             GUBCompare compare) {
    if (key == nullptr || elements == nullptr || compare == nullptr || size == 0) {
        return nullptr;
    }
    return std::bsearch(key, elements, count, size, compare);
}

} // namespace gpi
