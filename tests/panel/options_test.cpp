#include "options.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace panel::test {
namespace {

std::optional<Options> parse(std::vector<std::string> words) {
    words.insert(words.begin(), "panel");
    std::vector<char*> pointers;
    for (std::string& word : words) {
        pointers.push_back(word.data());
    }
    return parseOptions(static_cast<int>(pointers.size()), pointers.data());
}

TEST(PanelOptions, MayBeLeftOut) {
    const auto options = parse({});
    ASSERT_TRUE(options);
    EXPECT_EQ(options->rate, 20U);
    EXPECT_EQ(options->program, "");
    EXPECT_EQ(options->shots, ".");
    EXPECT_FALSE(options->script);
    EXPECT_FALSE(options->language);
    EXPECT_FALSE(options->measure);
}

TEST(PanelOptions, TakeARateOfFiveToAHundred) {
    for (const uint32_t rate : {5U, 6U, 60U, 99U, 100U}) {
        const auto options = parse({"--rate", std::to_string(rate)});
        ASSERT_TRUE(options) << rate;
        EXPECT_EQ(options->rate, rate);
    }
    for (const std::string rate :
         {"4", "101", "0", "-20", "+20", " 20", "20.5", "20x", "x", "", "4294967316"}) {
        EXPECT_FALSE(parse({"--rate", rate})) << rate;
    }
    EXPECT_FALSE(parse({"--rate"}));
}

TEST(PanelOptions, NameALanguage) {
    EXPECT_EQ(parse({"--language", "english"})->language, 0U);
    EXPECT_EQ(parse({"--language", "japanese"})->language, 1U);
    EXPECT_EQ(parse({"--language", "chinese"})->language, 2U);
    EXPECT_FALSE(parse({"--language", "latin"}));
    EXPECT_FALSE(parse({"--language"}));
}

TEST(PanelOptions, StandInAnyOrder) {
    const auto options = parse(
        {"part.nc", "--shots", "pictures", "--measure", "--script", "tour.txt", "--rate", "30"});
    ASSERT_TRUE(options);
    EXPECT_EQ(options->program, "part.nc");
    EXPECT_EQ(options->shots, "pictures");
    EXPECT_EQ(options->script, "tour.txt");
    EXPECT_EQ(options->rate, 30U);
    EXPECT_TRUE(options->measure);
}

TEST(PanelOptions, AreRefusedWhereNobodyKnowsThem) {
    EXPECT_FALSE(parse({"--slow"}));
    EXPECT_FALSE(parse({"-r"}));
    EXPECT_FALSE(parse({"one.nc", "two.nc"}));
    EXPECT_FALSE(parse({"--script"}));
    EXPECT_FALSE(parse({"--shots"}));
}

} // namespace
} // namespace panel::test
