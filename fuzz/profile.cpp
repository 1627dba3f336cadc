// Profiles read from any bytes: what is written back reads as the same, and changes are found.
#include "require.h"

#include "file/error.h"
#include "profile/document.h"
#include "text/transcode.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <utility>

namespace gpi {
namespace {

using quarlo::fuzz::require;

using Values = std::map<std::pair<std::string, std::string>, std::string>;

Values valuesOf(const ProfileDocument& document) {
    Values values;
    for (const std::string& section : document.sections()) {
        for (const std::string& key : document.keys(section)) {
            const auto value = document.value(section, key);
            require(value.has_value(), "a key that was listed has no value");
            values[{section, key}] = *value;
        }
    }
    return values;
}

void checkReadsBack(const ProfileDocument& document) {
    const ProfileDocument again(document.bytes());
    require(valuesOf(again) == valuesOf(document), "a profile reads back as another");
}

/// What programs give is UTF-16, so that it is text whatever it says.
bool isText(const std::string& bytes) {
    return transcode(bytes, "UTF-8", "UTF-8").has_value();
}

void change(ProfileDocument& document, const std::string& text) {
    const size_t half = text.size() / 2;
    const std::string key = text.substr(0, half);
    const std::string value = text.substr(half);
    if (isText(key) && isText(value) && ProfileDocument::isName(key) &&
        ProfileDocument::isValue(value)) {
        document.set("Section", key, value);
        require(document.value("Section", key) == value, "a value is not what was set");
        const ProfileDocument again(document.bytes());
        require(again.value("Section", key) == value, "a value that was set reads as another");
        document.removeKey("Section", key);
        require(!document.value("Section", key).has_value(), "a key is there after its removal");
    }
    document.removeSection("Section");
    require(document.keys("Section").empty(), "a section is there after its removal");
}

} // namespace
} // namespace gpi

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) {
        return 0;
    }
    const std::string text(data + 1, data + size);
    const size_t changed = std::min<size_t>(data[0] % 32, text.size());
    try {
        gpi::ProfileDocument document(std::string_view(text).substr(changed));
        gpi::checkReadsBack(document);
        gpi::change(document, text.substr(0, changed));
    } catch (const gpi::IoError& error) {
        gpi::require(error.number() == G_IO_DAMAGED, "a profile was refused for another reason");
    }
    return 0;
}
