#include "app/arguments.h"

#include <gtest/gtest.h>

namespace {

using Words = std::vector<std::string>;

TEST(Arguments, AreWordsBetweenSpaces) {
    EXPECT_EQ(gpi::wordsOf(""), Words{});
    EXPECT_EQ(gpi::wordsOf("   "), Words{});
    EXPECT_EQ(gpi::wordsOf(" one  two "), (Words{"one", "two"}));
}

TEST(Arguments, MayBeQuoted) {
    EXPECT_EQ(gpi::wordsOf("\"one two\" three"), (Words{"one two", "three"}));
    EXPECT_EQ(gpi::wordsOf("a\"b c\"d"), Words{"ab cd"});
    EXPECT_EQ(gpi::wordsOf("\"\" x"), (Words{"", "x"}));
    EXPECT_EQ(gpi::wordsOf("\"say \"\"no\"\"\""), Words{"say \"no\""});
    EXPECT_EQ(gpi::wordsOf("\"open end"), Words{"open end"});
    EXPECT_EQ(gpi::wordsOf("$HOME;`ls`|*"), Words{"$HOME;`ls`|*"});
}

} // namespace
