#include "display/headless_back_end.h"

#include "report.h"

namespace gpi {

bool PngBackEnd::finish(const Frame& frame) {
    if (!writePng(frame, path_)) {
        return false;
    }
    report("the display was written to " + path_);
    return true;
}

} // namespace gpi
