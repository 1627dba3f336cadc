#include "profile/services.h"

#include "file/error.h"
#include "platform.h"
#include "text/transcode.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace gpi {
namespace {

Profiles& profiles() {
    if (platform().profiles == nullptr) {
        throw IoError(G_IO_DEVICE);
    }
    return *platform().profiles;
}

/// A program's text as UTF-8. @throws IoError
std::string text(const char16_t* units) {
    const auto utf8 = units != nullptr ? utf8Of(units) : std::nullopt;
    if (!utf8) {
        throw IoError(G_IO_ARGUMENT);
    }
    return *utf8;
}

/// The name of a section or key. @throws IoError
std::string name(const char16_t* units) {
    std::string utf8 = text(units);
    if (!ProfileDocument::isName(utf8)) {
        throw IoError(G_IO_ARGUMENT);
    }
    return utf8;
}

/// The number that a value begins with. Numbers past 32 bits are taken as the nearest; those of 32
/// bits that have no sign, colours mostly, as their bits.
int32_t numberOf(std::string_view value, int32_t fallback) {
    const bool negative = value.starts_with('-');
    if (negative || value.starts_with('+')) {
        value.remove_prefix(1);
    }
    const bool hexadecimal = value.starts_with("0x") || value.starts_with("0X");
    if (hexadecimal) {
        value.remove_prefix(2);
    }
    uint64_t magnitude = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), magnitude,
                                              hexadecimal ? 16 : 10);
    if (end == value.data()) {
        return fallback;
    }
    constexpr uint64_t kMost = std::numeric_limits<uint32_t>::max();
    constexpr int64_t kLeast = std::numeric_limits<int32_t>::min();
    const bool tooLarge = error == std::errc::result_out_of_range || magnitude > kMost;
    if (negative) {
        const auto number = -static_cast<int64_t>(std::min(magnitude, kMost));
        return static_cast<int32_t>(tooLarge ? kLeast : std::max(number, kLeast));
    }
    return tooLarge ? std::numeric_limits<int32_t>::max() : static_cast<int32_t>(magnitude);
}

/// Cuts text to what fits before a NUL, never between the halves of a surrogate pair.
std::u16string_view cut(std::u16string_view text, int32_t size) {
    text = text.substr(0, static_cast<size_t>(size) - 1);
    const bool half = !text.empty() && (text.back() & 0xFC00) == 0xD800;
    return text.substr(0, text.size() - (half ? 1 : 0));
}

int32_t store(std::u16string_view text, char16_t* out, int32_t size) {
    const std::u16string_view fitting = cut(text, size);
    out[fitting.copy(out, fitting.size())] = u'\0';
    return static_cast<int32_t>(fitting.size());
}

/// Stores names with a NUL each, and one more NUL.
int32_t storeList(const std::vector<std::string>& names, char16_t* out, int32_t size) {
    int32_t used = 0;
    for (const std::string& name : names) {
        if (size - used < 2) {
            break;
        }
        used += store(utf16Of(name), out + used, size - used - 1) + 1;
    }
    out[used] = u'\0';
    return used;
}

} // namespace

int32_t getProfileInt(const char16_t* section, const char16_t* key, int32_t fallback,
                      uint32_t layer, const char16_t* file) {
    int32_t number = fallback;
    ioResult([&] {
        const auto value = profiles().value(name(section), name(key), layer, file);
        number = value ? numberOf(*value, fallback) : fallback;
        return 1;
    });
    return number;
}

int32_t getProfileIntEx(const char16_t* section, const char16_t* key, int32_t fallback,
                        const char16_t* file) {
    return getProfileInt(section, key, fallback, G_PROFILE_ANY, file);
}

int32_t getProfileString(const char16_t* section, const char16_t* key, const char16_t* fallback,
                         char16_t* value, int32_t size, uint32_t layer, const char16_t* file) {
    if (value == nullptr || size < 1) {
        return G_IO_ARGUMENT;
    }
    value[0] = u'\0';
    return ioResult([&] {
        if (section == nullptr) {
            return storeList(profiles().sections(layer, file), value, size);
        }
        if (key == nullptr) {
            return storeList(profiles().keys(name(section), layer, file), value, size);
        }
        const auto found = profiles().value(name(section), name(key), layer, file);
        if (found) {
            return store(utf16Of(*found), value, size);
        }
        return store(fallback != nullptr ? fallback : u"", value, size);
    });
}

int32_t getProfileStringEx(const char16_t* section, const char16_t* key, const char16_t* fallback,
                           char16_t* value, int32_t size, const char16_t* file) {
    return getProfileString(section, key, fallback, value, size, G_PROFILE_ANY, file);
}

int32_t setProfileString(const char16_t* section, const char16_t* key, const char16_t* value,
                         uint32_t layer, const char16_t* file) {
    return ioResult([&] {
        const std::string sectionName = name(section);
        const std::string keyName = key != nullptr ? name(key) : "";
        const std::string newValue = value != nullptr && key != nullptr ? text(value) : "";
        if (!ProfileDocument::isValue(newValue)) {
            throw IoError(G_IO_ARGUMENT);
        }
        profiles().change(layer, file, [&](ProfileDocument& document) {
            if (key == nullptr) {
                document.removeSection(sectionName);
            } else if (value == nullptr) {
                document.removeKey(sectionName, keyName);
            } else {
                document.set(sectionName, keyName, newValue);
            }
        });
        return 1;
    });
}

} // namespace gpi
