// Files, paths and JPEG files.
#include "platform/service_table.h"

#include <quarlo/file.h>

using quarlo::ForwardTo;

GFile* GIOOpen(const char16_t* path, uint32_t mode, int32_t* error) {
    return ForwardTo<GIOOpen, 48>::lazy(path, mode, error);
}

int32_t GIOClose(GFile* file) {
    return ForwardTo<GIOClose, 49>::lazy(file);
}

int32_t GIOFClose(GFile* file) {
    return ForwardTo<GIOFClose, 125>::lazy(file);
}

int32_t GIORead(GFile* file, void* buffer, int32_t size, int32_t* done) {
    return ForwardTo<GIORead, 50>::lazy(file, buffer, size, done);
}

int32_t GIOWrite(GFile* file, const void* buffer, int32_t size, int32_t* done) {
    return ForwardTo<GIOWrite, 51>::lazy(file, buffer, size, done);
}

int32_t GIOSeek(GFile* file, int32_t offset, int32_t origin) {
    return ForwardTo<GIOSeek, 52>::lazy(file, offset, origin);
}

int32_t GIOGets(GFile* file, char* line, int32_t size) {
    return ForwardTo<GIOGets, 65>::lazy(file, line, size);
}

int32_t GIOGetc(GFile* file) {
    return ForwardTo<GIOGetc, 72>::lazy(file);
}

int32_t GIORename(const char16_t* from, const char16_t* to, uint32_t flags) {
    return ForwardTo<GIORename, 120>::lazy(from, to, flags);
}

int32_t GIORemove(const char16_t* path, uint32_t flags) {
    return ForwardTo<GIORemove, 121>::lazy(path, flags);
}

int32_t GIOGetFileAccess(const char16_t* path, uint32_t wanted, uint32_t* attributes) {
    return ForwardTo<GIOGetFileAccess, 122>::lazy(path, wanted, attributes);
}

int32_t GIOGetFileSize(const char16_t* path, int32_t* size) {
    using Forward = ForwardTo<GIOGetFileSize, 123>;
    Forward::lazy(path, size);
    return Forward::bound(); // that the service exists, not what it answered
}

int32_t GIOGetDirectory(const char16_t* path, GDirectoryEntry* entries, int32_t count) {
    return ForwardTo<GIOGetDirectory, 71>::lazy(path, entries, count);
}

int32_t GIOMakePath(char16_t* path, const char16_t* drive, const char16_t* directory,
                    const char16_t* name, const char16_t* extension) {
    return ForwardTo<GIOMakePath, 63>::lazy(path, drive, directory, name, extension);
}

int32_t GIOSplitPath(const char16_t* path, char16_t* drive, char16_t* directory, char16_t* name,
                     char16_t* extension) {
    return ForwardTo<GIOSplitPath, 64>::lazy(path, drive, directory, name, extension);
}

int32_t GIOJpegGetInfo(const char16_t* path, int32_t scale, GJpegInfo* info) {
    return ForwardTo<GIOJpegGetInfo, 73>::lazy(path, scale, info);
}

int32_t GIOJpegLoad(const char16_t* path, int32_t scale, GVram* surface) {
    return ForwardTo<GIOJpegLoad, 74>::lazy(path, scale, surface);
}
