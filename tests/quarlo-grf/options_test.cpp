#include "options.h"

#include <gtest/gtest.h>

namespace quarlo::test {
namespace {

using Words = std::vector<std::string>;

grf::Options parse(const Words& words) {
    return {words, {"--size", "--name"}, {"--fast"}};
}

TEST(GrfOptions, AreTakenFromAmongOtherWords) {
    const grf::Options options = parse({"a", "--size", "3", "b", "--fast", "-"});
    EXPECT_EQ(options.value("--size"), "3");
    EXPECT_EQ(options.value("--name"), std::nullopt);
    EXPECT_TRUE(options.has("--fast"));
    EXPECT_FALSE(options.has("--name"));
    EXPECT_EQ(options.operands(), (Words{"a", "b", "-"}));
    EXPECT_EQ(options.operand(1), "b");
    EXPECT_EQ(options.operand(3), "-");
}

TEST(GrfOptions, ThatNobodyKnowsAreMisuse) {
    EXPECT_THROW(parse({"--slow"}), grf::Misuse);
    EXPECT_THROW(parse({"--size"}), grf::Misuse);
    EXPECT_THROW(parse({"-f"}), grf::Misuse);
}

} // namespace
} // namespace quarlo::test
