// Files, data-server files and profiles.
#include "services/service.h"

namespace doctor {
namespace {

using enum Need;
using enum Asked;

constexpr Service kFileServices[] = {
    {48, "OPEN_FILE", "GPIOpenFile", Optional, Late, "GIOOpen(): opens a file",
     "GIOOpen() gives null"},
    {49, "CLOSE_FILE", "GPICloseFile", Optional, Late, "GIOClose(): closes a file",
     "GIOClose() gives 0"},
    {50, "READ_FILE", "GPIReadFile", Optional, Late, "GIORead(): reads bytes", "GIORead() gives 0"},
    {51, "WRITE_FILE", "GPIWriteFile", Optional, Late, "GIOWrite(): writes bytes",
     "GIOWrite() gives 0"},
    {52, "SEEK_FILE", "GPISeekFile", Optional, Late, "GIOSeek(): sets the position",
     "GIOSeek() gives 0"},
    {63, "MAKE_PATH", "GPIMakePath", Optional, Late, "GIOMakePath(): puts a path together",
     "GIOMakePath() gives 0"},
    {64, "SPLIT_PATH", "GPISplitPath", Optional, Late, "GIOSplitPath(): takes a path apart",
     "GIOSplitPath() gives 0"},
    {65, "READ_LINE", "GPIReadLine", Optional, Late, "GIOGets(): reads a line",
     "GIOGets() gives 0"},
    {71, "GET_DIRECTORY", "GPIGetDirectory", Optional, Late, "GIOGetDirectory(): lists a folder",
     "GIOGetDirectory() gives 0"},
    {72, "READ_BYTE", "GPIReadByte", Optional, Late, "GIOGetc(): reads a byte",
     "GIOGetc() gives 0"},
    {73, "GET_JPEG_INFO", "GPIGetJpegInfo", Optional, Late,
     "GIOJpegGetInfo(): what a JPEG file holds", "GIOJpegGetInfo() gives 0"},
    {74, "LOAD_JPEG", "GPILoadJpeg", Optional, Late,
     "GIOJpegLoad(): loads a JPEG file into a surface", "GIOJpegLoad() gives 0"},
    {120, "RENAME_FILE", "GPIRenameFile", Optional, Late, "GIORename(): renames a file",
     "GIORename() gives 0"},
    {121, "REMOVE_FILE", "GPIRemoveFile", Optional, Late, "GIORemove(): removes a file",
     "GIORemove() gives 0"},
    {122, "GET_FILE_ACCESS", "GPIGetFileAccess", Optional, Late,
     "GIOGetFileAccess(): what may be done with a file", "GIOGetFileAccess() gives 0"},
    {123, "GET_FILE_SIZE", "GPIGetFileSize", Optional, Late, "GIOGetFileSize(): the size of a file",
     "GIOGetFileSize() gives 0"},
    {125, "FLUSH_AND_CLOSE_FILE", "GPIFlushAndCloseFile", Optional, Late,
     "GIOFClose(): closes a file once it is on the medium", "GIOFClose() gives 0"},
};

constexpr Service kDataFileServices[] = {
    {129, "OPEN_DATA_FILE", "GPIOpenDataFile", Optional, Late, "GIODSOpen(): opens a file",
     "GIODSOpen() gives null"},
    {130, "READ_DATA_FILE", "GPIReadDataFile", Optional, Late, "GIODSRead(): reads bytes",
     "GIODSRead() gives 0"},
    {131, "CLOSE_DATA_FILE", "GPICloseDataFile", Optional, Late, "GIODSClose(): closes a file",
     "GIODSClose() gives 0"},
    {132, "SEEK_DATA_FILE", "GPISeekDataFile", Optional, Late, "GIODSSeek(): sets the position",
     "GIODSSeek() gives 0"},
    {133, "GET_DATA_FILE_SIZE", "GPIGetDataFileSize", Optional, Late,
     "GIODSGetFileSize(): the size of a file", "GIODSGetFileSize() gives 0"},
    {134, "WRITE_DATA_FILE", "GPIWriteDataFile", Optional, Late, "GIODSWrite(): writes bytes",
     "GIODSWrite() gives 0"},
    {135, "RENAME_DATA_FILE", "GPIRenameDataFile", Optional, Late, "GIODSRename(): renames a file",
     "GIODSRename() gives 0"},
    {136, "REMOVE_DATA_FILE", "GPIRemoveDataFile", Optional, Late, "GIODSRemove(): removes a file",
     "GIODSRemove() gives 0"},
    {137, "CREATE_DATA_FILE", "GPICreateDataFile", Optional, Late,
     "GIODSCreateFile(): makes a file of a given size", "GIODSCreateFile() gives null"},
};

constexpr Service kProfileServices[] = {
    {53, "GET_PROFILE_INT", "GPIGetProfileInt", Optional, Late,
     "GIOGetPrivateProfileInt(): reads a number", "GIOGetPrivateProfileInt() gives 0"},
    {54, "GET_PROFILE_STRING", "GPIGetProfileString", Optional, Late,
     "GIOGetPrivateProfileString(): reads a value",
     "GIOGetPrivateProfileString() gives 0; GDDrawErrorMessage() takes the display for one of 640 "
     "x 480 pixels"},
    {116, "SET_PROFILE_STRING", "GPISetProfileString", Optional, Late,
     "GIOSetPrivateProfileString(): writes a value", "GIOSetPrivateProfileString() gives 0"},
    {126, "GET_PROFILE_INT_EX", "GPIGetProfileIntEx", Optional, Late,
     "GIOGetPrivateProfileIntEx(): reads a number, of any layer",
     "GIOGetPrivateProfileIntEx() gives 0"},
    {127, "GET_PROFILE_STRING_EX", "GPIGetProfileStringEx", Optional, Late,
     "GIOGetPrivateProfileStringEx(): reads a value, of any layer",
     "GIOGetPrivateProfileStringEx() gives 0"},
};

} // namespace

const Group kFiles{"Files", kFileServices};
const Group kDataServerFiles{"Data-server files", kDataFileServices};
const Group kProfiles{"Profiles", kProfileServices};

} // namespace doctor
