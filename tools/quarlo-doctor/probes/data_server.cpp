// Data-server files.
#include "probes/stored_file.h"

namespace doctor {
namespace {

Complaint opens(const Platform& platform) {
    int32_t error = 1;
    const auto open = platform.service<GPIOpenDataFile>(GPI_SERVICE_OPEN_DATA_FILE);
    if (open(kMissingFile, G_OPEN_READ, 0, &error) != nullptr) {
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

Complaint tellsSize(const Platform& platform) {
    uint32_t low = 0;
    uint32_t high = 0;
    int32_t error = 1;
    const auto tell = platform.service<GPIGetDataFileSize>(GPI_SERVICE_GET_DATA_FILE_SIZE);
    return tell(kMissingFile, &low, &high, &error) < 0 && error < 0 ? "" : kFindsMissing;
}

} // namespace

std::span<const Probe> dataServerProbes() {
    static const Probe kProbes[] = {
        {GPI_SERVICE_OPEN_DATA_FILE, opens, {}},
        {GPI_SERVICE_CREATE_DATA_FILE, creates, {}},
        {GPI_SERVICE_CLOSE_DATA_FILE,
         refusesNoFile<GPICloseDataFile, GPI_SERVICE_CLOSE_DATA_FILE>,
         {}},
        {GPI_SERVICE_READ_DATA_FILE,
         refusesNoFile<GPIReadDataFile, GPI_SERVICE_READ_DATA_FILE>,
         {}},
        {GPI_SERVICE_WRITE_DATA_FILE,
         refusesNoFile<GPIWriteDataFile, GPI_SERVICE_WRITE_DATA_FILE>,
         {}},
        {GPI_SERVICE_SEEK_DATA_FILE,
         refusesNoFile<GPISeekDataFile, GPI_SERVICE_SEEK_DATA_FILE>,
         {}},
        {GPI_SERVICE_GET_DATA_FILE_SIZE, tellsSize, {}},
        {GPI_SERVICE_RENAME_DATA_FILE, renamesNothing<GPI_SERVICE_RENAME_DATA_FILE>, {}},
        {GPI_SERVICE_REMOVE_DATA_FILE, removesNothing<GPI_SERVICE_REMOVE_DATA_FILE>, {}},
    };
    return kProbes;
}

} // namespace doctor
