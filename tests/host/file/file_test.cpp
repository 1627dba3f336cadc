#include "file_root.h"

#include <quarlo/file.h>

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <sys/stat.h>

namespace {

using namespace gpi::test;

const auto openFile = service<GPIOpenFile>(GPI_SERVICE_OPEN_FILE);
const auto closeFile = service<GPICloseFile>(GPI_SERVICE_CLOSE_FILE);
const auto flushAndClose = service<GPIFlushAndCloseFile>(GPI_SERVICE_FLUSH_AND_CLOSE_FILE);
const auto readFile = service<GPIReadFile>(GPI_SERVICE_READ_FILE);
const auto writeFile = service<GPIWriteFile>(GPI_SERVICE_WRITE_FILE);
const auto seekFile = service<GPISeekFile>(GPI_SERVICE_SEEK_FILE);
const auto readLine = service<GPIReadLine>(GPI_SERVICE_READ_LINE);
const auto readByte = service<GPIReadByte>(GPI_SERVICE_READ_BYTE);

class Files : public testing::Test {
  protected:
    GFile* open(const char16_t* path, uint32_t mode) { return openFile(path, mode, &error); }
    GFile* create(const char16_t* path) {
        return open(path, G_OPEN_READ | G_OPEN_WRITE | G_OPEN_CREATE);
    }
    int32_t write(GFile* file, const std::string& text) {
        return writeFile(file, text.data(), static_cast<int32_t>(text.size()), &done);
    }
    std::string read(GFile* file, int32_t size) {
        std::string text(static_cast<size_t>(size), '?');
        EXPECT_EQ(readFile(file, text.data(), size, &done), 1);
        return text.substr(0, static_cast<size_t>(done));
    }
    std::string contents(const std::string& name) const {
        std::ifstream file(root.path(name), std::ios::binary);
        std::ostringstream text;
        text << file.rdbuf();
        return text.str();
    }

    FileRoot root;
    int32_t error = 0;
    int32_t done = -1;
};

TEST_F(Files, AreWrittenAndReadBack) {
    GFile* const file = create(u"part.nc");
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(error, 1);
    EXPECT_EQ(write(file, "G01 X10\n"), 1);
    EXPECT_EQ(done, 8);
    EXPECT_EQ(seekFile(file, 4, G_SEEK_START), 4);
    EXPECT_EQ(read(file, 3), "X10");
    EXPECT_EQ(closeFile(file), 1);
    EXPECT_EQ(contents("part.nc"), "G01 X10\n");
}

TEST_F(Files, TurnFromReadingToWritingAndBack) {
    root.write("a", "0123456789");
    GFile* const file = open(u"a", G_OPEN_READ | G_OPEN_WRITE);
    EXPECT_EQ(read(file, 2), "01");
    EXPECT_EQ(write(file, "AB"), 1);
    EXPECT_EQ(read(file, 2), "45");
    EXPECT_EQ(write(file, "CD"), 1);
    EXPECT_EQ(seekFile(file, 0, G_SEEK_CURRENT), 8);
    EXPECT_EQ(closeFile(file), 1);
    EXPECT_EQ(contents("a"), "01AB45CD89");
}

TEST_F(Files, GiveFewerBytesAtTheEndAndNoneBehindIt) {
    root.write("a", "abc");
    GFile* const file = open(u"a", G_OPEN_READ);
    EXPECT_EQ(read(file, 10), "abc");
    EXPECT_EQ(read(file, 10), "");
    EXPECT_EQ(done, 0);
    EXPECT_EQ(readByte(file), G_IO_END);
    closeFile(file);
}

TEST_F(Files, ShowWhatIsAppendedWhileTheyAreRead) {
    root.write("log", "a");
    GFile* const file = open(u"log", G_OPEN_READ);
    EXPECT_EQ(read(file, 10), "a");
    std::ofstream(root.path("log"), std::ios::app) << "b";
    EXPECT_EQ(read(file, 10), "b");
    closeFile(file);
}

TEST_F(Files, ReadLines) {
    root.write("lines", std::string("one\ntwo\r\n") + '\0' + "x\nlonger line\nlast");
    GFile* const file = open(u"lines", G_OPEN_READ);
    char line[8] = {};
    EXPECT_EQ(readLine(file, line, sizeof line), 4);
    EXPECT_STREQ(line, "one\n");
    EXPECT_EQ(readLine(file, line, sizeof line), 5);
    EXPECT_STREQ(line, "two\r\n");
    EXPECT_EQ(readLine(file, line, sizeof line), 3);
    EXPECT_EQ(line[0], '\0');
    EXPECT_STREQ(line + 1, "x\n");
    EXPECT_EQ(readLine(file, line, sizeof line), 7);
    EXPECT_STREQ(line, "longer ");
    EXPECT_EQ(readLine(file, line, sizeof line), 5);
    EXPECT_EQ(readLine(file, line, sizeof line), 4);
    EXPECT_STREQ(line, "last");
    EXPECT_EQ(readLine(file, line, sizeof line), 0);
    EXPECT_STREQ(line, "");
    closeFile(file);
}

TEST_F(Files, ReadBytesFrom0To255) {
    root.write("bytes", std::string("\0\xFF", 2));
    GFile* const file = open(u"bytes", G_OPEN_READ);
    EXPECT_EQ(readByte(file), 0);
    EXPECT_EQ(readByte(file), 255);
    EXPECT_EQ(readByte(file), G_IO_END);
    closeFile(file);
}

TEST_F(Files, SeekFromTheThreeOrigins) {
    root.write("a", "0123456789");
    GFile* const file = open(u"a", G_OPEN_READ | G_OPEN_WRITE);
    EXPECT_EQ(seekFile(file, -1, G_SEEK_END), 9);
    EXPECT_EQ(readByte(file), '9');
    EXPECT_EQ(seekFile(file, -4, G_SEEK_CURRENT), 6);
    EXPECT_EQ(readByte(file), '6');
    EXPECT_EQ(seekFile(file, -1, G_SEEK_START), G_IO_ARGUMENT);
    EXPECT_EQ(seekFile(file, 0, 3), G_IO_ARGUMENT);
    EXPECT_EQ(seekFile(file, 0, -1), G_IO_ARGUMENT);
    EXPECT_EQ(seekFile(file, 12, G_SEEK_START), 12);
    EXPECT_EQ(write(file, "!"), 1);
    EXPECT_EQ(closeFile(file), 1);
    EXPECT_EQ(contents("a"), std::string("0123456789\0\0!", 13));
}

TEST_F(Files, KeepTheirPositionWhenItWouldNotFit31Bits) {
    GFile* const file = create(u"huge");
    EXPECT_EQ(seekFile(file, INT32_MAX, G_SEEK_START), INT32_MAX);
    EXPECT_EQ(seekFile(file, 1, G_SEEK_CURRENT), G_IO_TOO_LARGE);
    EXPECT_EQ(seekFile(file, 0, G_SEEK_CURRENT), INT32_MAX);
    closeFile(file);
}

TEST_F(Files, AreOpenedAsTheModeSays) {
    EXPECT_EQ(open(u"none", G_OPEN_READ), nullptr);
    EXPECT_EQ(error, G_IO_NOT_FOUND);
    root.write("a", "old");
    EXPECT_EQ(open(u"a", G_OPEN_WRITE | G_OPEN_CREATE | G_OPEN_EXCLUSIVE), nullptr);
    EXPECT_EQ(error, G_IO_EXISTS);
    GFile* file = open(u"a", G_OPEN_WRITE | G_OPEN_APPEND);
    seekFile(file, 0, G_SEEK_START);
    EXPECT_EQ(write(file, "+new"), 1);
    closeFile(file);
    EXPECT_EQ(contents("a"), "old+new");
    closeFile(open(u"a", G_OPEN_WRITE | G_OPEN_TRUNCATE));
    EXPECT_EQ(contents("a"), "");
}

TEST_F(Files, RefuseModesThatMakeNoSense) {
    root.write("a", "old");
    for (const uint32_t mode :
         {uint32_t{0}, uint32_t{G_OPEN_CREATE}, uint32_t{G_OPEN_READ | G_OPEN_TRUNCATE},
          uint32_t{G_OPEN_READ | G_OPEN_APPEND}, uint32_t{G_OPEN_WRITE | G_OPEN_EXCLUSIVE},
          uint32_t{G_OPEN_READ | 64}, UINT32_MAX}) {
        EXPECT_EQ(open(u"a", mode), nullptr) << mode;
        EXPECT_EQ(error, G_IO_ARGUMENT) << mode;
    }
    EXPECT_EQ(contents("a"), "old");
}

TEST_F(Files, RefuseWhatTheyWereNotOpenedFor) {
    root.write("a", "old");
    char byte = 'x';
    GFile* const reader = open(u"a", G_OPEN_READ);
    EXPECT_EQ(writeFile(reader, &byte, 1, &done), G_IO_DENIED);
    EXPECT_EQ(done, 0);
    closeFile(reader);
    GFile* const writer = open(u"a", G_OPEN_WRITE);
    done = -1;
    EXPECT_EQ(readFile(writer, &byte, 1, &done), G_IO_DENIED);
    EXPECT_EQ(done, 0);
    EXPECT_EQ(readByte(writer), G_IO_DENIED);
    EXPECT_EQ(readLine(writer, &byte, 2), G_IO_DENIED);
    closeFile(writer);
    EXPECT_EQ(contents("a"), "old");
}

TEST_F(Files, RefuseBadArguments) {
    root.write("a", "old");
    EXPECT_EQ(open(nullptr, G_OPEN_READ), nullptr);
    EXPECT_EQ(error, G_IO_ARGUMENT);
    EXPECT_EQ(openFile(nullptr, G_OPEN_READ, nullptr), nullptr);
    GFile* const file = open(u"a", G_OPEN_READ | G_OPEN_WRITE);
    char buffer[4] = {};
    EXPECT_EQ(readFile(file, nullptr, 1, &done), G_IO_ARGUMENT);
    EXPECT_EQ(readFile(file, buffer, -1, &done), G_IO_ARGUMENT);
    EXPECT_EQ(writeFile(file, nullptr, 1, &done), G_IO_ARGUMENT);
    EXPECT_EQ(writeFile(file, buffer, -1, &done), G_IO_ARGUMENT);
    EXPECT_EQ(readLine(file, nullptr, 4), G_IO_ARGUMENT);
    EXPECT_EQ(readLine(file, buffer, 1), G_IO_ARGUMENT);
    EXPECT_EQ(readFile(file, buffer, 0, nullptr), 1);
    EXPECT_EQ(writeFile(file, buffer, 0, nullptr), 1);
    closeFile(file);
}

TEST_F(Files, KnowHandlesThatAreGone) {
    root.write("a", "old");
    char buffer[4] = {};
    GFile* const file = open(u"a", G_OPEN_READ);
    EXPECT_EQ(closeFile(file), 1);
    GFile* const other = open(u"a", G_OPEN_READ); // perhaps in the same place
    EXPECT_NE(other, file);
    for (GFile* const gone :
         {file, static_cast<GFile*>(nullptr), reinterpret_cast<GFile*>(buffer)}) {
        EXPECT_EQ(closeFile(gone), G_IO_HANDLE);
        EXPECT_EQ(flushAndClose(gone), G_IO_HANDLE);
        EXPECT_EQ(readFile(gone, buffer, 1, &done), G_IO_HANDLE);
        EXPECT_EQ(writeFile(gone, buffer, 1, &done), G_IO_HANDLE);
        EXPECT_EQ(seekFile(gone, 0, 0), G_IO_HANDLE);
        EXPECT_EQ(readLine(gone, buffer, 4), G_IO_HANDLE);
        EXPECT_EQ(readByte(gone), G_IO_HANDLE);
    }
    EXPECT_EQ(closeFile(other), 1);
}

TEST_F(Files, ThatNobodyMayWriteStayAsTheyAre) {
    root.write("fixed", "old");
    ASSERT_EQ(chmod(root.path("fixed").c_str(), 0444), 0);
    EXPECT_EQ(open(u"fixed", G_OPEN_WRITE | G_OPEN_TRUNCATE), nullptr);
    EXPECT_TRUE(error == G_IO_READ_ONLY || error == G_IO_DENIED) << error;
    EXPECT_EQ(contents("fixed"), "old");
}

TEST_F(Files, AreNeitherFoldersNorPipes) {
    ASSERT_EQ(mkdir(root.path("folder").c_str(), 0777), 0);
    ASSERT_EQ(mkfifo(root.path("pipe").c_str(), 0666), 0);
    for (const char16_t* const path : {u"folder", u"pipe", u"", u"/", u"C:\\"}) {
        EXPECT_EQ(open(path, G_OPEN_READ), nullptr);
        EXPECT_EQ(error, G_IO_UNSUPPORTED);
    }
    EXPECT_EQ(open(u"folder", G_OPEN_READ | G_OPEN_WRITE), nullptr);
    EXPECT_EQ(error, G_IO_UNSUPPORTED);
}

TEST_F(Files, LastWhenTheyAreClosedThatWay) {
    GFile* const file = create(u"kept");
    EXPECT_EQ(write(file, "data"), 1);
    EXPECT_EQ(flushAndClose(file), 1);
    EXPECT_EQ(flushAndClose(file), G_IO_HANDLE);
    EXPECT_EQ(contents("kept"), "data");
}

TEST_F(Files, RunOutOfHandlesCalmly) {
    root.write("a", "old");
    std::vector<GFile*> open_;
    while (GFile* const file = open(u"a", G_OPEN_READ)) {
        open_.push_back(file);
        ASSERT_LT(open_.size(), 100'000U);
    }
    EXPECT_EQ(error, G_IO_TOO_MANY);
    EXPECT_GE(open_.size(), 100U);
    for (GFile* const file : open_) {
        EXPECT_EQ(closeFile(file), 1);
    }
    GFile* const again = open(u"a", G_OPEN_READ);
    EXPECT_NE(again, nullptr);
    closeFile(again);
}

TEST(FilesOfAStoppedPlatform, AreRefused) {
    int32_t error = 0;
    EXPECT_EQ(openFile(u"a", G_OPEN_READ, &error), nullptr);
    EXPECT_EQ(error, G_IO_DEVICE);
    EXPECT_EQ(closeFile(nullptr), G_IO_DEVICE);
}

TEST(FilesLeftOpen, AreWrittenWhenThePlatformStops) {
    const TemporaryFolder folder;
    StartedPlatform platform{{"QUARLO_FILES", folder.path()}};
    GFile* const file = openFile(u"left", G_OPEN_WRITE | G_OPEN_CREATE, nullptr);
    EXPECT_EQ(writeFile(file, "data", 4, nullptr), 1);
    platform.stop();
    std::ifstream left(folder.path("left"));
    std::string text;
    left >> text;
    EXPECT_EQ(text, "data");
}

} // namespace
