#include "support/started_platform.h"

#include <quarlo/file.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace gpi::test;

const auto makePath = service<GPIMakePath>(GPI_SERVICE_MAKE_PATH);
const auto splitPath = service<GPISplitPath>(GPI_SERVICE_SPLIT_PATH);

std::u16string made(const char16_t* drive, const char16_t* directory, const char16_t* name,
                    const char16_t* extension) {
    char16_t path[G_PATH_SIZE];
    EXPECT_EQ(makePath(path, drive, directory, name, extension), 1);
    return path;
}

TEST(Path, IsPutTogether) {
    EXPECT_EQ(made(u"C", u"\\nc", u"part", u"txt"), u"C:\\nc\\part.txt");
    EXPECT_EQ(made(u"C:", u"\\nc\\", u"part", u".txt"), u"C:\\nc\\part.txt");
    EXPECT_EQ(made(nullptr, u"nc/", u"part", nullptr), u"nc/part");
    EXPECT_EQ(made(u"", u"", u"part", u""), u"part");
    EXPECT_EQ(made(nullptr, nullptr, nullptr, nullptr), u"");
}

TEST(Path, StaysEmptyWhenItDoesNotFit) {
    char16_t path[G_PATH_SIZE] = u"old";
    const std::u16string name(G_PATH_SIZE - 1, u'n');
    EXPECT_EQ(makePath(path, nullptr, nullptr, name.c_str(), nullptr), 1);
    EXPECT_EQ(path, name);
    EXPECT_EQ(makePath(path, u"C", nullptr, name.c_str(), nullptr), G_IO_TOO_LARGE);
    EXPECT_EQ(path[0], u'\0');
    EXPECT_EQ(makePath(nullptr, u"C", nullptr, nullptr, nullptr), G_IO_ARGUMENT);
}

struct Parts {
    char16_t drive[G_DRIVE_SIZE] = u"?";
    char16_t directory[G_DIRECTORY_SIZE] = u"?";
    char16_t name[G_NAME_SIZE] = u"?";
    char16_t extension[G_NAME_SIZE] = u"?";

    int32_t split(const std::u16string& path) {
        return splitPath(path.c_str(), drive, directory, name, extension);
    }
    std::u16string all() const {
        return std::u16string(drive) + u'|' + directory + u'|' + name + u'|' + extension;
    }
};

TEST(Path, IsTakenApart) {
    const struct {
        const char16_t* path;
        const char16_t* parts;
    } cases[] = {
        {u"C:\\nc\\part.txt", u"C:|\\nc\\|part|.txt"},
        {u"part", u"||part|"},
        {u"a.b.c", u"||a.b|.c"},
        {u"x/y.z/part", u"|x/y.z/|part|"},
        {u"d:part.", u"d:||part|."},
        {u"\\", u"|\\||"},
        {u"", u"|||"},
        {u".hidden", u"|||.hidden"},
        {u"1:part", u"||1:part|"},
    };
    for (const auto& known : cases) {
        Parts parts;
        EXPECT_EQ(parts.split(known.path), 1);
        EXPECT_EQ(parts.all(), known.parts);
    }
}

TEST(Path, IsTakenApartOnlyAsFarAsWanted) {
    char16_t name[G_NAME_SIZE];
    EXPECT_EQ(splitPath(u"C:\\nc\\part.txt", nullptr, nullptr, name, nullptr), 1);
    EXPECT_EQ(std::u16string(name), u"part");
    EXPECT_EQ(splitPath(u"C:\\nc\\part.txt", nullptr, nullptr, nullptr, nullptr), 1);
}

TEST(Path, LeavesEmptyPartsWhenOneDoesNotFit) {
    Parts parts;
    EXPECT_EQ(parts.split(u"C:\\" + std::u16string(G_NAME_SIZE, u'n')), G_IO_TOO_LARGE);
    EXPECT_EQ(parts.all(), u"|||");
    EXPECT_EQ(parts.split(std::u16string(G_PATH_SIZE, u'n')), G_IO_TOO_LARGE);
    EXPECT_EQ(splitPath(nullptr, parts.drive, nullptr, nullptr, nullptr), G_IO_ARGUMENT);
    EXPECT_EQ(splitPath((u"C:" + std::u16string(G_NAME_SIZE - 1, u'n')).c_str(), parts.drive,
                        nullptr, nullptr, nullptr),
              1);
}

} // namespace
