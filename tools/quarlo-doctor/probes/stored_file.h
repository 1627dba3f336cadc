// What files and data-server files have in common. What is asked for is never there, so that
// nothing is read, written or removed.
#pragma once

#include "probe.h"

namespace doctor {

inline constexpr const char16_t* kMissingFile = u"quarlo-doctor-has-no-such-file";
inline constexpr const char* kFindsMissing = "finds a file that there is not";

/// Each kind of call that takes an open file, called without one.
template <typename File>
int32_t callWithoutFile(int32_t (*close)(File*)) {
    return close(nullptr);
}

template <typename File>
int32_t callWithoutFile(int32_t (*read)(File*, void*, int32_t, int32_t*)) {
    char bytes[4] = {};
    int32_t done = 0;
    return read(nullptr, bytes, sizeof bytes, &done);
}

template <typename File>
int32_t callWithoutFile(int32_t (*write)(File*, const void*, int32_t, int32_t*)) {
    const char bytes[4] = {};
    int32_t done = 0;
    return write(nullptr, bytes, sizeof bytes, &done);
}

template <typename File>
int32_t callWithoutFile(int32_t (*seek)(File*, int32_t, int32_t)) {
    return seek(nullptr, 0, G_SEEK_START);
}

template <typename File>
int32_t callWithoutFile(int32_t (*readLine)(File*, char*, int32_t)) {
    char line[4] = {};
    return readLine(nullptr, line, sizeof line);
}

template <typename Function, int32_t Number>
Complaint refusesNoFile(const Platform& platform) {
    return callWithoutFile(platform.service<Function>(Number)) < 0
               ? ""
               : "takes no file for an open one";
}

/// Services 120 and 135.
template <int32_t Number>
Complaint renamesNothing(const Platform& platform) {
    const auto rename = platform.service<GPIRenameFile>(Number);
    return rename(kMissingFile, kMissingFile, 0) < 0 ? "" : kFindsMissing;
}

/// Services 121 and 136.
template <int32_t Number>
Complaint removesNothing(const Platform& platform) {
    const auto remove = platform.service<GPIRemoveFile>(Number);
    return remove(kMissingFile, 0) < 0 ? "" : kFindsMissing;
}

} // namespace doctor
