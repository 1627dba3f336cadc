#include "app/arguments.h"

namespace gpi {

std::vector<std::string> wordsOf(std::string_view line) {
    std::vector<std::string> words;
    bool inWord = false;
    bool quoted = false;
    for (size_t at = 0; at < line.size(); ++at) {
        const char byte = line[at];
        if (byte == ' ' && !quoted) {
            inWord = false;
            continue;
        }
        if (!inWord) {
            words.emplace_back();
            inWord = true;
        }
        if (byte != '"') {
            words.back() += byte;
        } else if (quoted && at + 1 < line.size() && line[at + 1] == '"') {
            words.back() += '"';
            ++at;
        } else {
            quoted = !quoted;
        }
    }
    return words;
}

} // namespace gpi
