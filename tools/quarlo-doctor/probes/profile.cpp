// Profiles: one that there is not, so that every value is the fallback.
#include "probe.h"

#include <string_view>

namespace doctor {
namespace {

constexpr const char16_t* kFile = u"quarlo-doctor-has-no-such-file.ini";
constexpr const char16_t* kSection = u"SECTION";
constexpr const char16_t* kKey = u"KEY";
constexpr const char* kNoFallback = "does not give the fallback of a missing key";

Complaint readsInt(const Platform& platform) {
    const auto read = platform.service<GPIGetProfileInt>(GPI_SERVICE_GET_PROFILE_INT);
    return read(kSection, kKey, 4711, G_PROFILE_ANY, kFile) == 4711 ? "" : kNoFallback;
}

Complaint readsIntEx(const Platform& platform) {
    const auto read = platform.service<GPIGetProfileIntEx>(GPI_SERVICE_GET_PROFILE_INT_EX);
    return read(kSection, kKey, 4711, kFile) == 4711 ? "" : kNoFallback;
}

/// Reads with read(fallback, value, size), into room for all of the fallback and for a part.
template <typename Read>
Complaint readsString(const Read& read) {
    char16_t value[8] = {};
    if (read(u"panel", value, 8) != 5 || value != std::u16string_view(u"panel")) {
        return kNoFallback;
    }
    return read(u"panel", value, 4) == 3 && value == std::u16string_view(u"pan")
               ? ""
               : "does not cut a value to what fits";
}

Complaint readsAnyString(const Platform& platform) {
    const auto read = platform.service<GPIGetProfileString>(GPI_SERVICE_GET_PROFILE_STRING);
    return readsString([=](const char16_t* fallback, char16_t* value, int32_t size) {
        return read(kSection, kKey, fallback, value, size, G_PROFILE_ANY, kFile);
    });
}

Complaint readsStringEx(const Platform& platform) {
    const auto read = platform.service<GPIGetProfileStringEx>(GPI_SERVICE_GET_PROFILE_STRING_EX);
    return readsString([=](const char16_t* fallback, char16_t* value, int32_t size) {
        return read(kSection, kKey, fallback, value, size, kFile);
    });
}

Complaint writes(const Platform& platform) {
    const auto write = platform.service<GPISetProfileString>(GPI_SERVICE_SET_PROFILE_STRING);
    return write(kSection, kKey, u"value", G_PROFILE_MAKER, kFile) < 0
               ? ""
               : "writes what the machine's maker shipped";
}

} // namespace

std::span<const Probe> profileProbes() {
    static const Probe kProbes[] = {
        {GPI_SERVICE_GET_PROFILE_INT, readsInt, {}},
        {GPI_SERVICE_GET_PROFILE_INT_EX, readsIntEx, {}},
        {GPI_SERVICE_GET_PROFILE_STRING, readsAnyString, {}},
        {GPI_SERVICE_GET_PROFILE_STRING_EX, readsStringEx, {}},
        {GPI_SERVICE_SET_PROFILE_STRING, writes, {}},
    };
    return kProbes;
}

} // namespace doctor
