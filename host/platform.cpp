#include "platform.h"

namespace gpi {

Platform& platform() {
    // Never destroyed: threads and the destructors of other libraries may still use it at exit.
    static Platform& instance = *new Platform;
    return instance;
}

} // namespace gpi
