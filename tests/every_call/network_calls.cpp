#include "every_call/calls.h"

namespace quarlo::test {

ProgramCalls networkCalls() {
    return {
        with("GNetCrackUrl", GNetCrackUrl),
        with("GNetCreateUrl", GNetCreateUrl),
        with("GNetCanonicalizeUrl", GNetCanonicalizeUrl),
        with("GNetCombineUrl", GNetCombineUrl),
        with("GNetOpen", GNetOpen),
        with("GNetCloseHandle", GNetCloseHandle),
        with("GNetConnect", GNetConnect),
        with("GNetOpenUrl", GNetOpenUrl),
        with("GNetReadFile", GNetReadFile),
        with("GNetSetFilePointer", GNetSetFilePointer),
        with("GNetWriteFile", GNetWriteFile),
        with("GNetQueryDataAvailable", GNetQueryDataAvailable),
        with("GNetFindNextFile", GNetFindNextFile),
        with("GNetQueryOption", GNetQueryOption),
        with("GNetSetOption", GNetSetOption),
        with("GNetLockRequestFile", GNetLockRequestFile),
        with("GNetUnlockRequestFile", GNetUnlockRequestFile),
        with("GNetHttpOpenRequest", GNetHttpOpenRequest),
        with("GNetHttpAddRequestHeaders", GNetHttpAddRequestHeaders),
        with("GNetHttpSendRequest", GNetHttpSendRequest),
        with("GNetHttpEndRequest", GNetHttpEndRequest),
        with("GNetHttpQueryInfo", GNetHttpQueryInfo),
        with("GNetFtpFindFirstFile", GNetFtpFindFirstFile),
        with("GNetFtpGetFile", GNetFtpGetFile),
        with("GNetFtpPutFile", GNetFtpPutFile),
        with("GNetFtpDeleteFile", GNetFtpDeleteFile),
        with("GNetFtpRenameFile", GNetFtpRenameFile),
        with("GNetFtpOpenFile", GNetFtpOpenFile),
        with("GNetFtpCreateDirectory", GNetFtpCreateDirectory),
        with("GNetFtpRemoveDirectory", GNetFtpRemoveDirectory),
        with("GNetFtpSetCurrentDirectory", GNetFtpSetCurrentDirectory),
        with("GNetFtpGetCurrentDirectory", GNetFtpGetCurrentDirectory),
        with("GNetGetLastError", GNetGetLastError),
    };
}

} // namespace quarlo::test
