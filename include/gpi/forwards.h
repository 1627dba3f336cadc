/**
 * @file forwards.h
 * Signatures of the services that the library only hands through: modules, applications, search,
 * files, profiles, network and numerical-control data.
 *
 * "As X()" means: the service has the signature and the contract of that function, which hands its
 * arguments on unchanged and in order, and returns 0 or null without the service. No service keeps
 * a pointer that it is handed.
 */
#ifndef GPI_FORWARDS_H
#define GPI_FORWARDS_H

#include <quarlo/quarlo.h>

QUARLO_BEGIN

/* Modules, applications, search. Module services are looked for again on every call while missing;
   the others are taken as bound at start-up. */

/** Service 45: as GDFCLoadModule(). */
typedef GModule* (*GPILoadModule)(const char16_t* path, uint32_t flags);

/** Service 128: as GDFCLoadModuleEx(). */
typedef GModule* (*GPILoadModuleEx)(const char16_t* path);

/** Service 46: as GDFCFreeModule(). */
typedef int32_t (*GPIFreeModule)(GModule* module);

/** Service 47: as GDFCGetModuleFuncAddress(). */
typedef GModuleFunction (*GPIGetModuleFunction)(GModule* module, const char16_t* name);

/** Service 117: as GAppExecute(). */
typedef int32_t (*GPIExecute)(const char16_t* program, const char16_t* arguments,
                              const char16_t* directory, uint32_t flags, int32_t* result);

/** Service 118: as GAppExit(). */
typedef int32_t (*GPIExit)(int32_t number);

/** Service 78, expected: as GUBSearch(). */
typedef void* (*GPISearch)(const void* key, const void* elements, uint32_t count, uint32_t size,
                           GUBCompare compare);

/* Files. Looked for again on every call while missing. */

/** Service 48: as GIOOpen(). */
typedef GFile* (*GPIOpenFile)(const char16_t* path, uint32_t mode, int32_t* error);

/** Service 49: as GIOClose(). */
typedef int32_t (*GPICloseFile)(GFile* file);

/** Service 125: as GIOFClose(). */
typedef int32_t (*GPIFlushAndCloseFile)(GFile* file);

/** Service 50: as GIORead(). */
typedef int32_t (*GPIReadFile)(GFile* file, void* buffer, int32_t size, int32_t* done);

/** Service 51: as GIOWrite(). */
typedef int32_t (*GPIWriteFile)(GFile* file, const void* buffer, int32_t size, int32_t* done);

/** Service 52: as GIOSeek(). */
typedef int32_t (*GPISeekFile)(GFile* file, int32_t offset, int32_t origin);

/** Service 65: as GIOGets(). Asked for by the first call, not at start-up. */
typedef int32_t (*GPIReadLine)(GFile* file, char* line, int32_t size);

/** Service 72: as GIOGetc(). */
typedef int32_t (*GPIReadByte)(GFile* file);

/** Service 120: as GIORename(). */
typedef int32_t (*GPIRenameFile)(const char16_t* from, const char16_t* to, uint32_t flags);

/** Service 121: as GIORemove(). */
typedef int32_t (*GPIRemoveFile)(const char16_t* path, uint32_t flags);

/** Service 122: as GIOGetFileAccess(). */
typedef int32_t (*GPIGetFileAccess)(const char16_t* path, uint32_t wanted, uint32_t* attributes);

/** Service 123: as GIOGetFileSize(). @return 1, or why it failed; ignored */
typedef int32_t (*GPIGetFileSize)(const char16_t* path, int32_t* size);

/** Service 71: as GIOGetDirectory(). */
typedef int32_t (*GPIGetDirectory)(const char16_t* path, GDirectoryEntry* entries, int32_t count);

/** Service 63: as GIOMakePath(). */
typedef int32_t (*GPIMakePath)(char16_t* path, const char16_t* drive, const char16_t* directory,
                               const char16_t* name, const char16_t* extension);

/** Service 64: as GIOSplitPath(). */
typedef int32_t (*GPISplitPath)(const char16_t* path, char16_t* drive, char16_t* directory,
                                char16_t* name, char16_t* extension);

/** Service 73: as GIOJpegGetInfo(). */
typedef int32_t (*GPIGetJpegInfo)(const char16_t* path, int32_t scale, GJpegInfo* info);

/** Service 74: as GIOJpegLoad(). */
typedef int32_t (*GPILoadJpeg)(const char16_t* path, int32_t scale, GVram* surface);

/* Data-server files. Looked for again on every call while missing. */

/** Service 129: as GIODSOpen(). */
typedef GDataFile* (*GPIOpenDataFile)(const char16_t* path, uint32_t mode, int32_t wait,
                                      int32_t* error);

/** Service 137: as GIODSCreateFile(). */
typedef GDataFile* (*GPICreateDataFile)(const char16_t* path, int32_t size, uint32_t mode,
                                        int32_t* error);

/** Service 131: as GIODSClose(). */
typedef int32_t (*GPICloseDataFile)(GDataFile* file);

/** Service 130: as GIODSRead(). */
typedef int32_t (*GPIReadDataFile)(GDataFile* file, void* buffer, int32_t size, int32_t* done);

/** Service 134: as GIODSWrite(). */
typedef int32_t (*GPIWriteDataFile)(GDataFile* file, const void* buffer, int32_t size,
                                    int32_t* done);

/** Service 132: as GIODSSeek(). */
typedef int32_t (*GPISeekDataFile)(GDataFile* file, int32_t offset, int32_t origin);

/** Service 133: as GIODSGetFileSize(). @return 1, or why it failed; ignored */
typedef int32_t (*GPIGetDataFileSize)(const char16_t* path, uint32_t* low, uint32_t* high,
                                      int32_t* error);

/** Service 135: as GIODSRename(). */
typedef int32_t (*GPIRenameDataFile)(const char16_t* from, const char16_t* to, uint32_t flags);

/** Service 136: as GIODSRemove(). */
typedef int32_t (*GPIRemoveDataFile)(const char16_t* path, uint32_t flags);

/* Profiles. Looked for again on every call while missing. */

/** Service 53: as GIOGetPrivateProfileInt(). */
typedef int32_t (*GPIGetProfileInt)(const char16_t* section, const char16_t* key, int32_t fallback,
                                    uint32_t layer, const char16_t* file);

/** Service 126: as GIOGetPrivateProfileIntEx(). */
typedef int32_t (*GPIGetProfileIntEx)(const char16_t* section, const char16_t* key,
                                      int32_t fallback, const char16_t* file);

/**
 * Service 54: as GIOGetPrivateProfileString(), but for the layer's width. Without it
 * GDDrawErrorMessage() takes the display for one of 640 x 480 pixels.
 */
typedef int32_t (*GPIGetProfileString)(const char16_t* section, const char16_t* key,
                                       const char16_t* fallback, char16_t* value, int32_t size,
                                       uint32_t layer, const char16_t* file);

/** Service 127: as GIOGetPrivateProfileStringEx(). */
typedef int32_t (*GPIGetProfileStringEx)(const char16_t* section, const char16_t* key,
                                         const char16_t* fallback, char16_t* value, int32_t size,
                                         const char16_t* file);

/** Service 116: as GIOSetPrivateProfileString(). */
typedef int32_t (*GPISetProfileString)(const char16_t* section, const char16_t* key,
                                       const char16_t* value, uint32_t layer, const char16_t* file);

/* Network. Taken as bound at start-up. */

/** Service 83: as GNetCrackUrl(). */
typedef int32_t (*GPICrackUrl)(const char16_t* url, uint32_t flags, GNetUrl* parts);

/** Service 84: as GNetCreateUrl(). */
typedef int32_t (*GPICreateUrl)(const GNetUrl* parts, uint32_t flags, char16_t* url, int32_t* size);

/** Service 85: as GNetCanonicalizeUrl(). */
typedef int32_t (*GPICanonicalizeUrl)(const char16_t* url, char16_t* out, int32_t* size,
                                      uint32_t flags);

/** Service 86: as GNetCombineUrl(). */
typedef int32_t (*GPICombineUrl)(const char16_t* base, const char16_t* relative, char16_t* out,
                                 int32_t* size, uint32_t flags);

/** Service 87: as GNetOpen(). */
typedef GNetHandle* (*GPINetOpen)(const char16_t* agent);

/** Service 88: as GNetCloseHandle(). */
typedef int32_t (*GPINetCloseHandle)(GNetHandle* handle);

/** Service 89: as GNetConnect(). */
typedef GNetHandle* (*GPINetConnect)(GNetHandle* session, const char16_t* server, int32_t port,
                                     const char16_t* user, const char16_t* password,
                                     int32_t protocol, uint32_t flags);

/** Service 90: as GNetOpenUrl(). */
typedef GNetHandle* (*GPINetOpenUrl)(GNetHandle* session, const char16_t* url,
                                     const char16_t* headers, uint32_t flags);

/** Service 91: as GNetReadFile(). */
typedef int32_t (*GPINetReadFile)(GNetHandle* file, void* buffer, int32_t size);

/** Service 92: as GNetSetFilePointer(). */
typedef int32_t (*GPINetSetFilePointer)(GNetHandle* file, int32_t offset, int32_t origin);

/** Service 93: as GNetWriteFile(). */
typedef int32_t (*GPINetWriteFile)(GNetHandle* file, const void* buffer, int32_t size,
                                   int32_t* written);

/** Service 94: as GNetQueryDataAvailable(). */
typedef int32_t (*GPINetQueryDataAvailable)(GNetHandle* file, int32_t* bytes);

/** Service 95: as GNetFindNextFile(). */
typedef int32_t (*GPINetFindNextFile)(GNetHandle* find, GNetFileInfo* info);

/** Service 96: as GNetQueryOption(). */
typedef int32_t (*GPINetQueryOption)(GNetHandle* handle, int32_t option, void* value,
                                     int32_t* size);

/** Service 97: as GNetSetOption(). */
typedef int32_t (*GPINetSetOption)(GNetHandle* handle, int32_t option, const void* value,
                                   int32_t size, uint32_t flags);

/** Service 98: as GNetLockRequestFile(). */
typedef int32_t (*GPINetLockRequestFile)(GNetHandle* file, GNetLock** lock);

/** Service 99: as GNetUnlockRequestFile(). */
typedef int32_t (*GPINetUnlockRequestFile)(GNetLock* lock);

/** Service 100: as GNetHttpOpenRequest(). */
typedef GNetHandle* (*GPIHttpOpenRequest)(GNetHandle* connection, const char16_t* verb,
                                          const char16_t* path, const char16_t* version,
                                          const char16_t* referrer, const char16_t* const* accept,
                                          uint32_t flags);

/** Service 101: as GNetHttpAddRequestHeaders(). */
typedef int32_t (*GPIHttpAddRequestHeaders)(GNetHandle* request, const char16_t* headers,
                                            uint32_t flags);

/** Service 102: as GNetHttpSendRequest(). */
typedef int32_t (*GPIHttpSendRequest)(GNetHandle* request, const char16_t* headers,
                                      const void* body, int32_t size);

/** Service 103: as GNetHttpEndRequest(). */
typedef int32_t (*GPIHttpEndRequest)(GNetHandle* request, uint32_t flags);

/** Service 104: as GNetHttpQueryInfo(). */
typedef int32_t (*GPIHttpQueryInfo)(GNetHandle* request, int32_t info, void* buffer, int32_t* size,
                                    int32_t* index);

/** Service 105: as GNetFtpFindFirstFile(). */
typedef GNetHandle* (*GPIFtpFindFirstFile)(GNetHandle* connection, const char16_t* pattern,
                                           GNetFileInfo* info, uint32_t flags);

/** Service 106: as GNetFtpGetFile(). */
typedef int32_t (*GPIFtpGetFile)(GNetHandle* connection, const char16_t* remote,
                                 const char16_t* local, int32_t failIfExists, uint32_t attributes,
                                 uint32_t flags);

/** Service 107: as GNetFtpPutFile(). */
typedef int32_t (*GPIFtpPutFile)(GNetHandle* connection, const char16_t* local,
                                 const char16_t* remote, uint32_t flags);

/** Service 108: as GNetFtpDeleteFile(). */
typedef int32_t (*GPIFtpDeleteFile)(GNetHandle* connection, const char16_t* path);

/** Service 109: as GNetFtpRenameFile(). */
typedef int32_t (*GPIFtpRenameFile)(GNetHandle* connection, const char16_t* from,
                                    const char16_t* to);

/** Service 110: as GNetFtpOpenFile(). */
typedef GNetHandle* (*GPIFtpOpenFile)(GNetHandle* connection, const char16_t* path, uint32_t mode,
                                      uint32_t flags);

/** Service 111: as GNetFtpCreateDirectory(). */
typedef int32_t (*GPIFtpCreateDirectory)(GNetHandle* connection, const char16_t* path);

/** Service 112: as GNetFtpRemoveDirectory(). */
typedef int32_t (*GPIFtpRemoveDirectory)(GNetHandle* connection, const char16_t* path);

/** Service 113: as GNetFtpSetCurrentDirectory(). */
typedef int32_t (*GPIFtpSetCurrentDirectory)(GNetHandle* connection, const char16_t* path);

/** Service 114: as GNetFtpGetCurrentDirectory(). */
typedef int32_t (*GPIFtpGetCurrentDirectory)(GNetHandle* connection, char16_t* path, int32_t* size);

/** Service 115: as GNetGetLastError(). */
typedef int32_t (*GPINetGetLastError)(void);

/* Numerical-control data. Looked for again on every call while missing. */

/** Service 200: as GNCDataSetGNCValue(). */
typedef int32_t (*GPISetNCValue)(int32_t channel, int32_t area, int32_t number, int32_t index,
                                 const double* value);

/** Service 201: as GNCDataGetGNCValue(). */
typedef int32_t (*GPIGetNCValue)(int32_t channel, int32_t area, int32_t number, int32_t index,
                                 double* value);

/** Service 202: as GNCDataSetString(). */
typedef int32_t (*GPISetNCString)(int32_t channel, int32_t string, int32_t number,
                                  const char16_t* text);

/** Service 203: as GNCDataGetString(). */
typedef int32_t (*GPIGetNCString)(int32_t channel, int32_t string, int32_t number, char16_t* text,
                                  int32_t size);

/** Service 204: as GNCDataIsNotaNumber(). */
typedef int32_t (*GPIIsNCValueUnset)(int32_t channel, int32_t variable);

/** Service 205: as GNCDataSetSystemVal(). */
typedef int32_t (*GPISetNCSystemValue)(int32_t number, int32_t value);

/** Service 206: as GNCDataGetSystemVal(). */
typedef int32_t (*GPIGetNCSystemValue)(int32_t number, int32_t* value);

QUARLO_END

#endif
