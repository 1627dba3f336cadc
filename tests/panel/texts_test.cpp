#include "panel_bench.h"

#include <gtest/gtest.h>

#include <algorithm>

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
