// Network access.
#include "platform/service_table.h"

#include <quarlo/network.h>

using quarlo::ForwardTo;

int32_t GNetCrackUrl(const char16_t* url, uint32_t flags, GNetUrl* parts) {
    return ForwardTo<GNetCrackUrl, 83>::checked(url, flags, parts);
}

int32_t GNetCreateUrl(const GNetUrl* parts, uint32_t flags, char16_t* url, int32_t* size) {
    return ForwardTo<GNetCreateUrl, 84>::checked(parts, flags, url, size);
}

int32_t GNetCanonicalizeUrl(const char16_t* url, char16_t* out, int32_t* size, uint32_t flags) {
    return ForwardTo<GNetCanonicalizeUrl, 85>::checked(url, out, size, flags);
}

int32_t GNetCombineUrl(const char16_t* base, const char16_t* relative, char16_t* out, int32_t* size,
                       uint32_t flags) {
    return ForwardTo<GNetCombineUrl, 86>::checked(base, relative, out, size, flags);
}

GNetHandle* GNetOpen(const char16_t* agent) {
    return ForwardTo<GNetOpen, 87>::checked(agent);
}

int32_t GNetCloseHandle(GNetHandle* handle) {
    return ForwardTo<GNetCloseHandle, 88>::checked(handle);
}

GNetHandle* GNetConnect(GNetHandle* session, const char16_t* server, int32_t port,
                        const char16_t* user, const char16_t* password, int32_t protocol,
                        uint32_t flags) {
    return ForwardTo<GNetConnect, 89>::checked(session, server, port, user, password, protocol,
                                               flags);
}

GNetHandle* GNetOpenUrl(GNetHandle* session, const char16_t* url, const char16_t* headers,
                        uint32_t flags) {
    return ForwardTo<GNetOpenUrl, 90>::checked(session, url, headers, flags);
}

int32_t GNetReadFile(GNetHandle* file, void* buffer, int32_t size) {
    return ForwardTo<GNetReadFile, 91>::checked(file, buffer, size);
}

int32_t GNetSetFilePointer(GNetHandle* file, int32_t offset, int32_t origin) {
    return ForwardTo<GNetSetFilePointer, 92>::checked(file, offset, origin);
}

int32_t GNetWriteFile(GNetHandle* file, const void* buffer, int32_t size, int32_t* written) {
    return ForwardTo<GNetWriteFile, 93>::checked(file, buffer, size, written);
}

int32_t GNetQueryDataAvailable(GNetHandle* file, int32_t* bytes) {
    return ForwardTo<GNetQueryDataAvailable, 94>::checked(file, bytes);
}

int32_t GNetFindNextFile(GNetHandle* find, GNetFileInfo* info) {
    return ForwardTo<GNetFindNextFile, 95>::checked(find, info);
}

int32_t GNetQueryOption(GNetHandle* handle, int32_t option, void* value, int32_t* size) {
    return ForwardTo<GNetQueryOption, 96>::checked(handle, option, value, size);
}

int32_t GNetSetOption(GNetHandle* handle, int32_t option, const void* value, int32_t size,
                      uint32_t flags) {
    return ForwardTo<GNetSetOption, 97>::checked(handle, option, value, size, flags);
}

int32_t GNetLockRequestFile(GNetHandle* file, GNetLock** lock) {
    return ForwardTo<GNetLockRequestFile, 98>::checked(file, lock);
}

int32_t GNetUnlockRequestFile(GNetLock* lock) {
    return ForwardTo<GNetUnlockRequestFile, 99>::checked(lock);
}

GNetHandle* GNetHttpOpenRequest(GNetHandle* connection, const char16_t* verb, const char16_t* path,
                                const char16_t* version, const char16_t* referrer,
                                const char16_t* const* accept, uint32_t flags) {
    return ForwardTo<GNetHttpOpenRequest, 100>::checked(connection, verb, path, version, referrer,
                                                        accept, flags);
}

int32_t GNetHttpAddRequestHeaders(GNetHandle* request, const char16_t* headers, uint32_t flags) {
    return ForwardTo<GNetHttpAddRequestHeaders, 101>::checked(request, headers, flags);
}

int32_t GNetHttpSendRequest(GNetHandle* request, const char16_t* headers, const void* body,
                            int32_t size) {
    return ForwardTo<GNetHttpSendRequest, 102>::checked(request, headers, body, size);
}

int32_t GNetHttpEndRequest(GNetHandle* request, uint32_t flags) {
    return ForwardTo<GNetHttpEndRequest, 103>::checked(request, flags);
}

int32_t GNetHttpQueryInfo(GNetHandle* request, int32_t info, void* buffer, int32_t* size,
                          int32_t* index) {
    return ForwardTo<GNetHttpQueryInfo, 104>::checked(request, info, buffer, size, index);
}

GNetHandle* GNetFtpFindFirstFile(GNetHandle* connection, const char16_t* pattern,
                                 GNetFileInfo* info, uint32_t flags) {
    return ForwardTo<GNetFtpFindFirstFile, 105>::checked(connection, pattern, info, flags);
}

int32_t GNetFtpGetFile(GNetHandle* connection, const char16_t* remote, const char16_t* local,
                       int32_t failIfExists, uint32_t attributes, uint32_t flags) {
    return ForwardTo<GNetFtpGetFile, 106>::checked(connection, remote, local, failIfExists,
                                                   attributes, flags);
}

int32_t GNetFtpPutFile(GNetHandle* connection, const char16_t* local, const char16_t* remote,
                       uint32_t flags) {
    return ForwardTo<GNetFtpPutFile, 107>::checked(connection, local, remote, flags);
}

int32_t GNetFtpDeleteFile(GNetHandle* connection, const char16_t* path) {
    return ForwardTo<GNetFtpDeleteFile, 108>::checked(connection, path);
}

int32_t GNetFtpRenameFile(GNetHandle* connection, const char16_t* from, const char16_t* to) {
    return ForwardTo<GNetFtpRenameFile, 109>::checked(connection, from, to);
}

GNetHandle* GNetFtpOpenFile(GNetHandle* connection, const char16_t* path, uint32_t mode,
                            uint32_t flags) {
    return ForwardTo<GNetFtpOpenFile, 110>::checked(connection, path, mode, flags);
}

int32_t GNetFtpCreateDirectory(GNetHandle* connection, const char16_t* path) {
    return ForwardTo<GNetFtpCreateDirectory, 111>::checked(connection, path);
}

int32_t GNetFtpRemoveDirectory(GNetHandle* connection, const char16_t* path) {
    return ForwardTo<GNetFtpRemoveDirectory, 112>::checked(connection, path);
}

int32_t GNetFtpSetCurrentDirectory(GNetHandle* connection, const char16_t* path) {
    return ForwardTo<GNetFtpSetCurrentDirectory, 113>::checked(connection, path);
}

int32_t GNetFtpGetCurrentDirectory(GNetHandle* connection, char16_t* path, int32_t* size) {
    return ForwardTo<GNetFtpGetCurrentDirectory, 114>::checked(connection, path, size);
}

int32_t GNetGetLastError(void) {
    return ForwardTo<GNetGetLastError, 115>::checked();
}
