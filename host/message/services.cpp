#include "message/services.h"

#include "guard.h"
#include "platform.h"

namespace gpi {

int32_t nextMessage(GMessage* message) {
    return guarded(0, [&] {
        const auto next = message != nullptr ? platform().messages.take() : std::nullopt;
        if (next) {
            *message = *next;
        }
        return next ? 1 : 0;
    });
}

} // namespace gpi
