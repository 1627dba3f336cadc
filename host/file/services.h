// Files and paths: services 48 to 52, 63 to 65, 71, 72, 120 to 123 and 125.
#pragma once

#include <quarlo/file.h>

namespace gpi {

GFile* openFile(const char16_t* path, uint32_t mode, int32_t* error);
int32_t closeFile(GFile* file);
int32_t flushAndCloseFile(GFile* file);
int32_t readFile(GFile* file, void* buffer, int32_t size, int32_t* done);
int32_t writeFile(GFile* file, const void* buffer, int32_t size, int32_t* done);
int32_t seekFile(GFile* file, int32_t offset, int32_t origin);
int32_t readLine(GFile* file, char* line, int32_t size);
int32_t readByte(GFile* file);

int32_t renameFile(const char16_t* from, const char16_t* to, uint32_t flags);
int32_t removeFile(const char16_t* path, uint32_t flags);
int32_t getFileAccess(const char16_t* path, uint32_t wanted, uint32_t* attributes);
int32_t getFileSize(const char16_t* path, int32_t* size);
int32_t getDirectory(const char16_t* path, GDirectoryEntry* entries, int32_t count);

int32_t makePath(char16_t* path, const char16_t* drive, const char16_t* directory,
                 const char16_t* name, const char16_t* extension);
int32_t splitPath(const char16_t* path, char16_t* drive, char16_t* directory, char16_t* name,
                  char16_t* extension);

} // namespace gpi
