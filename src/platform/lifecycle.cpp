// Starting and stopping the platform.
#include "platform/service_table.h"

#include <quarlo/platform.h>

namespace {

using Start = quarlo::Service<GWord(GWord), 1>;
using Stop = quarlo::Service<GWord(), 2>;
using SecondStart = quarlo::Service<GWord(GWord), 12>;
using BeforeStop = quarlo::Service<GWord(), 22>;

} // namespace

GWord GDInitPlatform(GWord argument) {
    const GWord started = Start::unchecked(argument);
    return SecondStart::bound() ? SecondStart::checked(argument) : started;
}

GWord GDQuitPlatform(void) {
    BeforeStop::checked();
    return Stop::unchecked();
}
