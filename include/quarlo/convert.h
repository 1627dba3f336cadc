/**
 * @file convert.h
 * Stepping through UTF-16 text, and conversion from and to 8-bit text.
 *
 * Every function forwards to one service, which the platform must have.
 */
#ifndef QUARLO_CONVERT_H
#define QUARLO_CONVERT_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Code pages of 8-bit text. */
enum {
    G_CODE_PAGE_DEFAULT = 0,   /**< the one that the platform is configured for */
    G_CODE_PAGE_CP932 = 932,   /**< Japanese */
    G_CODE_PAGE_GBK = 936,     /**< Simplified Chinese */
    G_CODE_PAGE_CP1252 = 1252, /**< Western European */
    G_CODE_PAGE_UTF8 = 65001   /**< UTF-8 */
};

/**
 * Forwards to service 36: the number of characters of a string. A surrogate pair is one character,
 * a surrogate without its partner too.
 *
 * @param text the string; null has none
 * @param limit units to look at, at most; -1 for all up to the NUL, other negative numbers for none
 */
QUARLO_API int32_t GDGetStringLength(const char16_t* text, int32_t limit);

/**
 * Forwards to service 37: steps back by one character.
 *
 * @param text the begin of the string
 * @param position where to step back from
 * @param character receives the code point stepped over; may be null
 * @return the begin of that character; null when `position` is not after `text`
 */
QUARLO_API const char16_t* GDGetPrevChar(const char16_t* text, const char16_t* position,
                                         uint32_t* character);

/**
 * Forwards to service 38: steps forward by one character.
 *
 * @param position where to step from
 * @param end the end of the string; null for its NUL
 * @param character receives the code point stepped over; may be null
 * @return the unit after that character; null at the end
 */
QUARLO_API const char16_t* GDGetNextChar(const char16_t* position, const char16_t* end,
                                         uint32_t* character);

/**
 * Forwards to service 61: converts to 8-bit text of the configured code page. What the code page
 * cannot say becomes '?'. A character that does not fit whole ends the conversion.
 *
 * @param text the text
 * @param units its length in units; -1 up to its NUL, which is converted too
 * @param out receives the result; may be null when `size` is 0
 * @param size room in `out`, bytes; 0 only measures
 * @return bytes written, or needed when `size` is 0; 0 for a null text
 */
QUARLO_API int32_t GRCUnicodeToMultiByte(const char16_t* text, int32_t units, char* out,
                                         int32_t size);

/**
 * Forwards to service 62: converts 8-bit text of the configured code page. Broken input becomes
 * U+FFFD. A character that does not fit whole ends the conversion.
 *
 * @param text the text
 * @param bytes its length in bytes; -1 up to its NUL, which is converted too
 * @param out receives the result; may be null when `units` is 0
 * @param units room in `out`, units; 0 only measures
 * @return units written, or needed when `units` is 0; 0 for a null text
 */
QUARLO_API int32_t GRCMultiByteToUnicode(const char* text, int32_t bytes, char16_t* out,
                                         int32_t units);

/**
 * Forwards to service 79: whether a byte begins a character of more than one byte.
 *
 * @param byte 0 to 255
 * @param codePage one of the code pages above
 * @return 1 or 0; 0 for an unknown code page
 */
QUARLO_API int32_t GRCIsLeadByte(uint8_t byte, int32_t codePage);

QUARLO_END

#endif
