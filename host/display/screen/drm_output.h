// Which screen of which graphics card, and how.
#pragma once

#include "display/screen/drm_format.h"
#include "unique_fd.h"

#include <xf86drmMode.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace gpi {

/// Frees what the library hands out.
template <auto kFree>
struct DrmFree {
    template <typename Record>
    void operator()(Record* record) const {
        kFree(record);
    }
};

using DrmCrtc = std::unique_ptr<drmModeCrtc, DrmFree<drmModeFreeCrtc>>;

/// A card with a screen that is connected.
struct DrmOutput {
    UniqueFd card;
    uint32_t connector;
    uint32_t crtc; ///< the part of the card that feeds the screen
    drmModeModeInfo mode;
    DrmFormat format;
};

/// The first connected screen of a card, in the mode that it prefers.
/// @param path of the card; the first card that has one if empty
/// @param failure says why there is none
std::optional<DrmOutput> findOutput(const std::string& path, std::string& failure);

} // namespace gpi
