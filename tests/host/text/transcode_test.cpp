#include "text/transcode.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <cstdlib>

namespace {

using namespace gpi;

TEST(Transcode, GoesFromOneEncodingToAnother) {
    EXPECT_EQ(transcode("\x8E\xA9", "CP932", "UTF-8"), "\xE8\x87\xAA");
    EXPECT_EQ(transcode("\xE8\x87\xAA", "UTF-8", "GBK"), "\xD7\xD4");
    EXPECT_EQ(transcode("", "UTF-8", "CP1252"), "");
    EXPECT_EQ(transcode(std::string(1000, 'a'), "UTF-8", "UTF-16LE")->size(), 2000U);
}

TEST(Transcode, RefusesBrokenTextAndUnknownEncodings) {
    EXPECT_EQ(transcode("\xFF", "UTF-8", "UTF-16LE"), std::nullopt);
    EXPECT_EQ(transcode("\xE8\x87", "UTF-8", "UTF-16LE"), std::nullopt);
    EXPECT_EQ(transcode("a", "no such", "UTF-8"), std::nullopt);
    EXPECT_EQ(transcode("\xE8\x87\xAA", "UTF-8", "CP1252"), std::nullopt);
}

TEST(Transcode, GivesNothingWhereTheSystemHasNoConversions) {
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // in a process that has loaded none yet
    const auto convert = [] {
        const rlimit none{0, 0};
        setrlimit(RLIMIT_NOFILE, &none);
        std::_Exit(utf16Of("text").empty() ? 0 : 1); // sanitizers' last checks open files
    };
    EXPECT_EXIT(convert(), testing::ExitedWithCode(0), "");
}

TEST(Transcode, KnowsSurrogatePairs) {
    EXPECT_EQ(utf8Of(u"a\U00020BB7"), "a\xF0\xA0\xAE\xB7");
    EXPECT_EQ(utf16Of("a\xF0\xA0\xAE\xB7"), u"a\U00020BB7");
    const char16_t half[] = {u'a', 0xD842, u'b'};
    EXPECT_EQ(utf8Of(std::u16string_view(half, 3)), std::nullopt);
    EXPECT_EQ(utf8Of(std::u16string_view(half, 2)), std::nullopt);
}

TEST(Transcode, ReplacesWhatIsBroken) {
    EXPECT_EQ(utf16Of("a\xFF"
                      "b"),
              u"a\uFFFD"
              u"b");
    EXPECT_EQ(utf16Of("\xE8\x87"), u"\uFFFD\uFFFD");
    EXPECT_EQ(utf16Of(""), u"");
}

} // namespace
