// FTP in front of a real server.
#include "ftp_test.h"

#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace gpi::test {
namespace {

/// Without a server there is nothing to test.
class Installed : public testing::Environment {
    void SetUp() override {
        if (!FtpServer::installed()) {
            GTEST_SKIP() << "pyftpdlib is not installed";
        }
    }
};
[[maybe_unused]] const auto* const kInstalled = testing::AddGlobalTestEnvironment(new Installed);

using Ftp = FtpTest;

std::string contentsOf(const std::string& path) {
    std::ifstream file(path);
    return file ? std::string{std::istreambuf_iterator<char>(file), {}} : "none";
}

TEST_F(Ftp, LogsIn) {
    ASSERT_NE(connection, nullptr) << lastError() << server.log();
    EXPECT_EQ(lastError(), G_NET_OK);
    EXPECT_EQ(folderOf(connection), u"/");
    EXPECT_EQ(numberOption(connection, G_NET_OPTION_KIND), G_NET_KIND_CONNECTION);
}

TEST_F(Ftp, FetchesAFile) {
    server.serve("O1234.NC", "G0 X0\r\nM30\r\n");
    EXPECT_EQ(getFile(connection, u"O1234.NC", u"C:\\O1234.NC", 0, 0, 0), 1) << lastError();
    EXPECT_EQ(contentsOf(files.path("O1234.NC")), "G0 X0\r\nM30\r\n");
    server.serve("O1234.NC", "M30\r\n");
    EXPECT_EQ(getFile(connection, u"O1234.NC", u"O1234.NC", 1, 0, 0), 0);
    EXPECT_EQ(lastError(), G_NET_EXISTS);
    EXPECT_EQ(contentsOf(files.path("O1234.NC")), "G0 X0\r\nM30\r\n");
    EXPECT_EQ(getFile(connection, u"/O1234.NC", u"O1234.NC", 0, 0, G_NET_RELOAD), 1);
    EXPECT_EQ(contentsOf(files.path("O1234.NC")), "M30\r\n");
}

TEST_F(Ftp, FetchesAFileThatCannotBeWritten) {
    server.serve("master", "as delivered");
    EXPECT_EQ(getFile(connection, u"master", u"master", 1, G_FILE_READABLE, 0), 1);
    struct stat status {};
    ASSERT_EQ(stat(files.path("master").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0222, 0U);
    EXPECT_EQ(getFile(connection, u"master", u"master", 0, 0, 0), 0);
    EXPECT_EQ(lastError(), G_NET_LOCAL_FILE);
}

TEST_F(Ftp, TranslatesLineEnds) {
    server.serve("dos.txt", "a\r\nb\r\n");
    EXPECT_EQ(getFile(connection, u"dos.txt", u"here.txt", 0, 0, G_NET_ASCII), 1);
    EXPECT_EQ(contentsOf(files.path("here.txt")), "a\nb\n");
    EXPECT_EQ(putFile(connection, u"here.txt", u"there.txt", G_NET_ASCII), 1) << lastError();
    EXPECT_EQ(server.stored("there.txt"), "a\nb\n") << "as the server writes lines";
    EXPECT_EQ(getFile(connection, u"dos.txt", u"same.txt", 0, 0, 0), 1);
    EXPECT_EQ(contentsOf(files.path("same.txt")), "a\r\nb\r\n");
}

TEST_F(Ftp, SendsAFile) {
    std::string large(700000, ' ');
    for (size_t at = 0; at < large.size(); ++at) {
        large[at] = static_cast<char>(at * at % 251);
    }
    files.write("large", large);
    files.write("empty", "");
    EXPECT_EQ(putFile(connection, u"large", u"large", 0), 1) << lastError();
    EXPECT_TRUE(server.stored("large") == large);
    EXPECT_EQ(putFile(connection, u"empty", u"empty", 0), 1) << lastError();
    EXPECT_EQ(server.stored("empty"), "");
    EXPECT_EQ(getFile(connection, u"large", u"back", 1, 0, 0), 1);
    EXPECT_TRUE(contentsOf(files.path("back")) == large);
    EXPECT_EQ(getFile(connection, u"empty", u"empty-back", 1, 0, 0), 1) << lastError();
    EXPECT_EQ(contentsOf(files.path("empty-back")), "");
}

TEST_F(Ftp, WorksOnNames) {
    server.serve("old", "contents");
    EXPECT_EQ(createDirectory(connection, u"sub"), 1);
    EXPECT_EQ(renameFile(connection, u"old", u"sub/new name"), 1);
    EXPECT_EQ(server.stored("sub/new name"), "contents");
    EXPECT_EQ(removeDirectory(connection, u"sub"), 0);
    EXPECT_EQ(lastError(), G_NET_DENIED) << "it is not empty";
    EXPECT_EQ(createDirectory(connection, u"sub"), 0);
    EXPECT_EQ(lastError(), G_NET_EXISTS);
    EXPECT_EQ(deleteFile(connection, u"/sub/new name"), 1);
    EXPECT_EQ(server.stored("sub/new name"), "none");
    EXPECT_EQ(removeDirectory(connection, u"sub"), 1);
    EXPECT_FALSE(std::filesystem::exists(server.path("sub")));
}

TEST_F(Ftp, KnowsItsFolder) {
    ASSERT_EQ(createDirectory(connection, u"a\"b"), 1);
    ASSERT_EQ(createDirectory(connection, u"a\"b/c d"), 1);
    EXPECT_EQ(setCurrentDirectory(connection, u"a\"b"), 1) << lastError();
    EXPECT_EQ(folderOf(connection), u"/a\"b");
    EXPECT_EQ(setCurrentDirectory(connection, u"c d"), 1);
    EXPECT_EQ(folderOf(connection), u"/a\"b/c d");
    server.serve("a\"b/c d/x", "deep");
    EXPECT_EQ(getFile(connection, u"x", u"x", 0, 0, 0), 1) << lastError();
    EXPECT_EQ(contentsOf(files.path("x")), "deep");
    EXPECT_EQ(putFile(connection, u"x", u"../y", 0), 1) << lastError();
    EXPECT_EQ(server.stored("a\"b/y"), "deep");
    EXPECT_EQ(setCurrentDirectory(connection, u".."), 1);
    EXPECT_EQ(folderOf(connection), u"/a\"b");
    EXPECT_EQ(deleteFile(connection, u"y"), 1);
    EXPECT_EQ(setCurrentDirectory(connection, u"none"), 0);
    EXPECT_EQ(lastError(), G_NET_NOT_FOUND);
    EXPECT_EQ(folderOf(connection), u"/a\"b") << "as it was";
    char16_t path[4];
    int32_t size = 4;
    EXPECT_EQ(getCurrentDirectory(connection, path, &size), 0);
    EXPECT_EQ(lastError(), G_NET_BUFFER);
    EXPECT_EQ(size, 5);
}

TEST_F(Ftp, TakesNamesAsTheyAre) {
    for (const char16_t* const name :
         {u"50% #1?.nc", u"\u00FCber", u"\u52A0\u5DE5.nc", u"a;type=a", u"c+d&e=f"}) {
        files.write("local", "named");
        EXPECT_EQ(putFile(connection, u"local", name, 0), 1) << lastError();
        EXPECT_EQ(getFile(connection, name, u"back", 0, 0, 0), 1) << lastError();
        EXPECT_EQ(contentsOf(files.path("back")), "named");
        EXPECT_EQ(deleteFile(connection, name), 1);
        std::filesystem::remove(files.path("back"));
    }
}

TEST_F(Ftp, ReadsAnOpenFile) {
    server.serve("digits", "0123456789");
    GNetHandle* const file = openFile(connection, u"digits", G_OPEN_READ, 0);
    ASSERT_NE(file, nullptr) << lastError();
    EXPECT_EQ(bytes(file, 4), "0123");
    EXPECT_EQ(setFilePointer(file, -2, G_SEEK_END), 8) << lastError();
    EXPECT_EQ(rest(file), "89");
    EXPECT_EQ(setFilePointer(file, 1, G_SEEK_START), 1);
    EXPECT_EQ(bytes(file, 2), "12");
    EXPECT_EQ(setFilePointer(file, 2, G_SEEK_CURRENT), 5);
    EXPECT_EQ(rest(file), "56789");
    EXPECT_EQ(setFilePointer(file, 11, G_SEEK_START), -1);
    EXPECT_EQ(lastError(), G_NET_ARGUMENT);
    EXPECT_EQ(writeFile(file, "x", 1, nullptr), 0);
    EXPECT_EQ(lastError(), G_NET_STATE);
    EXPECT_EQ(closeHandle(file), 1);
}

TEST_F(Ftp, WritesAnOpenFile) {
    GNetHandle* const file = openFile(connection, u"log", G_OPEN_WRITE, 0);
    ASSERT_NE(file, nullptr) << lastError();
    int32_t written = 0;
    EXPECT_EQ(writeFile(file, "first ", 6, &written), 1);
    EXPECT_EQ(written, 6);
    EXPECT_EQ(writeFile(file, "second", 6, nullptr), 1);
    char byte = 0;
    EXPECT_EQ(readFile(file, &byte, 1), -1);
    EXPECT_EQ(lastError(), G_NET_STATE);
    EXPECT_EQ(closeHandle(file), 1) << lastError();
    EXPECT_EQ(server.stored("log"), "first second");
}

TEST_F(Ftp, FinishesWhatIsClosedWithItsSession) {
    GNetHandle* const file = openFile(connection, u"log", G_OPEN_WRITE, 0);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(writeFile(file, "whole", 5, nullptr), 1);
    EXPECT_EQ(closeHandle(session), 1);
    EXPECT_EQ(server.stored("log"), "whole");
    EXPECT_EQ(closeHandle(file), 0);
    EXPECT_EQ(lastError(), G_NET_HANDLE);
    session = openSession(nullptr);
}

TEST_F(Ftp, DoesNothingElseWhileAFileIsOpen) {
    server.serve("digits", "0123456789");
    GNetHandle* const file = openFile(connection, u"digits", G_OPEN_READ, 0);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(deleteFile(connection, u"digits"), 0);
    EXPECT_EQ(lastError(), G_NET_STATE);
    EXPECT_EQ(openFile(connection, u"digits", G_OPEN_READ, 0), nullptr);
    EXPECT_EQ(lastError(), G_NET_STATE);
    GNetFileInfo info{};
    EXPECT_EQ(findFirstFile(connection, nullptr, &info, 0), nullptr);
    EXPECT_EQ(lastError(), G_NET_STATE);
    EXPECT_EQ(folderOf(connection), u"/") << "that is known without the server";
    EXPECT_EQ(closeHandle(file), 1);
    EXPECT_EQ(deleteFile(connection, u"digits"), 1) << lastError();
}

TEST_F(Ftp, FetchesAUrl) {
    std::filesystem::create_directory(server.path("sub"));
    server.serve("sub/a b", "by URL");
    GNetHandle* const file = openUrl(session, url("/sub/a%20b").c_str(), nullptr, 0);
    ASSERT_NE(file, nullptr) << lastError();
    EXPECT_EQ(numberOption(file, G_NET_OPTION_KIND), G_NET_KIND_FTP_FILE);
    EXPECT_EQ(textOption(file, G_NET_OPTION_URL).find(u"secret"), std::u16string::npos);
    EXPECT_EQ(rest(file), "by URL");
    EXPECT_EQ(setFilePointer(file, 3, G_SEEK_START), 3) << lastError();
    EXPECT_EQ(rest(file), "URL");
}

TEST_F(Ftp, KeepsWhatWasRead) {
    server.serve("digits", "0123456789");
    GNetHandle* const file = openUrl(session, url("/digits").c_str(), nullptr, 0);
    ASSERT_NE(file, nullptr) << lastError();
    EXPECT_EQ(bytes(file, 5), "01234");
    GNetLock* lock = nullptr;
    ASSERT_EQ(lockRequestFile(file, &lock), 1);
    EXPECT_EQ(closeHandle(file), 1);
    server.serve("digits", "changed");
    GNetHandle* const line =
        openUrl(session, url("/digits").c_str(), nullptr, G_NET_ASCII | G_NET_RELOAD);
    EXPECT_EQ(rest(line), "changed");
    GNetLock* none = nullptr;
    EXPECT_EQ(lockRequestFile(line, &none), 0) << "translated, it is not what others get";
    EXPECT_EQ(lastError(), G_NET_UNSUPPORTED);
    server.process().end();
    EXPECT_EQ(rest(openUrl(session, url("/digits").c_str(), nullptr, 0)), "01234")
        << "the server is not asked";
    EXPECT_EQ(unlockRequestFile(lock), 1);
    EXPECT_EQ(openUrl(session, url("/digits").c_str(), nullptr, 0), nullptr);
    EXPECT_EQ(lastError(), G_NET_REFUSED);
}

TEST_F(Ftp, GoesThroughNoProxy) {
    EXPECT_EQ(choose(session, G_NET_OPTION_PROXY, u"http://127.0.0.1:9"), 1);
    EXPECT_NE(connect(u"operator", u"secret"), nullptr) << lastError();
}

TEST_F(Ftp, LetsTheServerConnectWhenAsked) {
    GNetHandle* const active = connect(u"operator", u"secret", G_NET_ACTIVE);
    ASSERT_NE(active, nullptr) << lastError();
    server.serve("digits", "0123456789");
    EXPECT_EQ(getFile(active, u"digits", u"digits", 0, 0, 0), 1) << lastError() << server.log();
    EXPECT_EQ(contentsOf(files.path("digits")), "0123456789");
}

} // namespace
} // namespace gpi::test
