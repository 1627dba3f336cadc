// The finder of pages, on the fonts of this system.
#include "font/face_finder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

TEST(FolderFaceFinder, KnowsFamiliesByName) {
    gpi::FaceFinder finder;
    const auto mono = finder.find("DejaVu Sans Mono");
    ASSERT_TRUE(mono);
    EXPECT_EQ(std::filesystem::path(mono->path).filename(), "DejaVuSansMono.ttf");
    EXPECT_EQ(finder.find("dejavu sans mono"), mono);
    EXPECT_GE(finder.count(), 2);
}

TEST(FolderFaceFinder, KnowsTheFacesOfACollection) {
    gpi::FaceFinder finder;
    const auto proportional = finder.find("WenQuanYi Zen Hei");
    const auto fixed = finder.find("WenQuanYi Zen Hei Mono");
    ASSERT_TRUE(proportional && fixed);
    EXPECT_EQ(fixed->path, proportional->path);
    EXPECT_NE(fixed->index, proportional->index);
}

TEST(FolderFaceFinder, DoesNotTakeAnotherFaceInstead) {
    gpi::FaceFinder finder;
    EXPECT_FALSE(finder.find(""));
    EXPECT_FALSE(finder.find("No Such Family"));
    EXPECT_FALSE(finder.find("DejaVu Sans Mono "));
}

} // namespace
