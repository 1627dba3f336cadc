// How many arguments each forwarded call has: a binary passes exactly these.
#include <quarlo/quarlo.h>

#include <cstddef>

namespace {

template <typename R, typename... Args>
constexpr size_t argumentsOf(R (*)(Args...)) {
    return sizeof...(Args);
}

// Modules.
static_assert(argumentsOf(&GDFCLoadModule) == 2);
static_assert(argumentsOf(&GDFCLoadModuleEx) == 1);
static_assert(argumentsOf(&GDFCFreeModule) == 1);
static_assert(argumentsOf(&GDFCGetModuleFuncAddress) == 2);

// Files and profiles.
static_assert(argumentsOf(&GIOOpen) == 3);
static_assert(argumentsOf(&GIOClose) == 1);
static_assert(argumentsOf(&GIOFClose) == 1);
static_assert(argumentsOf(&GIORead) == 4);
static_assert(argumentsOf(&GIOWrite) == 4);
static_assert(argumentsOf(&GIOSeek) == 3);
static_assert(argumentsOf(&GIOGets) == 3);
static_assert(argumentsOf(&GIOGetc) == 1);
static_assert(argumentsOf(&GIORename) == 3);
static_assert(argumentsOf(&GIORemove) == 2);
static_assert(argumentsOf(&GIOGetFileAccess) == 3);
static_assert(argumentsOf(&GIOGetFileSize) == 2);
static_assert(argumentsOf(&GIOGetDirectory) == 3);
static_assert(argumentsOf(&GIOMakePath) == 5);
static_assert(argumentsOf(&GIOSplitPath) == 5);
static_assert(argumentsOf(&GIOJpegGetInfo) == 3);
static_assert(argumentsOf(&GIOJpegLoad) == 3);
static_assert(argumentsOf(&GIOGetPrivateProfileInt) == 5);
static_assert(argumentsOf(&GIOGetPrivateProfileIntEx) == 4);
static_assert(argumentsOf(&GIOGetPrivateProfileString) == 7);
static_assert(argumentsOf(&GIOGetPrivateProfileStringEx) == 6);
static_assert(argumentsOf(&GIOSetPrivateProfileString) == 5);

// Data-server files.
static_assert(argumentsOf(&GIODSOpen) == 4);
static_assert(argumentsOf(&GIODSClose) == 1);
static_assert(argumentsOf(&GIODSRead) == 4);
static_assert(argumentsOf(&GIODSWrite) == 4);
static_assert(argumentsOf(&GIODSSeek) == 3);
static_assert(argumentsOf(&GIODSGetFileSize) == 4);
static_assert(argumentsOf(&GIODSRename) == 3);
static_assert(argumentsOf(&GIODSRemove) == 2);
static_assert(argumentsOf(&GIODSCreateFile) == 4);

// Network.
static_assert(argumentsOf(&GNetCrackUrl) == 3);
static_assert(argumentsOf(&GNetCreateUrl) == 4);
static_assert(argumentsOf(&GNetCanonicalizeUrl) == 4);
static_assert(argumentsOf(&GNetCombineUrl) == 5);
static_assert(argumentsOf(&GNetOpen) == 1);
static_assert(argumentsOf(&GNetCloseHandle) == 1);
static_assert(argumentsOf(&GNetConnect) == 7);
static_assert(argumentsOf(&GNetOpenUrl) == 4);
static_assert(argumentsOf(&GNetReadFile) == 3);
static_assert(argumentsOf(&GNetSetFilePointer) == 3);
static_assert(argumentsOf(&GNetWriteFile) == 4);
static_assert(argumentsOf(&GNetQueryDataAvailable) == 2);
static_assert(argumentsOf(&GNetFindNextFile) == 2);
static_assert(argumentsOf(&GNetQueryOption) == 4);
static_assert(argumentsOf(&GNetSetOption) == 5);
static_assert(argumentsOf(&GNetLockRequestFile) == 2);
static_assert(argumentsOf(&GNetUnlockRequestFile) == 1);

// HTTP.
static_assert(argumentsOf(&GNetHttpOpenRequest) == 7);
static_assert(argumentsOf(&GNetHttpAddRequestHeaders) == 3);
static_assert(argumentsOf(&GNetHttpSendRequest) == 4);
static_assert(argumentsOf(&GNetHttpEndRequest) == 2);
static_assert(argumentsOf(&GNetHttpQueryInfo) == 5);

// FTP.
static_assert(argumentsOf(&GNetFtpFindFirstFile) == 4);
static_assert(argumentsOf(&GNetFtpGetFile) == 6);
static_assert(argumentsOf(&GNetFtpPutFile) == 4);
static_assert(argumentsOf(&GNetFtpDeleteFile) == 2);
static_assert(argumentsOf(&GNetFtpRenameFile) == 3);
static_assert(argumentsOf(&GNetFtpOpenFile) == 4);
static_assert(argumentsOf(&GNetFtpCreateDirectory) == 2);
static_assert(argumentsOf(&GNetFtpRemoveDirectory) == 2);
static_assert(argumentsOf(&GNetFtpSetCurrentDirectory) == 2);
static_assert(argumentsOf(&GNetFtpGetCurrentDirectory) == 3);

// Network.
static_assert(argumentsOf(&GNetGetLastError) == 0);

// Applications.
static_assert(argumentsOf(&GAppExecute) == 5);
static_assert(argumentsOf(&GAppExit) == 1);

// Numerical-control data.
static_assert(argumentsOf(&GNCDataSetGNCValue) == 5);
static_assert(argumentsOf(&GNCDataGetGNCValue) == 5);
static_assert(argumentsOf(&GNCDataSetString) == 4);
static_assert(argumentsOf(&GNCDataGetString) == 5);
static_assert(argumentsOf(&GNCDataIsNotaNumber) == 2);
static_assert(argumentsOf(&GNCDataSetSystemVal) == 2);
static_assert(argumentsOf(&GNCDataGetSystemVal) == 2);

// Search.
static_assert(argumentsOf(&GUBSearch) == 5);

} // namespace
