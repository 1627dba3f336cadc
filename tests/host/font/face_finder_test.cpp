#include "font/built_in_faces.h"
#include "font/face_finder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using gpi::FaceFile;
using gpi::faceFileOf;

TEST(FaceFile, NamesAFaceOfACollection) {
    EXPECT_EQ(faceFileOf("/a/b.ttf"), (FaceFile{"/a/b.ttf", 0}));
    EXPECT_EQ(faceFileOf("/a/b.ttc#2"), (FaceFile{"/a/b.ttc", 2}));
    EXPECT_EQ(faceFileOf("/a/#b.ttf"), (FaceFile{"/a/#b.ttf", 0}));
    EXPECT_EQ(faceFileOf("/a/b.ttf#"), (FaceFile{"/a/b.ttf#", 0}));
    EXPECT_EQ(faceFileOf("/a/b.ttc#1x"), (FaceFile{"/a/b.ttc#1x", 0}));
}

TEST(FaceFinder, KnowsFamiliesByName) {
    gpi::FaceFinder finder;
    const auto mono = finder.find("DejaVu Sans Mono");
    ASSERT_TRUE(mono);
    EXPECT_EQ(std::filesystem::path(mono->path).filename(), "DejaVuSansMono.ttf");
    EXPECT_EQ(finder.find("dejavu sans mono"), mono);
    EXPECT_GE(finder.count(), 2);
}

TEST(FaceFinder, DoesNotTakeAnotherFaceInstead) {
    gpi::FaceFinder finder;
    EXPECT_FALSE(finder.find("No Such Family"));
    EXPECT_FALSE(finder.find("DejaVu Sans Mono "));
    EXPECT_FALSE(finder.find("sans-serif"));
}

TEST(BuiltInFaces, ComeFromTheSettingsFirst) {
    gpi::Settings settings;
    settings.panelFont = "/nowhere/panel.pcf";
    settings.chineseFont = "/nowhere/song.ttc#3";
    const auto faces = gpi::chooseBuiltInFaces(settings);
    EXPECT_EQ(faces.panel, (FaceFile{"/nowhere/panel.pcf", 0}));
    EXPECT_EQ(faces.chinese, (FaceFile{"/nowhere/song.ttc", 3}));
    EXPECT_TRUE(std::filesystem::exists(faces.japanese.path)) << faces.japanese.path;
}

} // namespace
