#include "text/texts.h"

#include "text/built_in.h"

#include <quarlo/quarlo.h>

#include <algorithm>
#include <map>

namespace panel {
namespace {

using TextsByKey = std::map<std::u16string, std::u16string>;

constexpr char16_t kSection[] = u"Texts";
constexpr int32_t kRoom = 8192; // units, of all keys

TextsByKey builtInTexts() {
    TextsByKey texts;
    for (std::u16string_view rest = kBuiltInProfile; !rest.empty();) {
        const std::u16string_view line = rest.substr(0, rest.find(u'\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        constexpr std::u16string_view kIs = u" = ";
        const size_t is = line.find(kIs);
        if (line.front() != u';' && is != std::u16string_view::npos) {
            texts.emplace(line.substr(0, is), line.substr(is + kIs.size()));
        }
    }
    return texts;
}

} // namespace

std::vector<std::u16string> Texts::keysOf(size_t language) {
    std::vector<char16_t> list(kRoom);
    GIOGetPrivateProfileStringEx(kSection, nullptr, nullptr, list.data(), kRoom,
                                 kLanguages[language].file);
    std::vector<std::u16string> keys;
    for (const char16_t* key = list.data(); *key != u'\0'; key += keys.back().size() + 1) {
        keys.emplace_back(key);
    }
    std::sort(keys.begin(), keys.end());
    return keys;
}

void Texts::choose(size_t language) {
    language_ = language;
    const std::vector<std::u16string> keys = keysOf(language);
    hasProfile_ = !keys.empty();
    TextsByKey texts = builtInTexts();
    std::array<char16_t, 512> value{};
    for (const std::u16string& key : keys) {
        GIOGetPrivateProfileStringEx(kSection, key.c_str(), nullptr, value.data(),
                                     static_cast<int32_t>(value.size()), kLanguages[language].file);
        texts[key] = value.data();
    }
    texts_.clear();
    for (auto& [key, text] : texts) {
        texts_.push_back({key, std::move(text)});
    }
    GFSetGBFontFlag(kLanguages[language].simplified ? 1 : 0);
}

const std::u16string& Texts::operator[](Word key) const {
    const auto compare = [](const void* wanted, const void* text) {
        return static_cast<const Text*>(text)->key.compare(static_cast<Word>(wanted)) * -1;
    };
    const void* const found =
        GUBSearch(key, texts_.data(), static_cast<uint32_t>(texts_.size()), sizeof(Text), compare);
    if (found != nullptr) {
        return static_cast<const Text*>(found)->value;
    }
    const auto known = std::find(missing_.begin(), missing_.end(), key);
    return known != missing_.end() ? *known : missing_.emplace_back(key);
}

} // namespace panel
