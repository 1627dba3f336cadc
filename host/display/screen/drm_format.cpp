#include "display/screen/drm_format.h"

#include <drm_fourcc.h>

#include <algorithm>

namespace gpi {
namespace {

/// The better ones first.
constexpr DrmFormat kFormats[] = {
    {DRM_FORMAT_XRGB8888, {32, 0xFF0000, 0xFF00, 0xFF}},
    {DRM_FORMAT_XBGR8888, {32, 0xFF, 0xFF00, 0xFF0000}},
    {DRM_FORMAT_RGBX8888, {32, 0xFF000000, 0xFF0000, 0xFF00}},
    {DRM_FORMAT_BGRX8888, {32, 0xFF00, 0xFF0000, 0xFF000000}},
    {DRM_FORMAT_ARGB8888, {32, 0xFF0000, 0xFF00, 0xFF, 0xFF000000}},
    {DRM_FORMAT_ABGR8888, {32, 0xFF, 0xFF00, 0xFF0000, 0xFF000000}},
    {DRM_FORMAT_RGBA8888, {32, 0xFF000000, 0xFF0000, 0xFF00, 0xFF}},
    {DRM_FORMAT_BGRA8888, {32, 0xFF00, 0xFF0000, 0xFF000000, 0xFF}},
    {DRM_FORMAT_RGB888, {24, 0xFF0000, 0xFF00, 0xFF}},
    {DRM_FORMAT_BGR888, {24, 0xFF, 0xFF00, 0xFF0000}},
    {DRM_FORMAT_XRGB2101010, {32, 0x3FF00000, 0xFFC00, 0x3FF}},
    {DRM_FORMAT_XBGR2101010, {32, 0x3FF, 0xFFC00, 0x3FF00000}},
    {DRM_FORMAT_RGB565, {16, 0xF800, 0x7E0, 0x1F}},
    {DRM_FORMAT_BGR565, {16, 0x1F, 0x7E0, 0xF800}},
    {DRM_FORMAT_XRGB1555, {16, 0x7C00, 0x3E0, 0x1F}},
    {DRM_FORMAT_XBGR1555, {16, 0x1F, 0x3E0, 0x7C00}},
};

} // namespace

std::optional<DrmFormat> bestFormat(std::span<const uint32_t> offered) {
    for (const DrmFormat& known : kFormats) {
        if (std::find(offered.begin(), offered.end(), known.code) != offered.end()) {
            return known;
        }
    }
    return std::nullopt;
}

} // namespace gpi
