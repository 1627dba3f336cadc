// Paths put together and taken apart: services 63 and 64.
#include "file/error.h"
#include "file/path_text.h"
#include "file/services.h"

#include <algorithm>
#include <string>

namespace gpi {
namespace {

std::u16string_view partText(const char16_t* part) {
    return part != nullptr ? pathText(part) : std::u16string_view();
}

std::u16string joined(std::u16string_view drive, std::u16string_view directory,
                      std::u16string_view name, std::u16string_view extension) {
    std::u16string path;
    if (!drive.empty()) {
        path.append(drive.substr(0, 1)).append(u":");
    }
    path.append(directory);
    if (!directory.empty() && !isSlash(directory.back())) {
        path.append(u"\\");
    }
    path.append(name);
    if (!extension.empty() && extension.front() != u'.') {
        path.append(u".");
    }
    return path.append(extension);
}

/// One part of a path and the room that the caller has for it.
struct Part {
    std::u16string_view text;
    char16_t* room; ///< null when nobody wants it
    size_t size;

    bool fits() const { return room == nullptr || text.size() < size; }
    void store(std::u16string_view value) const {
        if (room != nullptr) {
            room[value.copy(room, value.size())] = u'\0';
        }
    }
};

} // namespace

int32_t makePath(char16_t* path, const char16_t* drive, const char16_t* directory,
                 const char16_t* name, const char16_t* extension) {
    if (path == nullptr) {
        return G_IO_ARGUMENT;
    }
    path[0] = u'\0';
    return ioResult([&] {
        const std::u16string whole =
            joined(partText(drive), partText(directory), partText(name), partText(extension));
        const Part out{whole, path, G_PATH_SIZE};
        if (!out.fits()) {
            return int32_t{G_IO_TOO_LARGE};
        }
        out.store(whole);
        return 1;
    });
}

int32_t splitPath(const char16_t* path, char16_t* drive, char16_t* directory, char16_t* name,
                  char16_t* extension) {
    Part parts[] = {{{}, drive, G_DRIVE_SIZE},
                    {{}, directory, G_DIRECTORY_SIZE},
                    {{}, name, G_NAME_SIZE},
                    {{}, extension, G_NAME_SIZE}};
    for (const Part& part : parts) {
        part.store({});
    }
    return ioResult([&] {
        const std::u16string_view text = pathText(path);
        const size_t driveEnd = drivePrefix(text);
        const size_t slash = text.find_last_of(u"/\\");
        const size_t directoryEnd = slash != text.npos ? slash + 1 : driveEnd;
        const size_t dot = text.find_last_of(u'.');
        const size_t nameEnd = dot != text.npos && dot >= directoryEnd ? dot : text.size();
        parts[0].text = text.substr(0, driveEnd);
        parts[1].text = text.substr(driveEnd, directoryEnd - driveEnd);
        parts[2].text = text.substr(directoryEnd, nameEnd - directoryEnd);
        parts[3].text = text.substr(nameEnd);
        if (!std::all_of(std::begin(parts), std::end(parts),
                         [](const Part& p) { return p.fits(); })) {
            return int32_t{G_IO_TOO_LARGE};
        }
        for (const Part& part : parts) {
            part.store(part.text);
        }
        return 1;
    });
}

} // namespace gpi
