#include "gcode/decimal.h"
#include "support/random_calls.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

namespace {

/// What is read, how many characters that took, and the error.
struct Read {
    double value;
    ptrdiff_t length;
    std::errc error;

    friend bool operator==(const Read&, const Read&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Read& read) {
        return out << read.value << " of " << read.length << " characters, error "
                   << static_cast<int>(read.error);
    }
};

constexpr double kUntouched = -77.0;

template <typename Function>
Read readBy(const Function& function, const std::string& text) {
    double value = kUntouched;
    const auto [end, error] = function(text.data(), text.data() + text.size(), value);
    return {value, end - text.data(), error};
}

Read read(const std::string& text) {
    return readBy(gcode::readDecimal, text);
}

/// As the standard library reads it.
Read expected(const std::string& text) {
    return readBy(
        [](const char* first, const char* last, double& value) {
            return std::from_chars(first, last, value, std::chars_format::fixed);
        },
        text);
}

std::string written(double value, int decimals) {
    std::array<char, 400> room;
    const auto [end, error] =
        gcode::writeDecimal(room.data(), room.data() + room.size(), value, decimals);
    return error == std::errc() ? std::string(room.data(), end) : "?";
}

TEST(Decimal, IsReadAsFarAsItGoes) {
    EXPECT_EQ(read("12.5X3"), (Read{12.5, 4, std::errc()}));
    EXPECT_EQ(read("-.5"), (Read{-0.5, 3, std::errc()}));
    EXPECT_EQ(read("7."), (Read{7.0, 2, std::errc()}));
    EXPECT_EQ(read("1.2.3"), (Read{1.2, 3, std::errc()}));
    EXPECT_EQ(read("3-2"), (Read{3.0, 1, std::errc()}));
    EXPECT_EQ(read("1e5"), (Read{1.0, 1, std::errc()}));
    EXPECT_EQ(read("0x10"), (Read{0.0, 1, std::errc()}));
    for (const char* const none : {"", ".", "-", "--1", "+1", " 1", "X", "e5"}) {
        EXPECT_EQ(read(none), (Read{kUntouched, 0, std::errc::invalid_argument})) << none;
    }
    EXPECT_EQ(read(std::string(400, '9')), (Read{kUntouched, 400, std::errc::result_out_of_range}));
}

TEST(Decimal, IsReadAsByTheStandardLibrary) {
    quarlo::test::Random random(quarlo::test::testSeed());
    SCOPED_TRACE("seed " + std::to_string(quarlo::test::testSeed()));
    for (int i = 0; i < 20'000; ++i) {
        std::string text;
        for (int length = random.between(0, 24); length > 0; --length) {
            text += random.pick(std::string_view("0123456789012345678901234567890123456789.-X"));
        }
        EXPECT_EQ(read(text), expected(text)) << text;
    }
}

TEST(Decimal, IsWrittenRounded) {
    EXPECT_EQ(written(1.0 / 3, 3), "0.333");
    EXPECT_EQ(written(-2.5, 0), "-2");
    EXPECT_EQ(written(1e21, 1), "1000000000000000000000.0");
    EXPECT_EQ(written(0.1, 20), "0.10000000000000000555");
}

TEST(Decimal, IsNotWrittenWhereThereIsNoRoom) {
    std::array<char, 4> room;
    char* const end = room.data() + room.size();
    EXPECT_EQ(gcode::writeDecimal(room.data(), end, 1.25, 2).ptr, end);
    EXPECT_EQ(gcode::writeDecimal(room.data(), end, 1.25, 2).ec, std::errc());
    EXPECT_EQ(gcode::writeDecimal(room.data(), end, 1.25, 3).ec, std::errc::value_too_large);
}

TEST(Decimal, IsWrittenAsByTheStandardLibrary) {
    quarlo::test::Random random(quarlo::test::testSeed());
    SCOPED_TRACE("seed " + std::to_string(quarlo::test::testSeed()));
    for (int i = 0; i < 20'000; ++i) {
        const auto value = std::bit_cast<double>(random.bits());
        const int decimals = random.between(0, 8);
        std::array<char, 400> room;
        const auto end = std::to_chars(room.data(), room.data() + room.size(), value,
                                       std::chars_format::fixed, decimals);
        if (std::isfinite(value)) {
            EXPECT_EQ(written(value, decimals), std::string(room.data(), end.ptr));
        }
    }
}

} // namespace
