// What the gallery's program wrote into a folder for each format of its display: the reviewed
// pictures, as far as the format can tell them apart.
#include "rgb_image.h"
#include "sheet.h"

#include <filesystem>
#include <string>

namespace quarlo::test {
namespace {

struct DisplayFormat {
    const char* name;
    ChannelBits bits;
};

std::ostream& operator<<(std::ostream& out, const DisplayFormat& format) {
    return out << format.name;
}

class GalleryProgram : public testing::TestWithParam<DisplayFormat> {};

TEST_P(GalleryProgram, WritesTheReviewedPictures) {
    const auto& [format, bits] = GetParam();
    const auto folder = std::filesystem::path(GALLERY_PROGRAM_PICTURES) / format;
    for (const gallery::Sheet& sheet : gallery::sheets()) {
        const std::string name(sheet.name);
        const auto written = readPng(folder / (name + ".png"));
        const auto reviewed = readPng(std::filesystem::path(GALLERY_REVIEWED) / (name + ".png"));
        ASSERT_TRUE(written && reviewed) << name << ".png cannot be read";
        EXPECT_TRUE(sameImage(truncated(*written, bits), truncated(*reviewed, bits),
                              GALLERY_FAILURES, name + "-program-" + format));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Formats, GalleryProgram,
    testing::Values(DisplayFormat{"8", {3, 3, 2}}, DisplayFormat{"555", {5, 5, 5}},
                    DisplayFormat{"565", {5, 6, 5}}, DisplayFormat{"24", {8, 8, 8}}),
    [](const auto& format) { return "Format" + std::string(format.param.name); });

} // namespace
} // namespace quarlo::test
