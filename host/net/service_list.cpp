#include "net/service_list.h"

#include "net/services.h"
#include "service_entry.h"

namespace gpi {

GPIFunction networkServiceOf(int32_t number) {
    static const ServiceEntry services[] = {
        offer<GPICrackUrl>(GPI_SERVICE_CRACK_URL, crackUrl),
        offer<GPICreateUrl>(GPI_SERVICE_CREATE_URL, createUrl),
        offer<GPICanonicalizeUrl>(GPI_SERVICE_CANONICALIZE_URL, canonicalizeUrl),
        offer<GPICombineUrl>(GPI_SERVICE_COMBINE_URL, combineUrl),
        offer<GPINetOpen>(GPI_SERVICE_NET_OPEN, netOpen),
        offer<GPINetCloseHandle>(GPI_SERVICE_NET_CLOSE_HANDLE, netCloseHandle),
        offer<GPINetConnect>(GPI_SERVICE_NET_CONNECT, netConnect),
        offer<GPINetOpenUrl>(GPI_SERVICE_NET_OPEN_URL, netOpenUrl),
        offer<GPINetReadFile>(GPI_SERVICE_NET_READ_FILE, netReadFile),
        offer<GPINetSetFilePointer>(GPI_SERVICE_NET_SET_FILE_POINTER, netSetFilePointer),
        offer<GPINetWriteFile>(GPI_SERVICE_NET_WRITE_FILE, netWriteFile),
        offer<GPINetQueryDataAvailable>(GPI_SERVICE_NET_QUERY_DATA_AVAILABLE,
                                        netQueryDataAvailable),
        offer<GPINetFindNextFile>(GPI_SERVICE_NET_FIND_NEXT_FILE, netFindNextFile),
        offer<GPINetQueryOption>(GPI_SERVICE_NET_QUERY_OPTION, netQueryOption),
        offer<GPINetSetOption>(GPI_SERVICE_NET_SET_OPTION, netSetOption),
        offer<GPINetLockRequestFile>(GPI_SERVICE_NET_LOCK_REQUEST_FILE, netLockRequestFile),
        offer<GPINetUnlockRequestFile>(GPI_SERVICE_NET_UNLOCK_REQUEST_FILE, netUnlockRequestFile),
        offer<GPIHttpOpenRequest>(GPI_SERVICE_HTTP_OPEN_REQUEST, httpOpenRequest),
        offer<GPIHttpAddRequestHeaders>(GPI_SERVICE_HTTP_ADD_REQUEST_HEADERS,
                                        httpAddRequestHeaders),
        offer<GPIHttpSendRequest>(GPI_SERVICE_HTTP_SEND_REQUEST, httpSendRequest),
        offer<GPIHttpEndRequest>(GPI_SERVICE_HTTP_END_REQUEST, httpEndRequest),
        offer<GPIHttpQueryInfo>(GPI_SERVICE_HTTP_QUERY_INFO, httpQueryInfo),
        offer<GPIFtpFindFirstFile>(GPI_SERVICE_FTP_FIND_FIRST_FILE, ftpFindFirstFile),
        offer<GPIFtpGetFile>(GPI_SERVICE_FTP_GET_FILE, ftpGetFile),
        offer<GPIFtpPutFile>(GPI_SERVICE_FTP_PUT_FILE, ftpPutFile),
        offer<GPIFtpDeleteFile>(GPI_SERVICE_FTP_DELETE_FILE, ftpDeleteFile),
        offer<GPIFtpRenameFile>(GPI_SERVICE_FTP_RENAME_FILE, ftpRenameFile),
        offer<GPIFtpOpenFile>(GPI_SERVICE_FTP_OPEN_FILE, ftpOpenFile),
        offer<GPIFtpCreateDirectory>(GPI_SERVICE_FTP_CREATE_DIRECTORY, ftpCreateDirectory),
        offer<GPIFtpRemoveDirectory>(GPI_SERVICE_FTP_REMOVE_DIRECTORY, ftpRemoveDirectory),
        offer<GPIFtpSetCurrentDirectory>(GPI_SERVICE_FTP_SET_CURRENT_DIRECTORY,
                                         ftpSetCurrentDirectory),
        offer<GPIFtpGetCurrentDirectory>(GPI_SERVICE_FTP_GET_CURRENT_DIRECTORY,
                                         ftpGetCurrentDirectory),
        offer<GPINetGetLastError>(GPI_SERVICE_NET_GET_LAST_ERROR, netGetLastError),
    };
    return find(services, number);
}

} // namespace gpi
