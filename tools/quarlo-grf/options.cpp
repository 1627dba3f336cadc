#include "options.h"

#include <algorithm>

namespace grf {
namespace {

bool contains(const std::vector<std::string_view>& list, std::string_view word) {
    return std::find(list.begin(), list.end(), word) != list.end();
}

} // namespace

Options::Options(std::span<const std::string> words, const std::vector<std::string_view>& valued,
                 const std::vector<std::string_view>& flags) {
    for (size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (word.size() < 2 || word[0] != '-') {
            operands_.push_back(word);
        } else if (contains(flags, word)) {
            values_[word];
        } else if (contains(valued, word) && i + 1 < words.size()) {
            values_[word] = words[++i];
        } else {
            throw Misuse();
        }
    }
}

std::optional<std::string> Options::value(const std::string& option) const {
    const auto found = values_.find(option);
    return found == values_.end() ? std::nullopt : std::optional(found->second);
}

} // namespace grf
