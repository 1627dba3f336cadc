// Tests in front of the web server.
#pragma once

#include "network.h"
#include "web_server.h"

#include <memory>

namespace gpi::test {

/// One server for all tests of a suite, a platform and a session for each.
class WebTest : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        server = std::make_unique<WebServer>();
        server->serve("digits.txt", "0123456789");
        server->serve("private.txt", "nobody else's");
        server->serve("slow.txt", std::string(400000, 'x'));
    }
    static void TearDownTestSuite() { server.reset(); }

    /// Trusts the server.
    WebTest() : WebTest(trusting()) {}
    explicit WebTest(const Environment::Values& settings) : platform(withFiles(settings)) {}
    ~WebTest() override { EXPECT_EQ(closeHandle(session), 1); }

    /// A request that has been sent, closed with the session.
    GNetHandle* ask(const std::string& path, uint32_t flags = 0) {
        return openUrl(session, server->url(path).c_str(), nullptr, flags);
    }

    /// The server as a connection.
    GNetHandle* connection() {
        return connectTo(session, u"127.0.0.1", server->port(), nullptr, nullptr, G_NET_HTTP, 0);
    }

    /// A request to be sent.
    GNetHandle* request(const char16_t* verb, const char16_t* path, uint32_t flags = 0) {
        return openRequest(connection(), verb, path, nullptr, nullptr, nullptr, flags);
    }

    /// A URL that says who asks.
    static std::u16string loginUrl(const std::string& path) {
        return u"http://operator:secret@" + server->url(path).substr(7);
    }

    static Environment::Values trusting() {
        return {{"QUARLO_NET_CA_FILE", server->authorityFile()}};
    }

    static inline std::unique_ptr<WebServer> server;
    TemporaryFolder files;
    StartedPlatform platform;
    GNetHandle* session = openSession(nullptr);

  private:
    Environment::Values withFiles(Environment::Values settings) const {
        settings["QUARLO_FILES"] = files.path();
        return settings;
    }
};

} // namespace gpi::test
