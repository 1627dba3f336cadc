// Messages: service 124.
#pragma once

#include <quarlo/event.h>

namespace gpi {

int32_t nextMessage(GMessage* message);

} // namespace gpi
