#include "settings.h"

#include "text/format.h"
#include "text/texts.h"

#include <quarlo/quarlo.h>

namespace panel {
namespace {

constexpr char16_t kProfile[] = u"panel.ini";
constexpr char16_t kSection[] = u"Panel";
constexpr char16_t kLanguage[] = u"Language";
constexpr char16_t kProgramServer[] = u"ProgramServer";

} // namespace

size_t keptLanguage() {
    const int32_t kept = GIOGetPrivateProfileIntEx(kSection, kLanguage, 0, kProfile);
    return kept >= 0 && kept < static_cast<int32_t>(kLanguages.size()) ? static_cast<size_t>(kept)
                                                                       : 0;
}

void keepLanguage(size_t language) {
    const std::u16string number = wholeText(static_cast<double>(language));
    GIOSetPrivateProfileString(kSection, kLanguage, number.c_str(), G_PROFILE_USER, kProfile);
}

std::u16string programServer() {
    std::array<char16_t, G_URL_SIZE> url{};
    GIOGetPrivateProfileStringEx(kSection, kProgramServer, u"", url.data(), G_URL_SIZE, kProfile);
    return url.data();
}

} // namespace panel
