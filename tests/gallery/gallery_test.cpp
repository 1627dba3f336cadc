// The sheets of the gallery against the pictures that someone looked at.
#include "host_fonts.h"
#include "rgb_image.h"
#include "scratch.h"
#include "sheet.h"

#include "page.h"
#include "support/recording_platform.h"

#include <quarlo/quarlo.h>

#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>

namespace quarlo::test {
namespace {

constexpr const char* kReviewed = GALLERY_REVIEWED;
constexpr const char* kFailures = GALLERY_FAILURES;
constexpr const char* kDocument = GALLERY_DOCUMENT;

std::string nameOf(size_t sheet) {
    return std::string(gallery::sheets()[sheet].name);
}

std::filesystem::path reviewedPath(size_t sheet) {
    return std::filesystem::path(kReviewed) / (nameOf(sheet) + ".png");
}

/// What holds for every sheet.
class GallerySheet : public testing::TestWithParam<size_t> {
  protected:
    GallerySheet() { platform_.addDisplay(0, display_); }

    ~GallerySheet() override {
        GVram* const surface = GDGetVram(handle_);
        GDCloseDrawHandle(handle_);
        GDDeleteVram(surface);
    }

    void SetUp() override {
        auto reviewed = readPng(reviewedPath(GetParam()));
        ASSERT_TRUE(reviewed) << reviewedPath(GetParam()) << " cannot be read";
        reviewed_ = *reviewed;
        handle_ = GDOpenDrawHandle(0, 0);
        ASSERT_NE(handle_, nullptr);
    }

    /// Draws the sheet on a memory surface.
    void drawOn(GVram format) {
        format.width = gallery::kPageWidth;
        format.height = gallery::kPageHeight;
        ASSERT_NE(GDSetVram(handle_, G_MEMORY_SURFACE, GDCreateVram(&format)), 0);
        drawInColor();
    }

    void drawInColor() {
        const GVram& surface = *GDGetVram(handle_);
        GDSetColorMode(handle_, 1, surface.redMask, surface.greenMask, surface.blueMask);
        gallery::drawSheet(handle_, GetParam());
    }

    /// The drawn sheet has the reviewed one's pixels, as far as a format can tell them apart.
    testing::AssertionResult isAsReviewed(const std::string& how, ChannelBits bits) const {
        return sameImage(imageOf(*GDGetVram(handle_)), truncated(reviewed_, bits), kFailures,
                         nameOf(GetParam()) + how);
    }

    RecordingPlatform platform_;
    HostFonts fonts_{platform_};
    GuardedSurface display_{gallery::kPageWidth, gallery::kPageHeight, 24};
    GDrawHandle* handle_ = nullptr;
    RgbImage reviewed_;
};

TEST_P(GallerySheet, IsAsReviewed) {
    drawOn(gallery::format24());
    EXPECT_TRUE(isAsReviewed("", {8, 8, 8}));
}

// Copying, AND, OR and XOR treat every bit alone, so that a narrower format shows the upper bits
// of the same picture.
TEST_P(GallerySheet, IsTheSameIn8Bits) {
    drawOn(gallery::format8());
    EXPECT_TRUE(isAsReviewed("-8", {3, 3, 2}));
}

TEST_P(GallerySheet, IsTheSameIn555) {
    drawOn(gallery::format555());
    EXPECT_TRUE(isAsReviewed("-555", {5, 5, 5}));
}

TEST_P(GallerySheet, IsTheSameIn565) {
    drawOn(gallery::format565());
    EXPECT_TRUE(isAsReviewed("-565", {5, 6, 5}));
}

TEST_P(GallerySheet, IsTheSameOnADeviceSurface) {
    GuardedSurface page(gallery::kPageWidth, gallery::kPageHeight, 24);
    platform_.addDisplay(1, page);
    platform_.recordOperations(false);
    ASSERT_NE(GDSetVram(handle_, 1, nullptr), 0);
    drawInColor();
    EXPECT_TRUE(isAsReviewed("-device", {8, 8, 8}));
    EXPECT_TRUE(page.memory().intact());
    ASSERT_NE(GDSetVram(handle_, 0, nullptr), 0);
}

INSTANTIATE_TEST_SUITE_P(All, GallerySheet, testing::Range(size_t{0}, gallery::sheets().size()),
                         [](const auto& sheet) {
                             std::string name = nameOf(sheet.param);
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

TEST(Gallery, HasNoPictureWithoutASheet) {
    std::set<std::string> sheets;
    for (size_t i = 0; i < gallery::sheets().size(); ++i) {
        sheets.insert(reviewedPath(i).filename());
    }
    std::set<std::string> pictures;
    for (const auto& entry : std::filesystem::directory_iterator(kReviewed)) {
        pictures.insert(entry.path().filename());
    }
    EXPECT_EQ(pictures, sheets);
}

TEST(Gallery, IsShownInItsDocument) {
    std::ifstream file(kDocument);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    for (size_t i = 0; i < gallery::sheets().size(); ++i) {
        EXPECT_NE(text.find("(gallery/" + nameOf(i) + ".png)"), std::string::npos) << nameOf(i);
    }
}

} // namespace
} // namespace quarlo::test
