// Two million random drawing calls and one number for all that they write. It is the same on every
// target and whoever does the drawing: where it is not, some pixel differs.
#include "platform/service_table.h"
#include "raster/random_drawing.h"

#include <quarlo/image.h>
#include <quarlo/text.h>
#include <quarlo/transfer.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>

using namespace quarlo::test;

namespace {

constexpr uint64_t kSeed = 2026;
constexpr int kScenes = 10'000;
constexpr int kCallsAScene = 200;
constexpr uint64_t kExpected = 0x23DF8F87E176D22C;

const DrawMix kEveryShape = {kEveryCall.setters,
                             {DrawCall::LineTo, DrawCall::DrawLine, DrawCall::DrawRect,
                              DrawCall::SetPixel, DrawCall::GetPixel, DrawCall::Oval,
                              DrawCall::RoundRect, DrawCall::Arc, DrawCall::Pie}};

// Services as plain functions: recording millions of calls would take longer than drawing.

void* allocate(int32_t, uint32_t, int32_t size) {
    return std::malloc(static_cast<size_t>(size));
}

int32_t release(int32_t, uint32_t, void* block) {
    std::free(block);
    return 1;
}

constexpr int32_t kGlyphRows = 12;

/// Glyphs of 1 to 16 columns whose bits are noise; the font's kind is their depth.
int32_t findGlyph(GFontRecord* font, GGlyphRequest* request) {
    static const std::array<uint8_t, 512> noise = [] {
        Random random(kSeed);
        std::array<uint8_t, 512> bytes;
        std::generate(bytes.begin(), bytes.end(),
                      [&] { return static_cast<uint8_t>(random.bits()); });
        return bytes;
    }();
    const char16_t unit = *request->text;
    request->next = request->text + 1;
    request->width = static_cast<int16_t>(1 + unit % 16);
    request->height = kGlyphRows;
    request->bitsPerPixel = static_cast<int16_t>(font->kind);
    request->bits = noise.data() + unit % 256;
    return 1;
}

template <typename Function>
void bind(int service, Function* function) {
    quarlo::serviceTable.slots[quarlo::slotOf(service)] = reinterpret_cast<GPIFunction>(function);
}

/// FNV-1a of numbers, low byte first.
class Checksum {
  public:
    void add(uint8_t byte) { value_ = (value_ ^ byte) * 0x100000001B3; }

    void add(const DrawResult& result) {
        for (const int64_t number : result) {
            for (int shift = 0; shift < 64; shift += 8) {
                add(static_cast<uint8_t>(number >> shift));
            }
        }
    }

    void add(const GuardedMemory& memory) {
        std::for_each(memory.data(), memory.data() + memory.size(),
                      [this](uint8_t byte) { add(byte); });
    }

    uint64_t value() const { return value_; }

  private:
    uint64_t value_ = 0xCBF29CE484222325;
};

/// Calls whose arguments are more than numbers: points, strings, images, other surfaces.
class Shapes {
  public:
    explicit Shapes(Random& random) : random_(random) {}

    void draw(GDrawHandle* handle, GVram& surface, GVram& other) {
        switch (random_.between(0, 7)) {
        case 0:
            return drawPolygon(handle);
        case 1:
            return drawBezier(handle);
        case 2:
            return drawBorder(handle);
        case 3:
            return drawOvalBorder(handle);
        case 4:
            return transfer(handle, surface, random_.oneIn(3) ? surface : other);
        case 5:
            return drawString(handle);
        default:
            return drawImage(handle);
        }
    }

  private:
    int16_t small(int32_t low, int32_t high) {
        return static_cast<int16_t>(random_.between(low, high));
    }

    /// A point that marks no table edge.
    GPoint point() {
        const int16_t x = random_.coordinate(-12, 80);
        return {std::max<int16_t>(x, G_TABLE_EDGE + 1), random_.coordinate(-12, 50)};
    }

    GRect box() {
        const GPoint at = point();
        return {at.x, at.y, static_cast<int16_t>(at.x + random_.between(0, 60)),
                static_cast<int16_t>(at.y + random_.between(0, 40))};
    }

    GBorderStyle border() {
        const auto color = [this] { return static_cast<uint32_t>(random_.bits()); };
        return {1, color(), color(), random_.oneIn(2) ? G_NO_COLOR : color(),
                random_.between(0, 6)};
    }

    void drawPolygon(GDrawHandle* handle) {
        std::array<GPoint, 8> points;
        std::generate(points.begin(), points.end(), [this] { return point(); });
        GPoly poly{small(3, 8), points.data(), {}};
        GDDrawPoly(handle, &poly);
    }

    void drawBezier(GDrawHandle* handle) {
        std::array<GPoint, 4> points;
        std::generate(points.begin(), points.end(), [this] { return point(); });
        const GPoly poly{4, points.data(), {}};
        GDDrawBezier(handle, &poly);
    }

    void drawBorder(GDrawHandle* handle) {
        const GRect rect = box();
        const GBorderStyle style = border();
        GDDrawRectBorder(handle, &rect, nullptr, &style, static_cast<uint16_t>(small(0, 2)));
    }

    void drawOvalBorder(GDrawHandle* handle) {
        const GRect rect = box();
        const GBorderStyle style = border();
        GDDrawOvalBorder(handle, &rect, nullptr, &style, small(0, 1));
    }

    void transfer(GDrawHandle* handle, GVram& surface, const GVram& source) {
        const GPoint from{small(-5, 60), small(-5, 30)};
        const GPoint to{small(-5, 60), small(-5, 30)};
        const GSize size{small(1, 80), small(1, 40)};
        GDBitBlt(handle, &source, from.x, from.y, size.width, size.height, &surface, to.x, to.y,
                 random_.between(0, 3));
    }

    void drawString(GDrawHandle* handle) {
        std::array<char16_t, 6> text{};
        std::generate(text.begin(), text.end() - 1,
                      [this] { return static_cast<char16_t>(random_.between(0, 400)); });
        GFontRecord font{};
        font.kind = random_.pick({uint16_t{1}, uint16_t{2}, uint16_t{4}, uint16_t{8}});
        GDSetFont(handle, &font);
        GDDrawString(handle, text.data());
        GDSetFont(handle, nullptr);
    }

    /// One run of each kind, over and over, and the end.
    void drawImage(GDrawHandle* handle) {
        std::array<uint8_t, 256> stream{};
        size_t at = 0;
        const auto put = [&](uint64_t byte) { stream[at++] = static_cast<uint8_t>(byte); };
        const int16_t bits = random_.pick({int16_t{3}, int16_t{8}, int16_t{16}, int16_t{24}});
        while (at < stream.size() - 50) {
            const uint64_t kind = random_.pick({uint64_t{0x00}, uint64_t{0x40}, uint64_t{0xC0}});
            const uint64_t count = random_.bits() % 12 + 1;
            const uint64_t units = kind == 0x40 ? count : 1;
            put(kind | count);
            for (uint64_t byte = kind == 0 ? 1 : units * (static_cast<uint64_t>(bits + 7) / 8);
                 byte > 0; --byte) {
                put(random_.bits());
            }
        }
        const GGrfImage image{G_GRF_DIRECT, small(1, 30), small(1, 20), bits, 0, nullptr, nullptr};
        const GPoint place = point();
        const GSize box{small(0, 50), small(0, 50)};
        const auto draw = bits <= 8 && random_.oneIn(2) ? GDDrawGrfZoom : GDDrawGrf;
        draw(handle, &image, stream.data(), place.x, place.y, box.width, box.height);
    }

    Random& random_;
};

/// A surface with noise on it, a second one to copy from, and calls that draw. Where the order of
/// random numbers matters they are drawn in statements or braces: compilers choose that of
/// arguments.
class Scene {
  public:
    explicit Scene(int number)
        : random_(kSeed * kScenes + static_cast<uint64_t>(number)),
          size_{small(1, 48), small(1, 48)},
          depth_(random_.pick(kDepths)),
          drawing_(size_.width, size_.height, depth_, Against::End, small(0, 2)),
          other_(40, 30, random_.pick(kDepths)) {
        fill(drawing_.surface().memory());
        fill(other_.memory());
    }

    template <typename Prepare>
    void draw(Checksum& checksum, Prepare prepare) {
        Shapes shapes(random_);
        for (int i = 0; i < kCallsAScene; ++i) {
            prepare(drawing_);
            if (random_.oneIn(8)) {
                shapes.draw(drawing_, *drawing_.surface(), *other_);
            } else {
                checksum.add(make(randomCall(kEveryShape, random_), drawing_));
            }
        }
        const GDrawHandle& handle = *static_cast<GDrawHandle*>(drawing_);
        checksum.add(DrawResult{handle.penPos.x, handle.penPos.y, handle.dashPhase});
        checksum.add(drawing_.surface().memory());
    }

  private:
    int16_t small(int32_t low, int32_t high) {
        return static_cast<int16_t>(random_.between(low, high));
    }

    void fill(GuardedMemory& memory) {
        std::generate(memory.data(), memory.data() + memory.size(),
                      [this] { return static_cast<uint8_t>(random_.bits()); });
    }

    Random random_;
    GSize size_;
    int16_t depth_;
    Drawing drawing_;
    GuardedSurface other_;
};

class ChecksumTest : public RasterTest {
  protected:
    ChecksumTest() {
        bind(20, findGlyph);
        bind(41, allocate);
        bind(42, release);
        platform.remove({44}); // the library draws strings itself
    }

    template <typename Prepare>
    static uint64_t drawAll(Prepare prepare) {
        Checksum checksum;
        for (int number = 0; number < kScenes; ++number) {
            Scene(number).draw(checksum, prepare);
        }
        return checksum.value();
    }
};

TEST_F(ChecksumTest, OfTheKernels) {
    EXPECT_EQ(drawAll([](GDrawHandle*) {}), kExpected);
}

TEST_F(ChecksumTest, OfTheOperationsOneByOne) {
    CopiedOps copied;
    EXPECT_EQ(drawAll([&](GDrawHandle* handle) { copied.attach(handle); }), kExpected);
}

} // namespace
