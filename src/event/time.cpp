#include "event/time.h"

#include "platform/service_table.h"

using namespace quarlo;

int32_t GESetSystemTime(const GSystemTime* time) {
    return ForwardTo<GESetSystemTime, 27>::unchecked(time);
}

int32_t GEGetSystemTime(GSystemTime* time) {
    return ForwardTo<GEGetSystemTime, 28>::checked(time);
}

uint32_t GECompareSystemTime(const GSystemTime* a, const GSystemTime* b) {
    return b->low - a->low;
}

GSystemTime* GEDiffTime(GSystemTime* out, const GSystemTime* start, const GSystemTime* now) {
    const uint64_t ticks = ticksBetween(*start, *now);
    *out = {static_cast<uint32_t>(ticks), static_cast<int32_t>(ticks >> 32)};
    return out;
}

uint32_t GETime(uint32_t* time) {
    return ForwardTo<GETime, 76>::unchecked(time);
}

GBrokenDownTime* GEGmTime(GBrokenDownTime* out, uint32_t time) {
    using BreakDown = ForwardTo<GEGmTime, 77>;
    BreakDown::unchecked(out, time);
    return BreakDown::bound() ? out : nullptr;
}
