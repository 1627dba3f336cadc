/**
 * @file data_server.h
 * Data-server files: a second store of files beside that of file.h, with a root of its own, shared
 * with the machine's control.
 *
 * Every function forwards to one service, bound on demand, and returns 0 or null when the platform
 * lacks it. Error numbers, modes and path rules are those of file.h.
 */
#ifndef QUARLO_DATA_SERVER_H
#define QUARLO_DATA_SERVER_H

#include <quarlo/file.h>
#include <quarlo/types.h>

QUARLO_BEGIN

/** An open data-server file. */
typedef struct GDataFile GDataFile;

/**
 * Forwards to service 129: opens a file. A file that is being written cannot be opened a second
 * time, nor one that is open be opened for writing.
 *
 * @param path the file
 * @param mode #G_OPEN_READ and so on
 * @param wait milliseconds to wait for a file in use; -1 without limit
 * @param error receives 1, or why it failed; may be null
 * @return the file, to be closed; null when it failed
 */
QUARLO_API GDataFile* GIODSOpen(const char16_t* path, uint32_t mode, int32_t wait, int32_t* error);

/**
 * Forwards to service 137: makes a file, with room for its contents set aside, and opens it for
 * reading and writing.
 *
 * @param path the file
 * @param size bytes, filled with zeros
 * @param mode #G_OPEN_TRUNCATE to replace a file that there is, else 0
 * @param error receives 1, or why it failed; may be null
 * @return the file, to be closed; null when it failed
 */
QUARLO_API GDataFile* GIODSCreateFile(const char16_t* path, int32_t size, uint32_t mode,
                                      int32_t* error);

/** Forwards to service 131: closes a file, as GIOClose() does. @return 1, or what was lost */
QUARLO_API int32_t GIODSClose(GDataFile* file);

/** Forwards to service 130: reads bytes, as GIORead() does. @return 1, or why it failed */
QUARLO_API int32_t GIODSRead(GDataFile* file, void* buffer, int32_t size, int32_t* done);

/** Forwards to service 134: writes bytes, as GIOWrite() does. @return 1, or why it failed */
QUARLO_API int32_t GIODSWrite(GDataFile* file, const void* buffer, int32_t size, int32_t* done);

/** Forwards to service 132: sets the position, as GIOSeek() does. @return it, or why it failed */
QUARLO_API int32_t GIODSSeek(GDataFile* file, int32_t offset, int32_t origin);

/**
 * Forwards to service 133: the size of a file.
 *
 * @param path the file
 * @param low receives the low 32 bits of its size
 * @param high receives the high 32 bits; may be null
 * @param error receives 1, or why it failed; may be null
 * @return 1 whatever the service says; 0 when the platform lacks it
 */
QUARLO_API int32_t GIODSGetFileSize(const char16_t* path, uint32_t* low, uint32_t* high,
                                    int32_t* error);

/** Forwards to service 135: renames a file, as GIORename() does. @return 1, or why it failed */
QUARLO_API int32_t GIODSRename(const char16_t* from, const char16_t* to, uint32_t flags);

/** Forwards to service 136: removes a file, as GIORemove() does. @return 1, or why it failed */
QUARLO_API int32_t GIODSRemove(const char16_t* path, uint32_t flags);

QUARLO_END

#endif
