// Network and numerical-control data.
#include "services/service.h"

namespace doctor {
namespace {

using enum Need;
using enum Asked;

constexpr Service kNetworkServices[] = {
    {83, "CRACK_URL", "GPICrackUrl", Optional, AtStart, "GNetCrackUrl(): takes a URL apart",
     "GNetCrackUrl() gives 0"},
    {84, "CREATE_URL", "GPICreateUrl", Optional, AtStart, "GNetCreateUrl(): puts a URL together",
     "GNetCreateUrl() gives 0"},
    {85, "CANONICALIZE_URL", "GPICanonicalizeUrl", Optional, AtStart,
     "GNetCanonicalizeUrl(): brings a URL into its usual form", "GNetCanonicalizeUrl() gives 0"},
    {86, "COMBINE_URL", "GPICombineUrl", Optional, AtStart,
     "GNetCombineUrl(): where a relative URL leads", "GNetCombineUrl() gives 0"},
    {87, "NET_OPEN", "GPINetOpen", Optional, AtStart, "GNetOpen(): begins a session",
     "GNetOpen() gives null"},
    {88, "NET_CLOSE_HANDLE", "GPINetCloseHandle", Optional, AtStart,
     "GNetCloseHandle(): closes a handle", "GNetCloseHandle() gives 0"},
    {89, "NET_CONNECT", "GPINetConnect", Optional, AtStart, "GNetConnect(): names a server",
     "GNetConnect() gives null"},
    {90, "NET_OPEN_URL", "GPINetOpenUrl", Optional, AtStart, "GNetOpenUrl(): asks for a URL",
     "GNetOpenUrl() gives null"},
    {91, "NET_READ_FILE", "GPINetReadFile", Optional, AtStart, "GNetReadFile(): reads bytes",
     "GNetReadFile() gives 0"},
    {92, "NET_SET_FILE_POINTER", "GPINetSetFilePointer", Optional, AtStart,
     "GNetSetFilePointer(): sets the position", "GNetSetFilePointer() gives 0"},
    {93, "NET_WRITE_FILE", "GPINetWriteFile", Optional, AtStart, "GNetWriteFile(): writes bytes",
     "GNetWriteFile() gives 0"},
    {94, "NET_QUERY_DATA_AVAILABLE", "GPINetQueryDataAvailable", Optional, AtStart,
     "GNetQueryDataAvailable(): bytes that can be read at once",
     "GNetQueryDataAvailable() gives 0"},
    {95, "NET_FIND_NEXT_FILE", "GPINetFindNextFile", Optional, AtStart,
     "GNetFindNextFile(): the next entry of a list", "GNetFindNextFile() gives 0"},
    {96, "NET_QUERY_OPTION", "GPINetQueryOption", Optional, AtStart,
     "GNetQueryOption(): reads an option", "GNetQueryOption() gives 0"},
    {97, "NET_SET_OPTION", "GPINetSetOption", Optional, AtStart, "GNetSetOption(): sets an option",
     "GNetSetOption() gives 0"},
    {98, "NET_LOCK_REQUEST_FILE", "GPINetLockRequestFile", Optional, AtStart,
     "GNetLockRequestFile(): keeps what was read", "GNetLockRequestFile() gives 0"},
    {99, "NET_UNLOCK_REQUEST_FILE", "GPINetUnlockRequestFile", Optional, AtStart,
     "GNetUnlockRequestFile(): gives up what 98 keeps", "GNetUnlockRequestFile() gives 0"},
    {100, "HTTP_OPEN_REQUEST", "GPIHttpOpenRequest", Optional, AtStart,
     "GNetHttpOpenRequest(): prepares an HTTP request", "GNetHttpOpenRequest() gives null"},
    {101, "HTTP_ADD_REQUEST_HEADERS", "GPIHttpAddRequestHeaders", Optional, AtStart,
     "GNetHttpAddRequestHeaders(): adds headers to a request",
     "GNetHttpAddRequestHeaders() gives 0"},
    {102, "HTTP_SEND_REQUEST", "GPIHttpSendRequest", Optional, AtStart,
     "GNetHttpSendRequest(): sends a request", "GNetHttpSendRequest() gives 0"},
    {103, "HTTP_END_REQUEST", "GPIHttpEndRequest", Optional, AtStart,
     "GNetHttpEndRequest(): ends the body of a request", "GNetHttpEndRequest() gives 0"},
    {104, "HTTP_QUERY_INFO", "GPIHttpQueryInfo", Optional, AtStart,
     "GNetHttpQueryInfo(): asks about an answer", "GNetHttpQueryInfo() gives 0"},
    {105, "FTP_FIND_FIRST_FILE", "GPIFtpFindFirstFile", Optional, AtStart,
     "GNetFtpFindFirstFile(): lists a folder of an FTP server",
     "GNetFtpFindFirstFile() gives null"},
    {106, "FTP_GET_FILE", "GPIFtpGetFile", Optional, AtStart,
     "GNetFtpGetFile(): fetches a file of an FTP server", "GNetFtpGetFile() gives 0"},
    {107, "FTP_PUT_FILE", "GPIFtpPutFile", Optional, AtStart, "GNetFtpPutFile(): sends a file",
     "GNetFtpPutFile() gives 0"},
    {108, "FTP_DELETE_FILE", "GPIFtpDeleteFile", Optional, AtStart,
     "GNetFtpDeleteFile(): removes a file", "GNetFtpDeleteFile() gives 0"},
    {109, "FTP_RENAME_FILE", "GPIFtpRenameFile", Optional, AtStart,
     "GNetFtpRenameFile(): renames a file", "GNetFtpRenameFile() gives 0"},
    {110, "FTP_OPEN_FILE", "GPIFtpOpenFile", Optional, AtStart, "GNetFtpOpenFile(): opens a file",
     "GNetFtpOpenFile() gives null"},
    {111, "FTP_CREATE_DIRECTORY", "GPIFtpCreateDirectory", Optional, AtStart,
     "GNetFtpCreateDirectory(): makes a folder", "GNetFtpCreateDirectory() gives 0"},
    {112, "FTP_REMOVE_DIRECTORY", "GPIFtpRemoveDirectory", Optional, AtStart,
     "GNetFtpRemoveDirectory(): removes a folder", "GNetFtpRemoveDirectory() gives 0"},
    {113, "FTP_SET_CURRENT_DIRECTORY", "GPIFtpSetCurrentDirectory", Optional, AtStart,
     "GNetFtpSetCurrentDirectory(): changes the current folder",
     "GNetFtpSetCurrentDirectory() gives 0"},
    {114, "FTP_GET_CURRENT_DIRECTORY", "GPIFtpGetCurrentDirectory", Optional, AtStart,
     "GNetFtpGetCurrentDirectory(): the current folder", "GNetFtpGetCurrentDirectory() gives 0"},
    {115, "NET_GET_LAST_ERROR", "GPINetGetLastError", Optional, AtStart,
     "GNetGetLastError(): why the last call failed", "GNetGetLastError() gives 0"},
};

constexpr Service kMachineServices[] = {
    {200, "SET_NC_VALUE", "GPISetNCValue", Optional, Late, "GNCDataSetGNCValue(): sets a value",
     "GNCDataSetGNCValue() gives 0"},
    {201, "GET_NC_VALUE", "GPIGetNCValue", Optional, Late, "GNCDataGetGNCValue(): reads a value",
     "GNCDataGetGNCValue() gives 0"},
    {202, "SET_NC_STRING", "GPISetNCString", Optional, Late, "GNCDataSetString(): sets a string",
     "GNCDataSetString() gives 0"},
    {203, "GET_NC_STRING", "GPIGetNCString", Optional, Late, "GNCDataGetString(): reads a string",
     "GNCDataGetString() gives 0"},
    {204, "IS_NC_VALUE_UNSET", "GPIIsNCValueUnset", Optional, Late,
     "GNCDataIsNotaNumber(): whether a macro variable is unset", "GNCDataIsNotaNumber() gives 0"},
    {205, "SET_NC_SYSTEM_VALUE", "GPISetNCSystemValue", Optional, Late,
     "GNCDataSetSystemVal(): sets a system value", "GNCDataSetSystemVal() gives 0"},
    {206, "GET_NC_SYSTEM_VALUE", "GPIGetNCSystemValue", Optional, Late,
     "GNCDataGetSystemVal(): reads a system value", "GNCDataGetSystemVal() gives 0"},
};

} // namespace

const Group kNetwork{"Network", kNetworkServices};
const Group kMachineData{"Numerical-control data", kMachineServices};

} // namespace doctor
