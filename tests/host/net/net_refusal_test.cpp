// Arguments that no call can use: each is refused with G_NET_ARGUMENT before anything is sent.
#include "network.h"

#include <limits>

namespace gpi::test {
namespace {

class NetRefusal : public testing::Test {
  protected:
    template <typename Result>
    static bool refused(Result result) {
        return result == Result{} && lastError() == G_NET_ARGUMENT; // 0 or null
    }
    static bool wrongHandle(int32_t result) { return result <= 0 && lastError() == G_NET_HANDLE; }
    static bool wrongHandle(const GNetHandle* result) {
        return result == nullptr && lastError() == G_NET_HANDLE;
    }

    StartedPlatform platform;
    GNetHandle* session = openSession(nullptr);
    GNetHandle* connection = connectTo(session, u"localhost", 0, nullptr, nullptr, G_NET_HTTP, 0);
    GNetHandle* request = openRequest(connection, nullptr, nullptr, nullptr, nullptr, nullptr, 0);
    char bytes[4] = {};
    int32_t size = 4;
};

TEST_F(NetRefusal, OfSessionsAndServers) {
    EXPECT_TRUE(refused(openSession(u"a\nb")));
    const auto connect = [this](const char16_t* server, int32_t port, const char16_t* user,
                                const char16_t* password, uint32_t flags) {
        return connectTo(session, server, port, user, password, G_NET_HTTP, flags);
    };
    EXPECT_NE(connect(u"localhost", 65535, u"u", nullptr, 0), nullptr);
    EXPECT_TRUE(refused(connect(nullptr, 0, nullptr, nullptr, 0)));
    EXPECT_TRUE(refused(connect(u"", 0, nullptr, nullptr, 0)));
    EXPECT_TRUE(refused(connect(u"a/b", 0, nullptr, nullptr, 0)));
    EXPECT_TRUE(refused(connect(u"u@host", 0, nullptr, nullptr, 0)));
    EXPECT_TRUE(refused(connect(u"localhost", -1, nullptr, nullptr, 0)));
    EXPECT_TRUE(refused(connect(u"localhost", 65536, nullptr, nullptr, 0)));
    EXPECT_TRUE(refused(connect(u"localhost", 0, nullptr, u"p", 0)));
    EXPECT_TRUE(refused(connect(u"localhost", 0, u"a\rb", nullptr, 0)));
    EXPECT_TRUE(refused(connect(u"localhost", 0, nullptr, nullptr, G_NET_ACTIVE)));
    EXPECT_TRUE(refused(connect(u"localhost", 0, nullptr, nullptr, 0x80000000)));
    for (const int32_t protocol : {0, 4, -1, std::numeric_limits<int32_t>::max()}) {
        EXPECT_EQ(connectTo(session, u"localhost", 0, nullptr, nullptr, protocol, 0), nullptr);
        EXPECT_EQ(lastError(), G_NET_PROTOCOL);
    }
}

TEST_F(NetRefusal, OfUrls) {
    EXPECT_TRUE(refused(openUrl(session, nullptr, nullptr, 0)));
    EXPECT_TRUE(refused(openUrl(session, u"http://localhost/", nullptr, 32)));
    EXPECT_TRUE(refused(openUrl(session, u"http://localhost/", u"no header", 0)));
    EXPECT_EQ(openUrl(session, u"localhost", nullptr, 0), nullptr);
    EXPECT_EQ(lastError(), G_NET_URL);
    EXPECT_EQ(openUrl(session, u"file:///etc/passwd", nullptr, 0), nullptr);
    EXPECT_EQ(lastError(), G_NET_PROTOCOL);
}

TEST_F(NetRefusal, OfRequests) {
    const auto open = [this](const char16_t* verb, const char16_t* version, uint32_t flags) {
        return openRequest(connection, verb, nullptr, version, nullptr, nullptr, flags);
    };
    EXPECT_TRUE(refused(open(u"", nullptr, 0)));
    EXPECT_TRUE(refused(open(u"GET /x", nullptr, 0)));
    EXPECT_TRUE(refused(open(nullptr, u"HTTP/9", 0)));
    EXPECT_TRUE(refused(open(nullptr, nullptr, G_NET_ASCII)));
    EXPECT_TRUE(refused(openRequest(connection, nullptr, u"a\r\nb", nullptr, nullptr, nullptr, 0)));
    EXPECT_TRUE(refused(openRequest(connection, nullptr, nullptr, nullptr, u"\n", nullptr, 0)));
    const char16_t* const kinds[] = {u"text/plain\r\nX: y", nullptr};
    EXPECT_TRUE(refused(openRequest(connection, nullptr, nullptr, nullptr, nullptr, kinds, 0)));
    EXPECT_TRUE(refused(addRequestHeaders(request, nullptr, 0)));
    EXPECT_TRUE(refused(addRequestHeaders(request, u"no colon", 0)));
    EXPECT_TRUE(refused(addRequestHeaders(request, u"A: b\r\n\r\nGET / HTTP/1.1", 0)));
    EXPECT_TRUE(refused(addRequestHeaders(request, u"A: b\nC: d", 0)));
    EXPECT_TRUE(refused(addRequestHeaders(request, u"A: b", G_HEADER_ADD | G_HEADER_REPLACE)));
    EXPECT_TRUE(refused(addRequestHeaders(request, u"A: b", 4)));
    EXPECT_TRUE(refused(sendRequest(request, nullptr, nullptr, 1)));
    EXPECT_TRUE(refused(sendRequest(request, nullptr, nullptr, -2)));
    EXPECT_TRUE(refused(sendRequest(request, nullptr, bytes, -1)));
    EXPECT_TRUE(refused(sendRequest(request, u"broken", nullptr, 0)));
    EXPECT_TRUE(refused(endRequest(request, 1)));
    EXPECT_TRUE(refused(writeFile(request, nullptr, 1, nullptr)));
    EXPECT_TRUE(refused(writeFile(request, bytes, -1, nullptr)));
    EXPECT_TRUE(refused(queryDataAvailable(request, nullptr)));
    EXPECT_TRUE(refused(lockRequestFile(request, nullptr)));
    EXPECT_EQ(readFile(request, nullptr, 1), -1);
    EXPECT_EQ(lastError(), G_NET_ARGUMENT);
    EXPECT_EQ(readFile(request, bytes, -1), -1);
    EXPECT_EQ(lastError(), G_NET_ARGUMENT);
    for (const int32_t origin : {-1, 3}) {
        EXPECT_EQ(setFilePointer(request, 0, origin), -1);
        EXPECT_EQ(lastError(), G_NET_ARGUMENT);
    }
}

TEST_F(NetRefusal, OfHandles) {
    GNetFileInfo info{};
    GNetLock* lock = nullptr;
    EXPECT_TRUE(wrongHandle(closeHandle(nullptr)));
    EXPECT_TRUE(wrongHandle(connectTo(nullptr, u"host", 0, nullptr, nullptr, G_NET_HTTP, 0)));
    EXPECT_TRUE(wrongHandle(openUrl(nullptr, u"http://localhost/", nullptr, 0)));
    EXPECT_TRUE(wrongHandle(readFile(nullptr, bytes, 4)));
    EXPECT_TRUE(wrongHandle(setFilePointer(nullptr, 0, 0)));
    EXPECT_TRUE(wrongHandle(writeFile(nullptr, bytes, 4, nullptr)));
    EXPECT_TRUE(wrongHandle(queryDataAvailable(nullptr, &size)));
    EXPECT_TRUE(wrongHandle(findNextFile(nullptr, &info)));
    EXPECT_TRUE(wrongHandle(lockRequestFile(nullptr, &lock)));
    EXPECT_TRUE(wrongHandle(unlockRequestFile(nullptr)));
    EXPECT_TRUE(wrongHandle(openRequest(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, 0)));
    EXPECT_TRUE(wrongHandle(addRequestHeaders(nullptr, u"A: b", 0)));
    EXPECT_TRUE(wrongHandle(sendRequest(nullptr, nullptr, nullptr, 0)));
    EXPECT_TRUE(wrongHandle(endRequest(nullptr, 0)));
    EXPECT_TRUE(wrongHandle(queryInfo(nullptr, G_HTTP_STATUS, bytes, &size, nullptr)));
    EXPECT_TRUE(wrongHandle(findFirstFile(nullptr, nullptr, &info, 0)));
    EXPECT_TRUE(wrongHandle(getFile(nullptr, u"a", u"b", 0, 0, 0)));
    EXPECT_TRUE(wrongHandle(putFile(nullptr, u"a", u"b", 0)));
    EXPECT_TRUE(wrongHandle(deleteFile(nullptr, u"a")));
    EXPECT_TRUE(wrongHandle(renameFile(nullptr, u"a", u"b")));
    EXPECT_TRUE(wrongHandle(openFile(nullptr, u"a", G_OPEN_READ, 0)));
    EXPECT_TRUE(wrongHandle(createDirectory(nullptr, u"a")));
    EXPECT_TRUE(wrongHandle(removeDirectory(nullptr, u"a")));
    EXPECT_TRUE(wrongHandle(setCurrentDirectory(nullptr, u"a")));
    char16_t path[4];
    EXPECT_TRUE(wrongHandle(getCurrentDirectory(nullptr, path, &size)));
}

TEST_F(NetRefusal, OfFtpCalls) {
    EXPECT_TRUE(refused(findFirstFile(connection, nullptr, nullptr, 0)));
    GNetFileInfo info{};
    EXPECT_TRUE(refused(findFirstFile(connection, nullptr, &info, G_NET_ASCII)));
    EXPECT_TRUE(refused(findNextFile(connection, nullptr)));
    EXPECT_TRUE(refused(getFile(connection, u"a", u"b", 0, G_FILE_WRITABLE, 0)));
    EXPECT_TRUE(refused(getFile(connection, u"a", u"b", 0, 0, G_NET_ACTIVE)));
    EXPECT_TRUE(refused(putFile(connection, u"a", u"b", G_NET_RELOAD)));
    EXPECT_TRUE(refused(openFile(connection, u"a", G_OPEN_READ | G_OPEN_WRITE, 0)));
    EXPECT_TRUE(refused(openFile(connection, u"a", 0, 0)));
    EXPECT_TRUE(refused(openFile(connection, u"a", G_OPEN_READ, G_NET_RELOAD)));
}

} // namespace
} // namespace gpi::test
