// Text: strings that there are not, and none of their ends passed.
#include "refusing.h"

#include <gtest/gtest.h>

namespace {

using namespace gpi::test;

TEST(TextRefuses, StringsThatThereAreNot) {
    char bytes[4] = {'x'};
    char16_t units[4] = {u'x'};
    EXPECT_EQ(refuser<GPIStringLength>(36)(nullptr, -1), 0);
    EXPECT_EQ(refuser<GPIStringLength>(36)(u"abc", -2), 0);
    EXPECT_EQ(refuser<GPIStringLength>(36)(u"abc", INT32_MIN), 0);
    EXPECT_EQ(refuser<GPIUnicodeToMultiByte>(61)(nullptr, -1, bytes, 4), 0);
    EXPECT_EQ(refuser<GPIMultiByteToUnicode>(62)(nullptr, -1, units, 4), 0);
    EXPECT_EQ(bytes[0], 'x');
    EXPECT_EQ(units[0], u'x');
}

TEST(TextRefuses, LengthsAndRoomOutOfRange) {
    char bytes[4] = {'x'};
    char16_t units[4] = {u'x'};
    const auto narrow = refuser<GPIUnicodeToMultiByte>(GPI_SERVICE_UNICODE_TO_MULTI_BYTE);
    const auto widen = refuser<GPIMultiByteToUnicode>(GPI_SERVICE_MULTI_BYTE_TO_UNICODE);
    EXPECT_EQ(narrow(u"abc", -2, bytes, 4), 0);
    EXPECT_EQ(narrow(u"abc", -1, bytes, -1), 0);
    EXPECT_EQ(narrow(u"abc", -1, nullptr, 4), 0);
    EXPECT_EQ(widen("abc", -2, units, 4), 0);
    EXPECT_EQ(widen("abc", -1, units, -1), 0);
    EXPECT_EQ(widen("abc", -1, nullptr, 4), 0);
    EXPECT_EQ(bytes[0], 'x');
    EXPECT_EQ(units[0], u'x');
}

TEST(TextRefuses, ToStepPastTheEnds) {
    const char16_t text[] = u"ab";
    uint32_t character = 7;
    const auto previous = refuser<GPIPreviousChar>(GPI_SERVICE_PREVIOUS_CHAR);
    EXPECT_EQ(previous(nullptr, text, &character), nullptr);
    EXPECT_EQ(previous(text, nullptr, &character), nullptr);
    EXPECT_EQ(previous(text, text, &character), nullptr);
    EXPECT_EQ(previous(text + 1, text, &character), nullptr);
    const auto next = refuser<GPINextChar>(GPI_SERVICE_NEXT_CHAR);
    EXPECT_EQ(next(nullptr, nullptr, &character), nullptr);
    EXPECT_EQ(next(text + 2, nullptr, &character), nullptr);
    EXPECT_EQ(next(text, text, &character), nullptr);
    EXPECT_EQ(next(text + 1, text, &character), nullptr);
    EXPECT_EQ(character, 7U);
}

TEST(TextRefuses, CodePagesThatThereAreNot) {
    const auto isLead = refuser<GPIIsLeadByte>(GPI_SERVICE_IS_LEAD_BYTE);
    for (const int32_t codePage : {INT32_MIN, -1, 1, 933, INT32_MAX}) {
        EXPECT_EQ(isLead(0x81, codePage), 0) << codePage;
    }
}

} // namespace
