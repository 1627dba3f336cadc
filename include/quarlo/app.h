/**
 * @file app.h
 * Other programs. Both functions forward to one service each and return 0 when the platform lacked
 * it at start-up. Error numbers are those of file.h.
 */
#ifndef QUARLO_APP_H
#define QUARLO_APP_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** How GAppExecute() proceeds; bits. */
enum {
    G_APP_WAIT = 1,  /**< until the program has ended */
    G_APP_SINGLE = 2 /**< not when that program runs already, started from here */
};

/**
 * Forwards to service 117: starts a program, without a shell.
 *
 * @param program name of a program in the platform's folder for them, without a folder
 * @param arguments words separated by spaces; a word in double quotes may hold spaces, and "" there
 *     stands for a quote; may be null
 * @param directory folder that it starts in, by the path rules of file.h; null for the file root
 * @param flags #G_APP_WAIT, #G_APP_SINGLE or 0
 * @param result receives the program's number, or with #G_APP_WAIT its exit status, 0 to 255, and
 *     256 + the signal that ended it; may be null
 * @return 1, or why it failed: #G_IO_IN_USE when it runs already
 */
QUARLO_API int32_t GAppExecute(const char16_t* program, const char16_t* arguments,
                               const char16_t* directory, uint32_t flags, int32_t* result);

/**
 * Forwards to service 118: asks a program to end.
 *
 * @param number as of GAppExecute(); 0 for this program, which gets a quit message
 * @return 1, or why it failed: #G_IO_NOT_FOUND when no program of that number runs
 */
QUARLO_API int32_t GAppExit(int32_t number);

QUARLO_END

#endif
