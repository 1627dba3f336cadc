#include "platform/system.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>

using namespace quarlo;

namespace {

/// A text in the system's own code page, converted.
std::u16string converted(const char* text, int32_t units) {
    std::u16string room(static_cast<size_t>(units), u'\0');
    systemTextToUnicode(text, room.data(), units);
    return room.c_str();
}

TEST(SystemText, IsInTheCodePageOfTheSystem) {
    std::string bytes;
    std::u16string expected;
    for (int byte = 0x20; byte < 0x100; ++byte) {
        const char text[] = {static_cast<char>(byte), '\0'};
        WCHAR unit[2] = {};
        if (IsDBCSLeadByte(static_cast<BYTE>(byte)) == 0 &&
            MultiByteToWideChar(CP_ACP, MB_PRECOMPOSED, text, 1, unit, 2) == 1) {
            bytes += text;
            expected += static_cast<char16_t>(unit[0]);
        }
    }
    ASSERT_GT(bytes.size(), 0x5FU);
    EXPECT_EQ(converted(bytes.c_str(), 256), expected);
}

TEST(SystemText, ThatIsTooLongIsCut) {
    EXPECT_EQ(converted("12345", 6), u"12345");
    EXPECT_EQ(converted("12345", 5), u"1234");
    EXPECT_EQ(converted("12345", 1), u"");
}

TEST(SystemText, ThatIsNullLeavesTheRoomAsItIs) {
    EXPECT_EQ(converted(nullptr, 8), u"");
}

TEST(SystemMessages, OfKeysAreTranslatedIntoCharacters) {
    GMessage key{};
    key.number = WM_KEYDOWN;
    key.param1 = 'A';
    key.param2 = 0x001E0001; // scan code, once
    translateMessage(key);
    MSG next{};
    ASSERT_TRUE(PeekMessageW(&next, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(next.message, UINT{WM_CHAR});
    EXPECT_EQ(next.wParam, WPARAM{'a'});
}

TEST(SystemMessages, OfNoWindowAreDispatchedToNone) {
    GMessage message{};
    message.number = WM_APP;
    dispatchMessage(message);
    MSG next{};
    EXPECT_FALSE(PeekMessageW(&next, nullptr, 0, 0, PM_REMOVE));
}

} // namespace
