// Numerical-control data: services 200 to 206.
#pragma once

#include <quarlo/nc_data.h>

namespace gpi {

int32_t setNcValue(int32_t channel, int32_t area, int32_t number, int32_t index,
                   const double* value);
int32_t getNcValue(int32_t channel, int32_t area, int32_t number, int32_t index, double* value);
int32_t setNcString(int32_t channel, int32_t string, int32_t number, const char16_t* text);
int32_t getNcString(int32_t channel, int32_t string, int32_t number, char16_t* text, int32_t size);
int32_t isNcValueUnset(int32_t channel, int32_t variable);
int32_t setNcSystemValue(int32_t number, int32_t value);
int32_t getNcSystemValue(int32_t number, int32_t* value);

} // namespace gpi
