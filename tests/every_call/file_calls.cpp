#include "every_call/calls.h"

namespace quarlo::test {

ProgramCalls fileCalls() {
    return {
        with("GIOOpen", GIOOpen),
        with("GIOClose", GIOClose),
        with("GIOFClose", GIOFClose),
        with("GIORead", GIORead),
        with("GIOWrite", GIOWrite),
        with("GIOSeek", GIOSeek),
        with("GIOGets", GIOGets),
        with("GIOGetc", GIOGetc),
        with("GIORename", GIORename),
        with("GIORemove", GIORemove),
        with("GIOGetFileAccess", GIOGetFileAccess),
        with("GIOGetFileSize", GIOGetFileSize),
        with("GIOGetDirectory", GIOGetDirectory),
        with("GIOMakePath", GIOMakePath),
        with("GIOSplitPath", GIOSplitPath),
        with("GIOJpegGetInfo", GIOJpegGetInfo),
        with("GIOJpegLoad", GIOJpegLoad),
        with("GIODSOpen", GIODSOpen),
        with("GIODSCreateFile", GIODSCreateFile),
        with("GIODSClose", GIODSClose),
        with("GIODSRead", GIODSRead),
        with("GIODSWrite", GIODSWrite),
        with("GIODSSeek", GIODSSeek),
        with("GIODSGetFileSize", GIODSGetFileSize),
        with("GIODSRename", GIODSRename),
        with("GIODSRemove", GIODSRemove),
        with("GIOGetPrivateProfileInt", GIOGetPrivateProfileInt),
        with("GIOGetPrivateProfileIntEx", GIOGetPrivateProfileIntEx),
        with("GIOGetPrivateProfileString", GIOGetPrivateProfileString),
        with("GIOGetPrivateProfileStringEx", GIOGetPrivateProfileStringEx),
        with("GIOSetPrivateProfileString", GIOSetPrivateProfileString),
    };
}

} // namespace quarlo::test
