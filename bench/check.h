// Whether a contender does the library's work: a benchmark never compares different pictures.
#pragma once

#include "contender.h"

#include <string>

namespace bench {

/// What a contender's picture is beside the library's.
struct Verdict {
    bool sameWork; ///< by the contender's rule for the workload
    std::string note;
};

/// Lets both draw a workload on equal canvases and compares what they left there.
Verdict compare(Contender& library, Contender& contender, const Workload& workload, Canvas& canvas);

} // namespace bench
