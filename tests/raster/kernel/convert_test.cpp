// Rows of pixels converted from one layout to another.
#include "raster/kernel/convert.h"

#include "support/guarded_surface.h"
#include "support/random_calls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <vector>

using namespace quarlo::kernel;
using namespace quarlo::test;

namespace {

/// Layouts by name, to see which failed.
struct Named {
    const char* name;
    int32_t bits;
    uint32_t red;
    uint32_t green;
    uint32_t blue;
    bool indexed = false;
};

constexpr Named kLayouts[] = {
    {"3-3-2", 8, 0xE0, 0x1C, 0x03},
    {"5-5-5", 16, 0x7C00, 0x03E0, 0x001F},
    {"5-5-5 reversed", 16, 0x001F, 0x03E0, 0x7C00},
    {"5-6-5", 16, 0xF800, 0x07E0, 0x001F},
    {"5-6-5 reversed", 16, 0x001F, 0x07E0, 0xF800},
    {"4-4-4", 16, 0x0F00, 0x00F0, 0x000F},
    {"high 4-4-4", 16, 0xF000, 0x0F00, 0x00F0},
    {"1-1-1", 16, 0x8000, 0x0040, 0x0001},
    {"8-8-0", 16, 0xFF00, 0x00FF, 0x0000},
    {"9 bits", 16, 0xFF80, 0x01FF, 0x0001},
    {"8-8-8", 24, 0x0000FF, 0x00FF00, 0xFF0000},
    {"8-8-8 reversed", 24, 0xFF0000, 0x00FF00, 0x0000FF},
    {"6-6-6", 24, 0x00003F, 0x000FC0, 0x03F000},
    {"10-10-4", 24, 0x0003FF, 0x0FFC00, 0xF00000},
    {"holes", 24, 0x810021, 0x003C18, 0x420080},
    {"empty", 24, 0, 0, 0},
    {"past 24 bits", 24, 0xFF000000, 0x01FF0000, 0x80000001},
    {"palette", 8, 0xFF0000, 0x00FF00, 0x0000FF, true},
    {"wide palette", 16, 0x7C00, 0x03E0, 0x001F, true},
    {"wider palette", 24, 0x3FF00000, 0x000FFC00, 0x000003FF, true},
};

std::vector<uint8_t> randomBytes(Random& random, size_t size) {
    std::vector<uint8_t> bytes(size);
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<uint8_t>(random.bits()); });
    return bytes;
}

PixelLayout layoutOf(const Named& named, const std::vector<uint32_t>& palette) {
    return {named.bits,
            named.red,
            named.green,
            named.blue,
            named.indexed ? palette.data() : nullptr,
            named.indexed ? static_cast<uint32_t>(palette.size()) : 0};
}

uint32_t load(const uint8_t* at, int bytes) {
    uint32_t value = 0;
    for (int i = 0; i < bytes; ++i) {
        value |= uint32_t{at[i]} << (8 * i);
    }
    return value;
}

/// Moves one channel by arithmetic instead of shifts: the top bit of the mask is worth 128, and one
/// of the widened channel's 128 is worth the top bit of the other mask. Products fit 64 bits.
uint32_t movedChannel(uint32_t value, uint32_t from, uint32_t to) {
    if (from == 0 || to == 0) {
        return 0;
    }
    const uint64_t sourceTop = std::bit_floor(from);
    const uint64_t channel = uint64_t{value & from} * 128 / sourceTop;
    const uint64_t mask = uint64_t{from} * 128 / sourceTop;
    const uint64_t lowest = mask & (~mask + 1);
    const uint64_t widened = channel % (2 * lowest) == lowest ? channel + lowest - 1 : channel;
    const uint64_t targetTop = std::bit_floor(to);
    return static_cast<uint32_t>(widened * targetTop / 128) & to;
}

uint32_t moved(const uint8_t* at, const PixelLayout& from, const PixelLayout& to) {
    uint32_t value = load(at, from.bitsPerPixel / 8);
    if (from.palette != nullptr) {
        value = *at < from.paletteCount ? from.palette[*at] : 0;
    }
    return movedChannel(value, from.red, to.red) | movedChannel(value, from.green, to.green) |
           movedChannel(value, from.blue, to.blue);
}

std::vector<uint8_t> modelled(std::vector<uint8_t> to, const uint8_t* from,
                              const PixelLayout& source, const PixelLayout& target, int mode) {
    const int bytes = target.bitsPerPixel / 8;
    for (size_t at = 0; at < to.size(); at += static_cast<size_t>(bytes)) {
        const uint32_t pixel = moved(from, source, target);
        for (int i = 0; i < bytes; ++i) {
            uint8_t& byte = to[at + static_cast<size_t>(i)];
            const int color = static_cast<uint8_t>(pixel >> (8 * i));
            const int results[] = {color, byte & color, byte | color, byte ^ color};
            byte = static_cast<uint8_t>(results[mode]);
        }
        from += source.bitsPerPixel / 8;
    }
    return to;
}

class ConvertRect : public testing::Test {
  protected:
    ConvertRect() { fillPalette(200); } // fewer than a byte can name

    void fillPalette(size_t count) {
        palette.resize(count);
        std::generate(palette.begin(), palette.end(),
                      [&] { return static_cast<uint32_t>(random.bits()); });
    }

    /// Converts one row of random pixels between guarded blocks, in every way that there is on this
    /// processor, and compares it with the model.
    void check(const Named& source, const Named& target, int width, int mode, Against side) {
        const PixelLayout from = layoutOf(source, palette);
        const PixelLayout to = targetOf(target);
        const auto pixels = static_cast<size_t>(width);
        GuardedMemory input(pixels * static_cast<size_t>(from.bitsPerPixel / 8), side);
        GuardedMemory output(pixels * static_cast<size_t>(to.bitsPerPixel / 8), side);
        const std::vector<uint8_t> read = randomBytes(random, input.size());
        const std::vector<uint8_t> fresh = randomBytes(random, output.size());
        const std::vector<uint8_t> expected = modelled(fresh, read.data(), from, to, mode);
        std::copy(read.begin(), read.end(), input.data());
        for (const ConvertPixels convert : waysOf(from, to, mode)) {
            std::copy(fresh.begin(), fresh.end(), output.data());
            convert({output.data(), 12345, input.data(), -12345, width, 1}, from, to, mode);
            ASSERT_EQ(std::vector<uint8_t>(output.data(), output.data() + output.size()), expected)
                << width << " pixels from " << source.name << " to " << target.name << ", mode "
                << mode << (convert == portableConversion(from, to, mode) ? ", portable" : "");
            ASSERT_TRUE(output.intact());
            ASSERT_TRUE(std::equal(read.begin(), read.end(), input.data()));
        }
    }

    static std::vector<ConvertPixels> waysOf(const PixelLayout& from, const PixelLayout& to,
                                             int mode) {
        std::vector<ConvertPixels> ways = {portableConversion(from, to, mode)};
        if (const ConvertPixels vectors = vectorConversion(from, to, mode)) {
            ways.push_back(vectors);
        }
        return ways;
    }

    /// A layout to write, which has no palette.
    static PixelLayout targetOf(const Named& named) {
        return layoutOf({named.name, named.bits, named.red, named.green, named.blue}, {});
    }

    Random random{testSeed()};
    std::vector<uint32_t> palette;
};

TEST_F(ConvertRect, EveryPairOfLayoutsInEveryMode) {
    for (const Named& source : kLayouts) {
        for (const Named& target : kLayouts) {
            for (int mode = 0; mode < 4; ++mode) {
                for (const Against side : {Against::End, Against::Start}) {
                    check(source, target, random.between(1, 300), mode, side);
                    check(source, target, random.between(1, 40), mode, side);
                }
            }
        }
    }
}

TEST_F(ConvertRect, EveryWidthOfTheUsualPairs) {
    const Named& rgb555 = kLayouts[1];
    const Named& rgb24 = kLayouts[10];
    const Named& indexed = kLayouts[17];
    for (int width = 1; width <= 200; ++width) {
        for (const int mode : {0, 3}) {
            for (const Against side : {Against::End, Against::Start}) {
                check(rgb555, rgb24, width, mode, side);
                check(rgb24, rgb555, width, mode, side);
                check(indexed, rgb555, width, mode, side);
                check(indexed, rgb24, width, mode, side);
                check(kLayouts[0], rgb555, width, mode, side);
                check(rgb555, kLayouts[0], width, mode, side);
                check(rgb555, kLayouts[3], width, mode, side);
                check(rgb24, kLayouts[11], width, mode, side);
            }
        }
    }
}

TEST_F(ConvertRect, PalettesOfAllThatAByteCanNameAndMore) {
    for (const size_t count : {size_t{256}, size_t{257}}) {
        fillPalette(count);
        for (const Named& source : kLayouts) {
            if (source.indexed) {
                check(source, kLayouts[10], 5000, 0, Against::End);
            }
        }
    }
}

TEST_F(ConvertRect, EveryValueOf16Bits) {
    std::vector<uint8_t> read(2 * 65536);
    for (uint32_t value = 0; value < 65536; ++value) {
        read[2 * value] = static_cast<uint8_t>(value);
        read[2 * value + 1] = static_cast<uint8_t>(value >> 8);
    }
    for (const Named& source : kLayouts) {
        if (source.bits != 16) {
            continue;
        }
        for (const Named& target : kLayouts) {
            const PixelLayout from = layoutOf(source, palette);
            const PixelLayout to = targetOf(target);
            GuardedMemory output(65536 * static_cast<size_t>(to.bitsPerPixel / 8));
            const std::vector<uint8_t> expected =
                modelled(std::vector<uint8_t>(output.size()), read.data(), from, to, 0);
            for (const ConvertPixels convert : waysOf(from, to, 0)) {
                convert({output.data(), 0, read.data(), 0, 65536, 1}, from, to, 0);
                ASSERT_TRUE(std::equal(expected.begin(), expected.end(), output.data()))
                    << "from " << source.name << " to " << target.name;
                ASSERT_TRUE(output.intact());
            }
        }
    }
}

TEST_F(ConvertRect, RandomMasks) {
    for (int round = 0; round < 20000; ++round) {
        const auto mask = [&] {
            const auto bits = static_cast<uint32_t>(random.bits());
            const uint32_t run = ~uint32_t{0} >> random.between(0, 31);
            return random.oneIn(2) ? run << random.between(0, 31) : bits & run;
        };
        const auto layout = [&] {
            return Named{"random masks", 8 * random.between(1, 3), mask(), mask(),
                         mask(),         random.oneIn(8)};
        };
        const Named source = layout();
        const Named target = layout();
        SCOPED_TRACE(testing::Message()
                     << std::hex << source.red << ' ' << source.green << ' ' << source.blue << '/'
                     << source.bits << " to " << target.red << ' ' << target.green << ' '
                     << target.blue << '/' << target.bits);
        check(source, target, random.between(1, 70), random.between(0, 3), Against::End);
        if (HasFatalFailure()) {
            return;
        }
    }
}

TEST_F(ConvertRect, RowsAreApartByTheirStrides) {
    constexpr int kWidth = 137;
    constexpr int kHeight = 5;
    constexpr int kToStride = kWidth * 3 + 4;
    constexpr int kFromStride = kWidth * 2 + 7;
    constexpr int kLast = kHeight - 1;
    const PixelLayout from = layoutOf(kLayouts[1], palette);
    const PixelLayout to = targetOf(kLayouts[10]);
    const std::vector<uint8_t> read = randomBytes(random, kFromStride * kHeight);
    const std::vector<uint8_t> fresh = randomBytes(random, kToStride * kHeight);
    std::vector<uint8_t> expected = fresh;
    for (int row = 0; row < kHeight; ++row) {
        const auto at = expected.begin() + row * kToStride;
        const std::vector<uint8_t> before(at, at + kWidth * 3);
        const std::vector<uint8_t> after =
            modelled(before, read.data() + row * kFromStride, from, to, 2);
        std::copy(after.begin(), after.end(), at);
    }
    const Transfer down{nullptr, kToStride, read.data(), kFromStride, kWidth, kHeight};
    const Transfer up{nullptr,      -kToStride, read.data() + kLast * kFromStride,
                      -kFromStride, kWidth,     kHeight};
    for (const ConvertPixels convert : waysOf(from, to, 2)) {
        for (Transfer transfer : {down, up}) {
            GuardedMemory output(fresh.size());
            std::copy(fresh.begin(), fresh.end(), output.data());
            transfer.to = output.data() + (transfer.toStride < 0 ? kLast * kToStride : 0);
            convert(transfer, from, to, 2);
            EXPECT_TRUE(std::equal(expected.begin(), expected.end(), output.data()));
            EXPECT_TRUE(output.intact());
        }
    }
}

TEST_F(ConvertRect, AWildModeWritesNothing) {
    const std::vector<uint8_t> read(64, 0xFF);
    for (const int mode : {-1, 4, 100, -0x7FFFFFFF - 1}) {
        for (const Named& target : kLayouts) {
            GuardedMemory output(64);
            convertRect({output.data(), 0, read.data(), 0, 16, 1}, layoutOf(kLayouts[1], palette),
                        targetOf(target), mode);
            EXPECT_EQ(std::count(output.data(), output.data() + 64, GuardedMemory::kFresh), 64);
            EXPECT_TRUE(output.intact());
        }
    }
}

TEST(ChannelShift, BringsTheTopBitOfAByteToTheMask) {
    EXPECT_EQ(channelShift(0x7C00), 7);
    EXPECT_EQ(channelShift(0x3E0), 2);
    EXPECT_EQ(channelShift(0x1F), -3);
    EXPECT_EQ(channelShift(0xFF0000), 16);
    EXPECT_EQ(channelShift(0xFF00), 8);
    EXPECT_EQ(channelShift(0xFF), 0);
    EXPECT_EQ(channelShift(224), 0);
    EXPECT_EQ(channelShift(28), -3);
    EXPECT_EQ(channelShift(3), -6);
    EXPECT_EQ(channelShift(0), 0);
    EXPECT_EQ(channelShift(0x80000000), 24);
}

TEST(ShiftBy, GoesLeftAndRightAndPastTheWord) {
    EXPECT_EQ(shiftBy(0xFF, 4), 0xFF0U);
    EXPECT_EQ(shiftBy(0xFF, -4), 0xFU);
    EXPECT_EQ(shiftBy(0xFF, 0), 0xFFU);
    EXPECT_EQ(shiftBy(1, 31), 0x80000000U);
    EXPECT_EQ(shiftBy(0x80000000, -31), 1U);
    EXPECT_EQ(shiftBy(0xFFFFFFFF, 32), 0U);
    EXPECT_EQ(shiftBy(0xFFFFFFFF, -32), 0U);
    EXPECT_EQ(shiftBy(0xFFFFFFFF, 127), 0U);
    EXPECT_EQ(shiftBy(0xFFFFFFFF, -128), 0U);
}

} // namespace
