#include "profile/document.h"

#include "file/error.h"
#include "text/transcode.h"

#define SI_NO_CONVERSION // plain bytes: the document is UTF-8 throughout
#include <SimpleIni.h>

#include <algorithm>
#include <iterator>

namespace gpi {
namespace {

/// How a file's bytes spell its text.
struct Encoding {
    std::string_view mark; ///< byte order mark
    const char* name;      ///< for iconv
};

constexpr Encoding kMarked[] = {
    {"\xEF\xBB\xBF", "UTF-8"}, {"\xFF\xFE", "UTF-16LE"}, {"\xFE\xFF", "UTF-16BE"}};
constexpr Encoding kPlain = {"", "UTF-8"};

Encoding encodingOf(std::string_view bytes, const char* codePage) {
    for (const Encoding& encoding : kMarked) {
        if (bytes.starts_with(encoding.mark)) {
            return encoding;
        }
    }
    const bool isUtf8 = transcode(bytes, kPlain.name, kPlain.name).has_value();
    return isUtf8 ? kPlain : Encoding{"", codePage};
}

bool startsWithMark(std::string_view bytes) {
    return std::any_of(std::begin(kMarked), std::end(kMarked), [bytes](const Encoding& encoding) {
        return bytes.starts_with(encoding.mark);
    });
}

std::string decoded(std::string_view bytes, const Encoding& encoding) {
    const auto text = transcode(bytes.substr(encoding.mark.size()), encoding.name, "UTF-8");
    if (!text || text->find('\0') != text->npos) {
        throw IoError(G_IO_DAMAGED);
    }
    return *text;
}

bool isCommentOrBlank(std::string_view line) {
    const size_t start = line.find_first_not_of(" \t");
    return start == line.npos || line[start] == ';' || line[start] == '#';
}

/// The comments after the last line that means something, which the parser forgets.
std::string closingComments(const std::string& text) {
    size_t end = text.size();
    while (end > 0) {
        const size_t start = text.find_last_of('\n', end - 1);
        const size_t line = start == text.npos ? 0 : start + 1;
        if (!isCommentOrBlank(std::string_view(text).substr(line, end - line))) {
            return text.substr(std::min(end + 1, text.size()));
        }
        end = start == text.npos ? 0 : start;
    }
    return {}; // nothing else: the parser keeps it
}

void replaceAll(std::string& text, std::string_view from, std::string_view to) {
    for (size_t at = 0; (at = text.find(from, at)) != text.npos; at += to.size()) {
        text.replace(at, from.size(), to);
    }
}

/// Makes comments of section lines that lack their bracket at the end: the parser would take the
/// lines that follow for a part of the name.
void silenceOpenSections(std::string& text) {
    for (size_t line = 0; line < text.size();) {
        const size_t start = text.find_first_not_of(" \t", line);
        const size_t end = std::min(text.find('\n', line), text.size());
        if (start < end && text[start] == '[' && text.find(']', start) > end) {
            text.insert(start, 1, ';');
            line = end + 2;
        } else {
            line = end + 1;
        }
    }
}

bool isInQuotes(std::string_view value) {
    return value.size() > 1 && value.front() == '"' && value.back() == '"';
}

/// What a file's spelling of a value stands for: one pair of quotes is none of it.
std::string unquoted(std::string_view spelling) {
    return std::string(isInQuotes(spelling) ? spelling.substr(1, spelling.size() - 2) : spelling);
}

/// A value in quotes if it needs them: for the spaces at its ends, or for quotes of its own.
std::string quoted(const std::string& value) {
    const auto isSpace = [](char byte) { return byte == ' ' || byte == '\t'; };
    const bool edges = !value.empty() && (isSpace(value.front()) || isSpace(value.back()));
    return edges || isInQuotes(value) ? '"' + value + '"' : value;
}

std::vector<std::string> namesOf(CSimpleIniA::TNamesDepend& entries) {
    entries.sort(CSimpleIniA::Entry::LoadOrder());
    std::vector<std::string> names;
    for (const auto& entry : entries) {
        if (*entry.pItem != '\0') { // keys before the first section have none
            names.emplace_back(entry.pItem);
        }
    }
    return names;
}

} // namespace

struct ProfileDocument::Content {
    CSimpleIniA ini{true}; ///< values as the file spells them
    Encoding encoding = kPlain;
    bool crLf = false;
    std::string closing;
};

ProfileDocument::ProfileDocument() : content_(std::make_unique<Content>()) {}

ProfileDocument::ProfileDocument(std::string_view bytes, const char* codePage) : ProfileDocument() {
    content_->encoding = encodingOf(bytes, codePage);
    std::string text = decoded(bytes, content_->encoding);
    content_->crLf = text.find("\r\n") != text.npos;
    replaceAll(text, "\r\n", "\n");
    std::replace(text.begin(), text.end(), '\r', '\n');
    silenceOpenSections(text);
    content_->closing = closingComments(text);
    content_->ini.SetSpaces(text.find(" = ") != text.npos);
    if (content_->ini.LoadData(text) < 0) {
        throw IoError(G_IO_NO_MEMORY);
    }
}

ProfileDocument::~ProfileDocument() = default;
ProfileDocument::ProfileDocument(ProfileDocument&&) noexcept = default;
ProfileDocument& ProfileDocument::operator=(ProfileDocument&&) noexcept = default;

std::optional<std::string> ProfileDocument::value(const std::string& section,
                                                  const std::string& key) const {
    const char* const found = content_->ini.GetValue(section.c_str(), key.c_str());
    return found != nullptr ? std::optional(unquoted(found)) : std::nullopt;
}

std::vector<std::string> ProfileDocument::sections() const {
    CSimpleIniA::TNamesDepend entries;
    content_->ini.GetAllSections(entries);
    return namesOf(entries);
}

std::vector<std::string> ProfileDocument::keys(const std::string& section) const {
    CSimpleIniA::TNamesDepend entries;
    content_->ini.GetAllKeys(section.c_str(), entries);
    return namesOf(entries);
}

void ProfileDocument::set(const std::string& section, const std::string& key,
                          const std::string& value) {
    if (content_->ini.SetValue(section.c_str(), key.c_str(), quoted(value).c_str()) < 0) {
        throw IoError(G_IO_NO_MEMORY);
    }
}

void ProfileDocument::removeKey(const std::string& section, const std::string& key) {
    content_->ini.Delete(section.c_str(), key.c_str());
}

void ProfileDocument::removeSection(const std::string& section) {
    content_->ini.Delete(section.c_str(), nullptr);
}

std::string ProfileDocument::bytes() const {
    std::string text;
    if (content_->ini.Save(text) < 0) {
        throw IoError(G_IO_NO_MEMORY);
    }
    text += content_->closing;
    if (content_->crLf) {
        replaceAll(text, "\n", "\r\n");
    }
    const Encoding& encoding = content_->encoding;
    auto encoded = transcode(text, "UTF-8", encoding.name);
    if (encoded && startsWithMark(*encoded)) { // a line break keeps it from being taken for one
        encoded = transcode('\n' + text, "UTF-8", encoding.name);
    }
    if (!encoded) {
        throw IoError(G_IO_UNSUPPORTED);
    }
    return std::string(encoding.mark) + *encoded;
}

bool ProfileDocument::isName(std::string_view text) {
    const bool edges = !text.empty() && text.front() != ' ' && text.back() != ' ';
    return edges && text.find_first_of(std::string_view("\r\n\t\0=[]", 7)) == text.npos &&
           !isCommentOrBlank(text) && text.front() != '"';
}

bool ProfileDocument::isValue(std::string_view text) {
    return text.find_first_of(std::string_view("\r\n\0", 3)) == text.npos;
}

} // namespace gpi
