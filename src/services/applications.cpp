// Starting and ending applications.
#include "platform/service_table.h"

#include <quarlo/app.h>

using quarlo::ForwardTo;

int32_t GAppExecute(const char16_t* program, const char16_t* arguments, const char16_t* directory,
                    uint32_t flags, int32_t* result) {
    return ForwardTo<GAppExecute, 117>::checked(program, arguments, directory, flags, result);
}

int32_t GAppExit(int32_t number) {
    return ForwardTo<GAppExit, 118>::checked(number);
}
