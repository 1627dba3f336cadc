// Options of handles.
#include "network.h"

#include <limits>

namespace gpi::test {
namespace {

class NetOption : public testing::Test {
  protected:
    GNetHandle* connection() {
        return connectTo(session, u"localhost", 0, nullptr, nullptr, G_NET_HTTP, 0);
    }

    StartedPlatform platform;
    GNetHandle* session = openSession(nullptr);
};

TEST_F(NetOption, HasADefault) {
    EXPECT_EQ(numberOption(session, G_NET_OPTION_CONNECT_TIMEOUT), 10000);
    EXPECT_EQ(numberOption(session, G_NET_OPTION_IDLE_TIMEOUT), 30000);
    EXPECT_EQ(numberOption(session, G_NET_OPTION_REDIRECTS), 10);
    EXPECT_EQ(numberOption(session, G_NET_OPTION_RATE), 0);
    EXPECT_EQ(textOption(session, G_NET_OPTION_AGENT), u"quarlo");
    for (const int32_t option : {G_NET_OPTION_USER, G_NET_OPTION_PROXY, G_NET_OPTION_AUTHORITIES}) {
        EXPECT_EQ(textOption(session, option), u"");
    }
}

TEST_F(NetOption, ComesFromTheSettings) {
    platform.stop();
    const StartedPlatform other{{"QUARLO_NET_CONNECT_TIMEOUT", "1500"},
                                {"QUARLO_NET_IDLE_TIMEOUT", "2500"},
                                {"QUARLO_NET_REDIRECTS", "0"},
                                {"QUARLO_NET_PROXY", "http://gate:3128"}};
    session = openSession(u"panel");
    EXPECT_EQ(numberOption(session, G_NET_OPTION_CONNECT_TIMEOUT), 1500);
    EXPECT_EQ(numberOption(session, G_NET_OPTION_IDLE_TIMEOUT), 2500);
    EXPECT_EQ(numberOption(session, G_NET_OPTION_REDIRECTS), 0);
    EXPECT_EQ(textOption(session, G_NET_OPTION_PROXY), u"http://gate:3128");
    EXPECT_EQ(textOption(session, G_NET_OPTION_AGENT), u"panel");
}

TEST_F(NetOption, IsInherited) {
    GNetHandle* const before = connection();
    EXPECT_EQ(choose(session, G_NET_OPTION_RATE, 1000), 1);
    EXPECT_EQ(choose(session, G_NET_OPTION_AGENT, u"\u00FCber panel"), 1);
    GNetHandle* const after = connection();
    EXPECT_EQ(numberOption(before, G_NET_OPTION_RATE), 0);
    EXPECT_EQ(numberOption(after, G_NET_OPTION_RATE), 1000);
    EXPECT_EQ(textOption(after, G_NET_OPTION_AGENT), u"\u00FCber panel");
    EXPECT_EQ(choose(session, G_NET_OPTION_RATE, 2000, G_NET_OPTION_ALL), 1);
    EXPECT_EQ(numberOption(before, G_NET_OPTION_RATE), 2000);
    EXPECT_EQ(numberOption(after, G_NET_OPTION_RATE), 2000);
    EXPECT_EQ(choose(after, G_NET_OPTION_RATE, 3000, G_NET_OPTION_ALL), 1);
    EXPECT_EQ(numberOption(session, G_NET_OPTION_RATE), 2000);
}

TEST_F(NetOption, KeepsPasswordsToItself) {
    GNetHandle* const named =
        connectTo(session, u"localhost", 0, u"operator", u"secret", G_NET_HTTP, 0);
    EXPECT_EQ(textOption(named, G_NET_OPTION_USER), u"operator");
    EXPECT_EQ(textOption(named, G_NET_OPTION_PASSWORD), u"failed");
    EXPECT_EQ(lastError(), G_NET_DENIED);
    EXPECT_EQ(choose(named, G_NET_OPTION_PASSWORD, u"other"), 1);
    EXPECT_EQ(textOption(named, G_NET_OPTION_URL), u"http://localhost/");
}

TEST_F(NetOption, HasARange) {
    constexpr int32_t kMost = std::numeric_limits<int32_t>::max();
    const struct {
        int32_t option;
        int32_t least;
        int32_t most;
    } ranges[] = {{G_NET_OPTION_CONNECT_TIMEOUT, 1, kMost},
                  {G_NET_OPTION_IDLE_TIMEOUT, 1, kMost},
                  {G_NET_OPTION_REDIRECTS, 0, 50},
                  {G_NET_OPTION_RATE, 0, kMost}};
    for (const auto& [option, least, most] : ranges) {
        EXPECT_EQ(choose(session, option, least), 1);
        EXPECT_EQ(choose(session, option, most), 1);
        EXPECT_EQ(choose(session, option, least - 1), 0);
        EXPECT_EQ(lastError(), G_NET_ARGUMENT);
        EXPECT_EQ(numberOption(session, option), most) << "as it was";
    }
    EXPECT_EQ(choose(session, G_NET_OPTION_REDIRECTS, 51), 0);
    EXPECT_EQ(lastError(), G_NET_ARGUMENT);
}

TEST_F(NetOption, RefusesTextThatCannotBe) {
    EXPECT_EQ(choose(session, G_NET_OPTION_PROXY, u"gate:3128"), 0);
    EXPECT_EQ(lastError(), G_NET_URL);
    for (const std::u16string& text : {std::u16string(u"a\r\nX: y"), std::u16string(u"a\0b", 3),
                                       std::u16string(1, 0xDC00), std::u16string(5000, u'x')}) {
        EXPECT_EQ(choose(session, G_NET_OPTION_AGENT, text), 0);
        EXPECT_EQ(lastError(), G_NET_ARGUMENT);
    }
    EXPECT_EQ(textOption(session, G_NET_OPTION_AGENT), u"quarlo");
}

TEST_F(NetOption, IsReadOnlyOrUnknown) {
    for (const int32_t option : {G_NET_OPTION_KIND, G_NET_OPTION_PARENT, G_NET_OPTION_URL}) {
        EXPECT_EQ(choose(session, option, 1), 0);
        EXPECT_EQ(lastError(), G_NET_READ_ONLY_OPTION);
    }
    for (const int32_t option : {0, 13, -1, std::numeric_limits<int32_t>::min()}) {
        EXPECT_EQ(choose(session, option, 1), 0);
        EXPECT_EQ(lastError(), G_NET_NOT_FOUND);
        EXPECT_EQ(numberOption(session, option), -1);
        EXPECT_EQ(lastError(), G_NET_NOT_FOUND);
    }
}

TEST_F(NetOption, SaysHowMuchRoomItNeeds) {
    char16_t text[7] = u"as is";
    int32_t size = 6;
    EXPECT_EQ(queryOption(session, G_NET_OPTION_AGENT, text, &size), 0);
    EXPECT_EQ(lastError(), G_NET_BUFFER);
    EXPECT_EQ(size, 7);
    EXPECT_EQ(queryOption(session, G_NET_OPTION_AGENT, text, &size), 1);
    EXPECT_EQ(size, 6);
    int32_t number = 5;
    size = 3;
    EXPECT_EQ(queryOption(session, G_NET_OPTION_RATE, &number, &size), 0);
    EXPECT_EQ(lastError(), G_NET_BUFFER);
    EXPECT_EQ(size, 4);
    EXPECT_EQ(number, 5);
}

TEST_F(NetOption, RefusesWrongArguments) {
    int32_t number = 1;
    int32_t size = sizeof number;
    int32_t negative = -1;
    const auto refused = [](int32_t result) {
        return result == 0 && lastError() == G_NET_ARGUMENT;
    };
    EXPECT_TRUE(refused(queryOption(session, G_NET_OPTION_RATE, nullptr, &size)));
    EXPECT_TRUE(refused(queryOption(session, G_NET_OPTION_RATE, &number, nullptr)));
    EXPECT_TRUE(refused(queryOption(session, G_NET_OPTION_RATE, &number, &negative)));
    EXPECT_TRUE(refused(setOption(session, G_NET_OPTION_RATE, nullptr, size, 0)));
    EXPECT_TRUE(refused(setOption(session, G_NET_OPTION_RATE, &number, 3, 0)));
    EXPECT_TRUE(refused(setOption(session, G_NET_OPTION_RATE, &number, size, 2)));
    EXPECT_TRUE(refused(setOption(session, G_NET_OPTION_AGENT, nullptr, 1, 0)));
    EXPECT_TRUE(refused(setOption(session, G_NET_OPTION_AGENT, u"x", -1, 0)));
    EXPECT_EQ(queryOption(nullptr, G_NET_OPTION_RATE, &number, &size), 0);
    EXPECT_EQ(lastError(), G_NET_HANDLE);
    EXPECT_EQ(setOption(nullptr, G_NET_OPTION_RATE, &number, size, 0), 0);
    EXPECT_EQ(lastError(), G_NET_HANDLE);
}

} // namespace
} // namespace gpi::test
