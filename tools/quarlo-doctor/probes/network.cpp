// Network handles. Nothing is sent: apart from a session, every handle is a wrong one.
#include "probe.h"

#include <memory>

namespace doctor {
namespace {

constexpr const char* kTakesNull = "takes no handle for an open one";

Complaint opens(const Platform& platform) {
    const auto open = platform.service<GPINetOpen>(GPI_SERVICE_NET_OPEN);
    return open(nullptr) != nullptr ? "" : "begins no session";
}

Complaint closes(const Platform& platform) {
    const auto close = platform.service<GPINetCloseHandle>(GPI_SERVICE_NET_CLOSE_HANDLE);
    GNetHandle* const session = platform.service<GPINetOpen>(GPI_SERVICE_NET_OPEN)(nullptr);
    if (close(session) != 1) {
        return "does not close a session";
    }
    return close(session) == 0 && close(nullptr) == 0 ? "" : "closes what is not open";
}

Complaint tellsError(const Platform& platform) {
    platform.service<GPINetCloseHandle>(GPI_SERVICE_NET_CLOSE_HANDLE)(nullptr);
    const auto tell = platform.service<GPINetGetLastError>(GPI_SERVICE_NET_GET_LAST_ERROR);
    return tell() == G_NET_HANDLE || tell() == G_NET_ARGUMENT ? "" : "does not say why it failed";
}

Complaint refusal(bool refused) {
    return refused ? "" : kTakesNull;
}

Complaint connects(const Platform& platform) {
    const auto connect = platform.service<GPINetConnect>(GPI_SERVICE_NET_CONNECT);
    return refusal(connect(nullptr, u"localhost", 0, nullptr, nullptr, G_NET_HTTP, 0) == nullptr);
}

Complaint opensUrl(const Platform& platform) {
    const auto open = platform.service<GPINetOpenUrl>(GPI_SERVICE_NET_OPEN_URL);
    return refusal(open(nullptr, u"http://localhost/", nullptr, 0) == nullptr);
}

Complaint reads(const Platform& platform) {
    char bytes[4] = {};
    const auto read = platform.service<GPINetReadFile>(GPI_SERVICE_NET_READ_FILE);
    return refusal(read(nullptr, bytes, sizeof bytes) == -1);
}

Complaint seeks(const Platform& platform) {
    const auto seek = platform.service<GPINetSetFilePointer>(GPI_SERVICE_NET_SET_FILE_POINTER);
    return refusal(seek(nullptr, 0, G_SEEK_START) == -1);
}

Complaint writes(const Platform& platform) {
    const auto write = platform.service<GPINetWriteFile>(GPI_SERVICE_NET_WRITE_FILE);
    return refusal(write(nullptr, "", 1, nullptr) == 0);
}

Complaint tellsAvailable(const Platform& platform) {
    int32_t bytes = 0;
    const auto tell =
        platform.service<GPINetQueryDataAvailable>(GPI_SERVICE_NET_QUERY_DATA_AVAILABLE);
    return refusal(tell(nullptr, &bytes) == 0);
}

Complaint findsNext(const Platform& platform) {
    const auto info = std::make_unique<GNetFileInfo>();
    const auto find = platform.service<GPINetFindNextFile>(GPI_SERVICE_NET_FIND_NEXT_FILE);
    return refusal(find(nullptr, info.get()) == 0);
}

Complaint readsOption(const Platform& platform) {
    int32_t value = 0;
    int32_t size = sizeof value;
    const auto query = platform.service<GPINetQueryOption>(GPI_SERVICE_NET_QUERY_OPTION);
    return refusal(query(nullptr, G_NET_OPTION_KIND, &value, &size) == 0);
}

Complaint setsOption(const Platform& platform) {
    const int32_t value = 1;
    const auto set = platform.service<GPINetSetOption>(GPI_SERVICE_NET_SET_OPTION);
    return refusal(set(nullptr, G_NET_OPTION_REDIRECTS, &value, sizeof value, 0) == 0);
}

Complaint locks(const Platform& platform) {
    GNetLock* lock = nullptr;
    const auto keep = platform.service<GPINetLockRequestFile>(GPI_SERVICE_NET_LOCK_REQUEST_FILE);
    return refusal(keep(nullptr, &lock) == 0);
}

Complaint unlocks(const Platform& platform) {
    const auto drop =
        platform.service<GPINetUnlockRequestFile>(GPI_SERVICE_NET_UNLOCK_REQUEST_FILE);
    return refusal(drop(nullptr) == 0);
}

} // namespace

std::span<const Probe> networkProbes() {
    static const Probe kProbes[] = {
        {GPI_SERVICE_NET_OPEN, opens, {}},
        {GPI_SERVICE_NET_CLOSE_HANDLE, closes, {GPI_SERVICE_NET_OPEN}},
        {GPI_SERVICE_NET_GET_LAST_ERROR, tellsError, {GPI_SERVICE_NET_CLOSE_HANDLE}},
        {GPI_SERVICE_NET_CONNECT, connects, {}},
        {GPI_SERVICE_NET_OPEN_URL, opensUrl, {}},
        {GPI_SERVICE_NET_READ_FILE, reads, {}},
        {GPI_SERVICE_NET_SET_FILE_POINTER, seeks, {}},
        {GPI_SERVICE_NET_WRITE_FILE, writes, {}},
        {GPI_SERVICE_NET_QUERY_DATA_AVAILABLE, tellsAvailable, {}},
        {GPI_SERVICE_NET_FIND_NEXT_FILE, findsNext, {}},
        {GPI_SERVICE_NET_QUERY_OPTION, readsOption, {}},
        {GPI_SERVICE_NET_SET_OPTION, setsOption, {}},
        {GPI_SERVICE_NET_LOCK_REQUEST_FILE, locks, {}},
        {GPI_SERVICE_NET_UNLOCK_REQUEST_FILE, unlocks, {}},
    };
    return kProbes;
}

} // namespace doctor
