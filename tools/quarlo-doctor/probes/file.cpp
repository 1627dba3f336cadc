// Files, paths and JPEG pictures.
#include "probes/stored_file.h"

#include <string_view>

namespace doctor {
namespace {

Complaint opens(const Platform& platform) {
    const auto open = platform.service<GPIOpenFile>(GPI_SERVICE_OPEN_FILE);
    int32_t error = 1;
    if (open(kMissingFile, G_OPEN_READ, &error) != nullptr) {
        return "opens a file that there is not";
    }
    if (error != G_IO_NOT_FOUND) {
        return "does not say that a file is missing";
    }
    if (open(nullptr, G_OPEN_READ, &error) != nullptr || error >= 0) {
        return "opens a file without a name";
    }
    return open(u"../../etc/hostname", G_OPEN_READ, &error) == nullptr ? "" : "leaves its root";
}

Complaint tellsAccess(const Platform& platform) {
    uint32_t attributes = 0;
    const auto access = platform.service<GPIGetFileAccess>(GPI_SERVICE_GET_FILE_ACCESS);
    return access(kMissingFile, 0, &attributes) < 0 ? "" : kFindsMissing;
}

Complaint tellsSize(const Platform& platform) {
    int32_t size = 0;
    const auto tell = platform.service<GPIGetFileSize>(GPI_SERVICE_GET_FILE_SIZE);
    return tell(kMissingFile, &size) < 0 && size < 0 ? "" : kFindsMissing;
}

Complaint lists(const Platform& platform) {
    const auto list = platform.service<GPIGetDirectory>(GPI_SERVICE_GET_DIRECTORY);
    return list(kMissingFile, nullptr, 0) < 0 ? "" : "lists a folder that there is not";
}

Complaint makesPath(const Platform& platform) {
    char16_t path[G_PATH_SIZE] = {};
    const auto make = platform.service<GPIMakePath>(GPI_SERVICE_MAKE_PATH);
    const int32_t result = make(path, u"C", u"\\NC", u"O1234", u"TXT");
    return result == 1 && path == std::u16string_view(u"C:\\NC\\O1234.TXT")
               ? ""
               : "puts a path together wrongly";
}

Complaint splitsPath(const Platform& platform) {
    char16_t drive[G_DRIVE_SIZE] = {};
    char16_t directory[G_DIRECTORY_SIZE] = {};
    char16_t name[G_NAME_SIZE] = {};
    char16_t extension[G_NAME_SIZE] = {};
    const auto split = platform.service<GPISplitPath>(GPI_SERVICE_SPLIT_PATH);
    const int32_t result = split(u"C:\\NC\\O1234.TXT", drive, directory, name, extension);
    const bool right = result == 1 && drive == std::u16string_view(u"C:") &&
                       directory == std::u16string_view(u"\\NC\\") &&
                       name == std::u16string_view(u"O1234") &&
                       extension == std::u16string_view(u".TXT");
    return right ? "" : "takes a path apart wrongly";
}

Complaint tellsJpeg(const Platform& platform) {
    GJpegInfo info{};
    const auto tell = platform.service<GPIGetJpegInfo>(GPI_SERVICE_GET_JPEG_INFO);
    return tell(kMissingFile, 1, &info) < 0 ? "" : kFindsMissing;
}

Complaint loadsJpeg(const Platform& platform) {
    const auto load = platform.service<GPILoadJpeg>(GPI_SERVICE_LOAD_JPEG);
    GVram surface{};
    return load(kMissingFile, 1, &surface) < 0 ? "" : kFindsMissing;
}

} // namespace

std::span<const Probe> fileProbes() {
    static const Probe kProbes[] = {
        {GPI_SERVICE_OPEN_FILE, opens, {}},
        {GPI_SERVICE_CLOSE_FILE, refusesNoFile<GPICloseFile, GPI_SERVICE_CLOSE_FILE>, {}},
        {GPI_SERVICE_FLUSH_AND_CLOSE_FILE,
         refusesNoFile<GPIFlushAndCloseFile, GPI_SERVICE_FLUSH_AND_CLOSE_FILE>,
         {}},
        {GPI_SERVICE_READ_FILE, refusesNoFile<GPIReadFile, GPI_SERVICE_READ_FILE>, {}},
        {GPI_SERVICE_WRITE_FILE, refusesNoFile<GPIWriteFile, GPI_SERVICE_WRITE_FILE>, {}},
        {GPI_SERVICE_SEEK_FILE, refusesNoFile<GPISeekFile, GPI_SERVICE_SEEK_FILE>, {}},
        {GPI_SERVICE_READ_LINE, refusesNoFile<GPIReadLine, GPI_SERVICE_READ_LINE>, {}},
        {GPI_SERVICE_READ_BYTE, refusesNoFile<GPIReadByte, GPI_SERVICE_READ_BYTE>, {}},
        {GPI_SERVICE_RENAME_FILE, renamesNothing<GPI_SERVICE_RENAME_FILE>, {}},
        {GPI_SERVICE_REMOVE_FILE, removesNothing<GPI_SERVICE_REMOVE_FILE>, {}},
        {GPI_SERVICE_GET_FILE_ACCESS, tellsAccess, {}},
        {GPI_SERVICE_GET_FILE_SIZE, tellsSize, {}},
        {GPI_SERVICE_GET_DIRECTORY, lists, {}},
        {GPI_SERVICE_MAKE_PATH, makesPath, {}},
        {GPI_SERVICE_SPLIT_PATH, splitsPath, {}},
        {GPI_SERVICE_GET_JPEG_INFO, tellsJpeg, {}},
        {GPI_SERVICE_LOAD_JPEG, loadsJpeg, {}},
    };
    return kProbes;
}

} // namespace doctor
