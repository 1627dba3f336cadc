#include "support/guarded_surface.h"
#include "support/started_platform.h"

#include <quarlo/convert.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

using namespace gpi::test;

const auto length = service<GPIStringLength>(GPI_SERVICE_STRING_LENGTH);
const auto previous = service<GPIPreviousChar>(GPI_SERVICE_PREVIOUS_CHAR);
const auto next = service<GPINextChar>(GPI_SERVICE_NEXT_CHAR);
const auto toBytes = service<GPIUnicodeToMultiByte>(GPI_SERVICE_UNICODE_TO_MULTI_BYTE);
const auto toUnits = service<GPIMultiByteToUnicode>(GPI_SERVICE_MULTI_BYTE_TO_UNICODE);
const auto isLead = service<GPIIsLeadByte>(GPI_SERVICE_IS_LEAD_BYTE);

constexpr char16_t kText[] = {u'a', 0xD842, 0xDFB7, 0xD842, u'b', 0}; // a, a pair, half of one, b

TEST(Characters, AreCounted) {
    EXPECT_EQ(length(kText, -1), 4);
    EXPECT_EQ(length(kText, 100), 4);
    EXPECT_EQ(length(kText, 3), 2);
    EXPECT_EQ(length(kText, 2), 2); // the pair is cut
    EXPECT_EQ(length(kText, 0), 0);
    EXPECT_EQ(length(nullptr, -1), 0);
}

TEST(Characters, AreSteppedOver) {
    const char16_t* at = kText;
    uint32_t character = 0;
    for (const uint32_t expected : {0x61U, 0x20BB7U, 0xD842U, 0x62U}) {
        const char16_t* const after = next(at, nullptr, &character);
        EXPECT_EQ(character, expected);
        EXPECT_EQ(previous(kText, after, &character), at);
        EXPECT_EQ(character, expected);
        at = after;
    }
    EXPECT_EQ(next(at, nullptr, nullptr), nullptr);
    EXPECT_EQ(next(kText, kText, nullptr), nullptr);
    EXPECT_EQ(next(kText + 1, kText + 2, &character), kText + 2);
    EXPECT_EQ(character, 0xD842U);
    EXPECT_EQ(next(nullptr, nullptr, nullptr), nullptr);
    EXPECT_EQ(previous(kText, kText, nullptr), nullptr);
    EXPECT_EQ(previous(nullptr, kText, nullptr), nullptr);
}

std::string bytesOf(const char16_t* text, int32_t units = -1) {
    std::string out(100, '!');
    out.resize(static_cast<size_t>(toBytes(text, units, out.data(), 100)));
    return out;
}

std::u16string unitsOf(const std::string& text) {
    // Exactly as much memory as there is text: nothing may be read behind it.
    quarlo::test::GuardedMemory memory(text.size() + 1);
    std::memcpy(memory.data(), text.c_str(), text.size() + 1);
    std::u16string out(100, u'!');
    out.resize(static_cast<size_t>(
        toUnits(reinterpret_cast<const char*>(memory.data()), -1, out.data(), 100)));
    return out;
}

TEST(CodePages, ConvertBothWays) {
    const struct {
        const char* page;
        std::u16string text;
        std::string bytes;
    } cases[] = {{"UTF-8", u"\u81EA\u00E4", "\xE8\x87\xAA\xC3\xA4"},
                 {"CP932", u"\u81EA\uFF71", "\x8E\xA9\xB1"},
                 {"GBK", u"\u81EA", "\xD7\xD4"},
                 {"CP1252", u"\u00E4\u20AC", "\xE4\x80"}};
    for (const auto& known : cases) {
        const StartedPlatform platform{{"QUARLO_CODE_PAGE", known.page}};
        EXPECT_EQ(bytesOf(known.text.c_str()), known.bytes + '\0') << known.page;
        EXPECT_EQ(unitsOf(known.bytes), known.text + u'\0') << known.page;
    }
}

TEST(CodePages, ReplaceWhatTheyCannotSay) {
    const StartedPlatform platform{{"QUARLO_CODE_PAGE", "CP1252"}};
    EXPECT_EQ(bytesOf(u"a\u81EA\U00020BB7b", 5), "a??b");
    EXPECT_EQ(bytesOf(kText, 5), "a??b");
}

TEST(CodePages, ReplaceWhatIsBroken) {
    const StartedPlatform platform;
    EXPECT_EQ(unitsOf("a\xFF"
                      "b"),
              std::u16string(u"a\uFFFD"
                             u"b\0",
                             4));
    EXPECT_EQ(unitsOf("\xE8\x87"), std::u16string(u"\uFFFD\uFFFD\0", 3));
    const StartedPlatform japanese{{"QUARLO_CODE_PAGE", "CP932"}};
    EXPECT_EQ(unitsOf("\x8E").front(), u'\uFFFD');
}

TEST(CodePages, CutAtWholeCharacters) {
    const StartedPlatform platform;
    char bytes[8] = {};
    char16_t units[8] = {};
    EXPECT_EQ(toBytes(u"a\u81EA", 2, bytes, 3), 1);
    EXPECT_EQ(toBytes(u"a\u81EA", 2, bytes, 4), 4);
    EXPECT_EQ(toUnits("a\xF0\xA0\xAE\xB7", 5, units, 2), 1);
    EXPECT_EQ(toUnits("a\xF0\xA0\xAE\xB7", 5, units, 3), 3);
    EXPECT_EQ(units[3], 0);
}

TEST(CodePages, OnlyMeasureWithoutRoom) {
    const StartedPlatform platform;
    EXPECT_EQ(toBytes(u"a\u81EA", -1, nullptr, 0), 5);
    EXPECT_EQ(toUnits("a\xE8\x87\xAA", -1, nullptr, 0), 3);
}

TEST(CodePages, RefuseBadArguments) {
    char byte = 0;
    char16_t unit = 0;
    EXPECT_EQ(toBytes(nullptr, 1, &byte, 1), 0);
    EXPECT_EQ(toBytes(u"a", -2, &byte, 1), 0);
    EXPECT_EQ(toBytes(u"a", 1, nullptr, 1), 0);
    EXPECT_EQ(toBytes(u"a", 1, &byte, -1), 0);
    EXPECT_EQ(toUnits(nullptr, 1, &unit, 1), 0);
    EXPECT_EQ(toUnits("a", 1, nullptr, 1), 0);
    EXPECT_EQ(toUnits("a", 0, &unit, 1), 0);
}

TEST(CodePages, KnowTheirLeadBytes) {
    const StartedPlatform platform{{"QUARLO_CODE_PAGE", "CP932"}};
    EXPECT_EQ(isLead(0x81, G_CODE_PAGE_CP932), 1);
    EXPECT_EQ(isLead(0xA0, G_CODE_PAGE_CP932), 0);
    EXPECT_EQ(isLead(0xFC, G_CODE_PAGE_DEFAULT), 1);
    EXPECT_EQ(isLead(0xFD, G_CODE_PAGE_DEFAULT), 0);
    EXPECT_EQ(isLead(0x80, G_CODE_PAGE_GBK), 0);
    EXPECT_EQ(isLead(0xFE, G_CODE_PAGE_GBK), 1);
    EXPECT_EQ(isLead(0xE4, G_CODE_PAGE_CP1252), 0);
    EXPECT_EQ(isLead(0xC2, G_CODE_PAGE_UTF8), 1);
    EXPECT_EQ(isLead(0xBF, G_CODE_PAGE_UTF8), 0);
    EXPECT_EQ(isLead(0x81, 437), 0);
}

} // namespace
