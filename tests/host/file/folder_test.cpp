#include "file_root.h"

#include <quarlo/file.h>

#include <gtest/gtest.h>

#include <ctime>
#include <filesystem>
#include <vector>

namespace {

using namespace gpi::test;
namespace fs = std::filesystem;

const auto renameFile = service<GPIRenameFile>(GPI_SERVICE_RENAME_FILE);
const auto removeFile = service<GPIRemoveFile>(GPI_SERVICE_REMOVE_FILE);
const auto getSize = service<GPIGetFileSize>(GPI_SERVICE_GET_FILE_SIZE);
const auto getAccess = service<GPIGetFileAccess>(GPI_SERVICE_GET_FILE_ACCESS);
const auto getDirectory = service<GPIGetDirectory>(GPI_SERVICE_GET_DIRECTORY);

class Folder : public testing::Test {
  protected:
    FileRoot root;
};

TEST_F(Folder, IsListedByName) {
    root.write("b.nc", "12");
    root.write("a.nc", "1");
    fs::create_directory(root.path("c"));
    fs::create_symlink("/etc/passwd", root.path("out"));
    fs::create_symlink("nowhere", root.path("dangling"));
    root.write("no\xFFtext", "");
    std::vector<GDirectoryEntry> entries(5);
    ASSERT_EQ(getDirectory(u"", entries.data(), 5), 3);
    EXPECT_EQ(std::u16string(entries[0].name), u"a.nc");
    EXPECT_EQ(entries[0].size, 1U);
    EXPECT_EQ(entries[0].attributes & ~uint32_t{G_FILE_EXECUTABLE},
              uint32_t{G_FILE_READABLE | G_FILE_WRITABLE});
    EXPECT_LE(entries[0].time, static_cast<uint32_t>(std::time(nullptr)));
    EXPECT_GT(entries[0].time + 3600, static_cast<uint32_t>(std::time(nullptr)));
    EXPECT_EQ(std::u16string(entries[1].name), u"b.nc");
    EXPECT_EQ(std::u16string(entries[2].name), u"c");
    EXPECT_NE(entries[2].attributes & G_FILE_DIRECTORY, 0U);
}

TEST_F(Folder, IsListedAsFarAsThereIsRoom) {
    root.write("a", "");
    root.write("b", "");
    GDirectoryEntry entries[2] = {};
    entries[1].size = 77;
    EXPECT_EQ(getDirectory(u"", entries, 1), 2);
    EXPECT_EQ(std::u16string(entries[0].name), u"a");
    EXPECT_EQ(entries[1].size, 77U);
    EXPECT_EQ(getDirectory(u"", nullptr, 0), 2);
    EXPECT_EQ(getDirectory(u"", nullptr, 1), G_IO_ARGUMENT);
    EXPECT_EQ(getDirectory(u"", entries, -1), G_IO_ARGUMENT);
    EXPECT_EQ(getDirectory(nullptr, entries, 1), G_IO_ARGUMENT);
    EXPECT_EQ(getDirectory(u"none", entries, 1), G_IO_NOT_FOUND);
    EXPECT_EQ(getDirectory(u"a", entries, 1), G_IO_NOT_FOUND);
}

TEST_F(Folder, RenamesItsFiles) {
    root.write("a", "a");
    root.write("b", "bb");
    EXPECT_EQ(renameFile(u"a", u"b", 0), G_IO_EXISTS);
    EXPECT_EQ(fs::file_size(root.path("b")), 2U);
    EXPECT_EQ(renameFile(u"a", u"b", G_RENAME_REPLACE), 1);
    EXPECT_EQ(fs::file_size(root.path("b")), 1U);
    EXPECT_EQ(renameFile(u"a", u"c", 0), G_IO_NOT_FOUND);
    EXPECT_EQ(renameFile(u"b", u"none/c", 0), G_IO_NOT_FOUND);
    EXPECT_EQ(renameFile(u"b", u"c", 2), G_IO_ARGUMENT);
    EXPECT_EQ(renameFile(u"b", nullptr, 0), G_IO_ARGUMENT);
    EXPECT_EQ(renameFile(nullptr, u"b", 0), G_IO_ARGUMENT);
}

TEST_F(Folder, RemovesItsFiles) {
    root.write("a", "");
    fs::create_directories(root.path("full/empty"));
    EXPECT_EQ(removeFile(u"a", 0), 1);
    EXPECT_EQ(removeFile(u"a", 0), G_IO_NOT_FOUND);
    EXPECT_EQ(removeFile(u"full", 0), G_IO_DENIED);
    EXPECT_EQ(removeFile(u"full", G_REMOVE_DIRECTORY), G_IO_IN_USE);
    EXPECT_EQ(removeFile(u"full/empty", G_REMOVE_DIRECTORY), 1);
    EXPECT_EQ(removeFile(u"full\\", G_REMOVE_DIRECTORY), 1);
    EXPECT_EQ(removeFile(u"full", 2), G_IO_ARGUMENT);
    EXPECT_EQ(removeFile(nullptr, 0), G_IO_ARGUMENT);
}

TEST_F(Folder, TellsWhatMayBeDoneWithAFile) {
    root.write("a", "");
    fs::permissions(root.path("a"), fs::perms::owner_read);
    uint32_t attributes = 0;
    EXPECT_EQ(getAccess(u"a", 0, &attributes), 1);
    EXPECT_EQ(attributes, uint32_t{G_FILE_READABLE});
    EXPECT_EQ(getAccess(u"a", G_FILE_READABLE, nullptr), 1);
    EXPECT_EQ(getAccess(u"a", G_FILE_READABLE | G_FILE_WRITABLE, &attributes), G_IO_DENIED);
    EXPECT_EQ(attributes, uint32_t{G_FILE_READABLE});
    EXPECT_EQ(getAccess(u"", G_FILE_DIRECTORY, nullptr), 1);
    EXPECT_EQ(getAccess(u"a", G_FILE_DIRECTORY, nullptr), G_IO_DENIED);
    EXPECT_EQ(getAccess(u"none", 0, nullptr), G_IO_NOT_FOUND);
}

TEST_F(Folder, TellsTheSizeOfAFile) {
    root.write("a", "12345");
    int32_t size = 0;
    EXPECT_EQ(getSize(u"a", &size), 1);
    EXPECT_EQ(size, 5);
    EXPECT_EQ(getSize(u"none", &size), G_IO_NOT_FOUND);
    EXPECT_EQ(size, G_IO_NOT_FOUND);
    EXPECT_EQ(getSize(u"a", nullptr), G_IO_ARGUMENT);
    fs::resize_file(root.path("a"), uint64_t{INT32_MAX});
    getSize(u"a", &size);
    EXPECT_EQ(size, INT32_MAX);
    fs::resize_file(root.path("a"), uint64_t{INT32_MAX} + 1);
    getSize(u"a", &size);
    EXPECT_EQ(size, G_IO_TOO_LARGE);
}

} // namespace
