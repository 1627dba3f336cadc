/**
 * @file file.h
 * Files, paths and JPEG pictures.
 *
 * Every function forwards to one service, bound on demand, and returns 0 or null when the platform
 * lacks it. Success is 1 or what a function says; a failure is one of the negative numbers below,
 * or null.
 *
 * Paths are relative to the platform's file root, whether they begin with a drive letter, a slash,
 * a back slash or none of these; slash and back slash both separate folders. A path that leads out
 * of the root, by ".." or by a symbolic link, is denied.
 */
#ifndef QUARLO_FILE_H
#define QUARLO_FILE_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Why a call failed; shared by files, data-server files, profiles, modules and programs. */
enum {
    G_IO_END = -1,          /**< the end of the file, or of a list */
    G_IO_ARGUMENT = -2,     /**< an argument is null or out of range */
    G_IO_HANDLE = -3,       /**< not an open file, or closed already */
    G_IO_NOT_FOUND = -4,    /**< no such file, folder, section or key */
    G_IO_DENIED = -5,       /**< outside the root, or not permitted */
    G_IO_READ_ONLY = -6,    /**< the file, or the medium, cannot be written */
    G_IO_EXISTS = -7,       /**< there is such a file already */
    G_IO_IN_USE = -8,       /**< opened or locked elsewhere, or a folder that is not empty */
    G_IO_FULL = -9,         /**< no room on the medium */
    G_IO_TOO_MANY = -10,    /**< too many open files */
    G_IO_TOO_LARGE = -11,   /**< more than 32 bits, a buffer or a surface can hold */
    G_IO_DAMAGED = -12,     /**< the contents are not what they should be */
    G_IO_UNSUPPORTED = -13, /**< of a kind that the platform cannot read */
    G_IO_NO_MEMORY = -14,   /**< memory is short */
    G_IO_DEVICE = -15       /**< the medium failed */
};

/** How a file is opened; bits to be combined. */
enum {
    G_OPEN_READ = 1,      /**< it can be read */
    G_OPEN_WRITE = 2,     /**< it can be written */
    G_OPEN_CREATE = 4,    /**< it is made if there is none */
    G_OPEN_TRUNCATE = 8,  /**< it is emptied first */
    G_OPEN_APPEND = 16,   /**< every write goes to its end */
    G_OPEN_EXCLUSIVE = 32 /**< with #G_OPEN_CREATE: there must be none */
};

/** Where an offset counts from. */
enum {
    G_SEEK_START = 0,   /**< the begin of the file */
    G_SEEK_CURRENT = 1, /**< the position now */
    G_SEEK_END = 2      /**< the end of the file */
};

/** What a file is, and what a program may do with it; bits. */
enum {
    G_FILE_READABLE = 1,   /**< it can be read */
    G_FILE_WRITABLE = 2,   /**< it can be written */
    G_FILE_EXECUTABLE = 4, /**< it can be run */
    G_FILE_DIRECTORY = 8   /**< it is a folder */
};

/** How GIORename() and GIORemove() proceed; bits. */
enum {
    G_RENAME_REPLACE = 1,  /**< a file of the new name is replaced */
    G_REMOVE_DIRECTORY = 1 /**< an empty folder is removed too */
};

/** Units of a path and of its parts, their NUL included. */
enum {
    G_PATH_SIZE = 260,      /**< of a path */
    G_DRIVE_SIZE = 3,       /**< of a drive: a letter and a colon */
    G_DIRECTORY_SIZE = 256, /**< of the folders of a path */
    G_NAME_SIZE = 256       /**< of a name or an extension */
};

/** An open file. */
typedef struct GFile GFile;

/** One entry of a folder. */
typedef struct GDirectoryEntry {
    char16_t name[G_NAME_SIZE]; /**< without its folder, NUL-terminated */
    uint32_t size;              /**< bytes; UINT32_MAX when it has more */
    uint32_t attributes;        /**< #G_FILE_READABLE and so on */
    uint32_t time;              /**< of the last change, as of GETime() */
} GDirectoryEntry;

/** What a JPEG picture is. */
typedef struct GJpegInfo {
    int32_t width;      /**< pixels, after scaling */
    int32_t height;     /**< pixels, after scaling */
    int32_t components; /**< 1 grey, 3 colour, 4 print colours */
} GJpegInfo;

/**
 * Forwards to service 48: opens a file.
 *
 * @param path the file
 * @param mode #G_OPEN_READ and so on
 * @param error receives 1, or why it failed; may be null
 * @return the file, to be closed; null when it failed
 */
QUARLO_API GFile* GIOOpen(const char16_t* path, uint32_t mode, int32_t* error);

/**
 * Forwards to service 49: closes a file. The handle is gone in any case.
 *
 * @return 1; a negative number, #G_IO_FULL perhaps, when something written is lost
 */
QUARLO_API int32_t GIOClose(GFile* file);

/**
 * Forwards to service 125: closes a file after everything written has reached the medium, so that a
 * power cut cannot take it away.
 *
 * @return as for GIOClose()
 */
QUARLO_API int32_t GIOFClose(GFile* file);

/**
 * Forwards to service 50: reads bytes.
 *
 * @param buffer room for `size` bytes
 * @param size bytes wanted
 * @param done receives the bytes read: fewer than wanted at the end of the file, 0 behind it; may
 *     be null
 * @return 1, or why it failed
 */
QUARLO_API int32_t GIORead(GFile* file, void* buffer, int32_t size, int32_t* done);

/**
 * Forwards to service 51: writes bytes.
 *
 * @param buffer `size` bytes
 * @param size bytes to write
 * @param done receives the bytes written, also when it failed; may be null
 * @return 1 when all was written, or why not
 */
QUARLO_API int32_t GIOWrite(GFile* file, const void* buffer, int32_t size, int32_t* done);

/**
 * Forwards to service 52: sets the position of the next read or write. It may lie behind the end,
 * not before the begin.
 *
 * @param offset bytes, also negative
 * @param origin #G_SEEK_START, #G_SEEK_CURRENT or #G_SEEK_END
 * @return the new position, or why it failed
 */
QUARLO_API int32_t GIOSeek(GFile* file, int32_t offset, int32_t origin);

/**
 * Forwards to service 65: reads a line up to and including its line feed, or what fits of it. A NUL
 * follows what was read.
 *
 * @param line room for `size` bytes
 * @param size at least 2
 * @return bytes read without the NUL; 0 at the end of the file; or why it failed
 */
QUARLO_API int32_t GIOGets(GFile* file, char* line, int32_t size);

/** Forwards to service 72: reads one byte. @return 0 to 255; #G_IO_END, or why it failed */
QUARLO_API int32_t GIOGetc(GFile* file);

/**
 * Forwards to service 120: renames or moves a file or folder.
 *
 * @param flags #G_RENAME_REPLACE or 0
 * @return 1, or why it failed
 */
QUARLO_API int32_t GIORename(const char16_t* from, const char16_t* to, uint32_t flags);

/**
 * Forwards to service 121: removes a file.
 *
 * @param flags #G_REMOVE_DIRECTORY or 0
 * @return 1, or why it failed
 */
QUARLO_API int32_t GIORemove(const char16_t* path, uint32_t flags);

/**
 * Forwards to service 122: what a file is and what the program may do with it.
 *
 * @param wanted bits that must be set, or 0
 * @param attributes receives #G_FILE_READABLE and so on; may be null
 * @return 1; #G_IO_DENIED when a wanted bit is missing; or why it failed
 */
QUARLO_API int32_t GIOGetFileAccess(const char16_t* path, uint32_t wanted, uint32_t* attributes);

/**
 * Forwards to service 123: the size of a file.
 *
 * @param size receives the bytes, or why it failed
 * @return 1 whatever the service says; 0 when the platform lacks it
 */
QUARLO_API int32_t GIOGetFileSize(const char16_t* path, int32_t* size);

/**
 * Forwards to service 71: lists a folder, sorted by name, without "." and "..".
 *
 * @param entries room for `count` entries; the first of the list are written
 * @param count may be 0
 * @return entries that the folder has, or why it failed
 */
QUARLO_API int32_t GIOGetDirectory(const char16_t* path, GDirectoryEntry* entries, int32_t count);

/**
 * Forwards to service 63: puts a path together, adding colon, back slash and dot where they are
 * missing.
 *
 * @param path room for #G_PATH_SIZE units
 * @param drive letter, or null
 * @param directory folder, or null
 * @param name file name without extension, or null
 * @param extension with or without its dot, or null
 * @return 1; #G_IO_TOO_LARGE, with an empty path, when it does not fit
 */
QUARLO_API int32_t GIOMakePath(char16_t* path, const char16_t* drive, const char16_t* directory,
                               const char16_t* name, const char16_t* extension);

/**
 * Forwards to service 64: takes a path apart. Any part may be null.
 *
 * @param path the path
 * @param drive letter and colon; room for #G_DRIVE_SIZE units
 * @param directory folder with its last slash; room for #G_DIRECTORY_SIZE units
 * @param name file name without extension; room for #G_NAME_SIZE units
 * @param extension with its dot; room for #G_NAME_SIZE units
 * @return 1; #G_IO_TOO_LARGE, with empty parts, when one does not fit
 */
QUARLO_API int32_t GIOSplitPath(const char16_t* path, char16_t* drive, char16_t* directory,
                                char16_t* name, char16_t* extension);

/**
 * Forwards to service 73: what a JPEG file holds.
 *
 * @param scale 1, 2, 4 or 8: the picture is made that much smaller
 * @param info receives its size after scaling
 * @return 1, or why it failed
 */
QUARLO_API int32_t GIOJpegGetInfo(const char16_t* path, int32_t scale, GJpegInfo* info);

/**
 * Forwards to service 74: loads a JPEG file into a surface.
 *
 * @param scale as for GIOJpegGetInfo()
 * @param surface receives the picture in its own format, on a palette surface by the nearest
 *     colours, from its upper left; what does not fit is left out
 * @return 1, or why it failed; nothing is drawn of a file that is damaged before its pixels
 */
QUARLO_API int32_t GIOJpegLoad(const char16_t* path, int32_t scale, GVram* surface);

QUARLO_END

#endif
