/**
 * @file profile.h
 * Profiles: text files of sections with keys and values, such as "Config.ini".
 *
 * Every function forwards to one service, bound on demand, and returns 0 when the platform lacks
 * it. Error numbers are those of file.h. A profile has two layers: what the machine's maker
 * shipped, and what was changed since. Sections and keys are found whatever their case.
 */
#ifndef QUARLO_PROFILE_H
#define QUARLO_PROFILE_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Layers of a profile. */
enum {
    G_PROFILE_MAKER = 0,  /**< as shipped; cannot be written */
    G_PROFILE_USER = 1,   /**< what was changed */
    G_PROFILE_ANY = 65535 /**< reads the user's value, else the maker's; writes the user's */
};

/**
 * Forwards to service 53: reads a number, decimal or hexadecimal with 0x.
 *
 * @param section name of the section
 * @param key name of the key
 * @param fallback result where there is no such key or its value does not begin with a number
 * @param layer #G_PROFILE_MAKER, #G_PROFILE_USER or #G_PROFILE_ANY
 * @param file name of the profile, without a folder
 */
QUARLO_API int32_t GIOGetPrivateProfileInt(const char16_t* section, const char16_t* key,
                                           int32_t fallback, uint32_t layer, const char16_t* file);

/** Forwards to service 126: GIOGetPrivateProfileInt() of #G_PROFILE_ANY. */
QUARLO_API int32_t GIOGetPrivateProfileIntEx(const char16_t* section, const char16_t* key,
                                             int32_t fallback, const char16_t* file);

/**
 * Forwards to service 54: reads a value, cut to what fits and always NUL-terminated. Where there is
 * no such key, `fallback` is copied.
 *
 * @param section name of the section; null lists the sections, each with a NUL, and one more NUL
 * @param key name of the key; null lists the section's keys in the same way
 * @param fallback may be null for an empty one
 * @param value room for `size` units
 * @param size units
 * @param layer #G_PROFILE_MAKER, #G_PROFILE_USER or #G_PROFILE_ANY; handed on zero-extended
 * @param file name of the profile, without a folder
 * @return units in `value` without the last NUL, or why it failed
 */
QUARLO_API int32_t GIOGetPrivateProfileString(const char16_t* section, const char16_t* key,
                                              const char16_t* fallback, char16_t* value,
                                              int32_t size, uint16_t layer, const char16_t* file);

/** Forwards to service 127: GIOGetPrivateProfileString() of #G_PROFILE_ANY. */
QUARLO_API int32_t GIOGetPrivateProfileStringEx(const char16_t* section, const char16_t* key,
                                                const char16_t* fallback, char16_t* value,
                                                int32_t size, const char16_t* file);

/**
 * Forwards to service 116: writes a value. Comments and the order of lines stay; a power cut leaves
 * the old file or the new one, never a part.
 *
 * @param section name of the section, made if there is none
 * @param key name of the key; null removes the section
 * @param value the value; null removes the key
 * @param layer #G_PROFILE_USER or #G_PROFILE_ANY
 * @param file name of the profile, without a folder, made if there is none
 * @return 1, or why it failed: #G_IO_READ_ONLY for #G_PROFILE_MAKER
 */
QUARLO_API int32_t GIOSetPrivateProfileString(const char16_t* section, const char16_t* key,
                                              const char16_t* value, uint32_t layer,
                                              const char16_t* file);

QUARLO_END

#endif
