// Files, data-server files and JPEG pictures.
#include "refusing.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace gpi::test;

/// A platform with one file, "file", in both stores.
class FilesRefuse : public testing::Test {
  protected:
    FilesRefuse() { folder_.write("file", "contents"); }

    GFile* file() { return reinterpret_cast<GFile*>(&foreign_); }
    GDataFile* dataFile() { return reinterpret_cast<GDataFile*>(&foreign_); }

    const TemporaryFolder folder_;
    const StartedPlatform platform_{{"QUARLO_FILES", folder_.path()},
                                    {"QUARLO_DATA_SERVER", folder_.path()}};
    const std::u16string tooLong_ = std::u16string(G_PATH_SIZE, u'a');
    char foreign_ = 0;
    char buffer_[8] = {};
    int32_t done_ = 0;
};

TEST_F(FilesRefuse, PathsAndModesOutOfRange) {
    const auto open = refuser<GPIOpenFile>(GPI_SERVICE_OPEN_FILE);
    int32_t error = 0;
    EXPECT_EQ(open(nullptr, G_OPEN_READ, &error), nullptr);
    EXPECT_EQ(error, G_IO_ARGUMENT);
    EXPECT_EQ(open(u"", G_OPEN_READ, &error), nullptr);
    EXPECT_LT(error, 0);
    EXPECT_EQ(open(tooLong_.c_str(), G_OPEN_READ, &error), nullptr);
    EXPECT_EQ(error, G_IO_TOO_LARGE);
    for (const uint32_t mode :
         {0U, 64U, UINT32_MAX, uint32_t{G_OPEN_CREATE}, uint32_t{G_OPEN_READ | G_OPEN_TRUNCATE}}) {
        EXPECT_EQ(open(u"file", mode, &error), nullptr) << mode;
        EXPECT_EQ(error, G_IO_ARGUMENT) << mode;
        EXPECT_EQ(open(u"file", mode, nullptr), nullptr) << mode;
    }
}

TEST_F(FilesRefuse, FilesThatAreNotOpen) {
    for (GFile* const wrong : {static_cast<GFile*>(nullptr), file()}) {
        EXPECT_EQ(refuser<GPICloseFile>(49)(wrong), G_IO_HANDLE);
        EXPECT_EQ(refuser<GPIFlushAndCloseFile>(125)(wrong), G_IO_HANDLE);
        EXPECT_EQ(refuser<GPIReadFile>(50)(wrong, buffer_, 8, &done_), G_IO_HANDLE);
        EXPECT_EQ(refuser<GPIWriteFile>(51)(wrong, buffer_, 8, &done_), G_IO_HANDLE);
        EXPECT_EQ(refuser<GPISeekFile>(52)(wrong, 0, G_SEEK_START), G_IO_HANDLE);
        EXPECT_EQ(refuser<GPIReadLine>(65)(wrong, buffer_, 8), G_IO_HANDLE);
        EXPECT_EQ(refuser<GPIReadByte>(72)(wrong), G_IO_HANDLE);
    }
}

TEST_F(FilesRefuse, BuffersAndPositionsOutOfRange) {
    GFile* const open = service<GPIOpenFile>(48)(u"file", G_OPEN_READ | G_OPEN_WRITE, nullptr);
    ASSERT_NE(open, nullptr);
    EXPECT_EQ(refuser<GPIReadFile>(50)(open, nullptr, 8, &done_), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPIReadFile>(50)(open, buffer_, -1, &done_), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPIWriteFile>(51)(open, nullptr, 8, &done_), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPIWriteFile>(51)(open, buffer_, -1, &done_), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPISeekFile>(52)(open, 0, 3), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPISeekFile>(52)(open, 0, -1), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPISeekFile>(52)(open, -1, G_SEEK_START), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPIReadLine>(65)(open, nullptr, 8), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPIReadLine>(65)(open, buffer_, 1), G_IO_ARGUMENT);
    EXPECT_EQ(service<GPIReadByte>(72)(open), 'c'); // nothing has moved
    EXPECT_EQ(service<GPICloseFile>(49)(open), 1);
    EXPECT_EQ(refuser<GPICloseFile>(49)(open), G_IO_HANDLE);
}

TEST_F(FilesRefuse, NamesThatThereAreNot) {
    int32_t size = 0;
    uint32_t attributes = 0;
    EXPECT_EQ(refuser<GPIRenameFile>(120)(nullptr, u"b", 0), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPIRenameFile>(120)(u"file", nullptr, 0), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPIRenameFile>(120)(u"file", u"b", 2), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPIRemoveFile>(121)(nullptr, 0), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPIRemoveFile>(121)(u"file", 2), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPIGetFileAccess>(122)(nullptr, 0, &attributes), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPIGetFileAccess>(122)(u"none", 0, nullptr), G_IO_NOT_FOUND);
    EXPECT_EQ(refuser<GPIGetFileSize>(123)(nullptr, &size), G_IO_ARGUMENT);
    EXPECT_EQ(size, G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPIGetFileSize>(123)(u"file", nullptr), G_IO_ARGUMENT);
    EXPECT_EQ(service<GPIGetFileAccess>(122)(u"file", 0, nullptr), 1); // still there
}

TEST_F(FilesRefuse, FoldersThatThereAreNot) {
    GDirectoryEntry entry{};
    const auto list = refuser<GPIGetDirectory>(GPI_SERVICE_GET_DIRECTORY);
    EXPECT_EQ(list(nullptr, &entry, 1), G_IO_ARGUMENT);
    EXPECT_EQ(list(u"/", nullptr, 1), G_IO_ARGUMENT);
    EXPECT_EQ(list(u"/", &entry, -1), G_IO_ARGUMENT);
    EXPECT_EQ(list(u"none", &entry, 1), G_IO_NOT_FOUND);
}

TEST_F(FilesRefuse, PathsThatThereAreNotOrDoNotFit) {
    char16_t path[G_PATH_SIZE] = {u'x'};
    char16_t name[G_NAME_SIZE] = {u'x'};
    EXPECT_EQ(refuser<GPIMakePath>(63)(nullptr, u"C", u"a", u"b", u"c"), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPIMakePath>(63)(path, nullptr, nullptr, tooLong_.c_str(), nullptr),
              G_IO_TOO_LARGE);
    EXPECT_EQ(path[0], u'\0');
    EXPECT_EQ(refuser<GPISplitPath>(64)(nullptr, nullptr, nullptr, name, nullptr), G_IO_ARGUMENT);
    EXPECT_EQ(name[0], u'\0');
    EXPECT_EQ(refuser<GPISplitPath>(64)(tooLong_.c_str(), nullptr, nullptr, name, nullptr),
              G_IO_TOO_LARGE);
}

TEST_F(FilesRefuse, PicturesScalesAndSurfacesThatThereAreNot) {
    GJpegInfo info{};
    GVram surface{};
    const auto tell = refuser<GPIGetJpegInfo>(GPI_SERVICE_GET_JPEG_INFO);
    const auto load = refuser<GPILoadJpeg>(GPI_SERVICE_LOAD_JPEG);
    EXPECT_EQ(tell(nullptr, 1, &info), G_IO_ARGUMENT);
    EXPECT_EQ(tell(u"file", 1, nullptr), G_IO_ARGUMENT);
    EXPECT_EQ(load(nullptr, 1, &surface), G_IO_ARGUMENT);
    EXPECT_EQ(load(u"file", 1, nullptr), G_IO_ARGUMENT);
    for (const int32_t scale : {INT32_MIN, -1, 0, 3, 16, INT32_MAX}) {
        EXPECT_EQ(tell(u"file", scale, &info), G_IO_ARGUMENT) << scale;
        EXPECT_EQ(load(u"file", scale, &surface), G_IO_ARGUMENT) << scale;
    }
}

TEST_F(FilesRefuse, DataFilesOutOfRange) {
    int32_t error = 0;
    const auto open = refuser<GPIOpenDataFile>(GPI_SERVICE_OPEN_DATA_FILE);
    EXPECT_EQ(open(nullptr, G_OPEN_READ, 0, &error), nullptr);
    EXPECT_EQ(error, G_IO_ARGUMENT);
    EXPECT_EQ(open(u"file", 0, 0, &error), nullptr);
    EXPECT_EQ(error, G_IO_ARGUMENT);
    EXPECT_EQ(open(u"file", G_OPEN_READ, -2, &error), nullptr);
    EXPECT_EQ(error, G_IO_ARGUMENT);
    const auto create = refuser<GPICreateDataFile>(GPI_SERVICE_CREATE_DATA_FILE);
    EXPECT_EQ(create(nullptr, 1, 0, &error), nullptr);
    EXPECT_EQ(error, G_IO_ARGUMENT);
    EXPECT_EQ(create(u"new", -1, 0, &error), nullptr);
    EXPECT_EQ(error, G_IO_ARGUMENT);
    EXPECT_EQ(create(u"new", 1, G_OPEN_APPEND, &error), nullptr);
    EXPECT_EQ(error, G_IO_ARGUMENT);
    EXPECT_EQ(create(u"file", 1, 0, &error), nullptr);
    EXPECT_EQ(error, G_IO_EXISTS);
}

TEST_F(FilesRefuse, DataFilesThatAreNotOpen) {
    for (GDataFile* const wrong : {static_cast<GDataFile*>(nullptr), dataFile()}) {
        EXPECT_EQ(refuser<GPICloseDataFile>(131)(wrong), G_IO_HANDLE);
        EXPECT_EQ(refuser<GPIReadDataFile>(130)(wrong, buffer_, 8, &done_), G_IO_HANDLE);
        EXPECT_EQ(refuser<GPIWriteDataFile>(134)(wrong, buffer_, 8, &done_), G_IO_HANDLE);
        EXPECT_EQ(refuser<GPISeekDataFile>(132)(wrong, 0, G_SEEK_START), G_IO_HANDLE);
    }
    GDataFile* const open = service<GPIOpenDataFile>(129)(u"file", G_OPEN_READ, 0, nullptr);
    ASSERT_NE(open, nullptr);
    EXPECT_EQ(refuser<GPIReadDataFile>(130)(open, nullptr, 8, &done_), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPIReadDataFile>(130)(open, buffer_, -1, &done_), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPISeekDataFile>(132)(open, 0, 3), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPICloseFile>(49)(reinterpret_cast<GFile*>(open)), G_IO_HANDLE);
    EXPECT_EQ(service<GPICloseDataFile>(131)(open), 1);
}

TEST_F(FilesRefuse, DataFileNamesThatThereAreNot) {
    uint32_t low = 0;
    int32_t error = 0;
    const auto tell = refuser<GPIGetDataFileSize>(GPI_SERVICE_GET_DATA_FILE_SIZE);
    EXPECT_EQ(tell(nullptr, &low, nullptr, &error), G_IO_ARGUMENT);
    EXPECT_EQ(error, G_IO_ARGUMENT);
    EXPECT_EQ(tell(u"file", nullptr, nullptr, &error), G_IO_ARGUMENT);
    EXPECT_EQ(tell(u"none", &low, nullptr, nullptr), G_IO_NOT_FOUND);
    EXPECT_EQ(refuser<GPIRenameDataFile>(135)(nullptr, u"b", 0), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPIRenameDataFile>(135)(u"file", nullptr, 0), G_IO_ARGUMENT);
    EXPECT_EQ(refuser<GPIRemoveDataFile>(136)(nullptr, 0), G_IO_ARGUMENT);
}

} // namespace
