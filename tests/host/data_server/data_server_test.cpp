#include "support/started_platform.h"

#include <quarlo/data_server.h>
#include <quarlo/file.h>

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <future>

namespace {

using namespace gpi::test;
namespace fs = std::filesystem;

const auto openFile = service<GPIOpenDataFile>(GPI_SERVICE_OPEN_DATA_FILE);
const auto createFile = service<GPICreateDataFile>(GPI_SERVICE_CREATE_DATA_FILE);
const auto closeFile = service<GPICloseDataFile>(GPI_SERVICE_CLOSE_DATA_FILE);
const auto readFile = service<GPIReadDataFile>(GPI_SERVICE_READ_DATA_FILE);
const auto writeFile = service<GPIWriteDataFile>(GPI_SERVICE_WRITE_DATA_FILE);
const auto seekFile = service<GPISeekDataFile>(GPI_SERVICE_SEEK_DATA_FILE);
const auto getSize = service<GPIGetDataFileSize>(GPI_SERVICE_GET_DATA_FILE_SIZE);
const auto renameFile = service<GPIRenameDataFile>(GPI_SERVICE_RENAME_DATA_FILE);
const auto removeFile = service<GPIRemoveDataFile>(GPI_SERVICE_REMOVE_DATA_FILE);

class DataServer : public testing::Test {
  protected:
    GDataFile* open(const char16_t* path, uint32_t mode, int32_t wait = 0) {
        return openFile(path, mode, wait, &error);
    }

    TemporaryFolder folder;
    StartedPlatform platform{{"QUARLO_DATA_SERVER", folder.path()}};
    int32_t error = 0;
    int32_t done = -1;
};

TEST_F(DataServer, MakesFilesWithRoomForTheirContents) {
    GDataFile* const file = createFile(u"sub.nc", 1000, 0, &error);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(error, 1);
    EXPECT_EQ(fs::file_size(folder.path("sub.nc")), 1000U);
    char bytes[1000] = {1};
    EXPECT_EQ(readFile(file, bytes, 1000, &done), 1);
    EXPECT_EQ(done, 1000);
    EXPECT_EQ(std::string(bytes, 1000), std::string(1000, '\0'));
    EXPECT_EQ(seekFile(file, 10, G_SEEK_START), 10);
    EXPECT_EQ(writeFile(file, "G00", 3, &done), 1);
    EXPECT_EQ(closeFile(file), 1);
    EXPECT_EQ(closeFile(file), G_IO_HANDLE);
}

TEST_F(DataServer, ReplacesAFileOnlyWhenTold) {
    folder.write("a", "old");
    EXPECT_EQ(createFile(u"a", 0, 0, &error), nullptr);
    EXPECT_EQ(error, G_IO_EXISTS);
    EXPECT_EQ(fs::file_size(folder.path("a")), 3U);
    closeFile(createFile(u"a", 8, G_OPEN_TRUNCATE, &error));
    EXPECT_EQ(fs::file_size(folder.path("a")), 8U);
    EXPECT_EQ(createFile(u"b", -1, 0, &error), nullptr);
    EXPECT_EQ(error, G_IO_ARGUMENT);
    EXPECT_EQ(createFile(u"b", 0, G_OPEN_APPEND, &error), nullptr);
    EXPECT_EQ(error, G_IO_ARGUMENT);
    EXPECT_FALSE(fs::exists(folder.path("b")));
}

TEST_F(DataServer, LetsManyReadOrOneWrite) {
    folder.write("a", "old");
    GDataFile* const reader = open(u"a", G_OPEN_READ);
    GDataFile* const second = open(u"a", G_OPEN_READ);
    EXPECT_NE(second, nullptr);
    EXPECT_EQ(open(u"a", G_OPEN_WRITE | G_OPEN_TRUNCATE), nullptr);
    EXPECT_EQ(error, G_IO_IN_USE);
    EXPECT_EQ(createFile(u"a", 0, G_OPEN_TRUNCATE, &error), nullptr);
    EXPECT_EQ(error, G_IO_IN_USE);
    EXPECT_EQ(fs::file_size(folder.path("a")), 3U);
    closeFile(reader);
    closeFile(second);
    GDataFile* const writer = open(u"a", G_OPEN_WRITE);
    EXPECT_NE(writer, nullptr);
    EXPECT_EQ(open(u"a", G_OPEN_READ), nullptr);
    EXPECT_EQ(error, G_IO_IN_USE);
    closeFile(writer);
}

TEST_F(DataServer, WaitsForAFileInUse) {
    using namespace std::chrono;
    folder.write("a", "old");
    GDataFile* const writer = open(u"a", G_OPEN_WRITE);
    const auto start = steady_clock::now();
    EXPECT_EQ(open(u"a", G_OPEN_READ, 30), nullptr);
    EXPECT_EQ(error, G_IO_IN_USE);
    EXPECT_GE(steady_clock::now() - start, milliseconds(30));
    for (const int32_t wait : {60'000, -1}) {
        GDataFile* const holder = wait == -1 ? open(u"a", G_OPEN_WRITE) : writer;
        auto waiting = std::async(std::launch::async,
                                  [wait] { return openFile(u"a", G_OPEN_READ, wait, nullptr); });
        closeFile(holder);
        GDataFile* const reader = waiting.get();
        EXPECT_NE(reader, nullptr);
        closeFile(reader);
    }
    EXPECT_EQ(open(u"a", G_OPEN_READ, -2), nullptr);
    EXPECT_EQ(error, G_IO_ARGUMENT);
}

TEST_F(DataServer, TellsSizesOf64Bits) {
    folder.write("a", "");
    fs::resize_file(folder.path("a"), (uint64_t{3} << 32) + 5);
    uint32_t low = 0;
    uint32_t high = 0;
    EXPECT_EQ(getSize(u"a", &low, &high, &error), 1);
    EXPECT_EQ(low, 5U);
    EXPECT_EQ(high, 3U);
    EXPECT_EQ(error, 1);
    EXPECT_EQ(getSize(u"a", &low, nullptr, nullptr), 1);
    EXPECT_EQ(getSize(u"none", &low, &high, &error), G_IO_NOT_FOUND);
    EXPECT_EQ(error, G_IO_NOT_FOUND);
    EXPECT_EQ(getSize(u"a", nullptr, &high, &error), G_IO_ARGUMENT);
}

TEST_F(DataServer, RenamesAndRemoves) {
    folder.write("a", "old");
    folder.write("b", "");
    EXPECT_EQ(renameFile(u"a", u"b", 0), G_IO_EXISTS);
    EXPECT_EQ(renameFile(u"a", u"b", G_RENAME_REPLACE), 1);
    EXPECT_EQ(removeFile(u"b", 0), 1);
    EXPECT_EQ(removeFile(u"b", 0), G_IO_NOT_FOUND);
    EXPECT_EQ(removeFile(u"../b", 0), G_IO_DENIED);
}

TEST_F(DataServer, RefusesHandlesThatAreNone) {
    char byte = 0;
    EXPECT_EQ(readFile(nullptr, &byte, 1, &done), G_IO_HANDLE);
    EXPECT_EQ(writeFile(nullptr, &byte, 1, &done), G_IO_HANDLE);
    EXPECT_EQ(seekFile(nullptr, 0, 0), G_IO_HANDLE);
    EXPECT_EQ(closeFile(nullptr), G_IO_HANDLE);
}

TEST(DataServerOfAStoppedPlatform, IsRefused) {
    int32_t error = 0;
    EXPECT_EQ(openFile(u"a", G_OPEN_READ, 0, &error), nullptr);
    EXPECT_EQ(error, G_IO_DEVICE);
    EXPECT_EQ(closeFile(nullptr), G_IO_DEVICE);
}

} // namespace
