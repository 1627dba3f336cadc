#include "display/screen/drm_output.h"

#include <drm_fourcc.h>
#include <fcntl.h>
#include <xf86drm.h>

#include <cerrno>
#include <cstring>
#include <string_view>
#include <vector>

namespace gpi {
namespace {

using Resources = std::unique_ptr<drmModeRes, DrmFree<drmModeFreeResources>>;
using Connector = std::unique_ptr<drmModeConnector, DrmFree<drmModeFreeConnector>>;
using Encoder = std::unique_ptr<drmModeEncoder, DrmFree<drmModeFreeEncoder>>;
using Planes = std::unique_ptr<drmModePlaneRes, DrmFree<drmModeFreePlaneResources>>;
using Plane = std::unique_ptr<drmModePlane, DrmFree<drmModeFreePlane>>;
using Properties = std::unique_ptr<drmModeObjectProperties, DrmFree<drmModeFreeObjectProperties>>;
using Property = std::unique_ptr<drmModePropertyRes, DrmFree<drmModeFreeProperty>>;

template <typename Count>
std::span<uint32_t> listOf(uint32_t* first, Count count) {
    return {first, static_cast<size_t>(count)};
}

Connector connectedScreen(int card, const Resources& resources) {
    for (const uint32_t id : listOf(resources->connectors, resources->count_connectors)) {
        Connector connector(drmModeGetConnector(card, id));
        if (connector != nullptr && connector->connection == DRM_MODE_CONNECTED &&
            connector->count_modes > 0) {
            return connector;
        }
    }
    return nullptr;
}

drmModeModeInfo preferredMode(const Connector& connector) {
    for (const auto& mode :
         std::span(connector->modes, static_cast<size_t>(connector->count_modes))) {
        if ((mode.type & DRM_MODE_TYPE_PREFERRED) != 0) {
            return mode;
        }
    }
    return connector->modes[0];
}

/// The place of a card's part that can feed a screen, preferably the one that does; below 0 when
/// there is none.
int feederOf(int card, const Resources& resources, const Connector& connector) {
    const auto parts = listOf(resources->crtcs, resources->count_crtcs);
    const Encoder current(drmModeGetEncoder(card, connector->encoder_id));
    uint32_t possible = 0;
    for (const uint32_t id : listOf(connector->encoders, connector->count_encoders)) {
        const Encoder encoder(drmModeGetEncoder(card, id));
        possible |= encoder != nullptr ? encoder->possible_crtcs : 0;
    }
    int found = -1;
    for (size_t place = 0; place < parts.size(); ++place) {
        if (current != nullptr && parts[place] == current->crtc_id) {
            return static_cast<int>(place);
        }
        if (found < 0 && (possible >> place & 1) != 0) {
            found = static_cast<int>(place);
        }
    }
    return found;
}

bool isPrimary(int card, uint32_t plane) {
    const Properties properties(drmModeObjectGetProperties(card, plane, DRM_MODE_OBJECT_PLANE));
    for (uint32_t at = 0; properties && at < properties->count_props; ++at) {
        const Property property(drmModeGetProperty(card, properties->props[at]));
        if (property && std::string_view(property->name) == "type") {
            return properties->prop_values[at] == DRM_PLANE_TYPE_PRIMARY;
        }
    }
    return false;
}

/// The formats of the picture that a part of a card feeds to its screen.
std::vector<uint32_t> formatsOf(int card, int part) {
    drmSetClientCap(card, DRM_CLIENT_CAP_UNIVERSAL_PLANES, 1);
    const Planes planes(drmModeGetPlaneResources(card));
    if (planes != nullptr) {
        for (const uint32_t id : listOf(planes->planes, planes->count_planes)) {
            const Plane plane(drmModeGetPlane(card, id));
            if (plane != nullptr && (plane->possible_crtcs >> part & 1) != 0 &&
                isPrimary(card, id)) {
                const auto formats = listOf(plane->formats, plane->count_formats);
                return {formats.begin(), formats.end()};
            }
        }
    }
    return {DRM_FORMAT_XRGB8888}; // which cards that do not tell have
}

std::optional<DrmOutput> outputOf(const std::string& path, std::string& failure) {
    UniqueFd card(open(path.c_str(), O_RDWR | O_CLOEXEC));
    uint64_t plainMemory = 0;
    if (!card) {
        failure = std::strerror(errno);
        return std::nullopt;
    }
    const Resources resources(drmModeGetResources(card.get()));
    if (resources == nullptr || drmGetCap(card.get(), DRM_CAP_DUMB_BUFFER, &plainMemory) != 0 ||
        plainMemory == 0) {
        failure = "it does no mode setting";
        return std::nullopt;
    }
    const Connector connector = connectedScreen(card.get(), resources);
    if (connector == nullptr) {
        failure = "no screen is connected";
        return std::nullopt;
    }
    const int part = feederOf(card.get(), resources, connector);
    const auto format = part >= 0 ? bestFormat(formatsOf(card.get(), part)) : std::nullopt;
    if (!format) {
        failure = "its pixels are of no known kind";
        return std::nullopt;
    }
    return DrmOutput{std::move(card), connector->connector_id, resources->crtcs[part],
                     preferredMode(connector), *format};
}

} // namespace

std::optional<DrmOutput> findOutput(const std::string& path, std::string& failure) {
    if (!path.empty()) {
        return outputOf(path, failure);
    }
    constexpr int kMostCards = 16;
    std::string first;
    for (int number = 0; number < kMostCards; ++number) {
        failure.clear();
        if (auto output = outputOf("/dev/dri/card" + std::to_string(number), failure)) {
            return output;
        }
        if (number == 0) {
            first = failure;
        }
    }
    failure = first;
    return std::nullopt;
}

} // namespace gpi
