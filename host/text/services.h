// Characters and code pages: services 36 to 38, 61, 62 and 79.
#pragma once

#include <quarlo/convert.h>

namespace gpi {

int32_t stringLength(const char16_t* text, int32_t limit);
const char16_t* previousChar(const char16_t* text, const char16_t* position, uint32_t* character);
const char16_t* nextChar(const char16_t* position, const char16_t* end, uint32_t* character);
int32_t unicodeToMultiByte(const char16_t* text, int32_t units, char* out, int32_t size);
int32_t multiByteToUnicode(const char* text, int32_t bytes, char16_t* out, int32_t units);
int32_t isLeadByteOf(uint8_t byte, int32_t codePage);

} // namespace gpi
