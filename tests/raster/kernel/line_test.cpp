#include "raster/kernel/plain.h"
#include "support/random_calls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

using namespace quarlo;
using namespace quarlo::test;

namespace {

constexpr uint32_t kColor = 0xC7A51E;

/// A line in memory of just the rows that it crosses.
struct Walk {
    int bits;
    int mode;
    int extent; ///< along the longer axis
    int across; ///< along the shorter one, negative backwards
    bool steep;
    uint64_t dash;
    uint32_t phase;

    int bytesPerPixel() const { return bits / 8; }
    int columns() const { return (steep ? std::abs(across) : extent) + 1; }
    int rows() const { return (steep ? extent : std::abs(across)) + 1; }
    int stride() const { return columns() * bytesPerPixel(); }
    size_t size() const { return static_cast<size_t>(stride() * rows()); }

    /// Where pixel k lies, by rounding half away from the start.
    std::ptrdiff_t offset(int k) const {
        const int taken = (2 * k * std::abs(across) + extent) / (2 * extent);
        const int side = across < 0 ? -across - taken : taken;
        return steep ? k * stride() + side * bytesPerPixel()
                     : side * stride() + k * bytesPerPixel();
    }

    kernel::LineSteps steps() const {
        const int along = steep ? stride() : bytesPerPixel();
        const int aside = steep ? bytesPerPixel() : stride();
        return {extent + 1,           along,     across < 0 ? -aside : aside, -extent,
                2 * std::abs(across), 2 * extent};
    }
};

std::ostream& operator<<(std::ostream& out, const Walk& walk) {
    return out << walk.bits << " bits, mode " << walk.mode << ", " << walk.extent
               << (walk.steep ? " down, " : " right, ") << walk.across << " aside, dash "
               << walk.dash << " from " << walk.phase;
}

std::string verdict(const Expected& expected, const uint8_t* cursor, const uint8_t* last) {
    if (!expected.met()) {
        return "wrong bytes";
    }
    return cursor == last ? "" : "wrong cursor";
}

std::string checkSolid(const Walk& walk) {
    GuardedMemory memory(walk.size());
    Expected expected(memory);
    for (int k = 0; k <= walk.extent; ++k) {
        expected.put(walk.offset(k), walk.bytesPerPixel(), kColor, walk.mode);
    }
    const uint8_t* const cursor = kernel::kernelsFor(walk.bits, walk.mode)
                                      ->line(memory.data() + walk.offset(0), walk.steps(), kColor);
    return verdict(expected, cursor,
                   memory.data() + walk.offset(walk.extent) + walk.bytesPerPixel());
}

std::string checkDashed(const Walk& walk) {
    const kernel::DashSteps dash{walk.dash, walk.phase, 70000};
    GuardedMemory memory(walk.size());
    Expected expected(memory);
    const uint8_t* last = nullptr;
    for (int k = 0; k <= walk.extent; ++k) {
        const uint64_t step = (walk.phase + uint64_t{70000} * static_cast<uint64_t>(k + 1)) >> 16;
        if ((walk.dash >> (step & 63) & 1) != 0) {
            expected.put(walk.offset(k), walk.bytesPerPixel(), kColor, walk.mode);
            last = memory.data() + walk.offset(k) + walk.bytesPerPixel();
        }
    }
    const uint8_t* const cursor =
        kernel::kernelsFor(walk.bits, walk.mode)
            ->dashedLine(memory.data() + walk.offset(0), walk.steps(), dash, kColor);
    return verdict(expected, cursor, last);
}

Walk makeWalk(Random& random) {
    const int extent = random.between(1, random.oneIn(4) ? 300 : 40);
    return {random.pick(kDepths),
            random.pick(kModes),
            extent,
            random.between(-extent, extent),
            random.oneIn(2),
            random.oneIn(8) ? 0 : random.bits(),
            static_cast<uint32_t>(random.bits() & 0x3FFFFF)};
}

template <typename Check>
void checkAny(Check check) {
    forRandomCalls(600, 10, makeWalk, [&](const std::vector<Walk>& walks) -> std::string {
        for (const Walk& walk : walks) {
            const std::string wrong = check(walk);
            if (!wrong.empty()) {
                return wrong;
            }
        }
        return {};
    });
}

TEST(LineKernel, DrawsAnyLine) {
    checkAny(checkSolid);
}

TEST(LineKernel, DrawsAnyDashedLine) {
    checkAny(checkDashed);
}

TEST(LineKernel, DrawsASinglePixel) {
    for (const int bits : kDepths) {
        for (const int mode : kModes) {
            const auto bytes = static_cast<size_t>(bits / 8);
            GuardedMemory memory(bytes);
            Expected expected(memory);
            expected.put(0, bits / 8, kColor, mode);
            const uint8_t* const cursor =
                kernel::kernelsFor(bits, mode)
                    ->line(memory.data(), {1, 1000, 1000, 0, 0, 0}, kColor);
            EXPECT_EQ(verdict(expected, cursor, memory.data() + bytes), "");
        }
    }
}

TEST(LineKernel, HasNoCursorWhereEveryStepIsAGap) {
    for (const int bits : kDepths) {
        GuardedMemory memory(30);
        const Expected expected(memory);
        const uint8_t* const cursor = kernel::kernelsFor(bits, 0)->dashedLine(
            memory.data(), {10, bits / 8, 0, -9, 0, 18}, {0, 0, 65536}, kColor);
        EXPECT_EQ(verdict(expected, cursor, nullptr), "");
    }
}

TEST(LineKernel, SetsOnePixel) {
    for (const int bits : kDepths) {
        for (const int mode : kModes) {
            GuardedMemory memory(static_cast<size_t>(bits / 8));
            Expected expected(memory);
            expected.put(0, bits / 8, kColor, mode);
            kernel::kernelsFor(bits, mode)->putPixel(memory.data(), kColor);
            EXPECT_TRUE(expected.met()) << bits << ' ' << mode;
        }
    }
}

} // namespace
