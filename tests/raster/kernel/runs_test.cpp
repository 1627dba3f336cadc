#include "raster/kernel/plain.h"
#include "support/random_calls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

using namespace quarlo;
using namespace quarlo::test;

namespace {

constexpr int kWidth = 150; // runs of up to 63 pixels come in every length

/// One run of an image that is one row high.
struct OneRun {
    int bits;
    int mode;
    int first;
    int count;
    bool fills;
    int left; ///< of the visible part
    int right;

    friend std::ostream& operator<<(std::ostream& out, const OneRun& run) {
        return out << run.bits << " bits, mode " << run.mode << ", " << run.count
                   << (run.fills ? " equal" : " different") << " pixels from " << run.first
                   << ", visible from " << run.left << " to " << run.right;
    }
};

uint32_t valueAt(const OneRun& run, int pixel) {
    return 0xC7A51EU + (run.fills ? 0U : static_cast<uint32_t>(pixel) * 0x010307U);
}

std::vector<uint8_t> streamOf(const OneRun& run) {
    std::vector<uint8_t> stream;
    for (int left = run.first; left > 0; left -= 63) {
        stream.insert(stream.end(), {static_cast<uint8_t>(std::min(left, 63)), 0xEE});
    }
    stream.push_back(static_cast<uint8_t>((run.fills ? 0xC0 : 0x40) | run.count));
    for (int pixel = 0; pixel < (run.fills ? 1 : run.count); ++pixel) {
        for (int byte = 0; byte < run.bits / 8; ++byte) {
            stream.push_back(static_cast<uint8_t>(valueAt(run, pixel) >> (8 * byte)));
        }
    }
    stream.push_back(0);
    return stream;
}

std::string check(const OneRun& run) {
    const std::vector<uint8_t> bytes = streamOf(run);
    GuardedMemory stream(bytes.size());
    std::copy(bytes.begin(), bytes.end(), stream.data());
    const int pixelBytes = run.bits / 8;
    GuardedMemory memory(static_cast<size_t>((run.right - run.left + 1) * pixelBytes));
    Expected expected(memory);
    kernel::LastPixel last{0, nullptr};
    for (int pixel = 0; pixel < run.count; ++pixel) {
        const int x = run.first + pixel;
        if (x >= run.left && x <= run.right) {
            const std::ptrdiff_t at = (x - run.left) * pixelBytes;
            expected.put(at, pixelBytes, valueAt(run, pixel), run.mode);
            last = {valueAt(run, pixel) & (0xFFFFFFU >> (24 - run.bits)),
                    memory.data() + at + pixelBytes};
        }
    }
    const kernel::RunImage image{stream.data(), kWidth, run.left, 0, run.right, 0};
    const kernel::LastPixel drawn =
        kernel::kernelsFor(run.bits, run.mode)->runs(memory.data(), 0, image);
    if (!expected.met()) {
        return "wrong bytes";
    }
    return drawn.cursor == last.cursor && drawn.pixel == last.pixel ? "" : "wrong last pixel";
}

TEST(RunsKernel, DrawsRunsOfEveryLengthWholeAndCut) {
    for (const int bits : kDepths) {
        for (const int mode : kModes) {
            for (int count = 0; count <= 63; ++count) {
                for (const bool fills : {false, true}) {
                    const int first = count * 5 % 80;
                    for (const OneRun& run :
                         {OneRun{bits, mode, first, count, fills, 0, kWidth - 1},
                          OneRun{bits, mode, first, count, fills, first + 3, first + 20},
                          OneRun{bits, mode, first, count, fills, 0, first + count / 2}}) {
                        ASSERT_EQ(check(run), "") << run;
                    }
                }
            }
        }
    }
}

TEST(RunsKernel, PutsBytesAsPixels) {
    for (const int bits : kDepths) {
        for (const int mode : kModes) {
            const int pixelBytes = bits / 8;
            GuardedMemory memory(static_cast<size_t>(40 * pixelBytes));
            Expected expected(memory);
            uint8_t values[40];
            for (int i = 0; i < 40; ++i) {
                values[i] = static_cast<uint8_t>(i * 37);
                expected.put(i * pixelBytes, pixelBytes, values[i], mode);
            }
            const uint8_t* const end =
                kernel::kernelsFor(bits, mode)->bytes(memory.data(), values, 40);
            EXPECT_TRUE(expected.met());
            EXPECT_EQ(end, memory.data() + memory.size());
        }
    }
}

} // namespace
