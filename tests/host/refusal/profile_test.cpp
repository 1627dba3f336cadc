// Profiles.
#include "refusing.h"

#include <gtest/gtest.h>

namespace {

using namespace gpi::test;

constexpr uint32_t kNoLayer = 2;

class ProfilesRefuse : public testing::Test {
  protected:
    const TemporaryFolder folder_;
    const StartedPlatform platform_{{"QUARLO_PROFILES", folder_.path()},
                                    {"QUARLO_USER_PROFILES", folder_.path()}};
    char16_t value_[8] = {u'x'};
};

TEST_F(ProfilesRefuse, ToReadNumbersOfNoName) {
    const auto read = refuser<GPIGetProfileInt>(GPI_SERVICE_GET_PROFILE_INT);
    EXPECT_EQ(read(nullptr, u"k", 5, G_PROFILE_ANY, u"f.ini"), 5);
    EXPECT_EQ(read(u"s", nullptr, 5, G_PROFILE_ANY, u"f.ini"), 5);
    EXPECT_EQ(read(u"s", u"k", 5, G_PROFILE_ANY, nullptr), 5);
    EXPECT_EQ(read(u"s", u"k", 5, G_PROFILE_ANY, u"../f.ini"), 5);
    EXPECT_EQ(read(u"s", u"k", 5, kNoLayer, u"f.ini"), 5);
    const auto readEx = refuser<GPIGetProfileIntEx>(GPI_SERVICE_GET_PROFILE_INT_EX);
    EXPECT_EQ(readEx(nullptr, u"k", 5, u"f.ini"), 5);
    EXPECT_EQ(readEx(u"s", nullptr, 5, u"f.ini"), 5);
    EXPECT_EQ(readEx(u"s", u"k", 5, nullptr), 5);
}

TEST_F(ProfilesRefuse, ToReadValuesIntoNoRoom) {
    const auto read = refuser<GPIGetProfileString>(GPI_SERVICE_GET_PROFILE_STRING);
    EXPECT_EQ(read(u"s", u"k", u"d", nullptr, 8, G_PROFILE_ANY, u"f.ini"), G_IO_ARGUMENT);
    EXPECT_EQ(read(u"s", u"k", u"d", value_, 0, G_PROFILE_ANY, u"f.ini"), G_IO_ARGUMENT);
    EXPECT_EQ(read(u"s", u"k", u"d", value_, -1, G_PROFILE_ANY, u"f.ini"), G_IO_ARGUMENT);
    EXPECT_EQ(value_[0], u'x');
    EXPECT_EQ(read(u"s", u"k", u"d", value_, 8, G_PROFILE_ANY, nullptr), G_IO_ARGUMENT);
    EXPECT_EQ(read(u"s", u"k", u"d", value_, 8, kNoLayer, u"f.ini"), G_IO_ARGUMENT);
    const auto readEx = refuser<GPIGetProfileStringEx>(GPI_SERVICE_GET_PROFILE_STRING_EX);
    EXPECT_EQ(readEx(u"s", u"k", u"d", nullptr, 8, u"f.ini"), G_IO_ARGUMENT);
    EXPECT_EQ(readEx(u"s", u"k", u"d", value_, 0, u"f.ini"), G_IO_ARGUMENT);
    EXPECT_EQ(readEx(u"s", u"k", u"d", value_, 8, nullptr), G_IO_ARGUMENT);
}

TEST_F(ProfilesRefuse, ToWriteWhereItCannotBe) {
    const auto write = refuser<GPISetProfileString>(GPI_SERVICE_SET_PROFILE_STRING);
    EXPECT_EQ(write(nullptr, u"k", u"v", G_PROFILE_USER, u"f.ini"), G_IO_ARGUMENT);
    EXPECT_EQ(write(u"s", u"k", u"v", G_PROFILE_USER, nullptr), G_IO_ARGUMENT);
    EXPECT_EQ(write(u"s", u"k", u"v", kNoLayer, u"f.ini"), G_IO_ARGUMENT);
    EXPECT_EQ(write(u"s", u"k", u"v\nw", G_PROFILE_USER, u"f.ini"), G_IO_ARGUMENT);
    EXPECT_EQ(write(u"s", u"k", u"v", G_PROFILE_MAKER, u"f.ini"), G_IO_READ_ONLY);
    EXPECT_EQ(service<GPIGetFileAccess>(122)(u"f.ini", 0, nullptr), G_IO_NOT_FOUND);
}

} // namespace
