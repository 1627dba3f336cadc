#include "palette.h"

#include "pixel_format.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <unordered_map>

namespace grf {
namespace {

using Channel = uint8_t Color::*;

constexpr Channel kChannels[] = {&Color::red, &Color::green, &Color::blue};

/// A colour and how often it is there.
struct Counted {
    Color color;
    uint64_t count;
};

/// Colours that will become one.
using Box = std::span<Counted>;

/// The channel in which colours differ most, and by how much.
struct Spread {
    Channel channel;
    int width;
};

auto byChannel(Channel channel) {
    return [channel](const Counted& a, const Counted& b) {
        return a.color.*channel < b.color.*channel;
    };
}

Spread spreadOf(Box box) {
    Spread widest{kChannels[0], -1};
    for (const Channel channel : kChannels) {
        const auto [low, high] = std::minmax_element(box.begin(), box.end(), byChannel(channel));
        const int width = high->color.*channel - low->color.*channel;
        if (width > widest.width) {
            widest = {channel, width};
        }
    }
    return widest;
}

uint64_t countOf(Box box) {
    uint64_t count = 0;
    for (const Counted& each : box) {
        count += each.count;
    }
    return count;
}

Color meanOf(Box box, uint64_t count) {
    Color mean{0, 0, 0};
    for (const Channel channel : kChannels) {
        uint64_t sum = count / 2;
        for (const Counted& each : box) {
            sum += each.count * (each.color.*channel);
        }
        mean.*channel = static_cast<uint8_t>(sum / count);
    }
    return mean;
}

/// What a box becomes: the colour that a quarter of its pixels have, so that flat areas keep
/// theirs, or else the mean.
Color colorFor(Box box) {
    const uint64_t count = countOf(box);
    const auto most =
        std::max_element(box.begin(), box.end(),
                         [](const Counted& a, const Counted& b) { return a.count < b.count; });
    return most->count >= (count + 3) / 4 ? most->color : meanOf(box, count);
}

/// Two parts of a box of more than one colour, split where half of the pixels are passed.
std::array<Box, 2> halvesOf(Box box, Channel channel) {
    std::stable_sort(box.begin(), box.end(), byChannel(channel));
    const uint64_t half = countOf(box) / 2;
    size_t middle = 1;
    for (uint64_t passed = box[0].count; middle < box.size() - 1 && passed < half; ++middle) {
        passed += box[middle].count;
    }
    return {box.first(middle), box.subspan(middle)};
}

/// The colours of a list, each once, in the order of their first use.
std::vector<Counted> counted(std::span<const Color> colors) {
    std::vector<Counted> once;
    std::unordered_map<uint32_t, size_t> places;
    for (const Color& color : colors) {
        const auto [place, isNew] = places.emplace(rgbOf(color), once.size());
        if (isNew) {
            once.push_back({color, 0});
        }
        ++once[place->second].count;
    }
    return once;
}

} // namespace

std::vector<Color> distinct(std::span<const Color> colors) {
    std::vector<Color> once;
    for (const Counted& each : counted(colors)) {
        once.push_back(each.color);
    }
    return once;
}

std::vector<Color> chooseColors(std::span<const Color> colors, size_t count) {
    std::vector<Counted> all = counted(colors);
    if (all.size() <= count) {
        return distinct(colors);
    }
    std::vector<Box> boxes{all};
    std::vector<Spread> spreads{spreadOf(all)};
    while (boxes.size() < count) {
        const auto widest =
            std::max_element(spreads.begin(), spreads.end(),
                             [](const Spread& a, const Spread& b) { return a.width < b.width; });
        Box& box = boxes[static_cast<size_t>(widest - spreads.begin())];
        const auto [lower, upper] = halvesOf(box, widest->channel);
        box = lower;
        *widest = spreadOf(lower);
        boxes.push_back(upper);
        spreads.push_back(spreadOf(upper));
    }
    std::vector<Color> chosen;
    std::transform(boxes.begin(), boxes.end(), std::back_inserter(chosen), colorFor);
    return chosen;
}

size_t nearest(std::span<const Color> palette, Color color) {
    const auto distance = [color](const Color& other) {
        int sum = 0;
        for (const Channel channel : kChannels) {
            const int difference = color.*channel - other.*channel;
            sum += difference * difference;
        }
        return sum;
    };
    const auto found =
        std::min_element(palette.begin(), palette.end(),
                         [&](const Color& a, const Color& b) { return distance(a) < distance(b); });
    return static_cast<size_t>(found - palette.begin());
}

} // namespace grf
