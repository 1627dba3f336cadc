// The network: what no call can use is refused before anything is sent.
#include "refusing.h"

#include <quarlo/network.h>

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace gpi::test;

const auto crackUrl = refuser<GPICrackUrl>(83);
const auto createUrl = refuser<GPICreateUrl>(84);
const auto canonicalizeUrl = refuser<GPICanonicalizeUrl>(85);
const auto combineUrl = refuser<GPICombineUrl>(86);
const auto openSession = refuser<GPINetOpen>(87);
const auto closeHandle = refuser<GPINetCloseHandle>(88);
const auto connectTo = refuser<GPINetConnect>(89);
const auto openUrl = refuser<GPINetOpenUrl>(90);
const auto readFile = refuser<GPINetReadFile>(91);
const auto setFilePointer = refuser<GPINetSetFilePointer>(92);
const auto writeFile = refuser<GPINetWriteFile>(93);
const auto queryDataAvailable = refuser<GPINetQueryDataAvailable>(94);
const auto findNextFile = refuser<GPINetFindNextFile>(95);
const auto queryOption = refuser<GPINetQueryOption>(96);
const auto setOption = refuser<GPINetSetOption>(97);
const auto lockRequestFile = refuser<GPINetLockRequestFile>(98);
const auto unlockRequestFile = refuser<GPINetUnlockRequestFile>(99);
const auto openRequest = refuser<GPIHttpOpenRequest>(100);
const auto addRequestHeaders = refuser<GPIHttpAddRequestHeaders>(101);
const auto sendRequest = refuser<GPIHttpSendRequest>(102);
const auto endRequest = refuser<GPIHttpEndRequest>(103);
const auto queryInfo = refuser<GPIHttpQueryInfo>(104);
const auto findFirstFile = refuser<GPIFtpFindFirstFile>(105);
const auto getFile = refuser<GPIFtpGetFile>(106);
const auto putFile = refuser<GPIFtpPutFile>(107);
const auto deleteFile = refuser<GPIFtpDeleteFile>(108);
const auto renameFile = refuser<GPIFtpRenameFile>(109);
const auto openFile = refuser<GPIFtpOpenFile>(110);
const auto createDirectory = refuser<GPIFtpCreateDirectory>(111);
const auto removeDirectory = refuser<GPIFtpRemoveDirectory>(112);
const auto setCurrentDirectory = refuser<GPIFtpSetCurrentDirectory>(113);
const auto getCurrentDirectory = refuser<GPIFtpGetCurrentDirectory>(114);
const auto lastError = service<GPINetGetLastError>(115);

class NetworkRefuses : public testing::Test {
  protected:
    template <typename Result>
    static bool refused(Result result) {
        return result == Result{} && lastError() == G_NET_ARGUMENT; // 0 or null
    }
    static bool wrongHandle(int32_t result) { return result <= 0 && lastError() == G_NET_HANDLE; }
    static bool wrongHandle(const GNetHandle* result) {
        return result == nullptr && lastError() == G_NET_HANDLE;
    }

    GNetHandle* foreign() { return reinterpret_cast<GNetHandle*>(bytes_); }

    const StartedPlatform platform_;
    GNetHandle* session_ = openSession(nullptr);
    GNetHandle* connection_ = connectTo(session_, u"localhost", 0, nullptr, nullptr, G_NET_HTTP, 0);
    GNetHandle* request_ = openRequest(connection_, nullptr, nullptr, nullptr, nullptr, nullptr, 0);
    char bytes_[4] = {};
    int32_t size_ = 4;
};

TEST_F(NetworkRefuses, UrlsAndTheirParts) {
    GNetUrl parts{};
    char16_t text[100];
    int32_t size = 100;
    int32_t negative = -1;
    const char16_t* const url = u"http://host/";
    EXPECT_TRUE(refused(crackUrl(nullptr, 0, &parts)));
    EXPECT_TRUE(refused(crackUrl(url, 0, nullptr)));
    EXPECT_TRUE(refused(crackUrl(url, G_URL_ENCODE, &parts)));
    EXPECT_TRUE(refused(createUrl(nullptr, 0, text, &size)));
    EXPECT_TRUE(refused(canonicalizeUrl(nullptr, text, &size, 0)));
    EXPECT_TRUE(refused(canonicalizeUrl(url, text, nullptr, 0)));
    EXPECT_TRUE(refused(canonicalizeUrl(url, nullptr, &size, 0)));
    EXPECT_TRUE(refused(canonicalizeUrl(url, text, &negative, 0)));
    EXPECT_TRUE(refused(canonicalizeUrl(url, text, &size, 8)));
    EXPECT_TRUE(refused(combineUrl(nullptr, url, text, &size, 0)));
    EXPECT_TRUE(refused(combineUrl(url, nullptr, text, &size, 0)));
    EXPECT_TRUE(refused(combineUrl(url, url, text, nullptr, 0)));
    EXPECT_TRUE(refused(combineUrl(url, url, text, &size, 8)));
    ASSERT_EQ(crackUrl(url, 0, &parts), 1);
    EXPECT_TRUE(refused(createUrl(&parts, 2048, text, &size)));
    EXPECT_TRUE(refused(createUrl(&parts, 0, text, nullptr)));
    EXPECT_TRUE(refused(createUrl(&parts, 0, nullptr, &size)));
}

TEST_F(NetworkRefuses, SessionsAndServers) {
    EXPECT_TRUE(refused(openSession(u"a\nb")));
    const auto connect = [this](const char16_t* server, int32_t port, const char16_t* user,
                                const char16_t* password, uint32_t flags) {
        return connectTo(session_, server, port, user, password, G_NET_HTTP, flags);
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
        EXPECT_EQ(connectTo(session_, u"localhost", 0, nullptr, nullptr, protocol, 0), nullptr);
        EXPECT_EQ(lastError(), G_NET_PROTOCOL);
    }
}

TEST_F(NetworkRefuses, UrlsToOpen) {
    EXPECT_TRUE(refused(openUrl(session_, nullptr, nullptr, 0)));
    EXPECT_TRUE(refused(openUrl(session_, u"http://localhost/", nullptr, 32)));
    EXPECT_TRUE(refused(openUrl(session_, u"http://localhost/", u"no header", 0)));
    EXPECT_EQ(openUrl(session_, u"localhost", nullptr, 0), nullptr);
    EXPECT_EQ(lastError(), G_NET_URL);
    EXPECT_EQ(openUrl(session_, u"file:///etc/passwd", nullptr, 0), nullptr);
    EXPECT_EQ(lastError(), G_NET_PROTOCOL);
}

TEST_F(NetworkRefuses, Requests) {
    const auto open = [this](const char16_t* verb, const char16_t* version, uint32_t flags) {
        return openRequest(connection_, verb, nullptr, version, nullptr, nullptr, flags);
    };
    EXPECT_TRUE(refused(open(u"", nullptr, 0)));
    EXPECT_TRUE(refused(open(u"GET /x", nullptr, 0)));
    EXPECT_TRUE(refused(open(nullptr, u"HTTP/9", 0)));
    EXPECT_TRUE(refused(open(nullptr, nullptr, G_NET_ASCII)));
    EXPECT_TRUE(
        refused(openRequest(connection_, nullptr, u"a\r\nb", nullptr, nullptr, nullptr, 0)));
    EXPECT_TRUE(refused(openRequest(connection_, nullptr, nullptr, nullptr, u"\n", nullptr, 0)));
    const char16_t* const kinds[] = {u"text/plain\r\nX: y", nullptr};
    EXPECT_TRUE(refused(openRequest(connection_, nullptr, nullptr, nullptr, nullptr, kinds, 0)));
    EXPECT_TRUE(refused(addRequestHeaders(request_, nullptr, 0)));
    EXPECT_TRUE(refused(addRequestHeaders(request_, u"no colon", 0)));
    EXPECT_TRUE(refused(addRequestHeaders(request_, u"A: b\r\n\r\nGET / HTTP/1.1", 0)));
    EXPECT_TRUE(refused(addRequestHeaders(request_, u"A: b\nC: d", 0)));
    EXPECT_TRUE(refused(addRequestHeaders(request_, u"A: b", G_HEADER_ADD | G_HEADER_REPLACE)));
    EXPECT_TRUE(refused(addRequestHeaders(request_, u"A: b", 4)));
    EXPECT_TRUE(refused(sendRequest(request_, nullptr, nullptr, 1)));
    EXPECT_TRUE(refused(sendRequest(request_, nullptr, nullptr, -2)));
    EXPECT_TRUE(refused(sendRequest(request_, nullptr, bytes_, -1)));
    EXPECT_TRUE(refused(sendRequest(request_, u"broken", nullptr, 0)));
    EXPECT_TRUE(refused(endRequest(request_, 1)));
    EXPECT_TRUE(refused(writeFile(request_, nullptr, 1, nullptr)));
    EXPECT_TRUE(refused(writeFile(request_, bytes_, -1, nullptr)));
    EXPECT_TRUE(refused(queryDataAvailable(request_, nullptr)));
    EXPECT_TRUE(refused(lockRequestFile(request_, nullptr)));
    EXPECT_EQ(readFile(request_, nullptr, 1), -1);
    EXPECT_EQ(lastError(), G_NET_ARGUMENT);
    EXPECT_EQ(readFile(request_, bytes_, -1), -1);
    EXPECT_EQ(lastError(), G_NET_ARGUMENT);
    for (const int32_t origin : {-1, 3}) {
        EXPECT_EQ(setFilePointer(request_, 0, origin), -1);
        EXPECT_EQ(lastError(), G_NET_ARGUMENT);
    }
}

TEST_F(NetworkRefuses, HandlesThatAreNone) {
    GNetFileInfo info{};
    GNetLock* lock = nullptr;
    char16_t path[4];
    for (GNetHandle* const wrong : {static_cast<GNetHandle*>(nullptr), foreign()}) {
        EXPECT_TRUE(wrongHandle(closeHandle(wrong)));
        EXPECT_TRUE(wrongHandle(connectTo(wrong, u"host", 0, nullptr, nullptr, G_NET_HTTP, 0)));
        EXPECT_TRUE(wrongHandle(openUrl(wrong, u"http://localhost/", nullptr, 0)));
        EXPECT_TRUE(wrongHandle(readFile(wrong, bytes_, 4)));
        EXPECT_TRUE(wrongHandle(setFilePointer(wrong, 0, 0)));
        EXPECT_TRUE(wrongHandle(writeFile(wrong, bytes_, 4, nullptr)));
        EXPECT_TRUE(wrongHandle(queryDataAvailable(wrong, &size_)));
        EXPECT_TRUE(wrongHandle(findNextFile(wrong, &info)));
        EXPECT_TRUE(wrongHandle(lockRequestFile(wrong, &lock)));
        EXPECT_TRUE(wrongHandle(unlockRequestFile(reinterpret_cast<GNetLock*>(wrong))));
        EXPECT_TRUE(
            wrongHandle(openRequest(wrong, nullptr, nullptr, nullptr, nullptr, nullptr, 0)));
        EXPECT_TRUE(wrongHandle(addRequestHeaders(wrong, u"A: b", 0)));
        EXPECT_TRUE(wrongHandle(sendRequest(wrong, nullptr, nullptr, 0)));
        EXPECT_TRUE(wrongHandle(endRequest(wrong, 0)));
        EXPECT_TRUE(wrongHandle(queryInfo(wrong, G_HTTP_STATUS, bytes_, &size_, nullptr)));
        EXPECT_TRUE(wrongHandle(findFirstFile(wrong, nullptr, &info, 0)));
        EXPECT_TRUE(wrongHandle(getFile(wrong, u"a", u"b", 0, 0, 0)));
        EXPECT_TRUE(wrongHandle(putFile(wrong, u"a", u"b", 0)));
        EXPECT_TRUE(wrongHandle(deleteFile(wrong, u"a")));
        EXPECT_TRUE(wrongHandle(renameFile(wrong, u"a", u"b")));
        EXPECT_TRUE(wrongHandle(openFile(wrong, u"a", G_OPEN_READ, 0)));
        EXPECT_TRUE(wrongHandle(createDirectory(wrong, u"a")));
        EXPECT_TRUE(wrongHandle(removeDirectory(wrong, u"a")));
        EXPECT_TRUE(wrongHandle(setCurrentDirectory(wrong, u"a")));
        EXPECT_TRUE(wrongHandle(getCurrentDirectory(wrong, path, &size_)));
        EXPECT_TRUE(wrongHandle(queryOption(wrong, G_NET_OPTION_RATE, bytes_, &size_)));
        EXPECT_TRUE(wrongHandle(setOption(wrong, G_NET_OPTION_RATE, bytes_, size_, 0)));
    }
}

TEST_F(NetworkRefuses, FilesOfServers) {
    EXPECT_TRUE(refused(findFirstFile(connection_, nullptr, nullptr, 0)));
    GNetFileInfo info{};
    EXPECT_TRUE(refused(findFirstFile(connection_, nullptr, &info, G_NET_ASCII)));
    EXPECT_TRUE(refused(findNextFile(connection_, nullptr)));
    EXPECT_TRUE(refused(getFile(connection_, u"a", u"b", 0, G_FILE_WRITABLE, 0)));
    EXPECT_TRUE(refused(getFile(connection_, u"a", u"b", 0, 0, G_NET_ACTIVE)));
    EXPECT_TRUE(refused(putFile(connection_, u"a", u"b", G_NET_RELOAD)));
    EXPECT_TRUE(refused(openFile(connection_, u"a", G_OPEN_READ | G_OPEN_WRITE, 0)));
    EXPECT_TRUE(refused(openFile(connection_, u"a", 0, 0)));
    EXPECT_TRUE(refused(openFile(connection_, u"a", G_OPEN_READ, G_NET_RELOAD)));
}

} // namespace
