// Bytes that are the same on every machine, and those that are not.
#include "raster/drawing.h"

#include <quarlo/font.h>
#include <quarlo/image.h>
#include <quarlo/memory.h>
#include <quarlo/text.h>
#include <quarlo/typed_memory.h>

#include <bit>
#include <cstring>
#include <vector>

using namespace quarlo::test;

namespace {

using Bytes = std::vector<uint8_t>;

class ByteOrder : public RasterTest {
  protected:
    static Bytes bytesOf(Drawing& drawing) {
        GuardedMemory& memory = drawing.surface().memory();
        return {memory.data(), memory.data() + memory.size()};
    }

    /// One row, drawn on by the kernels and by the operations one by one.
    template <typename Draw>
    static void expectRow(int16_t width, int16_t bits, const Draw& draw, const Bytes& expected) {
        CopiedOps copied;
        for (const bool oneByOne : {false, true}) {
            Drawing drawing(width, 1, bits);
            if (oneByOne) {
                copied.attach(drawing);
            }
            draw(drawing);
            EXPECT_EQ(bytesOf(drawing), expected) << bits << " bits, one by one: " << oneByOne;
        }
    }
};

TEST_F(ByteOrder, OfPixelsIsLowByteFirst) {
    const auto line = [](uint32_t pixel) {
        return [pixel](Drawing& drawing) {
            drawing->penPixel = pixel;
            drawLine(drawing, 0, 0, 1, 0);
        };
    };
    expectRow(2, 16, line(0x1234), {0x34, 0x12, 0x34, 0x12});
    expectRow(2, 24, line(0x123456), {0x56, 0x34, 0x12, 0x56, 0x34, 0x12});
}

TEST_F(ByteOrder, OfImagesIsLowByteFirst) {
    const auto image = [](int16_t bits, const Bytes& stream) {
        return [bits, stream](Drawing& drawing) {
            const GGrfImage record{G_GRF_DIRECT, 2, 1, bits, 0, nullptr, nullptr};
            GDDrawGrf(drawing, &record, stream.data(), 0, 0, 0, 0);
        };
    };
    expectRow(2, 16, image(16, {0xC2, 0x34, 0x12, 0}), {0x34, 0x12, 0x34, 0x12});
    expectRow(2, 24, image(24, {0x42, 0x56, 0x34, 0x12, 0xBC, 0x9A, 0x78, 0}),
              {0x56, 0x34, 0x12, 0xBC, 0x9A, 0x78});
}

TEST_F(ByteOrder, OfPatternsIsTheHighestBitLeft) {
    constexpr uint8_t kPattern[8] = {0xB0, 0xB0, 0xB0, 0xB0, 0xB0, 0xB0, 0xB0, 0xB0};
    const Bytes expected = {1, 0, 1, 1, 0, 0, 0, 0};
    const auto filled = [&](Drawing& drawing) {
        GDDefineFillPattern(drawing, 5, kPattern);
        GDSetFillAttribute(drawing, 5, 0, 0);
        drawing->forePixel = 1;
        drawing->backPixel = 0;
        drawing->penPixel = G_NO_COLOR;
        drawRect(drawing, 0, 0, 7, 0);
    };
    expectRow(8, 8, filled, expected);
}

TEST_F(ByteOrder, OfDashesIsTheLowestBitFirst) {
    constexpr uint8_t kSteps[8] = {0x0D, 0x01};
    const auto dashed = [&](Drawing& drawing) {
        GDDefinePenDash(drawing, 2, kSteps);
        GDSetPenDash(drawing, 2);
        drawing->dashPhase = 63; // of the pixel before
        drawLine(drawing, 0, 0, 8, 0);
    };
    expectRow(9, 8, dashed, {1, 0, 1, 1, 0, 0, 0, 0, 1});
}

TEST_F(ByteOrder, OfGlyphsIsTheHighestBitLeft) {
    constexpr uint8_t kBits[2] = {0xB0, 0x80};
    platform.serve<20>([&](GFontRecord*, GGlyphRequest* request) {
        request->next = request->text + 1;
        request->width = 9;
        request->height = 1;
        request->bitsPerPixel = 1;
        request->bits = kBits;
        return 1;
    });
    platform.remove({44});
    GFontRecord font{};
    const auto letter = [&](Drawing& drawing) {
        GDSetFont(drawing, &font);
        GDMoveTo(drawing, 0, 0);
        GDDrawString(drawing, u"A");
    };
    expectRow(9, 8, letter, {1, 0, 1, 1, 0, 0, 0, 0, 1});
}

TEST_F(ByteOrder, OfTypedMemoryIsTheMachines) {
    void* const block = GMGMemCreate(u"order", 4);
    ASSERT_NE(block, nullptr);
    const int32_t value = 0x01020304;
    GMGMemSetLong(block, 0, value);
    EXPECT_EQ(std::memcmp(block, &value, sizeof value), 0);
    EXPECT_EQ(GMGMemGetChar(block, 0), std::endian::native == std::endian::little ? 4 : 1);
    GMGMemDelete(block);
}

} // namespace
