// The one address space of numerical-control data: what there is, and what may be written there.
#pragma once

#include "nc/controller.h"

#include <cstdint>

namespace gpi::nc {

// Each gives kDone, or why a call with these arguments fails on any controller of such an extent.

int32_t checkRead(const Extent& extent, int32_t channel, const ValueAddress& address);
int32_t checkWrite(const Extent& extent, int32_t channel, const ValueAddress& address,
                   double value);

int32_t checkTextRead(const Extent& extent, int32_t channel, int32_t string, int32_t number);
int32_t checkTextWrite(const Extent& extent, int32_t channel, int32_t string, int32_t number);

int32_t checkSystemRead(int32_t number);
int32_t checkSystemWrite(int32_t number, int32_t value);

} // namespace gpi::nc
