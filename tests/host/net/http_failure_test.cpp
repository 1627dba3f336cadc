// What goes wrong on the way to a web server.
#include "web_test.h"

#include <chrono>
#include <thread>

namespace gpi::test {
namespace {

/// A server for each test, which may do to it what it likes.
class HttpFailure : public WebTest {
  protected:
    HttpFailure() : WebTest(withNewServer()) {}

    static constexpr int32_t kShort = 1000; // milliseconds

  private:
    static Environment::Values withNewServer() {
        SetUpTestSuite();
        return trusting();
    }
};

TEST_F(HttpFailure, RefusedConnection) {
    const std::u16string url = server->url("/digits.txt");
    server->process().end();
    EXPECT_EQ(openUrl(session, url.c_str(), nullptr, 0), nullptr);
    EXPECT_EQ(lastError(), G_NET_REFUSED);
    GNetHandle* const file = request(nullptr, u"/digits.txt");
    ASSERT_NE(file, nullptr) << "connects when it is sent";
    EXPECT_EQ(sendRequest(file, nullptr, nullptr, 0), 0);
    EXPECT_EQ(lastError(), G_NET_REFUSED);
    EXPECT_EQ(sendRequest(file, nullptr, nullptr, -1), 0) << "once more";
    EXPECT_EQ(lastError(), G_NET_REFUSED);
    EXPECT_EQ(sendRequest(file, u"X-Own: lost", nullptr, 0), 0);
    EXPECT_EQ(addRequestHeaders(file, u"X-Own: kept", 0), 1) << "there is no such header yet";
}

TEST_F(HttpFailure, UnknownServer) {
    EXPECT_EQ(openUrl(session, u"http://nowhere.invalid/", nullptr, 0), nullptr);
    EXPECT_EQ(lastError(), G_NET_NAME);
}

TEST_F(HttpFailure, SilentServer) {
    server->process().freeze();
    EXPECT_EQ(choose(session, G_NET_OPTION_IDLE_TIMEOUT, kShort), 1);
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(ask("/digits.txt"), nullptr);
    const auto passed = std::chrono::steady_clock::now() - begin;
    EXPECT_EQ(lastError(), G_NET_TIMEOUT);
    EXPECT_GE(passed, std::chrono::milliseconds(kShort));
    EXPECT_LT(passed, std::chrono::seconds(10));
    server->process().thaw();
    EXPECT_EQ(choose(session, G_NET_OPTION_IDLE_TIMEOUT, 30000), 1);
    EXPECT_EQ(rest(ask("/digits.txt")), "0123456789");
}

TEST_F(HttpFailure, SilentServerOfTls) {
    server->process().freeze();
    EXPECT_EQ(choose(session, G_NET_OPTION_CONNECT_TIMEOUT, kShort), 1);
    EXPECT_EQ(openUrl(session, server->secureUrl("/").c_str(), nullptr, 0), nullptr);
    EXPECT_EQ(lastError(), G_NET_TIMEOUT);
}

TEST_F(HttpFailure, ServerThatFallsSilentInTheMiddle) {
    EXPECT_EQ(choose(session, G_NET_OPTION_IDLE_TIMEOUT, kShort), 1);
    GNetHandle* const file = ask("/slow");
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(bytes(file, 10), "xxxxxxxxxx");
    server->process().freeze();
    EXPECT_EQ(rest(file), "failed");
    EXPECT_EQ(lastError(), G_NET_TIMEOUT);
    EXPECT_EQ(bytes(file, 1), "failed") << "it stays so";
    server->process().thaw();
    EXPECT_EQ(choose(file, G_NET_OPTION_IDLE_TIMEOUT, 30000), 1);
    const int32_t position = setFilePointer(file, 0, G_SEEK_CURRENT);
    EXPECT_GE(position, 10) << "a new transfer from where reading stopped";
    EXPECT_EQ(bytes(file, 1), "x");
}

TEST_F(HttpFailure, BrokenTransfer) {
    GNetHandle* const file = ask("/slow");
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(bytes(file, 10), "xxxxxxxxxx");
    server->process().end();
    EXPECT_EQ(rest(file), "failed");
    EXPECT_EQ(lastError(), G_NET_BROKEN);
    int32_t available = 0;
    EXPECT_EQ(queryDataAvailable(file, &available), 0);
    EXPECT_EQ(lastError(), G_NET_BROKEN);
    EXPECT_EQ(setFilePointer(file, 0, G_SEEK_START), -1);
    EXPECT_EQ(lastError(), G_NET_REFUSED);
    EXPECT_EQ(closeHandle(file), 1);
}

/// Sends a body without an end until the server that is killed meanwhile is missed.
void sendUntilBroken(GNetHandle* request, WebServer& server) {
    ASSERT_EQ(sendRequest(request, nullptr, nullptr, -1), 1) << lastError();
    const std::string piece(100000, 'p');
    ASSERT_EQ(writeFile(request, piece.data(), 100000, nullptr), 1) << lastError();
    server.process().end();
    int32_t written = -1;
    while (writeFile(request, piece.data(), 100000, &written) == 1) {
    }
    EXPECT_EQ(lastError(), G_NET_BROKEN);
    EXPECT_GE(written, 0);
    EXPECT_EQ(endRequest(request, 0), 0);
}

TEST_F(HttpFailure, BrokenSending) {
    sendUntilBroken(request(u"PUT", u"/store/part.txt"), *server);
}

TEST_F(HttpFailure, BrokenSendingUnderTls) {
    GNetHandle* const secure =
        connectTo(session, u"127.0.0.1", server->securePort(), nullptr, nullptr, G_NET_HTTPS, 0);
    sendUntilBroken(openRequest(secure, u"PUT", u"/store/part.txt", nullptr, nullptr, nullptr, 0),
                    *server);
}

TEST_F(HttpFailure, BodyThatTheServerDoesNotWant) {
    GNetHandle* const file = request(u"POST", u"/post");
    const std::string body(200000, 'b'); // twice of what it takes
    EXPECT_EQ(sendRequest(file, nullptr, body.data(), 200000), 1) << lastError();
    EXPECT_EQ(status(file), 413);
}

TEST_F(HttpFailure, EndlessRedirects) {
    EXPECT_EQ(ask("/loop"), nullptr);
    EXPECT_EQ(lastError(), G_NET_REDIRECTS);
    EXPECT_EQ(choose(session, G_NET_OPTION_REDIRECTS, 1), 1);
    EXPECT_EQ(ask("/hop"), nullptr);
    EXPECT_EQ(lastError(), G_NET_REDIRECTS);
    EXPECT_EQ(choose(session, G_NET_OPTION_REDIRECTS, 2), 1);
    EXPECT_EQ(status(ask("/hop")), 200);
    EXPECT_EQ(choose(session, G_NET_OPTION_REDIRECTS, 0), 1);
    EXPECT_EQ(ask("/hop"), nullptr);
    EXPECT_EQ(lastError(), G_NET_REDIRECTS);
}

TEST_F(HttpFailure, RedirectToAnotherProtocol) {
    EXPECT_EQ(ask("/to-ftp"), nullptr);
    EXPECT_EQ(lastError(), G_NET_PROTOCOL);
}

TEST_F(HttpFailure, IsRememberedByEachThread) {
    EXPECT_EQ(ask("/loop"), nullptr);
    std::thread([this] {
        EXPECT_EQ(lastError(), G_NET_OK);
        EXPECT_EQ(closeHandle(nullptr), 0);
        EXPECT_EQ(lastError(), G_NET_HANDLE);
    }).join();
    EXPECT_EQ(lastError(), G_NET_REDIRECTS);
    EXPECT_EQ(lastError(), G_NET_REDIRECTS) << "asking changes nothing";
}

TEST_F(HttpFailure, HandleThatWasClosedWithItsSession) {
    GNetHandle* const other = openSession(nullptr);
    GNetHandle* const file = openUrl(other, server->url("/digits.txt").c_str(), nullptr, 0);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(closeHandle(other), 1);
    EXPECT_EQ(bytes(file, 1), "failed");
    EXPECT_EQ(lastError(), G_NET_HANDLE);
    EXPECT_EQ(closeHandle(file), 0);
    EXPECT_EQ(lastError(), G_NET_HANDLE);
}

TEST_F(HttpFailure, CallOnAHandleOfAnotherKind) {
    GNetHandle* const file = ask("/digits.txt");
    GNetFileInfo info{};
    EXPECT_EQ(findNextFile(file, &info), 0);
    EXPECT_EQ(lastError(), G_NET_HANDLE_KIND);
    EXPECT_EQ(deleteFile(connection(), u"x"), 0);
    EXPECT_EQ(lastError(), G_NET_HANDLE_KIND);
    EXPECT_EQ(openUrl(file, u"http://127.0.0.1/", nullptr, 0), nullptr);
    EXPECT_EQ(lastError(), G_NET_HANDLE_KIND);
}

} // namespace
} // namespace gpi::test
