#include "net/error.h"

#include "file/error.h"
#include "net/ftp_reply.h"

#include <new>

namespace gpi {
namespace {

constexpr int kFirstRefusal = 400; // codes of replies

thread_local int32_t lastError = G_NET_OK;

int32_t ofLocalFile(int32_t ioError) {
    switch (ioError) {
    case G_IO_ARGUMENT:
        return G_NET_ARGUMENT;
    case G_IO_EXISTS:
        return G_NET_EXISTS;
    case G_IO_NO_MEMORY:
        return G_NET_NO_MEMORY;
    default:
        return G_NET_LOCAL_FILE;
    }
}

} // namespace

int32_t netErrorOf(CURLcode result, std::string_view reply) {
    switch (result) {
    case CURLE_OK:
        return G_NET_OK;
    case CURLE_URL_MALFORMAT:
        return G_NET_URL;
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_RESOLVE_PROXY:
        return G_NET_NAME;
    case CURLE_COULDNT_CONNECT:
        return G_NET_REFUSED;
    case CURLE_OPERATION_TIMEDOUT:
    case CURLE_FTP_ACCEPT_TIMEOUT:
        return G_NET_TIMEOUT;
    case CURLE_PARTIAL_FILE:
    case CURLE_GOT_NOTHING:
    case CURLE_SEND_ERROR:
    case CURLE_RECV_ERROR:
        return G_NET_BROKEN;
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_CERTPROBLEM:
    case CURLE_SSL_ISSUER_ERROR:
    case CURLE_SSL_INVALIDCERTSTATUS:
        return G_NET_CERTIFICATE;
    case CURLE_SSL_CACERT_BADFILE: // the file of trusted authorities
        return G_NET_LOCAL_FILE;
    case CURLE_TOO_MANY_REDIRECTS:
        return G_NET_REDIRECTS;
    case CURLE_LOGIN_DENIED:
        return G_NET_LOGIN;
    case CURLE_REMOTE_DISK_FULL:
        return G_NET_FULL;
    case CURLE_OUT_OF_MEMORY:
        return G_NET_NO_MEMORY;
    case CURLE_RANGE_ERROR:
    case CURLE_BAD_DOWNLOAD_RESUME:
    case CURLE_FTP_COULDNT_USE_REST:
    case CURLE_FTP_BAD_FILE_LIST:
    case CURLE_SEND_FAIL_REWIND:
        return G_NET_UNSUPPORTED;
    case CURLE_REMOTE_FILE_NOT_FOUND: // also an empty list, which the server sends gladly
        return codeOfFtpReply(reply) < kFirstRefusal ? int32_t{G_NET_NOT_FOUND}
                                                     : errorOfFtpReply(reply);
    case CURLE_QUOTE_ERROR:
    case CURLE_UPLOAD_FAILED:
    case CURLE_REMOTE_ACCESS_DENIED:
    case CURLE_FTP_COULDNT_RETR_FILE:
        return errorOfFtpReply(reply);
    default:
        return G_NET_PROTOCOL;
    }
}

int32_t lastNetError() {
    return lastError;
}

void setLastNetError(int32_t number) {
    lastError = number;
}

int32_t numberOfException() {
    try {
        throw;
    } catch (const NetError& error) {
        return error.number();
    } catch (const IoError& error) {
        return ofLocalFile(error.number());
    } catch (const std::system_error&) {
        return G_NET_LOCAL_FILE;
    } catch (const std::exception&) {
        return G_NET_NO_MEMORY;
    }
}

} // namespace gpi
