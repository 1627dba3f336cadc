// What a program's path means, and that none leads out of the root.
#include "file_root.h"

#include <quarlo/file.h>

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using namespace gpi::test;
namespace fs = std::filesystem;

const auto openFile = service<GPIOpenFile>(GPI_SERVICE_OPEN_FILE);
const auto closeFile = service<GPICloseFile>(GPI_SERVICE_CLOSE_FILE);
const auto renameFile = service<GPIRenameFile>(GPI_SERVICE_RENAME_FILE);
const auto removeFile = service<GPIRemoveFile>(GPI_SERVICE_REMOVE_FILE);
const auto getSize = service<GPIGetFileSize>(GPI_SERVICE_GET_FILE_SIZE);
const auto getAccess = service<GPIGetFileAccess>(GPI_SERVICE_GET_FILE_ACCESS);
const auto getDirectory = service<GPIGetDirectory>(GPI_SERVICE_GET_DIRECTORY);

class Root : public testing::Test {
  protected:
    Root() {
        fs::create_directories(root.path("programs/old"));
        root.write("programs/a.nc", "inside");
        outside.write("secret", "outside!");
    }

    static int32_t size(const char16_t* path) {
        int32_t bytes = 0;
        getSize(path, &bytes);
        return bytes;
    }

    FileRoot root;
    TemporaryFolder outside;
};

TEST_F(Root, TakesEveryWayToWriteAPath) {
    for (const char16_t* const path :
         {u"programs/a.nc", u"/programs/a.nc", u"\\programs\\a.nc", u"C:\\programs\\a.nc",
          u"d:programs/a.nc", u"programs/./a.nc", u"programs//a.nc", u"programs\\old/..\\a.nc",
          u"//programs/a.nc", u"C:/programs/old/../../programs/a.nc"}) {
        EXPECT_EQ(size(path), 6) << fs::path(path);
    }
}

TEST_F(Root, TakesTextOfEveryScript) {
    root.write("\xE5\x8A\xA0\xE5\xB7\xA5\xF0\xA0\xAE\xB7.nc", "12345");
    EXPECT_EQ(size(u"\u52A0\u5DE5\U00020BB7.nc"), 5);
}

TEST_F(Root, IsNotLeftByDots) {
    const std::string up = "../" + fs::path(outside.path()).filename().string() + "/secret";
    const std::u16string path = fs::path(up).u16string();
    EXPECT_EQ(size(path.c_str()), G_IO_DENIED);
    EXPECT_EQ(size((u"programs/../" + path).c_str()), G_IO_DENIED);
    EXPECT_EQ(size((u"C:\\" + path).c_str()), G_IO_DENIED);
    EXPECT_EQ(size(u".."), G_IO_DENIED);
    EXPECT_EQ(getDirectory(u"..", nullptr, 0), G_IO_DENIED);
}

TEST_F(Root, IsNotLeftByAbsoluteNames) {
    EXPECT_EQ(size(fs::path(outside.path("secret")).u16string().c_str()), G_IO_NOT_FOUND);
}

TEST_F(Root, IsNotLeftByLinks) {
    fs::create_symlink(outside.path("secret"), root.path("link"));
    fs::create_directory_symlink(outside.path(), root.path("folder"));
    fs::create_symlink(outside.path("new"), root.path("dangling"));
    EXPECT_EQ(size(u"link"), G_IO_DENIED);
    EXPECT_EQ(size(u"folder/secret"), G_IO_DENIED);
    EXPECT_EQ(getDirectory(u"folder", nullptr, 0), G_IO_DENIED);
    EXPECT_EQ(getAccess(u"link", 0, nullptr), G_IO_DENIED);
    EXPECT_EQ(renameFile(u"programs/a.nc", u"folder/stolen", 0), G_IO_DENIED);
    EXPECT_EQ(removeFile(u"folder/secret", 0), G_IO_DENIED);
    int32_t error = 0;
    EXPECT_EQ(openFile(u"dangling", G_OPEN_WRITE | G_OPEN_CREATE, &error), nullptr);
    EXPECT_EQ(error, G_IO_DENIED);
    EXPECT_TRUE(fs::exists(outside.path("secret")));
    EXPECT_FALSE(fs::exists(outside.path("new")));
}

TEST_F(Root, FollowsLinksThatStayInside) {
    fs::create_symlink("a.nc", root.path("programs/current"));
    fs::create_directory_symlink("programs", root.path("p"));
    EXPECT_EQ(size(u"p/current"), 6);
}

TEST_F(Root, RemovesAndRenamesLinksThemselves) {
    fs::create_symlink(outside.path("secret"), root.path("link"));
    EXPECT_EQ(renameFile(u"link", u"other", 0), 1);
    EXPECT_EQ(removeFile(u"other", 0), 1);
    EXPECT_TRUE(fs::exists(outside.path("secret")));
    EXPECT_FALSE(fs::is_symlink(root.path("other")));
}

TEST_F(Root, CannotBeRemovedOrRenamed) {
    EXPECT_EQ(removeFile(u"", G_REMOVE_DIRECTORY), G_IO_ARGUMENT);
    EXPECT_EQ(removeFile(u"programs/..", G_REMOVE_DIRECTORY), G_IO_ARGUMENT);
    EXPECT_EQ(renameFile(u"/", u"other", 0), G_IO_ARGUMENT);
    EXPECT_TRUE(fs::exists(root.path("programs/a.nc")));
}

TEST_F(Root, RefusesWhatIsNoPath) {
    EXPECT_EQ(size(nullptr), G_IO_ARGUMENT);
    const char16_t half[] = {u'a', 0xD800, u'b', 0};
    EXPECT_EQ(size(half), G_IO_ARGUMENT);
    EXPECT_EQ(size(std::u16string(G_PATH_SIZE, u'a').c_str()), G_IO_TOO_LARGE);
    EXPECT_EQ(size(std::u16string(G_PATH_SIZE - 1, u'a').c_str()), G_IO_TOO_LARGE); // for the disk
    EXPECT_EQ(size(u"programs/a.nc/b"), G_IO_NOT_FOUND);
}

TEST(RootThatIsNotThere, FindsNothing) {
    const StartedPlatform platform{{"QUARLO_FILES", "/no/such/folder"}};
    int32_t size = 0;
    EXPECT_EQ(getSize(u"a", &size), G_IO_NOT_FOUND);
    EXPECT_EQ(size, G_IO_NOT_FOUND);
}

} // namespace
