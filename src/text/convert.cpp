// Stepping through text and converting it: forwards to services that every platform has.
#include "platform/service_table.h"

#include <quarlo/convert.h>

using quarlo::ForwardTo;

int32_t GDGetStringLength(const char16_t* text, int32_t limit) {
    return ForwardTo<GDGetStringLength, 36>::unchecked(text, limit);
}

const char16_t* GDGetPrevChar(const char16_t* text, const char16_t* position, uint32_t* character) {
    return ForwardTo<GDGetPrevChar, 37>::unchecked(text, position, character);
}

const char16_t* GDGetNextChar(const char16_t* position, const char16_t* end, uint32_t* character) {
    return ForwardTo<GDGetNextChar, 38>::unchecked(position, end, character);
}

int32_t GRCUnicodeToMultiByte(const char16_t* text, int32_t units, char* out, int32_t size) {
    return ForwardTo<GRCUnicodeToMultiByte, 61>::unchecked(text, units, out, size);
}

int32_t GRCMultiByteToUnicode(const char* text, int32_t bytes, char16_t* out, int32_t units) {
    return ForwardTo<GRCMultiByteToUnicode, 62>::unchecked(text, bytes, out, units);
}

int32_t GRCIsLeadByte(uint8_t byte, int32_t codePage) {
    return ForwardTo<GRCIsLeadByte, 79>::unchecked(byte, codePage);
}
