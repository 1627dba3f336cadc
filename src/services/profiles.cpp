// Initialisation profiles.
#include "platform/service_table.h"

#include <gpi/gpi.h>
#include <quarlo/profile.h>

#include <type_traits>

using quarlo::ForwardTo;
using quarlo::Service;

int32_t GIOGetPrivateProfileInt(const char16_t* section, const char16_t* key, int32_t fallback,
                                uint32_t layer, const char16_t* file) {
    return ForwardTo<GIOGetPrivateProfileInt, 53>::lazy(section, key, fallback, layer, file);
}

int32_t GIOGetPrivateProfileIntEx(const char16_t* section, const char16_t* key, int32_t fallback,
                                  const char16_t* file) {
    return ForwardTo<GIOGetPrivateProfileIntEx, 126>::lazy(section, key, fallback, file);
}

int32_t GIOGetPrivateProfileString(const char16_t* section, const char16_t* key,
                                   const char16_t* fallback, char16_t* value, int32_t size,
                                   uint16_t layer, const char16_t* file) {
    using Forward = Service<std::remove_pointer_t<GPIGetProfileString>, 54>; // a wider layer
    return Forward::lazy(section, key, fallback, value, size, layer, file);
}

int32_t GIOGetPrivateProfileStringEx(const char16_t* section, const char16_t* key,
                                     const char16_t* fallback, char16_t* value, int32_t size,
                                     const char16_t* file) {
    return ForwardTo<GIOGetPrivateProfileStringEx, 127>::lazy(section, key, fallback, value, size,
                                                              file);
}

int32_t GIOSetPrivateProfileString(const char16_t* section, const char16_t* key,
                                   const char16_t* value, uint32_t layer, const char16_t* file) {
    return ForwardTo<GIOSetPrivateProfileString, 116>::lazy(section, key, value, layer, file);
}
