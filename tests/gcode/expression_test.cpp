#include "variables.h"

#include "support/random_calls.h"

#include <gtest/gtest.h>

#include <cmath>

namespace gcode {
namespace {

const FixedVariables kVariables({{1, 10.0}, {2, -2.5}, {10, 7.0}, {100, 0.5}});

/// The value of a text that is one value and nothing behind it.
double valueOf(std::string_view text) {
    const Value value = takeValue(text, &kVariables);
    EXPECT_TRUE(value.valid()) << value.fault;
    EXPECT_EQ(text, "");
    return value.value;
}

std::string faultOf(std::string_view text) {
    const Value value = takeValue(text, &kVariables);
    EXPECT_FALSE(value.valid());
    return value.fault;
}

TEST(Expression, ReadsNumbersAndVariables) {
    EXPECT_EQ(valueOf("-1.5"), -1.5);
    EXPECT_EQ(valueOf(" + .25"), 0.25);
    EXPECT_EQ(valueOf("#1"), 10.0);
    EXPECT_EQ(valueOf("-#2"), 2.5);
    EXPECT_EQ(valueOf("##1"), 7.0);
    EXPECT_EQ(valueOf("#[#1 * 10]"), 0.5);
}

TEST(Expression, WorksOutProductsBeforeSumsFromTheLeft) {
    EXPECT_EQ(valueOf("[1 + 2 * 3]"), 7.0);
    EXPECT_EQ(valueOf("[10 - 4 - 3]"), 3.0);
    EXPECT_EQ(valueOf("[8 / 4 / 2]"), 1.0);
    EXPECT_EQ(valueOf("[[1 + 2] * -[3 - #1]]"), 21.0);
}

TEST(Expression, KnowsFunctionsInEitherCase) {
    EXPECT_EQ(valueOf("SQRT[16]"), 4.0);
    EXPECT_EQ(valueOf("abs[#2]"), 2.5);
    EXPECT_EQ(valueOf("ROUND[2.5]"), 3.0);
    EXPECT_NEAR(valueOf("sin[30]"), 0.5, 1e-15);
    EXPECT_NEAR(valueOf("Cos[60]"), 0.5, 1e-15);
    EXPECT_NEAR(valueOf("TAN[45]"), 1.0, 1e-15);
}

TEST(Expression, NamesWhatIsWrong) {
    EXPECT_EQ(faultOf("#3"), "#3 is not set");
    EXPECT_EQ(faultOf("#"), "# without a number");
    EXPECT_EQ(faultOf("#1.5"), "# with a number out of range");
    EXPECT_EQ(faultOf("#10000"), "# with a number out of range");
    EXPECT_EQ(faultOf("#-1"), "# without a number");
    EXPECT_EQ(faultOf("[1"), "[ without ]");
    EXPECT_EQ(faultOf("[]"), "[ without a value");
    EXPECT_EQ(faultOf("[1 + ]"), "an operator without a value");
    EXPECT_EQ(faultOf("SIN 30"), "SIN without [");
    EXPECT_EQ(faultOf("X"), "");
}

TEST(Expression, RefusesDepthWithoutEnd) {
    EXPECT_EQ(faultOf(std::string(1 << 20, '[')), "an expression that is too deep");
    EXPECT_EQ(faultOf(std::string(1 << 20, '#')), "an expression that is too deep");
}

TEST(Expression, WithoutVariablesIsANumber) {
    std::string_view variable = "#1";
    EXPECT_FALSE(takeValue(variable, nullptr).found);
    std::string_view apart = "- 1";
    EXPECT_FALSE(takeValue(apart, nullptr).found);
    std::string_view number = "-1.5X";
    EXPECT_EQ(takeValue(number, nullptr).value, -1.5);
    EXPECT_EQ(number, "X");
}

TEST(Expression, ComesBackFromAnyText) {
    constexpr std::string_view kPieces[] = {"#", "[",    "]",  "+",  "-",  "*",
                                            "/", "1",    "2.", ".5", "#1", "SQRT",
                                            " ", "SIN[", "X",  "=",  "#[", "99999999999"};
    quarlo::test::forRandomCalls(
        500, 60, [&](quarlo::test::Random& random) { return random.pick(kPieces); },
        [](const std::vector<std::string_view>& pieces) {
            std::string text;
            for (const std::string_view piece : pieces) {
                text += piece;
            }
            std::string_view rest = text;
            const Value value = takeValue(rest, &kVariables);
            const bool consistent = !(value.found && !value.fault.empty());
            return consistent && text.ends_with(rest) ? std::string() : "wrong: " + text;
        });
}

} // namespace
} // namespace gcode
