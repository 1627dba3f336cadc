// What goes wrong with an FTP server.
#include "ftp_test.h"

#include <filesystem>
#include <thread>

namespace gpi::test {
namespace {

constexpr int32_t kShort = 1000; // milliseconds

using FtpFailure = FtpTest;

TEST_F(FtpFailure, WrongPassword) {
    EXPECT_EQ(connect(u"operator", u"guess"), nullptr);
    EXPECT_EQ(lastError(), G_NET_LOGIN);
    EXPECT_EQ(connect(nullptr, nullptr), nullptr) << "nobody may come without a name";
    EXPECT_EQ(lastError(), G_NET_LOGIN);
}

TEST_F(FtpFailure, RefusedConnection) {
    server.process().end();
    EXPECT_EQ(connect(u"operator", u"secret"), nullptr);
    EXPECT_EQ(lastError(), G_NET_REFUSED);
}

TEST_F(FtpFailure, MissingFile) {
    files.write("kept", "as it was");
    EXPECT_EQ(getFile(connection, u"none", u"kept", 0, 0, 0), 0);
    EXPECT_EQ(lastError(), G_NET_NOT_FOUND);
    EXPECT_EQ(getFile(connection, u"none/none", u"new", 0, 0, 0), 0);
    EXPECT_EQ(lastError(), G_NET_NOT_FOUND);
    EXPECT_EQ(openFile(connection, u"none", G_OPEN_READ, 0), nullptr);
    EXPECT_EQ(lastError(), G_NET_NOT_FOUND);
    EXPECT_EQ(deleteFile(connection, u"none"), 0);
    EXPECT_EQ(lastError(), G_NET_NOT_FOUND);
    EXPECT_EQ(renameFile(connection, u"none", u"other"), 0);
    EXPECT_EQ(lastError(), G_NET_NOT_FOUND);
    EXPECT_EQ(openUrl(session, url("/none").c_str(), nullptr, 0), nullptr);
    EXPECT_EQ(lastError(), G_NET_NOT_FOUND);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(files.path()), {}), 1)
        << "nothing is left behind";
}

TEST_F(FtpFailure, ForbiddenWriting) {
    GNetHandle* const guest = connect(u"guest", u"guest");
    ASSERT_NE(guest, nullptr);
    files.write("mine", "x");
    server.serve("theirs", "y");
    EXPECT_EQ(putFile(guest, u"mine", u"mine", 0), 0);
    EXPECT_EQ(lastError(), G_NET_DENIED);
    EXPECT_EQ(openFile(guest, u"mine", G_OPEN_WRITE, 0), nullptr);
    EXPECT_EQ(lastError(), G_NET_DENIED);
    EXPECT_EQ(deleteFile(guest, u"theirs"), 0);
    EXPECT_EQ(lastError(), G_NET_DENIED);
    EXPECT_EQ(createDirectory(guest, u"folder"), 0);
    EXPECT_EQ(lastError(), G_NET_DENIED);
    EXPECT_EQ(getFile(guest, u"theirs", u"theirs", 0, 0, 0), 1) << "it goes on";
}

TEST_F(FtpFailure, FullServer) {
    files.write("mine", "x");
    EXPECT_EQ(putFile(connection, u"mine", u"full", 0), 0);
    EXPECT_EQ(lastError(), G_NET_FULL);
    EXPECT_EQ(openFile(connection, u"full", G_OPEN_WRITE, 0), nullptr);
    EXPECT_EQ(lastError(), G_NET_FULL);
    EXPECT_EQ(putFile(connection, u"mine", u"mine", 0), 1) << "it goes on";
}

TEST_F(FtpFailure, LocalFile) {
    server.serve("theirs", "y");
    std::filesystem::create_directory(files.path("folder"));
    for (const char16_t* const local : {u"../out", u"none/new", u"folder"}) {
        EXPECT_EQ(getFile(connection, u"theirs", local, 0, 0, 0), 0);
        EXPECT_EQ(lastError(), G_NET_LOCAL_FILE);
    }
    for (const char16_t* const local : {u"../out", u"none", u"folder"}) {
        EXPECT_EQ(putFile(connection, local, u"mine", 0), 0);
        EXPECT_EQ(lastError(), G_NET_LOCAL_FILE);
    }
    EXPECT_EQ(server.stored("mine"), "none");
}

TEST_F(FtpFailure, ServerThatStartsAtTheBeginOnly) {
    std::filesystem::create_directory(server.path("one-part"));
    server.serve("one-part/digits", "0123456789");
    GNetHandle* const file = openFile(connection, u"one-part/digits", G_OPEN_READ, 0);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(bytes(file, 2), "01");
    EXPECT_EQ(setFilePointer(file, 5, G_SEEK_START), -1);
    EXPECT_EQ(lastError(), G_NET_UNSUPPORTED);
    EXPECT_EQ(setFilePointer(file, 0, G_SEEK_START), 0);
    EXPECT_EQ(rest(file), "0123456789");
}

TEST_F(FtpFailure, PositionInTranslatedText) {
    server.serve("text", "a\r\nb\r\n");
    GNetHandle* const file = openFile(connection, u"text", G_OPEN_READ, G_NET_ASCII);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(bytes(file, 2), "a\n");
    EXPECT_EQ(setFilePointer(file, 3, G_SEEK_START), -1);
    EXPECT_EQ(lastError(), G_NET_UNSUPPORTED);
    EXPECT_EQ(setFilePointer(file, 0, G_SEEK_END), -1);
    EXPECT_EQ(lastError(), G_NET_UNSUPPORTED);
}

TEST_F(FtpFailure, SilentServer) {
    server.process().freeze();
    EXPECT_EQ(choose(session, G_NET_OPTION_CONNECT_TIMEOUT, kShort), 1);
    EXPECT_EQ(connect(u"operator", u"secret"), nullptr) << "it takes the call and says nothing";
    EXPECT_EQ(lastError(), G_NET_TIMEOUT);
    EXPECT_EQ(choose(connection, G_NET_OPTION_IDLE_TIMEOUT, kShort), 1);
    EXPECT_EQ(deleteFile(connection, u"any"), 0);
    EXPECT_EQ(lastError(), G_NET_TIMEOUT);
    server.process().thaw();
    EXPECT_EQ(choose(connection, G_NET_OPTION_IDLE_TIMEOUT, 30000), 1);
    EXPECT_EQ(createDirectory(connection, u"again"), 1) << lastError() << ": by a new connection";
}

TEST_F(FtpFailure, BrokenReading) {
    server.serve("large", std::string(20000000, 'l'));
    GNetHandle* const file = openFile(connection, u"large", G_OPEN_READ, 0);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(bytes(file, 10), "llllllllll");
    server.process().end();
    EXPECT_EQ(rest(file), "failed");
    EXPECT_EQ(lastError(), G_NET_BROKEN);
}

TEST_F(FtpFailure, BrokenFetchingLeavesTheLocalFileAlone) {
    server.serve("large", std::string(20000000, 'l'));
    files.write("kept", "as it was");
    GNetHandle* const slow = connect(u"operator", u"secret");
    EXPECT_EQ(choose(slow, G_NET_OPTION_RATE, 1000000), 1);
    std::thread fetching([&] {
        EXPECT_EQ(getFile(slow, u"large", u"kept", 0, 0, 0), 0);
        EXPECT_EQ(lastError(), G_NET_BROKEN);
    });
    const auto count = [this] {
        return std::distance(std::filesystem::directory_iterator(files.path()), {});
    };
    while (count() == 1) { // until it has begun
        std::this_thread::yield();
    }
    server.process().end();
    fetching.join();
    EXPECT_EQ(count(), 1);
    EXPECT_EQ(std::filesystem::file_size(files.path("kept")), 9U);
}

TEST_F(FtpFailure, BrokenWriting) {
    GNetHandle* const file = openFile(connection, u"log", G_OPEN_WRITE, 0);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(writeFile(file, "first", 5, nullptr), 1);
    server.process().end();
    const std::string piece(100000, 'p');
    while (writeFile(file, piece.data(), 100000, nullptr) == 1) { // until it has arrived here
    }
    EXPECT_EQ(lastError(), G_NET_BROKEN);
    EXPECT_EQ(closeHandle(file), 0) << "what was written is not there";
    EXPECT_EQ(lastError(), G_NET_BROKEN);
}

TEST_F(FtpFailure, NoNames) {
    const auto refused = [](int32_t result) {
        return result == 0 && lastError() == G_NET_ARGUMENT;
    };
    EXPECT_TRUE(refused(getFile(connection, nullptr, u"a", 0, 0, 0)));
    EXPECT_TRUE(refused(getFile(connection, u"a", nullptr, 0, 0, 0)));
    EXPECT_TRUE(refused(putFile(connection, nullptr, u"a", 0)));
    EXPECT_TRUE(refused(putFile(connection, u"a", nullptr, 0)));
    EXPECT_TRUE(refused(deleteFile(connection, nullptr)));
    EXPECT_TRUE(refused(renameFile(connection, nullptr, u"a")));
    EXPECT_TRUE(refused(renameFile(connection, u"a", nullptr)));
    EXPECT_TRUE(refused(createDirectory(connection, nullptr)));
    EXPECT_TRUE(refused(removeDirectory(connection, nullptr)));
    EXPECT_TRUE(refused(setCurrentDirectory(connection, nullptr)));
    char16_t path[10];
    int32_t size = 10;
    EXPECT_TRUE(refused(getCurrentDirectory(connection, nullptr, &size)));
    EXPECT_TRUE(refused(getCurrentDirectory(connection, path, nullptr)));
    EXPECT_EQ(openFile(connection, nullptr, G_OPEN_READ, 0), nullptr);
    EXPECT_EQ(lastError(), G_NET_ARGUMENT);
    EXPECT_EQ(openFile(connection, u"folder/", G_OPEN_READ, 0), nullptr);
    EXPECT_EQ(lastError(), G_NET_ARGUMENT);
}

TEST_F(FtpFailure, CommandsInNames) {
    server.serve("victim", "alive");
    for (const char16_t* const name : {u"x\r\nDELE victim", u"x\nDELE victim", u"\x01", u""}) {
        EXPECT_EQ(createDirectory(connection, name), 0);
        EXPECT_EQ(lastError(), G_NET_ARGUMENT);
        EXPECT_EQ(openFile(connection, name, G_OPEN_READ, 0), nullptr);
        EXPECT_EQ(lastError(), G_NET_ARGUMENT);
    }
    EXPECT_EQ(openUrl(session, url("/x%0D%0ADELE%20victim").c_str(), nullptr, 0), nullptr);
    EXPECT_EQ(lastError(), G_NET_URL);
    EXPECT_EQ(server.stored("victim"), "alive");
}

} // namespace
} // namespace gpi::test
