// Other programs: services 117 and 118.
#pragma once

#include <quarlo/app.h>

namespace gpi {

int32_t executeProgram(const char16_t* program, const char16_t* arguments,
                       const char16_t* directory, uint32_t flags, int32_t* result);
int32_t exitProgram(int32_t number);

} // namespace gpi
