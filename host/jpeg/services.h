// JPEG files: services 73 and 74.
#pragma once

#include <quarlo/file.h>

namespace gpi {

int32_t getJpegInfo(const char16_t* path, int32_t scale, GJpegInfo* info);
int32_t loadJpeg(const char16_t* path, int32_t scale, GVram* surface);

} // namespace gpi
