#include "image/grf_file_bytes.h"
#include "image/grf_test.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <ostream>
#include <utility>

namespace quarlo::test {
namespace {

using Fault = std::pair<GGrfFault, size_t>;

/// What is wrong in a file, which lies in memory that ends with it.
std::vector<Fault> faultsOf(const FileBytes& bytes) {
    const ExactStream file(bytes);
    std::vector<Fault> faults;
    GGrfFile opened;
    const int32_t count = GGrfInspectFile(
        &opened, file.data(), bytes.size(),
        [](void* context, GGrfFault fault, size_t offset) {
            static_cast<std::vector<Fault>*>(context)->emplace_back(fault, offset);
        },
        &faults);
    EXPECT_EQ(static_cast<size_t>(count), faults.size());
    EXPECT_EQ(GGrfOpenFile(&opened, file.data(), bytes.size()), faults.empty());
    return faults;
}

std::vector<Fault> faultsOf(const GrfFields& fields) {
    return faultsOf(bytesOf(fields));
}

using Faults = std::vector<Fault>;

const std::vector<GrfFields>& goodFiles() {
    static const std::vector<GrfFields> files = {directFields(), packedFields(), wideFields(),
                                                 indexedFields()};
    return files;
}

TEST(GrfFile, GivesTheRecordOfADirectImage) {
    const FileBytes bytes = bytesOf(wideFields());
    GGrfFile file;
    ASSERT_EQ(GGrfOpenFile(&file, bytes.data(), bytes.size()), 1);
    EXPECT_EQ(file.image.type, G_GRF_DIRECT);
    EXPECT_EQ(file.image.width, 3);
    EXPECT_EQ(file.image.height, 2);
    EXPECT_EQ(file.image.bits, 16);
    EXPECT_EQ(file.image.size, 9U);
    EXPECT_EQ(file.image.data, bytes.data() + 32);
    EXPECT_EQ(file.image.palette, nullptr);
    EXPECT_EQ(file.redMask, 0x7C00U);
    EXPECT_EQ(file.greenMask, 0x03E0U);
    EXPECT_EQ(file.blueMask, 0x001FU);
    EXPECT_EQ(GGrfCanZoom(&file), 0);
}

TEST(GrfFile, GivesAPaletteThatAnyIndexIsIn) {
    const FileBytes bytes = bytesOf(packedFields());
    GGrfFile file;
    ASSERT_EQ(GGrfOpenFile(&file, bytes.data(), bytes.size()), 1);
    EXPECT_EQ(file.image.data, bytes.data() + 32 + 12);
    ASSERT_EQ(file.image.palette, &file.palette);
    EXPECT_EQ(file.palette.count, 3U);
    ASSERT_EQ(file.palette.colors, file.colors);
    EXPECT_EQ(file.colors[0], 0x1234U);
    EXPECT_EQ(file.colors[2], 0x001FU);
    EXPECT_TRUE(std::all_of(file.colors + 3, std::end(file.colors),
                            [](uint32_t color) { return color == 0; }));
    EXPECT_EQ(GGrfCanZoom(&file), 1);
}

TEST(GrfFile, GivesTheColorsThatIndexesStandFor) {
    const FileBytes bytes = bytesOf(indexedFields());
    GGrfFile file;
    ASSERT_EQ(GGrfOpenFile(&file, bytes.data(), bytes.size()), 1);
    EXPECT_EQ(file.image.type, G_GRF_DIRECT);
    EXPECT_EQ(file.redMask | file.greenMask | file.blueMask, 0U);
    EXPECT_EQ(file.palette.count, 3U);
    EXPECT_EQ(file.colors[1], 0xFF0000U);
}

TEST(GrfFile, FitsTheSurfacesThatItWasMadeFor) {
    const GuardedSurface surfaces[] = {{1, 1, 8}, {1, 1, 16}, {1, 1, 24}, {1, 1, {0, 0xFFFFFF}}};
    const auto fits = [&surfaces](const GrfFields& fields) {
        const FileBytes bytes = bytesOf(fields);
        GGrfFile file;
        EXPECT_EQ(GGrfOpenFile(&file, bytes.data(), bytes.size()), 1);
        std::vector<int32_t> results;
        for (const GuardedSurface& surface : surfaces) {
            results.push_back(GGrfFitsSurface(&file, &*surface));
        }
        return results;
    };
    using Results = std::vector<int32_t>;
    EXPECT_EQ(fits(directFields()), (Results{1, 0, 0, 0}));
    EXPECT_EQ(fits(wideFields()), (Results{0, 1, 0, 0}));
    EXPECT_EQ(fits(indexedFields()), (Results{0, 0, 0, 1}));
    GrfFields packed = packedFields(); // for 5-6-5
    EXPECT_EQ(fits(packed), (Results{0, 0, 0, 0}));
    packed.red = 0x0000FF;
    packed.green = 0x00FF00;
    packed.blue = 0xFF0000;
    EXPECT_EQ(fits(packed), (Results{0, 0, 1, 0}));
}

TEST(GrfFile, LacksNothingButItsEndInAnyPrefix) {
    for (const GrfFields& good : goodFiles()) {
        const FileBytes whole = bytesOf(good);
        EXPECT_EQ(faultsOf(whole), Faults());
        for (size_t size = 0; size < whole.size(); ++size) {
            const Faults faults =
                faultsOf(FileBytes(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(size)));
            ASSERT_FALSE(faults.empty()) << size;
            const size_t palette = 32 + 4 * good.palette.size();
            if (size < 32) {
                EXPECT_EQ(faults, (Faults{{G_GRF_FAULT_HEADER_CUT, size}}));
            } else if (size < palette) {
                EXPECT_EQ(faults, (Faults{{G_GRF_FAULT_PALETTE_CUT, size}}));
            } else {
                EXPECT_EQ(faults[0], Fault(G_GRF_FAULT_LENGTH, 28));
                EXPECT_TRUE(faults[1].first == G_GRF_FAULT_NO_END ||
                            faults[1].first == G_GRF_FAULT_RUN_CUT);
            }
        }
    }
}

TEST(GrfFile, OfNothingMayBeNull) {
    GGrfFile file;
    EXPECT_EQ(GGrfOpenFile(&file, nullptr, 0), 0);
}

/// A field that is wrong, and what is said of it.
struct WrongField {
    const char* name;
    void (*change)(GrfFields&);
    Fault fault;

    friend std::ostream& operator<<(std::ostream& out, const WrongField& field) {
        return out << field.name;
    }
};

class GrfFileField : public testing::TestWithParam<WrongField> {};

TEST_P(GrfFileField, IsNamedWithItsPlace) {
    GrfFields fields = directFields();
    GetParam().change(fields);
    EXPECT_EQ(faultsOf(fields), Faults{GetParam().fault});
}

void pack(GrfFields& fields, uint16_t bits, size_t colors) {
    fields = packedFields();
    fields.bits = bits;
    fields.palette.resize(colors);
}

INSTANTIATE_TEST_SUITE_P(
    Wrong, GrfFileField,
    testing::Values(
        WrongField{"Version0", [](auto& file) { file.version = 0; }, {G_GRF_FAULT_VERSION, 4}},
        WrongField{"Version2", [](auto& file) { file.version = 2; }, {G_GRF_FAULT_VERSION, 4}},
        WrongField{"Type0", [](auto& file) { file.type = 0; }, {G_GRF_FAULT_TYPE, 6}},
        WrongField{"Type3", [](auto& file) { file.type = 3; }, {G_GRF_FAULT_TYPE, 6}},
        WrongField{"Width0", [](auto& file) { file.width = 0; }, {G_GRF_FAULT_WIDTH, 8}},
        WrongField{"Width32768", [](auto& file) { file.width = 32768; }, {G_GRF_FAULT_WIDTH, 8}},
        WrongField{"Height0", [](auto& file) { file.height = 0; }, {G_GRF_FAULT_HEIGHT, 10}},
        WrongField{
            "Height65535", [](auto& file) { file.height = 65535; }, {G_GRF_FAULT_HEIGHT, 10}},
        WrongField{"Bits4", [](auto& file) { file.bits = 4; }, {G_GRF_FAULT_BITS, 12}},
        WrongField{"Bits32", [](auto& file) { file.bits = 32; }, {G_GRF_FAULT_BITS, 12}},
        WrongField{"Bits32776", [](auto& file) { file.bits = 0x8008; }, {G_GRF_FAULT_BITS, 12}},
        WrongField{"Packed3", [](auto& file) { pack(file, 3, 3); }, {G_GRF_FAULT_BITS, 12}},
        WrongField{"Packed16", [](auto& file) { pack(file, 16, 3); }, {G_GRF_FAULT_BITS, 12}},
        WrongField{
            "DirectColors", [](auto& file) { file.palette = {1}; }, {G_GRF_FAULT_COLOR_COUNT, 14}},
        WrongField{"NoColors", [](auto& file) { pack(file, 4, 0); }, {G_GRF_FAULT_COLOR_COUNT, 14}},
        WrongField{
            "17Colors", [](auto& file) { pack(file, 4, 17); }, {G_GRF_FAULT_COLOR_COUNT, 14}},
        WrongField{"MaskApart", [](auto& file) { file.red = 0xA0; }, {G_GRF_FAULT_MASKS, 16}},
        WrongField{"MaskEmpty", [](auto& file) { file.green = 0; }, {G_GRF_FAULT_MASKS, 16}},
        WrongField{"MasksOverlap", [](auto& file) { file.blue = 0x07; }, {G_GRF_FAULT_MASKS, 16}},
        WrongField{"MaskOutside", [](auto& file) { file.red = 0x700; }, {G_GRF_FAULT_MASKS, 16}},
        WrongField{"MaskOf9Bits",
                   [](auto& file) { file = wideFields(), file.red = 0xFF80, file.green = 0x60; },
                   {G_GRF_FAULT_MASKS, 16}},
        WrongField{"PackedMask25",
                   [](auto& file) { file = packedFields(), file.red = 0x1000000; },
                   {G_GRF_FAULT_MASKS, 16}},
        WrongField{"PackedIndexes",
                   [](auto& file) { file = packedFields(), file.red = file.green = file.blue = 0; },
                   {G_GRF_FAULT_MASKS, 16}}),
    [](const auto& field) { return field.param.name; });

TEST(GrfFile, HasItsMarkFirst) {
    for (size_t i = 0; i < 4; ++i) {
        FileBytes bytes = bytesOf(directFields());
        bytes[i] = 'X';
        EXPECT_EQ(faultsOf(bytes), (Faults{{G_GRF_FAULT_MARK, 0}}));
    }
}

TEST(GrfFile, NamesAllWrongFieldsAtOnce) {
    GrfFields fields = directFields();
    fields.width = fields.height = 0;
    fields.red = 0;
    EXPECT_EQ(faultsOf(fields),
              (Faults{{G_GRF_FAULT_WIDTH, 8}, {G_GRF_FAULT_HEIGHT, 10}, {G_GRF_FAULT_MASKS, 16}}));
}

/// What is wrong in a stream, by offsets in it, of the image of 4 x 2 pixels.
Faults faultsIn(const FileBytes& stream, GrfFields fields = directFields()) {
    fields.stream = stream;
    Faults faults = faultsOf(fields);
    for (Fault& fault : faults) {
        fault.second -= 32 + 4 * fields.palette.size();
    }
    return faults;
}

TEST(GrfFile, NamesWhatIsWrongInItsStream) {
    EXPECT_EQ(faultsIn({}), (Faults{{G_GRF_FAULT_NO_END, 0}}));
    EXPECT_EQ(faultsIn({0xC8, 1}), (Faults{{G_GRF_FAULT_NO_END, 2}}));
    EXPECT_EQ(faultsIn({0xC4, 1, 0xC4}), (Faults{{G_GRF_FAULT_RUN_CUT, 2}}));
    EXPECT_EQ(faultsIn({0x43, 1, 2}), (Faults{{G_GRF_FAULT_RUN_CUT, 0}}));
    EXPECT_EQ(faultsIn({0x02}), (Faults{{G_GRF_FAULT_RUN_CUT, 0}}));
    EXPECT_EQ(faultsIn({0xC8, 1, 0xC1, 1, 0x05, 0, 0}), (Faults{{G_GRF_FAULT_BEHIND_LAST_ROW, 2}}));
    EXPECT_EQ(faultsIn({0x09, 1, 0}), (Faults{{G_GRF_FAULT_BEHIND_LAST_ROW, 0}}));
    EXPECT_EQ(faultsIn({0xC8, 1, 0, 7, 8}), (Faults{{G_GRF_FAULT_BYTES_AFTER_END, 3}}));
    EXPECT_EQ(faultsIn({0xFF, 1, 0x41}),
              (Faults{{G_GRF_FAULT_BEHIND_LAST_ROW, 0}, {G_GRF_FAULT_RUN_CUT, 2}}));
}

TEST(GrfFile, AllowsWhatHasNoEffect) {
    EXPECT_EQ(faultsIn({0}), Faults());                               // nothing is drawn
    EXPECT_EQ(faultsIn({0x80, 0xBF, 0x40, 0xC0, 9, 0}), Faults());    // nothing is counted
    EXPECT_EQ(faultsIn({0xC8, 1, 0xBF, 0x40, 0xC0, 9, 0}), Faults()); // neither at the end
    EXPECT_EQ(faultsIn({0x08, 0xFF, 0}), Faults());                   // skipped to the end
}

TEST(GrfFile, NamesTheFirstIndexWithoutAColor) {
    const GrfFields packed = packedFields();
    EXPECT_EQ(faultsIn({0x43, 0x12, 0x23, 0x33, 0}, packed), (Faults{{G_GRF_FAULT_NO_COLOR, 2}}));
    EXPECT_EQ(faultsIn({0xC5, 0xF0, 0}, packed), (Faults{{G_GRF_FAULT_NO_COLOR, 1}}));
    EXPECT_EQ(faultsIn({0xC0, 0xF0, 0}, packed), Faults());
    EXPECT_EQ(faultsIn({0x42, 2, 3, 0}, indexedFields()), (Faults{{G_GRF_FAULT_NO_COLOR, 2}}));
}

TEST(GrfFile, LeavesPixelsOfItsLastUnitBehindTheImage) {
    GrfFields packed = packedFields();
    packed.width = 3; // 6 pixels, two in a unit
    packed.height = 1;
    EXPECT_EQ(faultsIn({0x42, 0, 0, 0}, packed), Faults());
    EXPECT_EQ(faultsIn({0xC3, 0, 0}, packed), (Faults{{G_GRF_FAULT_BEHIND_LAST_ROW, 0}}));
    EXPECT_EQ(faultsIn({0x42, 0, 0, 0xC1, 0, 0}, packed),
              (Faults{{G_GRF_FAULT_BEHIND_LAST_ROW, 3}}));
}

TEST(GrfFile, HasNothingBeforeOrBehindItsStream) {
    FileBytes bytes = bytesOf(directFields());
    bytes.push_back(0);
    EXPECT_EQ(faultsOf(bytes), (Faults{{G_GRF_FAULT_LENGTH, 28}}));
    bytes = bytesOf(directFields());
    bytes[31] = 0xFF; // a length of 4 GB
    EXPECT_EQ(faultsOf(bytes), (Faults{{G_GRF_FAULT_LENGTH, 28}}));
    bytes[31] = 0;
    --bytes[28];
    EXPECT_EQ(faultsOf(bytes), (Faults{{G_GRF_FAULT_LENGTH, 28}, {G_GRF_FAULT_NO_END, 41}}));
}

class HostileGrfFile : public RasterTest {
  protected:
    HostileGrfFile() { platform.recordOperations(false); }

    /// Draws what is taken of a file, whole, cut and stretched. A byte read or written outside is
    /// a fault of memory.
    void drawIfOpened(const FileBytes& bytes) {
        const ExactStream exact(bytes);
        GGrfFile file;
        if (GGrfOpenFile(&file, exact.data(), bytes.size()) == 0) {
            ++refused;
            return;
        }
        ++drawn;
        const GGrfImage& image = file.image;
        for (Drawing& drawing : drawings_) {
            GDDrawGrf(drawing, &image, image.data, 1, 1, 0, 0);
            GDDrawGrf(drawing, &image, image.data, -2, 5, 0, 0);
            if (GGrfCanZoom(&file) != 0) {
                GDDrawGrfZoom(drawing, &image, image.data, -1, 1, 9, 7);
                GDDrawGrfZoom(drawing, &image, image.data, 1, 0, 2, 1);
            }
            EXPECT_TRUE(drawing.surface().memory().intact());
        }
    }

    int refused = 0;
    int drawn = 0;

  private:
    std::array<Drawing, 3> drawings_{{{8, 6, 8}, {8, 6, 16}, {8, 6, 24}}};
};

TEST_F(HostileGrfFile, DoesNoHarmWithAnyOneByteChanged) {
    for (const GrfFields& good : goodFiles()) {
        const FileBytes whole = bytesOf(good);
        for (size_t at = 0; at < whole.size(); ++at) {
            FileBytes bytes = whole;
            for (int value = 0; value < 256; ++value) {
                bytes[at] = static_cast<uint8_t>(value);
                drawIfOpened(bytes);
            }
        }
    }
    EXPECT_GT(refused, 10000);
    EXPECT_GT(drawn, 10000);
}

TEST_F(HostileGrfFile, DoesNoHarmWithAnyByteMissing) {
    for (const GrfFields& good : goodFiles()) {
        const FileBytes whole = bytesOf(good);
        for (size_t at = 0; at < whole.size(); ++at) {
            FileBytes bytes = whole;
            bytes.erase(bytes.begin() + static_cast<ptrdiff_t>(at));
            drawIfOpened(bytes);
        }
    }
    EXPECT_EQ(drawn, 0);
}

TEST_F(HostileGrfFile, DoesNoHarmWithRandomRuns) {
    Random random(testSeed());
    for (int round = 0; round < 20000; ++round) {
        GrfFields fields = random.pick(goodFiles());
        fields.stream = randomStream(random, fields.width * fields.height, (fields.bits + 7) / 8);
        drawIfOpened(bytesOf(fields));
    }
    EXPECT_GT(refused, 1000);
    EXPECT_GT(drawn, 500);
}

} // namespace
} // namespace quarlo::test
