#include "run_encoder.h"

#include "grf_writer.h"
#include "pictures.h"
#include "raster/drawing.h"
#include "run_decoder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

namespace quarlo::test {
namespace {

using namespace grf;
using Stream = std::vector<uint8_t>;

Image rowOf(std::vector<uint32_t> values, const PixelFormat& format = kFormat8) {
    return {
        static_cast<int>(values.size()), 1, false, format.bits(), format, {}, std::move(values)};
}

TEST(GrfRunEncoder, MakesRunsOfEachKind) {
    EXPECT_EQ(encodeRuns(rowOf({kClear, kClear, 1, 2, 3, 9, 9, 9, 9, 9, 9})),
              (Stream{0x02, 0, 0x43, 1, 2, 3, 0xC6, 9, 0}));
}

TEST(GrfRunEncoder, LeavesTheEndWhereNothingIsDrawn) {
    EXPECT_EQ(encodeRuns(rowOf({7, kClear, kClear})), (Stream{0x41, 7, 0}));
    EXPECT_EQ(encodeRuns(rowOf({kClear, kClear})), (Stream{0}));
}

TEST(GrfRunEncoder, KeepsShortRepetitionsInOneRun) {
    EXPECT_EQ(encodeRuns(rowOf({1, 2, 2, 2, 3})), (Stream{0x45, 1, 2, 2, 2, 3, 0}));
}

TEST(GrfRunEncoder, WritesUnitsLowByteFirst) {
    EXPECT_EQ(encodeRuns(rowOf({0x1234, 0xABCD}, kFormat565)),
              (Stream{0x42, 0x34, 0x12, 0xCD, 0xAB, 0}));
    EXPECT_EQ(encodeRuns(rowOf({0x123456}, kFormat24)), (Stream{0x41, 0x56, 0x34, 0x12, 0}));
}

TEST(GrfRunEncoder, PacksTheFirstPixelHighest) {
    const Image image{7, 1, true, 2, kFormat24, {1, 2, 3, 4}, {0, 1, 2, 3, 3, 2, 1}};
    EXPECT_EQ(encodeRuns(image), (Stream{0x42, 0x1B, 0xE4, 0}));
}

TEST(GrfRunEncoder, SplitsRunsOfMoreThan63) {
    EXPECT_EQ(encodeRuns(rowOf(std::vector<uint32_t>(130, 5))).size(), 3 * 2 + 1U);
    std::vector<uint32_t> values(100, kClear);
    values.push_back(1);
    EXPECT_EQ(encodeRuns(rowOf(values)), (Stream{0x3F, 0, 0x25, 0, 0x41, 1, 0}));
}

/// The least cost of a stream, tried out run by run.
size_t leastCost(const Image& image, size_t from, std::map<size_t, size_t>& known) {
    const auto& values = image.values;
    if (std::all_of(values.begin() + static_cast<ptrdiff_t>(from), values.end(),
                    [](uint32_t value) { return value == kClear; })) {
        return 1;
    }
    if (const auto found = known.find(from); found != known.end()) {
        return found->second;
    }
    const auto unit = static_cast<size_t>(image.unitBytes());
    size_t least = SIZE_MAX;
    bool same = true;
    for (size_t end = from + 1; end <= std::min(values.size(), from + 63); ++end) {
        const uint32_t value = values[end - 1];
        if ((value == kClear) != (values[from] == kClear)) {
            break;
        }
        const size_t rest = kBytesForARun + leastCost(image, end, known);
        same = same && value == values[from];
        if (value == kClear) {
            least = std::min(least, 2 + rest);
        } else {
            least = std::min(least, 1 + (end - from) * unit + rest);
            least = std::min(least, same ? 1 + unit + rest : SIZE_MAX);
        }
    }
    return known[from] = least;
}

size_t costOf(const GGrfFile& file) {
    const auto runs = countRuns(file);
    return file.image.size +
           kBytesForARun * (runs[G_GRF_SKIP] + runs[G_GRF_LITERAL] + runs[G_GRF_FILL]);
}

TEST(GrfRunEncoder, FindsTheLeastCost) {
    Random random(testSeed());
    for (const PixelFormat& format : {kFormat8, kFormat555, kFormat24}) {
        for (int round = 0; round < 300; ++round) {
            std::vector<uint32_t> values;
            while (values.size() < 90) {
                const uint32_t value =
                    random.oneIn(5) ? kClear : static_cast<uint32_t>(random.between(0, 3));
                values.insert(values.end(), static_cast<size_t>(random.between(1, 8)), value);
            }
            const Image image = rowOf(values, format);
            const auto bytes = writeGrf(image, encodeRuns(image));
            GGrfFile file;
            ASSERT_EQ(GGrfOpenFile(&file, bytes.data(), bytes.size()), 1);
            std::map<size_t, size_t> known;
            EXPECT_EQ(costOf(file), leastCost(image, 0, known)) << "seed " << testSeed();
        }
    }
}

/// Hands on images of random pictures for every target, each with the file that was made of it.
template <typename Action>
void forRandomImages(int rounds, Action action) {
    Random random(testSeed());
    for (int round = 0; round < rounds; ++round) {
        const grf::Picture picture = randomPicture(random, 30);
        for (const Target& target : allTargets()) {
            SCOPED_TRACE("seed " + std::to_string(testSeed()) + ", round " + std::to_string(round));
            const Image image = imageOf(picture, target);
            const auto bytes = writeGrf(image, encodeRuns(image));
            GGrfFile file;
            ASSERT_EQ(GGrfOpenFile(&file, bytes.data(), bytes.size()), 1);
            action(image, file);
        }
    }
}

TEST(GrfRunEncoder, IsUndoneByTheDecoder) {
    forRandomImages(
        100, [](const Image& image, const GGrfFile& file) { EXPECT_EQ(decodeRuns(file), image); });
}

class GrfRuns : public RasterTest {};

/// Whether a surface that was all zero shows an image's values.
bool showsValues(const GVram& surface, const Image& image) {
    for (size_t i = 0; i < image.values.size(); ++i) {
        const uint32_t value = image.values[i];
        const uint32_t shown = value == kClear ? 0 : image.packed ? image.palette[value] : value;
        const int at = static_cast<int>(i);
        if (pixelAt(surface, at % image.width, at / image.width) != shown) {
            return false;
        }
    }
    return true;
}

TEST_F(GrfRuns, DrawTheImage) {
    forRandomImages(50, [](const Image& image, const GGrfFile& file) {
        Drawing drawing(static_cast<int16_t>(image.width), static_cast<int16_t>(image.height),
                        static_cast<int16_t>(image.format.bits()));
        GDDrawGrf(drawing, &file.image, file.image.data, 0, 0, 0, 0);
        EXPECT_TRUE(showsValues(*drawing.surface(), image));
    });
}

} // namespace
} // namespace quarlo::test
