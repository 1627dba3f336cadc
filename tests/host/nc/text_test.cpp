#include "nc/text.h"

#include "support/random_calls.h"

#include <gtest/gtest.h>

namespace gpi::nc {
namespace {

std::u16string copied(std::u16string_view text, size_t size) {
    std::u16string out(size + 1, u'?');
    copyText(text, out.data(), size);
    EXPECT_EQ(out[size], u'?') << "written past the end";
    return out.substr(0, out.find(u'\0'));
}

TEST(Text, GoesBothWays) {
    const std::pair<std::u16string_view, std::string_view> pairs[] = {
        {u"", ""},
        {u"G1 X5", "G1 X5"},
        {u"\x7F\x80\x7FF\x800", "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80"},
        {u"\xFFFF", "\xEF\xBF\xBF"},
        {u"\xD800\xDC00\xDBFF\xDFFF", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
    };
    for (const auto& [wide, narrow] : pairs) {
        EXPECT_EQ(toUtf8(wide), narrow);
        EXPECT_EQ(toUtf16(narrow), wide);
    }
}

TEST(Text, ReplacesWhatIsNoCharacter) {
    constexpr char16_t kLoneUnits[] = {0xDC00, u'a', 0xD800, 0};
    EXPECT_EQ(toUtf8(kLoneUnits), "\xEF\xBF\xBD"
                                  "a\xEF\xBF\xBD");
    EXPECT_EQ(toUtf16("a\xFF"
                      "b"),
              u"a\xFFFD"
              u"b");
    EXPECT_EQ(toUtf16("\xC3"
                      "b"),
              u"\xFFFD"
              u"b");
    EXPECT_EQ(toUtf16("\xE3\x81"), u"\xFFFD");
    EXPECT_EQ(toUtf16("\xC0\x80"), u"\xFFFD") << "too long a spelling";
    EXPECT_EQ(toUtf16("\xED\xA0\x80"), u"\xFFFD") << "half a pair";
    EXPECT_EQ(toUtf16("\xF4\x90\x80\x80"), u"\xFFFD") << "beyond the last character";
}

TEST(Text, ComesBackFromAnyBytes) {
    quarlo::test::Random random(quarlo::test::testSeed());
    for (int round = 0; round < 2000; ++round) {
        std::string bytes;
        for (int32_t left = random.between(0, 20); left > 0; --left) {
            bytes += static_cast<char>(random.between(0, 255));
        }
        const std::u16string text = toUtf16(bytes);
        EXPECT_EQ(toUtf16(toUtf8(text)), text);
    }
}

TEST(Text, IsCutToWhatFits) {
    EXPECT_EQ(copied(u"abc", 4), u"abc");
    EXPECT_EQ(copied(u"abc", 3), u"ab");
    EXPECT_EQ(copied(u"abc", 1), u"");
    EXPECT_EQ(copied(u"a\xD800\xDC00", 3), u"a") << "no half of a pair";
    EXPECT_EQ(copied(u"a\xD800\xDC00", 4), u"a\xD800\xDC00");
}

} // namespace
} // namespace gpi::nc
