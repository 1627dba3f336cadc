// What the panel says, in the language that is chosen.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace panel {

/// A text goes by its key in the profiles of the languages.
using Word = const char16_t*;

struct Language {
    Word key;             ///< its own name is the text of this key, in every language
    const char16_t* file; ///< name of its profile
    bool simplified;      ///< ideographs take their Simplified Chinese forms
};

inline constexpr std::array<Language, 3> kLanguages{{{u"LanguageEnglish", u"english.ini", false},
                                                     {u"LanguageJapanese", u"japanese.ini", false},
                                                     {u"LanguageChinese", u"chinese.ini", true}}};

/// The texts of a language, from its profile: section "Texts", a line each text. What it lacks is
/// English.
class Texts {
  public:
    /// Reads a language, and has fonts show its forms of ideographs.
    void choose(size_t language);
    size_t language() const { return language_; }

    /// Whether the language has a profile; without, all of it is English.
    bool hasProfile() const { return hasProfile_; }

    /// A text, or its key where there is none.
    const std::u16string& operator[](Word key) const;

    /// Keys that were asked for and are not there.
    const std::vector<std::u16string>& missing() const { return missing_; }

    /// Every key of a language, sorted.
    static std::vector<std::u16string> keysOf(size_t language);

  private:
    struct Text {
        std::u16string key;
        std::u16string value;
    };

    size_t language_ = 0;
    bool hasProfile_ = false;
    std::vector<Text> texts_; ///< sorted by key
    mutable std::vector<std::u16string> missing_;
};

} // namespace panel
