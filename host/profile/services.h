// Profiles: services 53, 54, 116, 126 and 127.
#pragma once

#include <quarlo/profile.h>

namespace gpi {

int32_t getProfileInt(const char16_t* section, const char16_t* key, int32_t fallback,
                      uint32_t layer, const char16_t* file);
int32_t getProfileIntEx(const char16_t* section, const char16_t* key, int32_t fallback,
                        const char16_t* file);
int32_t getProfileString(const char16_t* section, const char16_t* key, const char16_t* fallback,
                         char16_t* value, int32_t size, uint32_t layer, const char16_t* file);
int32_t getProfileStringEx(const char16_t* section, const char16_t* key, const char16_t* fallback,
                           char16_t* value, int32_t size, const char16_t* file);
int32_t setProfileString(const char16_t* section, const char16_t* key, const char16_t* value,
                         uint32_t layer, const char16_t* file);

} // namespace gpi
