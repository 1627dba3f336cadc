// Data-server files, the second file store of the platform.
#include "platform/service_table.h"

#include <quarlo/data_server.h>

using quarlo::ForwardTo;

GDataFile* GIODSOpen(const char16_t* path, uint32_t mode, int32_t wait, int32_t* error) {
    return ForwardTo<GIODSOpen, 129>::lazy(path, mode, wait, error);
}

GDataFile* GIODSCreateFile(const char16_t* path, int32_t size, uint32_t mode, int32_t* error) {
    return ForwardTo<GIODSCreateFile, 137>::lazy(path, size, mode, error);
}

int32_t GIODSClose(GDataFile* file) {
    return ForwardTo<GIODSClose, 131>::lazy(file);
}

int32_t GIODSRead(GDataFile* file, void* buffer, int32_t size, int32_t* done) {
    return ForwardTo<GIODSRead, 130>::lazy(file, buffer, size, done);
}

int32_t GIODSWrite(GDataFile* file, const void* buffer, int32_t size, int32_t* done) {
    return ForwardTo<GIODSWrite, 134>::lazy(file, buffer, size, done);
}

int32_t GIODSSeek(GDataFile* file, int32_t offset, int32_t origin) {
    return ForwardTo<GIODSSeek, 132>::lazy(file, offset, origin);
}

int32_t GIODSGetFileSize(const char16_t* path, uint32_t* low, uint32_t* high, int32_t* error) {
    using Forward = ForwardTo<GIODSGetFileSize, 133>;
    Forward::lazy(path, low, high, error);
    return Forward::bound(); // that the service exists, not what it answered
}

int32_t GIODSRename(const char16_t* from, const char16_t* to, uint32_t flags) {
    return ForwardTo<GIODSRename, 135>::lazy(from, to, flags);
}

int32_t GIODSRemove(const char16_t* path, uint32_t flags) {
    return ForwardTo<GIODSRemove, 136>::lazy(path, flags);
}
