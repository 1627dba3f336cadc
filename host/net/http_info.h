// What can be asked about an answer.
#pragma once

#include "net/http_head.h"

#include <cstdint>

namespace gpi {

/// Hands out what GNetHttpQueryInfo() asks for. @throws NetError
void queryHttpInfo(const HttpHead& head, int32_t info, void* buffer, int32_t* size, int32_t* index);

} // namespace gpi
