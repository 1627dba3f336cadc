// Pictures as tests make them.
#pragma once

#include "image.h"
#include "support/random_calls.h"

#include <cstdint>
#include <vector>

namespace quarlo::test {

inline constexpr grf::Color kTransparent{0, 0, 0, 0};
inline constexpr grf::Color kBlack{0, 0, 0};
inline constexpr grf::Color kWhite{255, 255, 255};
inline constexpr grf::Color kRed{255, 0, 0};
inline constexpr grf::Color kBlue{0, 0, 255};

/// Runs of a few colours and of transparency, and pixels of any colour between them.
inline grf::Picture randomPicture(Random& random, int longestSide) {
    const grf::Color colors[] = {kTransparent, kTransparent, kBlack, kWhite, kRed, {9, 99, 199}};
    grf::Picture picture{random.between(1, longestSide), random.between(1, longestSide), {}};
    const auto count = static_cast<size_t>(picture.width) * static_cast<size_t>(picture.height);
    const auto channel = [&random] { return static_cast<uint8_t>(random.between(0, 255)); };
    while (picture.pixels.size() < count) {
        if (random.oneIn(2)) {
            picture.pixels.insert(picture.pixels.end(),
                                  static_cast<size_t>(random.between(1, random.oneIn(4) ? 90 : 6)),
                                  random.pick(colors));
        } else {
            picture.pixels.push_back(
                {channel(), channel(), channel(), random.oneIn(2) ? uint8_t{255} : channel()});
        }
    }
    picture.pixels.resize(count);
    return picture;
}

/// Everything that an image can be made for.
inline std::vector<grf::Target> allTargets() {
    std::vector<grf::Target> targets;
    for (const grf::PixelFormat& surface :
         {grf::kFormat8, grf::kFormat555, grf::kFormat565, grf::kFormat24}) {
        for (const int bits : {0, 1, 2, 4, 8}) {
            targets.push_back({surface, bits, {}, grf::Color{40, 80, 120}});
        }
    }
    targets.push_back({grf::kFormatIndexed, 0, {}, {}});
    return targets;
}

} // namespace quarlo::test
