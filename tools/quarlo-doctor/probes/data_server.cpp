// Data-server files: as with files, what is asked for is never there.
#include "probe.h"

namespace doctor {
namespace {

constexpr const char16_t* kMissing = u"quarlo-doctor-has-no-such-file";
constexpr const char* kTakesNull = "takes no file for an open one";
constexpr const char* kFindsMissing = "finds a file that there is not";

Complaint opens(const Platform& platform) {
    int32_t error = 1;
    const auto open = platform.service<GPIOpenDataFile>(GPI_SERVICE_OPEN_DATA_FILE);
    if (open(kMissing, G_OPEN_READ, 0, &error) != nullptr) {
        return "opens a file that there is not";
    }
    return error < 0 ? "" : "does not say why it failed";
}

Complaint creates(const Platform& platform) {
    int32_t error = 1;
    const auto create = platform.service<GPICreateDataFile>(GPI_SERVICE_CREATE_DATA_FILE);
    if (create(nullptr, 0, 0, &error) != nullptr) {
        return "makes a file without a name";
    }
    return error < 0 ? "" : "does not say why it failed";
}

Complaint closes(const Platform& platform) {
    const auto close = platform.service<GPICloseDataFile>(GPI_SERVICE_CLOSE_DATA_FILE);
    return close(nullptr) < 0 ? "" : kTakesNull;
}

Complaint reads(const Platform& platform) {
    char bytes[4] = {};
    int32_t done = 0;
    const auto read = platform.service<GPIReadDataFile>(GPI_SERVICE_READ_DATA_FILE);
    return read(nullptr, bytes, sizeof bytes, &done) < 0 ? "" : kTakesNull;
}

Complaint writes(const Platform& platform) {
    const char bytes[4] = {};
    int32_t done = 0;
    const auto write = platform.service<GPIWriteDataFile>(GPI_SERVICE_WRITE_DATA_FILE);
    return write(nullptr, bytes, sizeof bytes, &done) < 0 ? "" : kTakesNull;
}

Complaint seeks(const Platform& platform) {
    const auto seek = platform.service<GPISeekDataFile>(GPI_SERVICE_SEEK_DATA_FILE);
    return seek(nullptr, 0, G_SEEK_START) < 0 ? "" : kTakesNull;
}

Complaint tellsSize(const Platform& platform) {
    uint32_t low = 0;
    uint32_t high = 0;
    int32_t error = 1;
    const auto tell = platform.service<GPIGetDataFileSize>(GPI_SERVICE_GET_DATA_FILE_SIZE);
    return tell(kMissing, &low, &high, &error) < 0 && error < 0 ? "" : kFindsMissing;
}

Complaint renames(const Platform& platform) {
    const auto rename = platform.service<GPIRenameDataFile>(GPI_SERVICE_RENAME_DATA_FILE);
    return rename(kMissing, kMissing, 0) < 0 ? "" : kFindsMissing;
}

Complaint removes(const Platform& platform) {
    const auto remove = platform.service<GPIRemoveDataFile>(GPI_SERVICE_REMOVE_DATA_FILE);
    return remove(kMissing, 0) < 0 ? "" : kFindsMissing;
}

} // namespace

std::span<const Probe> dataServerProbes() {
    static const Probe kProbes[] = {
        {GPI_SERVICE_OPEN_DATA_FILE, opens, {}},
        {GPI_SERVICE_CREATE_DATA_FILE, creates, {}},
        {GPI_SERVICE_CLOSE_DATA_FILE, closes, {}},
        {GPI_SERVICE_READ_DATA_FILE, reads, {}},
        {GPI_SERVICE_WRITE_DATA_FILE, writes, {}},
        {GPI_SERVICE_SEEK_DATA_FILE, seeks, {}},
        {GPI_SERVICE_GET_DATA_FILE_SIZE, tellsSize, {}},
        {GPI_SERVICE_RENAME_DATA_FILE, renames, {}},
        {GPI_SERVICE_REMOVE_DATA_FILE, removes, {}},
    };
    return kProbes;
}

} // namespace doctor
