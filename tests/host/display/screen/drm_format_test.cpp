#include "display/screen/drm_format.h"

#include <drm_fourcc.h>
#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace gpi;

uint32_t best(const std::vector<uint32_t>& offered) {
    const auto format = bestFormat(offered);
    return format ? format->code : 0;
}

TEST(DrmFormat, IsTheBestOfThoseOffered) {
    EXPECT_EQ(best({DRM_FORMAT_RGB565, DRM_FORMAT_XRGB8888}), uint32_t{DRM_FORMAT_XRGB8888});
    EXPECT_EQ(best({DRM_FORMAT_RGB565, DRM_FORMAT_BGR888}), uint32_t{DRM_FORMAT_BGR888});
    EXPECT_EQ(best({DRM_FORMAT_YUYV, DRM_FORMAT_BGR565}), uint32_t{DRM_FORMAT_BGR565});
    EXPECT_EQ(best({DRM_FORMAT_YUYV, DRM_FORMAT_C8}), 0U);
    EXPECT_EQ(best({}), 0U);
}

/// The letters and digits of a code say what its channels are, the highest first.
TEST(DrmFormat, HasTheChannelsThatItsNameSays) {
    struct Named {
        uint32_t code;
        const char* channels;
        std::vector<int> widths;
    };
    const Named names[] = {{DRM_FORMAT_XRGB8888, "xrgb", {8, 8, 8, 8}},
                           {DRM_FORMAT_XBGR8888, "xbgr", {8, 8, 8, 8}},
                           {DRM_FORMAT_RGBX8888, "rgbx", {8, 8, 8, 8}},
                           {DRM_FORMAT_BGRX8888, "bgrx", {8, 8, 8, 8}},
                           {DRM_FORMAT_ARGB8888, "argb", {8, 8, 8, 8}},
                           {DRM_FORMAT_ABGR8888, "abgr", {8, 8, 8, 8}},
                           {DRM_FORMAT_RGBA8888, "rgba", {8, 8, 8, 8}},
                           {DRM_FORMAT_BGRA8888, "bgra", {8, 8, 8, 8}},
                           {DRM_FORMAT_RGB888, "rgb", {8, 8, 8}},
                           {DRM_FORMAT_BGR888, "bgr", {8, 8, 8}},
                           {DRM_FORMAT_XRGB2101010, "xrgb", {2, 10, 10, 10}},
                           {DRM_FORMAT_XBGR2101010, "xbgr", {2, 10, 10, 10}},
                           {DRM_FORMAT_RGB565, "rgb", {5, 6, 5}},
                           {DRM_FORMAT_BGR565, "bgr", {5, 6, 5}},
                           {DRM_FORMAT_XRGB1555, "xrgb", {1, 5, 5, 5}},
                           {DRM_FORMAT_XBGR1555, "xbgr", {1, 5, 5, 5}}};
    for (const Named& named : names) {
        ScreenFormat expected{};
        for (const int width : named.widths) {
            expected.bits += width;
        }
        int low = expected.bits;
        for (size_t at = 0; at < named.widths.size(); ++at) {
            low -= named.widths[at];
            const uint32_t mask = ((1U << named.widths[at]) - 1) << low;
            switch (named.channels[at]) {
            case 'r':
                expected.red = mask;
                break;
            case 'g':
                expected.green = mask;
                break;
            case 'b':
                expected.blue = mask;
                break;
            case 'a':
                expected.opaque = mask;
                break;
            default:
                break;
            }
        }
        const auto format = bestFormat({&named.code, 1});
        ASSERT_TRUE(format) << named.channels;
        EXPECT_EQ(format->format, expected) << named.channels;
        EXPECT_TRUE(isUsable(format->format));
    }
}

} // namespace
