// Choosing colours.
#pragma once

#include "picture.h"

#include <span>
#include <vector>

namespace grf {

/// The colours of a list, each once, in the order of their first use.
std::vector<Color> distinct(std::span<const Color> colors);

/// At most `count` colours to show those of a list with: themselves if they are few enough, else
/// one for each part of them (Heckbert's median cut).
std::vector<Color> chooseColors(std::span<const Color> colors, size_t count);

/// The place in a palette, which is not empty, of the colour nearest to another.
size_t nearest(std::span<const Color> palette, Color color);

} // namespace grf
