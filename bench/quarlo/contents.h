// Text and images through the library's public calls.
#pragma once

#include "contender.h"

#include <quarlo/handle.h>

namespace bench {

Pass textPass(const Workload& workload, const Shapes& shapes, GDrawHandle* handle);
Pass imagePass(const Workload& workload, const Shapes& shapes, GDrawHandle* handle);

} // namespace bench
