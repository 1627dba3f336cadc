// Rows of bytes combined with others, which may overlap them.
#include "raster/kernel/transfer.h"

#include "support/guarded_surface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <vector>

using namespace quarlo::kernel;
using namespace quarlo::test;

namespace {

uint8_t combined(uint8_t old, uint8_t byte, int32_t mode) {
    const int results[] = {byte, old & byte, old | byte, old ^ byte};
    return mode >= 0 && mode <= 3 ? static_cast<uint8_t>(results[mode]) : old;
}

std::vector<uint8_t> noise(size_t size) {
    std::vector<uint8_t> bytes(size);
    uint32_t state = 12345;
    std::generate(bytes.begin(), bytes.end(), [&] {
        state = state * 1664525 + 1013904223;
        return static_cast<uint8_t>(state >> 24);
    });
    return bytes;
}

constexpr int kModes[] = {-1, 0, 1, 2, 3, 4};

TEST(CopyRect, CombinesRowsOfEveryLengthAtEveryAlignment) {
    constexpr int kLongest = 67;
    const std::vector<uint8_t> fresh = noise(200);
    for (const int mode : kModes) {
        for (int length = 1; length <= kLongest; ++length) {
            for (int skew = 0; skew < 16; ++skew) {
                GuardedMemory to(static_cast<size_t>(length));
                GuardedMemory from(static_cast<size_t>(length + skew), Against::Start);
                std::copy_n(fresh.data(), length, to.data());
                std::copy_n(fresh.data() + 100, length + skew, from.data());
                copyRect({to.data(), 999, from.data() + skew, -999, length, 1}, 1, mode);
                for (int i = 0; i < length; ++i) {
                    ASSERT_EQ(to.data()[i],
                              combined(fresh[static_cast<size_t>(i)], from.data()[skew + i], mode))
                        << "byte " << i << " of " << length << ", mode " << mode;
                }
                ASSERT_TRUE(to.intact());
            }
        }
    }
}

/// Byte by byte from the end that is not overwritten before it is read.
std::vector<uint8_t> moved(std::vector<uint8_t> bytes, int to, int from, int length, int mode) {
    std::vector<int> order(static_cast<size_t>(length));
    std::iota(order.begin(), order.end(), 0);
    if (to > from) {
        std::reverse(order.begin(), order.end());
    }
    for (const int i : order) {
        uint8_t& byte = bytes[static_cast<size_t>(to + i)];
        byte = combined(byte, bytes[static_cast<size_t>(from + i)], mode);
    }
    return bytes;
}

TEST(CopyRect, RowsMayOverlapByAnyNumberOfBytes) {
    constexpr int kSize = 150;
    const std::vector<uint8_t> fresh = noise(kSize);
    GuardedMemory bytes(kSize);
    for (const int mode : kModes) {
        for (int length = 1; length <= 100; length += length < 40 ? 1 : 7) {
            for (int from = 0; from + length <= kSize; from += from < 20 ? 1 : 11) {
                for (int to = std::max(from - 40, 0); to <= std::min(from + 40, kSize - length);
                     ++to) {
                    std::copy(fresh.begin(), fresh.end(), bytes.data());
                    copyRect({bytes.data() + to, 1, bytes.data() + from, 1, length, 1}, 1, mode);
                    const auto expected = moved(fresh, to, from, length, mode);
                    ASSERT_TRUE(std::equal(expected.begin(), expected.end(), bytes.data()))
                        << length << " bytes from " << from << " to " << to << ", mode " << mode;
                }
            }
        }
    }
    EXPECT_TRUE(bytes.intact());
}

/// Rectangles with space behind their rows, walked down or up.
TEST(CopyRect, CombinesRowsAndNothingBetweenThem) {
    constexpr int kHeight = 3;
    for (int bytes = 1; bytes <= 3; ++bytes) {
        for (int width = 1; width <= 20; ++width) {
            for (const int gap : {0, 1, 5}) {
                for (const bool upwards : {false, true}) {
                    const int length = width * bytes;
                    const int toStride = length + gap;
                    const int fromStride = length + 2 * gap;
                    const auto size = static_cast<size_t>(toStride * kHeight);
                    const std::vector<uint8_t> fresh = noise(size);
                    const std::vector<uint8_t> from =
                        noise(static_cast<size_t>(fromStride * kHeight));
                    GuardedMemory to(size);
                    std::copy(fresh.begin(), fresh.end(), to.data());
                    Transfer transfer{to.data(), toStride, from.data(), fromStride, width, kHeight};
                    if (upwards) {
                        transfer = {to.data() + (kHeight - 1) * toStride,
                                    -toStride,
                                    from.data() + (kHeight - 1) * fromStride,
                                    -fromStride,
                                    width,
                                    kHeight};
                    }
                    copyRect(transfer, bytes, 3);
                    for (int i = 0; i < toStride * kHeight; ++i) {
                        const int column = i % toStride;
                        const auto source = static_cast<size_t>(i / toStride * fromStride + column);
                        const uint8_t old = fresh[static_cast<size_t>(i)];
                        ASSERT_EQ(to.data()[i],
                                  column < length ? combined(old, from[source], 3) : old);
                    }
                }
            }
        }
    }
}

} // namespace
