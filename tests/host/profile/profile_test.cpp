#include "support/started_platform.h"

#include <quarlo/file.h>
#include <quarlo/profile.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

using namespace gpi::test;
namespace fs = std::filesystem;

const auto getInt = service<GPIGetProfileInt>(GPI_SERVICE_GET_PROFILE_INT);
const auto getIntEx = service<GPIGetProfileIntEx>(GPI_SERVICE_GET_PROFILE_INT_EX);
const auto getString = service<GPIGetProfileString>(GPI_SERVICE_GET_PROFILE_STRING);
const auto getStringEx = service<GPIGetProfileStringEx>(GPI_SERVICE_GET_PROFILE_STRING_EX);
const auto setString = service<GPISetProfileString>(GPI_SERVICE_SET_PROFILE_STRING);

constexpr const char16_t* kFile = u"Config.ini";

class Profile : public testing::Test {
  protected:
    Profile() { folder.write("Config.ini", "[A]\nx = maker\nn = 12\n[B]\ny = \xE4\xB8\xBB\n"); }

    static std::u16string text(const char16_t* section, const char16_t* key,
                               uint32_t layer = G_PROFILE_ANY) {
        char16_t value[100];
        const int32_t units = getString(section, key, u"none", value, 100, layer, kFile);
        EXPECT_GE(units, 0);
        return {value, static_cast<size_t>(std::max(units, 0))};
    }
    static int32_t set(const char16_t* section, const char16_t* key, const char16_t* value,
                       uint32_t layer = G_PROFILE_USER) {
        return setString(section, key, value, layer, kFile);
    }

    TemporaryFolder folder;
    TemporaryFolder user;
    StartedPlatform platform{{"QUARLO_PROFILES", folder.path()},
                             {"QUARLO_USER_PROFILES", user.path("new/folder")}};
};

TEST_F(Profile, GivesTheUsersValueElseTheMakers) {
    EXPECT_EQ(text(u"A", u"x"), u"maker");
    EXPECT_EQ(text(u"a", u"X", G_PROFILE_USER), u"none");
    EXPECT_EQ(set(u"A", u"x", u"user"), 1);
    EXPECT_EQ(text(u"A", u"x"), u"user");
    EXPECT_EQ(text(u"A", u"x", G_PROFILE_MAKER), u"maker");
    EXPECT_EQ(set(u"A", u"x", nullptr, G_PROFILE_ANY), 1);
    EXPECT_EQ(text(u"A", u"x"), u"maker");
    EXPECT_EQ(text(u"B", u"y"), u"\u4E3B");
}

TEST_F(Profile, IsReadAnewWhenItHasChanged) {
    EXPECT_EQ(text(u"A", u"x"), u"maker");
    folder.write("Config.ini", "[A]\nx = changed behind its back\n");
    EXPECT_EQ(text(u"A", u"x"), u"changed behind its back");
    fs::remove(folder.path("Config.ini"));
    EXPECT_EQ(text(u"A", u"x"), u"none");
}

TEST_F(Profile, GivesNumbers) {
    const struct {
        const char16_t* text;
        int32_t number;
    } cases[] = {{u"12", 12},
                 {u"-12 mm", -12},
                 {u"+7", 7},
                 {u"0x1F", 31},
                 {u"0XffffffFF", -1},
                 {u"-0x10", -16},
                 {u"010", 10},
                 {u"2147483647", INT32_MAX},
                 {u"99999999999999999999", INT32_MAX},
                 {u"-99999999999999999999", INT32_MIN},
                 {u"-2147483649", INT32_MIN},
                 {u"", 77},
                 {u"x", 77},
                 {u"-", 77},
                 {u"0x", 77}};
    for (const auto& known : cases) {
        ASSERT_EQ(set(u"A", u"n", known.text), 1);
        EXPECT_EQ(getIntEx(u"A", u"n", 77, kFile), known.number) << fs::path(known.text);
    }
    EXPECT_EQ(getInt(u"A", u"n", 77, G_PROFILE_MAKER, kFile), 12);
    EXPECT_EQ(getInt(u"A", u"n", 77, 2, kFile), 77);
    EXPECT_EQ(getInt(u"A", u"none", 77, G_PROFILE_ANY, kFile), 77);
    EXPECT_EQ(getInt(nullptr, u"n", 77, G_PROFILE_ANY, kFile), 77);
}

TEST_F(Profile, CutsValuesToWhatFits) {
    set(u"A", u"x", u"ab\U00020BB7");
    char16_t value[5] = u"????";
    EXPECT_EQ(getStringEx(u"A", u"x", u"", value, 5, kFile), 4);
    EXPECT_EQ(getStringEx(u"A", u"x", u"", value, 4, kFile), 2);
    EXPECT_EQ(std::u16string(value), u"ab");
    EXPECT_EQ(getStringEx(u"A", u"x", u"", value, 1, kFile), 0);
    EXPECT_EQ(getStringEx(u"A", u"?", u"fallback", value, 5, kFile), 4);
    EXPECT_EQ(std::u16string(value), u"fall");
    EXPECT_EQ(getStringEx(u"A", u"?", nullptr, value, 5, kFile), 0);
    EXPECT_EQ(getStringEx(u"A", u"x", u"", nullptr, 5, kFile), G_IO_ARGUMENT);
    EXPECT_EQ(getStringEx(u"A", u"x", u"", value, 0, kFile), G_IO_ARGUMENT);
}

TEST_F(Profile, ListsSectionsAndKeys) {
    using namespace std::string_literals;
    set(u"A", u"User", u"1");
    set(u"C", u"c", u"1");
    EXPECT_EQ(text(nullptr, nullptr), u"A\0B\0C\0"s);
    EXPECT_EQ(text(u"A", nullptr), u"x\0n\0User\0"s);
    EXPECT_EQ(text(u"A", nullptr, G_PROFILE_USER), u"User\0"s);
    EXPECT_EQ(text(u"none", nullptr), u"");
    char16_t list[5] = u"????";
    EXPECT_EQ(getStringEx(nullptr, nullptr, nullptr, list, 5, kFile), 4);
    EXPECT_EQ(std::u16string(list, 5), u"A\0B\0\0"s);
    EXPECT_EQ(getStringEx(nullptr, nullptr, nullptr, list, 4, kFile), 3);
    EXPECT_EQ(std::u16string(list, 4), u"A\0\0\0"s);
}

TEST_F(Profile, RefusesWhatItCannotHold) {
    EXPECT_EQ(set(u"A", u"x", u"1", G_PROFILE_MAKER), G_IO_READ_ONLY);
    EXPECT_EQ(set(u"A", u"x", u"1", 2), G_IO_ARGUMENT);
    EXPECT_EQ(set(nullptr, u"x", u"1"), G_IO_ARGUMENT);
    EXPECT_EQ(set(u"A", u"x", u"two\nlines"), G_IO_ARGUMENT);
    EXPECT_EQ(set(u"A", u"x=", u"1"), G_IO_ARGUMENT);
    EXPECT_EQ(set(u"A]", u"x", u"1"), G_IO_ARGUMENT);
    EXPECT_EQ(set(u"", u"x", u"1"), G_IO_ARGUMENT);
    EXPECT_FALSE(fs::exists(user.path("new")));
    for (const char16_t* const file :
         {u"../Config.ini", u"a/b", u"a\\b", u"C:a", u"", u".hidden"}) {
        char16_t value[4];
        EXPECT_EQ(setString(u"A", u"x", u"1", G_PROFILE_USER, file), G_IO_DENIED);
        EXPECT_EQ(getStringEx(u"A", u"x", nullptr, value, 4, file), G_IO_DENIED);
    }
    EXPECT_EQ(setString(u"A", u"x", u"1", G_PROFILE_USER, nullptr), G_IO_ARGUMENT);
}

TEST_F(Profile, RemovesASection) {
    set(u"A", u"x", u"1");
    set(u"C", u"c", u"1");
    EXPECT_EQ(set(u"A", nullptr, nullptr), 1);
    EXPECT_EQ(text(nullptr, nullptr, G_PROFILE_USER), std::u16string(u"C\0", 2));
}

TEST_F(Profile, LeavesTheOldFileWhenTheNewOneCannotBeWritten) {
    set(u"A", u"x", u"old");
    // A folder in the new file's place makes the writing fail.
    fs::create_directory(user.path("new/folder/Config.ini.new"));
    EXPECT_LT(set(u"A", u"x", u"new"), 0);
    EXPECT_EQ(text(u"A", u"x"), u"old");
    fs::remove(user.path("new/folder/Config.ini.new"));
    folder.write("half", "");
    EXPECT_EQ(set(u"A", u"x", u"new"), 1);
    EXPECT_EQ(text(u"A", u"x"), u"new");
}

TEST_F(Profile, DiscardsWhatAPowerCutLeft) {
    set(u"A", u"x", u"old");
    user.write("new/folder/Config.ini.new", "[A]\nx = hal");
    EXPECT_EQ(text(u"A", u"x"), u"old");
    EXPECT_EQ(set(u"A", u"y", u"1"), 1);
    EXPECT_EQ(text(u"A", u"x"), u"old");
    EXPECT_FALSE(fs::exists(user.path("new/folder/Config.ini.new")));
}

TEST_F(Profile, TellsOfDamage) {
    folder.write("Config.ini", "[A]\nx = \xFF\n");
    char16_t value[4];
    EXPECT_EQ(getStringEx(u"A", u"x", u"", value, 4, kFile), G_IO_DAMAGED);
    EXPECT_EQ(getIntEx(u"A", u"n", 77, kFile), 77);
    folder.write("Config.ini", std::string((1 << 20) + 1, ';'));
    EXPECT_EQ(getStringEx(u"A", u"x", u"", value, 4, kFile), G_IO_TOO_LARGE);
}

TEST(ProfilesOfAStoppedPlatform, AreRefused) {
    char16_t value[4];
    EXPECT_EQ(getStringEx(u"A", u"x", u"", value, 4, kFile), G_IO_DEVICE);
    EXPECT_EQ(getIntEx(u"A", u"x", 5, kFile), 5);
    EXPECT_EQ(setString(u"A", u"x", u"", G_PROFILE_USER, kFile), G_IO_DEVICE);
}

} // namespace
