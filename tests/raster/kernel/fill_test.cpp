#include "raster/kernel/plain.h"
#include "support/random_calls.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace quarlo;
using namespace quarlo::test;

namespace {

constexpr uint32_t kFore = 0xC7A51E;
constexpr uint32_t kBack = 0x3B66F0;
constexpr uint8_t kRows[8] = {0x80, 0xC1, 0x37, 0xF0, 0x00, 0x22, 0xFF, 0x6D};

/// A rectangle in memory that ends with its last byte, or begins with its first.
struct Block {
    int bits;
    int mode;
    int width;
    int height;
    int gap; ///< bytes between rows
    Against side;
    int offset; ///< bytes before the first row, when against the end

    int bytesPerPixel() const { return bits / 8; }
    int stride() const { return width * bytesPerPixel() + gap; }
    size_t size() const {
        return static_cast<size_t>(offset + stride() * (height - 1) + width * bytesPerPixel());
    }
    std::ptrdiff_t end() const { return static_cast<std::ptrdiff_t>(size()); }
    std::ptrdiff_t at(int x, int y) const { return offset + y * stride() + x * bytesPerPixel(); }
};

std::ostream& operator<<(std::ostream& out, const Block& block) {
    return out << block.bits << " bits, mode " << block.mode << ", " << block.width << " x "
               << block.height << ", " << block.gap << " bytes between rows, "
               << (block.side == Against::Start ? "against the start" : "against the end") << ", "
               << block.offset << " bytes before";
}

const kernel::Kernels& kernelsOf(const Block& block) {
    return *kernel::kernelsFor(block.bits, block.mode);
}

std::string checkSolid(const Block& block) {
    GuardedMemory memory(block.size(), block.side);
    Expected expected(memory);
    for (int y = 0; y < block.height; ++y) {
        for (int x = 0; x < block.width; ++x) {
            expected.put(block.at(x, y), block.bytesPerPixel(), kFore, block.mode);
        }
    }
    uint8_t* const cursor = kernelsOf(block).fill(memory.data() + block.offset, block.stride(),
                                                  block.width, block.height, kFore);
    if (!expected.met()) {
        return "wrong bytes";
    }
    return cursor == memory.data() + block.end() ? "" : "wrong cursor";
}

std::string checkPattern(const Block& block, int left, int top) {
    GuardedMemory memory(block.size(), block.side);
    Expected expected(memory);
    for (int y = 0; y < block.height; ++y) {
        for (int x = 0; x < block.width; ++x) {
            const bool set = (kRows[(top + y) % 8] & 0x80 >> (left + x) % 8) != 0;
            expected.put(block.at(x, y), block.bytesPerPixel(), set ? kFore : kBack, block.mode);
        }
    }
    uint8_t* const cursor =
        kernelsOf(block).fillPattern(memory.data() + block.offset, block.stride(), block.width,
                                     block.height, kFore, kBack, kRows, left, top);
    if (!expected.met()) {
        return "wrong bytes";
    }
    return cursor == memory.data() + block.end() ? "" : "wrong cursor";
}

TEST(FillKernel, FillsEveryWidthAtEveryAlignment) {
    for (const int bits : kDepths) {
        for (const int mode : kModes) {
            for (int width = 1; width <= 140; ++width) {
                const Block block{bits, mode, width, 1, 0, Against::End, width * 7 % 32};
                ASSERT_EQ(checkSolid(block), "") << block;
            }
        }
    }
}

TEST(FillKernel, FillsNoByteBeforeTheFirst) {
    for (const int bits : kDepths) {
        for (const int mode : kModes) {
            for (int width = 1; width <= 70; ++width) {
                const Block block{bits, mode, width, 2, 1, Against::Start, 0};
                ASSERT_EQ(checkSolid(block), "") << block;
            }
        }
    }
}

TEST(FillKernel, LeavesTheBytesBetweenRows) {
    for (const int bits : kDepths) {
        for (const int mode : kModes) {
            for (const int gap : {0, 1, 2, 3, 13, 64}) {
                for (const int width : {1, 5, 8, 16, 17, 33, 100}) {
                    const Block block{bits, mode, width, 5, gap, Against::End, 3};
                    ASSERT_EQ(checkSolid(block), "") << block;
                }
            }
        }
    }
}

TEST(FillKernel, DrawsThePatternFromEveryPhase) {
    for (const int bits : kDepths) {
        for (const int mode : kModes) {
            for (int phase = 0; phase < 64; ++phase) {
                const Block block{bits, mode, 29, 11, 2, Against::End, phase};
                ASSERT_EQ(checkPattern(block, phase % 8, phase / 8), "") << block;
            }
        }
    }
}

TEST(FillKernel, DrawsThePatternInEverySize) {
    for (const int bits : kDepths) {
        for (const int mode : kModes) {
            for (int width = 1; width <= 70; ++width) {
                const int height = 1 + width % 19;
                const auto side = width % 2 == 0 ? Against::Start : Against::End;
                const Block block{bits, mode, width, height, width % 3, side, 0};
                ASSERT_EQ(checkPattern(block, 3, 6), "") << block;
            }
        }
    }
}

Block makeBlock(Random& random) {
    return {random.pick(kDepths),
            random.pick(kModes),
            random.between(1, random.oneIn(4) ? 700 : 60),
            random.between(1, 24),
            random.oneIn(3) ? 0 : random.between(1, 40),
            random.oneIn(2) ? Against::Start : Against::End,
            0};
}

template <typename Check>
std::string checkBlocks(const std::vector<Block>& blocks, Check check) {
    for (const Block& block : blocks) {
        const std::string wrong = check(block);
        if (!wrong.empty()) {
            return wrong;
        }
    }
    return {};
}

TEST(FillKernel, FillsAnyRectangle) {
    forRandomCalls(200, 20, makeBlock, [](const std::vector<Block>& blocks) {
        return checkBlocks(blocks, checkSolid);
    });
}

TEST(FillKernel, DrawsThePatternInAnyRectangle) {
    forRandomCalls(200, 20, makeBlock, [](const std::vector<Block>& blocks) {
        return checkBlocks(blocks, [](const Block& block) {
            return checkPattern(block, block.width * 5 % 300, block.height * 3 % 200);
        });
    });
}

TEST(FillKernel, ExclusiveOrTwiceRestores) {
    for (const int bits : kDepths) {
        const Block block{bits, 3, 93, 7, 5, Against::End, 1};
        GuardedMemory memory(block.size());
        const Expected before(memory);
        for (int times = 0; times < 2; ++times) {
            kernelsOf(block).fill(memory.data() + 1, block.stride(), block.width, block.height,
                                  kFore);
            kernelsOf(block).fillPattern(memory.data() + 1, block.stride(), block.width,
                                         block.height, kFore, kBack, kRows, 5, 2);
            EXPECT_EQ(before.met(), times == 1);
        }
    }
}

TEST(Kernels, ExistForThreeFormatsAndFourModes) {
    for (const int bits : kDepths) {
        for (const int mode : kModes) {
            ASSERT_NE(kernel::kernelsFor(bits, mode), nullptr);
            EXPECT_EQ(kernel::kernelsFor(bits, mode)->bytesPerPixel, bits / 8);
        }
        for (const int mode : {-1, 4, 32, -32, INT32_MAX, INT32_MIN}) {
            EXPECT_EQ(kernel::kernelsFor(bits, mode), nullptr);
        }
    }
    for (const int bits : {-8, 0, 1, 4, 12, 15, 32, 64}) {
        EXPECT_EQ(kernel::kernelsFor(bits, 0), nullptr);
    }
}

TEST(Kernels, ReadPixelsLowByteFirst) {
    const uint8_t bytes[] = {0x12, 0x34, 0x56};
    EXPECT_EQ(kernel::readPixel(bytes, 8), 0x12U);
    EXPECT_EQ(kernel::readPixel(bytes, 16), 0x3412U);
    EXPECT_EQ(kernel::readPixel(bytes, 24), 0x563412U);
}

} // namespace
