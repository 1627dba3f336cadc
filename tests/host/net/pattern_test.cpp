#include "net/ftp_list.h"

#include <gtest/gtest.h>

namespace {

using gpi::matches;

TEST(Pattern, MatchesNames) {
    EXPECT_TRUE(matches(u"*", u""));
    EXPECT_TRUE(matches(u"", u""));
    EXPECT_FALSE(matches(u"", u"a"));
    EXPECT_FALSE(matches(u"?", u""));
    EXPECT_TRUE(matches(u"a?c", u"abc"));
    EXPECT_FALSE(matches(u"a?c", u"ac"));
    EXPECT_TRUE(matches(u"*.nc", u"a.b.nc"));
    EXPECT_FALSE(matches(u"*.nc", u"a.nc.b"));
    EXPECT_TRUE(matches(u"a*b*c", u"aXbXbXc"));
    EXPECT_FALSE(matches(u"a*b*c", u"aXcXb"));
    EXPECT_TRUE(matches(u"**a**", u"bab"));
    EXPECT_FALSE(matches(u"[a]", u"a"));
    EXPECT_FALSE(matches(u"A", u"a"));
}

TEST(Pattern, TakesNoTimeToSpeakOf) {
    const std::u16string name(250, u'a');
    std::u16string pattern;
    for (int count = 0; count < 100; ++count) {
        pattern += u"*a";
    }
    EXPECT_TRUE(matches(pattern, name));
    EXPECT_FALSE(matches(pattern + u"b", name));
}

} // namespace
