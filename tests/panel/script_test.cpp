#include "script/script.h"

#include "keyboard/key_names.h"
#include "panel_bench.h"

#include <gpi/keys.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

namespace panel::test {
namespace {

std::string complaint(Bench& bench, const std::string& lines) {
    std::istringstream stream(lines);
    return Script(bench.panel(), bench.shots()).run(stream).value_or("");
}

TEST(Script, PassesOverCommentsAndEmptyLines) {
    Bench bench;
    EXPECT_EQ(complaint(bench, "# all of it\n\n  \nwait 10 # a little\n"), "");
}

TEST(Script, NamesTheLineThatIsWrong) {
    Bench bench;
    EXPECT_EQ(complaint(bench, "wait 10\njump\n"), "line 2: jump");
    EXPECT_EQ(complaint(bench, "key NoSuchKey"), "line 1: key NoSuchKey");
    EXPECT_EQ(complaint(bench, "tap 10"), "line 1: tap 10");
    EXPECT_EQ(complaint(bench, "wait soon"), "line 1: wait soon");
    EXPECT_EQ(complaint(bench, "checksum"), "line 1: checksum");
    EXPECT_EQ(complaint(bench, "up A"), "line 1: up A") << "it is not down";
    EXPECT_EQ(complaint(bench, "shot no/such/folder"), "line 1: shot no/such/folder");
}

TEST(Script, WritesPictures) {
    Bench bench;
    bench.run("shot here");
    EXPECT_TRUE(std::filesystem::exists(bench.shots() + "/here.png"));
}

TEST(Script, PrintsChecksums) {
    Bench bench;
    std::istringstream lines("checksum first\nkey F1\nwait 500\nchecksum second\n");
    std::ostringstream printed;
    EXPECT_FALSE(Script(bench.panel(), bench.shots(), printed).run(lines));
    std::istringstream words(printed.str());
    std::string first;
    std::string second;
    uint32_t before = 0;
    uint32_t after = 0;
    words >> first >> std::hex >> before >> second >> after;
    EXPECT_TRUE(words) << printed.str();
    EXPECT_EQ(first, "first");
    EXPECT_EQ(second, "second");
    EXPECT_NE(before, after);
    EXPECT_EQ(after, GPIHostFrameChecksum());
}

TEST(Script, LetsTimePassByWaitingOnly) {
    Bench bench;
    bench.run("key F1\nkey F10\nkey F10");
    EXPECT_EQ(GETime(nullptr), kStartTime);
    bench.run("wait 2500");
    EXPECT_EQ(GETime(nullptr), kStartTime + 2);
}

TEST(Script, EndsWhereThePanelEnds) {
    Bench bench;
    EXPECT_EQ(complaint(bench, "key Q\njump\n"), "");
}

TEST(KeyNames, AreThoseOfKeys) {
    EXPECT_EQ(keyNamed("F10"), GPI_KEY_F1 + 9);
    EXPECT_EQ(keyNamed("a"), 'A');
    EXPECT_EQ(keyNamed("7"), '7');
    EXPECT_EQ(keyNamed("Enter"), GPI_KEY_ENTER);
    EXPECT_FALSE(keyNamed("Nothing"));
}

TEST(KeyNames, StrokesTypeTheirCharacters) {
    for (const char character :
         {'A', 'Z', '0', '9', ' ', '-', '.', '#', '[', ']', '=', '+', '*', '('}) {
        const auto stroke = strokeOf(character);
        ASSERT_TRUE(stroke) << character;
        EXPECT_EQ(characterOf(*stroke), character);
    }
    EXPECT_EQ(characterOf({GPI_KEY_PAD_0 + 5, false}), '5');
    EXPECT_EQ(characterOf({GPI_KEY_F1, false}), '\0');
}

} // namespace
} // namespace panel::test
