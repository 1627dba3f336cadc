// Network: services 83 to 115.
#pragma once

#include <quarlo/network.h>

namespace gpi {

int32_t crackUrl(const char16_t* url, uint32_t flags, GNetUrl* parts);
int32_t createUrl(const GNetUrl* parts, uint32_t flags, char16_t* url, int32_t* size);
int32_t canonicalizeUrl(const char16_t* url, char16_t* out, int32_t* size, uint32_t flags);
int32_t combineUrl(const char16_t* base, const char16_t* relative, char16_t* out, int32_t* size,
                   uint32_t flags);

GNetHandle* netOpen(const char16_t* agent);
int32_t netCloseHandle(GNetHandle* handle);
GNetHandle* netConnect(GNetHandle* session, const char16_t* server, int32_t port,
                       const char16_t* user, const char16_t* password, int32_t protocol,
                       uint32_t flags);
GNetHandle* netOpenUrl(GNetHandle* session, const char16_t* url, const char16_t* headers,
                       uint32_t flags);
int32_t netReadFile(GNetHandle* file, void* buffer, int32_t size);
int32_t netSetFilePointer(GNetHandle* file, int32_t offset, int32_t origin);
int32_t netWriteFile(GNetHandle* file, const void* buffer, int32_t size, int32_t* written);
int32_t netQueryDataAvailable(GNetHandle* file, int32_t* bytes);
int32_t netFindNextFile(GNetHandle* find, GNetFileInfo* info);
int32_t netQueryOption(GNetHandle* handle, int32_t option, void* value, int32_t* size);
int32_t netSetOption(GNetHandle* handle, int32_t option, const void* value, int32_t size,
                     uint32_t flags);
int32_t netLockRequestFile(GNetHandle* file, GNetLock** lock);
int32_t netUnlockRequestFile(GNetLock* lock);

GNetHandle* httpOpenRequest(GNetHandle* connection, const char16_t* verb, const char16_t* path,
                            const char16_t* version, const char16_t* referrer,
                            const char16_t* const* accept, uint32_t flags);
int32_t httpAddRequestHeaders(GNetHandle* request, const char16_t* headers, uint32_t flags);
int32_t httpSendRequest(GNetHandle* request, const char16_t* headers, const void* body,
                        int32_t size);
int32_t httpEndRequest(GNetHandle* request, uint32_t flags);
int32_t httpQueryInfo(GNetHandle* request, int32_t info, void* buffer, int32_t* size,
                      int32_t* index);

GNetHandle* ftpFindFirstFile(GNetHandle* connection, const char16_t* pattern, GNetFileInfo* info,
                             uint32_t flags);
int32_t ftpGetFile(GNetHandle* connection, const char16_t* remote, const char16_t* local,
                   int32_t failIfExists, uint32_t attributes, uint32_t flags);
int32_t ftpPutFile(GNetHandle* connection, const char16_t* local, const char16_t* remote,
                   uint32_t flags);
int32_t ftpDeleteFile(GNetHandle* connection, const char16_t* path);
int32_t ftpRenameFile(GNetHandle* connection, const char16_t* from, const char16_t* to);
GNetHandle* ftpOpenFile(GNetHandle* connection, const char16_t* path, uint32_t mode,
                        uint32_t flags);
int32_t ftpCreateDirectory(GNetHandle* connection, const char16_t* path);
int32_t ftpRemoveDirectory(GNetHandle* connection, const char16_t* path);
int32_t ftpSetCurrentDirectory(GNetHandle* connection, const char16_t* path);
int32_t ftpGetCurrentDirectory(GNetHandle* connection, char16_t* path, int32_t* size);

int32_t netGetLastError();

} // namespace gpi
