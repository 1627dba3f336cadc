// HTTP in front of nginx.
#include "web_test.h"

#include <thread>

namespace gpi::test {
namespace {

/// Without a server there is nothing to test.
class Installed : public testing::Environment {
    void SetUp() override {
        if (!WebServer::installed()) {
            GTEST_SKIP() << "nginx is not installed";
        }
    }
};
[[maybe_unused]] const auto* const kInstalled = testing::AddGlobalTestEnvironment(new Installed);

using Http = WebTest;

TEST_F(Http, FetchesAUrl) {
    GNetHandle* const file = ask("/digits.txt");
    ASSERT_NE(file, nullptr) << lastError() << server->log();
    EXPECT_EQ(lastError(), G_NET_OK);
    EXPECT_EQ(rest(file), "0123456789");
    EXPECT_EQ(bytes(file, 1), "");
    EXPECT_EQ(lastError(), G_NET_OK);
    EXPECT_EQ(closeHandle(file), 1);
}

TEST_F(Http, ReadsInPiecesOfAnySize) {
    GNetHandle* const file = ask("/digits.txt");
    EXPECT_EQ(bytes(file, 0), "");
    EXPECT_EQ(bytes(file, 3), "012");
    EXPECT_EQ(bytes(file, 1), "3");
    EXPECT_EQ(bytes(file, 100), "456789");
    EXPECT_EQ(bytes(file, 100), "");
}

TEST_F(Http, ReadsMoreThanIsFetchedAhead) {
    std::string large(3000000, ' ');
    for (size_t at = 0; at < large.size(); ++at) {
        large[at] = static_cast<char>('a' + at * at % 23);
    }
    server->serve("large.txt", large);
    GNetHandle* const file = ask("/large.txt");
    EXPECT_EQ(bytes(file, 1), large.substr(0, 1));
    EXPECT_TRUE(bytes(file, 2000000) == large.substr(1, 2000000));
    EXPECT_TRUE(rest(file) == large.substr(2000001));
}

TEST_F(Http, TellsTheAnswer) {
    GNetHandle* const file = ask("/digits.txt");
    EXPECT_EQ(status(file), 200);
    EXPECT_EQ(textInfo(file, G_HTTP_STATUS_TEXT), u"OK");
    EXPECT_EQ(textInfo(file, G_HTTP_VERSION), u"HTTP/1.1");
    EXPECT_EQ(textInfo(file, G_HTTP_CONTENT_TYPE), u"text/plain");
    EXPECT_EQ(header(file, u"accept-RANGES"), u"bytes");
    EXPECT_NE(textInfo(file, G_HTTP_HEADERS).find(u"Content-Length: 10\r\n"), std::u16string::npos);
    int32_t length = 0;
    int32_t size = sizeof length;
    EXPECT_EQ(queryInfo(file, G_HTTP_CONTENT_LENGTH, &length, &size, nullptr), 1);
    EXPECT_EQ(length, 10);
    uint32_t time = 0;
    EXPECT_EQ(queryInfo(file, G_HTTP_LAST_MODIFIED, &time, &size, nullptr), 1);
    EXPECT_NEAR(time, service<GPITime>(GPI_SERVICE_TIME)(nullptr), 3600.0);
    EXPECT_EQ(textInfo(file, G_HTTP_LOCATION), u"failed");
    EXPECT_EQ(lastError(), G_NET_NOT_FOUND);
}

TEST_F(Http, TellsEachOfSeveralHeaders) {
    GNetHandle* const file = ask("/headers");
    int32_t index = 0;
    for (const std::u16string expected : {u"one", u"two"}) {
        char16_t text[8] = u"X-Part";
        int32_t size = 8;
        ASSERT_EQ(queryInfo(file, G_HTTP_HEADER, text, &size, &index), 1);
        EXPECT_EQ(text, expected);
        EXPECT_EQ(size, 3);
    }
    EXPECT_EQ(index, 2);
    char16_t text[8] = u"X-Part";
    int32_t size = 8;
    EXPECT_EQ(queryInfo(file, G_HTTP_HEADER, text, &size, &index), 0);
    EXPECT_EQ(lastError(), G_NET_NOT_FOUND);
    EXPECT_EQ(index, 2);
}

TEST_F(Http, SaysHowMuchRoomAnAnswerNeeds) {
    GNetHandle* const file = ask("/digits.txt");
    char16_t text[11] = u"unchanged";
    int32_t size = 10;
    EXPECT_EQ(queryInfo(file, G_HTTP_CONTENT_TYPE, text, &size, nullptr), 0);
    EXPECT_EQ(lastError(), G_NET_BUFFER);
    EXPECT_EQ(size, 11);
    EXPECT_EQ(std::u16string(text), u"unchanged");
    EXPECT_EQ(queryInfo(file, G_HTTP_CONTENT_TYPE, text, &size, nullptr), 1);
    EXPECT_EQ(size, 10);
    int32_t number = 0;
    size = 3;
    EXPECT_EQ(queryInfo(file, G_HTTP_STATUS, &number, &size, nullptr), 0);
    EXPECT_EQ(lastError(), G_NET_BUFFER);
    EXPECT_EQ(size, 4);
}

TEST_F(Http, TakesTheStatusOfAnErrorForAnAnswer) {
    GNetHandle* const missing = ask("/none");
    ASSERT_NE(missing, nullptr);
    EXPECT_EQ(status(missing), 404);
    EXPECT_NE(rest(missing).find("404"), std::string::npos);
    EXPECT_EQ(status(ask("/failed")), 500);
    GNetHandle* const empty = ask("/empty");
    EXPECT_EQ(status(empty), 204);
    EXPECT_EQ(rest(empty), "");
}

TEST_F(Http, SaysHowTheProgramCallsItself) {
    const std::string platforms = rest(ask("/echo"));
    EXPECT_EQ(platforms, "GET /echo HTTP/1.1|quarlo|*/*||||");
    GNetHandle* const named = openSession(u"panel 7");
    GNetHandle* const file = openUrl(named, server->url("/echo").c_str(), nullptr, 0);
    EXPECT_EQ(rest(file), "GET /echo HTTP/1.1|panel 7|*/*||||");
    EXPECT_EQ(closeHandle(named), 1);
}

TEST_F(Http, SendsWhatARequestSays) {
    const char16_t* const kinds[] = {u"text/plain", u"image/jpeg", nullptr};
    GNetHandle* const file = openRequest(connection(), u"DELETE", u"echo?a=1", u"HTTP/1.0",
                                         u"http://panel/start", kinds, G_NET_RELOAD);
    ASSERT_NE(file, nullptr) << lastError();
    EXPECT_EQ(addRequestHeaders(file, u"X-Own: mine", 0), 1);
    EXPECT_EQ(sendRequest(file, u"Content-Type: none/such\r\n", nullptr, 0), 1);
    EXPECT_EQ(rest(file), "DELETE /echo?a=1 HTTP/1.0|quarlo|text/plain, image/jpeg|"
                          "http://panel/start|mine|no-cache|none/such");
}

TEST_F(Http, StaysOnTheServerWhateverThePath) {
    for (const char16_t* const path : {u"//elsewhere/echo", u"@elsewhere/", u":80/", u"\\..\\x"}) {
        GNetHandle* const file = request(nullptr, path);
        ASSERT_NE(file, nullptr);
        ASSERT_EQ(sendRequest(file, nullptr, nullptr, 0), 1) << lastError();
        EXPECT_EQ(textOption(file, G_NET_OPTION_URL).find(server->url("/")), 0U);
    }
}

TEST_F(Http, ReplacesAndRemovesHeaders) {
    GNetHandle* const file = request(nullptr, u"/echo");
    EXPECT_EQ(addRequestHeaders(file, u"X-Own: first\r\nAccept: text/css", 0), 1);
    EXPECT_EQ(addRequestHeaders(file, u"x-own: second", 0), 0);
    EXPECT_EQ(lastError(), G_NET_EXISTS);
    EXPECT_EQ(addRequestHeaders(file, u"x-own: third", G_HEADER_REPLACE), 1);
    EXPECT_EQ(addRequestHeaders(file, u"Accept:", G_HEADER_REPLACE), 1);
    EXPECT_EQ(sendRequest(file, nullptr, nullptr, 0), 1);
    EXPECT_EQ(rest(file), "GET /echo HTTP/1.1|quarlo|||third||");
}

TEST_F(Http, AsksForTheHeadAlone) {
    GNetHandle* const file = request(u"HEAD", u"/digits.txt");
    EXPECT_EQ(sendRequest(file, nullptr, nullptr, 0), 1);
    EXPECT_EQ(header(file, u"Content-Length"), u"10");
    EXPECT_EQ(rest(file), "");
    EXPECT_EQ(setFilePointer(file, 0, G_SEEK_END), 0);
}

TEST_F(Http, SendsABody) {
    GNetHandle* const file = request(u"POST", u"/post");
    EXPECT_EQ(sendRequest(file, nullptr, "speed=300", 9), 1);
    EXPECT_EQ(status(file), 200);
    EXPECT_EQ(header(file, u"X-Body"), u"speed=300");
    GNetHandle* const empty = request(u"POST", u"/echo");
    EXPECT_EQ(sendRequest(empty, nullptr, nullptr, 0), 1);
    EXPECT_EQ(rest(empty), "POST /echo HTTP/1.1|quarlo|*/*||||");
}

TEST_F(Http, SendsABodyBitByBit) {
    GNetHandle* const file = request(u"PUT", u"/store/bits.txt");
    EXPECT_EQ(sendRequest(file, nullptr, nullptr, -1), 1) << lastError();
    const std::string piece(100000, 'p');
    int32_t written = 0;
    for (int count = 0; count < 10; ++count) {
        ASSERT_EQ(writeFile(file, piece.data(), 100000, &written), 1) << lastError();
        EXPECT_EQ(written, 100000);
    }
    EXPECT_EQ(writeFile(file, piece.data(), 0, nullptr), 1);
    EXPECT_EQ(status(file), -1) << "there is no answer before the end";
    EXPECT_EQ(lastError(), G_NET_STATE);
    EXPECT_EQ(endRequest(file, 0), 1) << lastError();
    EXPECT_EQ(status(file), 201);
    EXPECT_TRUE(rest(ask("/store/bits.txt")) == std::string(1000000, 'p'));
    EXPECT_EQ(writeFile(file, piece.data(), 1, &written), 0);
    EXPECT_EQ(lastError(), G_NET_STATE);
    EXPECT_EQ(written, 0);
    GNetHandle* const removal = request(u"DELETE", u"/store/bits.txt");
    EXPECT_EQ(sendRequest(removal, nullptr, nullptr, 0), 1);
    EXPECT_EQ(status(removal), 204);
}

TEST_F(Http, SendsAWholeFileAtOnce) {
    const std::string body(2000000, 'w');
    GNetHandle* const file = request(u"PUT", u"/store/whole.txt");
    EXPECT_EQ(sendRequest(file, nullptr, body.data(), static_cast<int32_t>(body.size())), 1);
    EXPECT_EQ(status(file), 201);
    EXPECT_TRUE(rest(ask("/store/whole.txt")) == body);
}

TEST_F(Http, DoesThingsInTheirOrder) {
    GNetHandle* const file = request(nullptr, u"/digits.txt");
    char byte = 0;
    EXPECT_EQ(readFile(file, &byte, 1), -1);
    EXPECT_EQ(lastError(), G_NET_STATE);
    EXPECT_EQ(setFilePointer(file, 0, G_SEEK_START), -1);
    EXPECT_EQ(lastError(), G_NET_STATE);
    EXPECT_EQ(writeFile(file, &byte, 1, nullptr), 0);
    EXPECT_EQ(lastError(), G_NET_STATE);
    EXPECT_EQ(endRequest(file, 0), 0);
    EXPECT_EQ(lastError(), G_NET_STATE);
    int32_t available = 0;
    EXPECT_EQ(queryDataAvailable(file, &available), 0);
    EXPECT_EQ(lastError(), G_NET_STATE);
    EXPECT_EQ(sendRequest(file, nullptr, nullptr, 0), 1);
    EXPECT_EQ(sendRequest(file, nullptr, nullptr, 0), 0);
    EXPECT_EQ(lastError(), G_NET_STATE);
    EXPECT_EQ(addRequestHeaders(file, u"A: b", 0), 0);
    EXPECT_EQ(lastError(), G_NET_STATE);
}

TEST_F(Http, ReadsFromAnyPosition) {
    GNetHandle* const file = ask("/digits.txt");
    EXPECT_EQ(setFilePointer(file, 7, G_SEEK_START), 7) << lastError();
    EXPECT_EQ(bytes(file, 2), "78");
    EXPECT_EQ(setFilePointer(file, -6, G_SEEK_CURRENT), 3);
    EXPECT_EQ(bytes(file, 100), "3456789");
    EXPECT_EQ(setFilePointer(file, -1, G_SEEK_END), 9);
    EXPECT_EQ(rest(file), "9");
    EXPECT_EQ(setFilePointer(file, 0, G_SEEK_END), 10);
    EXPECT_EQ(rest(file), "");
    EXPECT_EQ(setFilePointer(file, 0, G_SEEK_START), 0);
    EXPECT_EQ(rest(file), "0123456789");
    EXPECT_EQ(status(file), 200) << "the first answer's";
    for (const int32_t outside : {-1, 11}) {
        EXPECT_EQ(setFilePointer(file, outside, G_SEEK_START), -1);
        EXPECT_EQ(lastError(), G_NET_ARGUMENT);
    }
    EXPECT_EQ(setFilePointer(file, 0, G_SEEK_CURRENT), 10) << "as it was";
}

TEST_F(Http, CannotReadPartsWhereTheServerSendsNone) {
    GNetHandle* const file = ask("/whole-only");
    EXPECT_EQ(bytes(file, 2), "01");
    EXPECT_EQ(setFilePointer(file, 0, G_SEEK_CURRENT), 2);
    EXPECT_EQ(setFilePointer(file, 5, G_SEEK_START), -1);
    EXPECT_EQ(lastError(), G_NET_UNSUPPORTED);
    EXPECT_EQ(bytes(file, 1), "failed");
    EXPECT_EQ(setFilePointer(file, 0, G_SEEK_START), 0) << "from the begin it can";
    EXPECT_EQ(rest(file), "0123456789");
}

TEST_F(Http, SaysWhatIsThereWithoutWaiting) {
    GNetHandle* const file = ask("/digits.txt");
    int32_t available = 0;
    while (available < 10) {
        ASSERT_EQ(queryDataAvailable(file, &available), 1);
    }
    EXPECT_EQ(available, 10);
    EXPECT_EQ(bytes(file, 4), "0123");
    EXPECT_EQ(queryDataAvailable(file, &available), 1);
    EXPECT_EQ(available, 6);
    EXPECT_EQ(rest(file), "456789");
    EXPECT_EQ(queryDataAvailable(file, &available), 1);
    EXPECT_EQ(available, 0);
}

TEST_F(Http, FollowsRedirects) {
    GNetHandle* const file = ask("/hop");
    ASSERT_NE(file, nullptr) << lastError();
    EXPECT_EQ(rest(file), "GET /echo?hopped HTTP/1.1|quarlo|*/*||||");
    EXPECT_EQ(textOption(file, G_NET_OPTION_URL), server->url("/echo?hopped"));
}

TEST_F(Http, HandsARedirectBackWhenAsked) {
    GNetHandle* const file = ask("/hop", G_NET_NO_REDIRECT);
    EXPECT_EQ(status(file), 302);
    EXPECT_EQ(textInfo(file, G_HTTP_LOCATION), server->url("/hop/2"));
    EXPECT_EQ(textOption(file, G_NET_OPTION_URL), server->url("/hop"));
}

TEST_F(Http, KeepsAConnectionWhenAsked) {
    const auto number = [this](uint32_t flags) {
        GNetHandle* const file = ask("/connection", flags);
        const std::string text = rest(file);
        closeHandle(file);
        return text;
    };
    const std::string first = number(G_NET_KEEP_CONNECTION);
    EXPECT_EQ(number(G_NET_KEEP_CONNECTION), first);
    EXPECT_EQ(number(0), first) << "the last one on it";
    EXPECT_NE(number(0), first);
}

TEST_F(Http, LogsIn) {
    EXPECT_EQ(status(ask("/private")), 401);
    const std::u16string url = loginUrl("/private");
    GNetHandle* const file = openUrl(session, url.c_str(), nullptr, 0);
    EXPECT_EQ(rest(file), "nobody else's");
    EXPECT_EQ(textOption(file, G_NET_OPTION_URL), server->url("/private"));
    GNetHandle* const known =
        connectTo(session, u"127.0.0.1", server->port(), u"operator", u"secret", G_NET_HTTP, 0);
    GNetHandle* const mine = openRequest(known, nullptr, u"/private", nullptr, nullptr, nullptr, 0);
    EXPECT_EQ(sendRequest(mine, nullptr, nullptr, 0), 1);
    EXPECT_EQ(rest(mine), "nobody else's");
    GNetHandle* const wrong =
        connectTo(session, u"127.0.0.1", server->port(), u"operator", u"guess", G_NET_HTTP, 0);
    GNetHandle* const theirs =
        openRequest(wrong, nullptr, u"/private", nullptr, nullptr, nullptr, 0);
    EXPECT_EQ(sendRequest(theirs, nullptr, nullptr, 0), 1);
    EXPECT_EQ(status(theirs), 401);
}

TEST_F(Http, ServesSeveralThreads) {
    constexpr int kThreads = 4;
    std::vector<std::thread> threads;
    std::vector<int> good(kThreads, 0);
    for (int number = 0; number < kThreads; ++number) {
        threads.emplace_back([&, number] {
            for (int count = 0; count < 25; ++count) {
                GNetHandle* const file = ask("/digits.txt", G_NET_KEEP_CONNECTION);
                good[static_cast<size_t>(number)] += rest(file) == "0123456789";
                EXPECT_EQ(lastError(), G_NET_OK);
                EXPECT_EQ(closeHandle(file), 1);
                EXPECT_EQ(closeHandle(file), 0);
                EXPECT_EQ(lastError(), G_NET_HANDLE);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(good, std::vector<int>(kThreads, 25));
}

TEST_F(Http, GoesThroughAProxy) {
    const std::u16string proxy = server->url("");
    EXPECT_EQ(choose(session, G_NET_OPTION_PROXY, proxy), 1);
    GNetHandle* const file = openUrl(session, u"http://nowhere.invalid/echo", nullptr, 0);
    ASSERT_NE(file, nullptr) << lastError();
    EXPECT_EQ(rest(file).substr(0, 9), "GET /echo") << "the server stands in for the proxy";
}

} // namespace
} // namespace gpi::test
