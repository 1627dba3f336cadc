#include "message/services.h"

#include <gpi/host.h>

namespace gpi {

int32_t nextMessage(GMessage* message) {
    constexpr int32_t kNoWait = 0;
    return GPIHostWaitMessage(message, kNoWait);
}

} // namespace gpi
