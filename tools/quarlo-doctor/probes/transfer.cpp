// HTTP requests and FTP: as with other network handles, every one is a wrong one.
#include "probe.h"

#include <memory>

namespace doctor {
namespace {

Complaint refusal(bool refused) {
    return refused ? "" : "takes no handle for an open one";
}

Complaint opensRequest(const Platform& platform) {
    const auto open = platform.service<GPIHttpOpenRequest>(GPI_SERVICE_HTTP_OPEN_REQUEST);
    return refusal(open(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, 0) == nullptr);
}

Complaint addsHeaders(const Platform& platform) {
    const auto add =
        platform.service<GPIHttpAddRequestHeaders>(GPI_SERVICE_HTTP_ADD_REQUEST_HEADERS);
    return refusal(add(nullptr, u"Accept: text/plain", G_HEADER_ADD) == 0);
}

Complaint sends(const Platform& platform) {
    const auto send = platform.service<GPIHttpSendRequest>(GPI_SERVICE_HTTP_SEND_REQUEST);
    return refusal(send(nullptr, nullptr, nullptr, 0) == 0);
}

Complaint ends(const Platform& platform) {
    const auto end = platform.service<GPIHttpEndRequest>(GPI_SERVICE_HTTP_END_REQUEST);
    return refusal(end(nullptr, 0) == 0);
}

Complaint tells(const Platform& platform) {
    int32_t status = 0;
    int32_t size = sizeof status;
    const auto tell = platform.service<GPIHttpQueryInfo>(GPI_SERVICE_HTTP_QUERY_INFO);
    return refusal(tell(nullptr, G_HTTP_STATUS, &status, &size, nullptr) == 0);
}

Complaint lists(const Platform& platform) {
    const auto info = std::make_unique<GNetFileInfo>();
    const auto find = platform.service<GPIFtpFindFirstFile>(GPI_SERVICE_FTP_FIND_FIRST_FILE);
    return refusal(find(nullptr, nullptr, info.get(), 0) == nullptr);
}

Complaint fetches(const Platform& platform) {
    const auto get = platform.service<GPIFtpGetFile>(GPI_SERVICE_FTP_GET_FILE);
    return refusal(get(nullptr, u"a", u"quarlo-doctor-has-no-such-file", 1, 0, 0) == 0);
}

Complaint puts(const Platform& platform) {
    const auto put = platform.service<GPIFtpPutFile>(GPI_SERVICE_FTP_PUT_FILE);
    return refusal(put(nullptr, u"quarlo-doctor-has-no-such-file", u"a", 0) == 0);
}

Complaint renames(const Platform& platform) {
    const auto rename = platform.service<GPIFtpRenameFile>(GPI_SERVICE_FTP_RENAME_FILE);
    return refusal(rename(nullptr, u"a", u"b") == 0);
}

Complaint opensFile(const Platform& platform) {
    const auto open = platform.service<GPIFtpOpenFile>(GPI_SERVICE_FTP_OPEN_FILE);
    return refusal(open(nullptr, u"a", G_OPEN_READ, 0) == nullptr);
}

/// Services 108 and 111 to 113, which take a connection and a path.
template <int32_t Number>
Complaint refusesPath(const Platform& platform) {
    return refusal(platform.service<GPIFtpDeleteFile>(Number)(nullptr, u"a") == 0);
}

Complaint tellsDirectory(const Platform& platform) {
    char16_t path[4] = {};
    int32_t size = 4;
    const auto get =
        platform.service<GPIFtpGetCurrentDirectory>(GPI_SERVICE_FTP_GET_CURRENT_DIRECTORY);
    return refusal(get(nullptr, path, &size) == 0);
}

} // namespace

std::span<const Probe> transferProbes() {
    static const Probe kProbes[] = {
        {GPI_SERVICE_HTTP_OPEN_REQUEST, opensRequest, {}},
        {GPI_SERVICE_HTTP_ADD_REQUEST_HEADERS, addsHeaders, {}},
        {GPI_SERVICE_HTTP_SEND_REQUEST, sends, {}},
        {GPI_SERVICE_HTTP_END_REQUEST, ends, {}},
        {GPI_SERVICE_HTTP_QUERY_INFO, tells, {}},
        {GPI_SERVICE_FTP_FIND_FIRST_FILE, lists, {}},
        {GPI_SERVICE_FTP_GET_FILE, fetches, {}},
        {GPI_SERVICE_FTP_PUT_FILE, puts, {}},
        {GPI_SERVICE_FTP_DELETE_FILE, refusesPath<GPI_SERVICE_FTP_DELETE_FILE>, {}},
        {GPI_SERVICE_FTP_RENAME_FILE, renames, {}},
        {GPI_SERVICE_FTP_OPEN_FILE, opensFile, {}},
        {GPI_SERVICE_FTP_CREATE_DIRECTORY, refusesPath<GPI_SERVICE_FTP_CREATE_DIRECTORY>, {}},
        {GPI_SERVICE_FTP_REMOVE_DIRECTORY, refusesPath<GPI_SERVICE_FTP_REMOVE_DIRECTORY>, {}},
        {GPI_SERVICE_FTP_SET_CURRENT_DIRECTORY,
         refusesPath<GPI_SERVICE_FTP_SET_CURRENT_DIRECTORY>,
         {}},
        {GPI_SERVICE_FTP_GET_CURRENT_DIRECTORY, tellsDirectory, {}},
    };
    return kProbes;
}

} // namespace doctor
