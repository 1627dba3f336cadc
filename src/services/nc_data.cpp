// The machine's numerical-control data.
#include "platform/service_table.h"

#include <quarlo/nc_data.h>

using quarlo::ForwardTo;

int32_t GNCDataSetGNCValue(int32_t channel, int32_t area, int32_t number, int32_t index,
                           const double* value) {
    return ForwardTo<GNCDataSetGNCValue, 200>::lazy(channel, area, number, index, value);
}

int32_t GNCDataGetGNCValue(int32_t channel, int32_t area, int32_t number, int32_t index,
                           double* value) {
    return ForwardTo<GNCDataGetGNCValue, 201>::lazy(channel, area, number, index, value);
}

int32_t GNCDataSetString(int32_t channel, int32_t string, int32_t number, const char16_t* text) {
    return ForwardTo<GNCDataSetString, 202>::lazy(channel, string, number, text);
}

int32_t GNCDataGetString(int32_t channel, int32_t string, int32_t number, char16_t* text,
                         int32_t size) {
    return ForwardTo<GNCDataGetString, 203>::lazy(channel, string, number, text, size);
}

int32_t GNCDataIsNotaNumber(int32_t channel, int32_t variable) {
    return ForwardTo<GNCDataIsNotaNumber, 204>::lazy(channel, variable);
}

int32_t GNCDataSetSystemVal(int32_t number, int32_t value) {
    return ForwardTo<GNCDataSetSystemVal, 205>::lazy(number, value);
}

int32_t GNCDataGetSystemVal(int32_t number, int32_t* value) {
    return ForwardTo<GNCDataGetSystemVal, 206>::lazy(number, value);
}
