#include "text/texts.h"

#include <quarlo/quarlo.h>

#include <algorithm>

namespace panel {
namespace {

constexpr char16_t kSection[] = u"Texts";
constexpr int32_t kRoom = 8192; // units, of all keys

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
    texts_.clear();
    std::array<char16_t, 512> value{};
    for (std::u16string& key : keysOf(language)) {
        GIOGetPrivateProfileStringEx(kSection, key.c_str(), nullptr, value.data(),
                                     static_cast<int32_t>(value.size()), kLanguages[language].file);
        texts_.push_back({std::move(key), value.data()});
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
