// Data-server files: services 129 to 137.
#pragma once

#include <quarlo/data_server.h>

namespace gpi {

GDataFile* openDataFile(const char16_t* path, uint32_t mode, int32_t wait, int32_t* error);
GDataFile* createDataFile(const char16_t* path, int32_t size, uint32_t mode, int32_t* error);
int32_t closeDataFile(GDataFile* file);
int32_t readDataFile(GDataFile* file, void* buffer, int32_t size, int32_t* done);
int32_t writeDataFile(GDataFile* file, const void* buffer, int32_t size, int32_t* done);
int32_t seekDataFile(GDataFile* file, int32_t offset, int32_t origin);
int32_t getDataFileSize(const char16_t* path, uint32_t* low, uint32_t* high, int32_t* error);
int32_t renameDataFile(const char16_t* from, const char16_t* to, uint32_t flags);
int32_t removeDataFile(const char16_t* path, uint32_t flags);

} // namespace gpi
