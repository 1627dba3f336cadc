#include "panel_bench.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace panel::test {
namespace {

TEST(Texts, AreTheSameInEveryLanguage) {
    const Bench bench;
    const auto english = Texts::keysOf(0);
    EXPECT_GT(english.size(), 80U);
    for (size_t language = 1; language < kLanguages.size(); ++language) {
        EXPECT_EQ(Texts::keysOf(language), english) << language;
    }
}

TEST(Texts, ComeInTheLanguageThatIsChosen) {
    const Bench bench;
    Texts texts;
    texts.choose(0);
    EXPECT_EQ(texts[u"Position"], u"Position");
    texts.choose(1);
    EXPECT_EQ(texts[u"Position"], u"位置");
    EXPECT_EQ(texts[u"LanguageChinese"], u"简体中文");
    EXPECT_TRUE(texts.missing().empty());
}

TEST(Texts, AreEnglishWithoutAProfile) {
    const TemporaryFolder empty;
    for (size_t language = 0; language < kLanguages.size(); ++language) {
        Bench bench({{"QUARLO_PROFILES", empty.path()}}, language);
        const Texts& texts = bench.context().texts;
        EXPECT_FALSE(texts.hasProfile());
        EXPECT_EQ(texts[u"ModeManual"], u"Manual");
        EXPECT_EQ(texts[u"LanguageJapanese"], u"日本語");
        EXPECT_EQ(texts[u"MacroTitle"], u"Macro variables; empty ones are not set");
        EXPECT_EQ(std::u16string_view(bench.context().message), u"NoTexts");
        bench.run("key Help\nkey F10\nkey F1");
        EXPECT_TRUE(texts.missing().empty());
    }
}

TEST(Texts, AreEnglishWhereAProfileLacksThem) {
    const TemporaryFolder folder;
    folder.write("japanese.ini", "[Texts]\nReset = R\n");
    const Bench bench({{"QUARLO_PROFILES", folder.path()}}, 1);
    const Texts& texts = bench.context().texts;
    EXPECT_TRUE(texts.hasProfile());
    EXPECT_EQ(texts[u"Reset"], u"R");
    EXPECT_EQ(texts[u"Alarms"], u"Alarms");
}

TEST(Texts, OfTheEnglishProfileAreBuiltIn) {
    std::map<std::u16string, std::u16string> profile;
    {
        const Bench bench;
        for (const std::u16string& key : Texts::keysOf(0)) {
            profile[key] = bench.context().texts[key.c_str()];
        }
    }
    EXPECT_GT(profile.size(), 80U);
    const TemporaryFolder empty;
    const Bench bench({{"QUARLO_PROFILES", empty.path()}}, 0);
    for (const auto& [key, text] : profile) {
        EXPECT_EQ(bench.context().texts[key.c_str()], text);
    }
}

TEST(Texts, ThatAreNotThereShowTheirKey) {
    const Bench bench;
    Texts texts;
    texts.choose(0);
    EXPECT_EQ(texts[u"NoSuchText"], u"NoSuchText");
    EXPECT_EQ(texts[u"NoSuchText"], u"NoSuchText");
    EXPECT_EQ(texts.missing(), std::vector<std::u16string>{u"NoSuchText"});
}

} // namespace
} // namespace panel::test
