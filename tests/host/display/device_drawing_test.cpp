// Drawing on device surfaces against a model that knows nothing but single pixels.
#include "support/random_calls.h"
#include "support/started_platform.h"

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <sstream>
#include <vector>

namespace {

using namespace gpi::test;
using quarlo::test::Random;

const auto setPixel = service<GPISetPixel>(GPI_SERVICE_SET_PIXEL);
const auto span = service<GPISpan>(GPI_SERVICE_SPAN);
const auto nextPixel = service<GPINextPixel>(GPI_SERVICE_NEXT_PIXEL);
const auto coveragePixel = service<GPICoveragePixel>(GPI_SERVICE_COVERAGE_PIXEL);
const auto drawRect = service<GPIDrawRect>(GPI_SERVICE_DRAW_RECT);
const auto fillRect = service<GPIFillRect>(GPI_SERVICE_FILL_RECT);
const auto patternRect = service<GPIPatternRect>(GPI_SERVICE_PATTERN_RECT);
const auto patternNotice = service<GPIFillPatternNotice>(GPI_SERVICE_FILL_PATTERN_NOTICE);
const auto setRegion = service<GPISetDrawableRegion>(GPI_SERVICE_SET_DRAWABLE_REGION);

constexpr int kWidth = 40;
constexpr int kHeight = 30;
constexpr GRect kRegion{2, 3, 36, 28};

/// One call of a service that draws.
struct Call {
    int kind;
    int16_t x;
    int16_t y;
    int16_t right;
    int16_t bottom;
    uint32_t fore;
    uint32_t back;
    int32_t mode;
    std::array<uint8_t, 8> pattern;
};

enum { kSetPixel, kSpan, kNextPixel, kDrawRect, kFillRect, kPatternRect, kBrushRect, kKinds };

std::ostream& operator<<(std::ostream& out, const Call& call) {
    const char* const names[] = {"setPixel", "span",        "nextPixel", "drawRect",
                                 "fillRect", "patternRect", "brushRect"};
    out << names[call.kind] << ' ' << call.x << ',' << call.y << ' ' << call.right << ','
        << call.bottom << std::hex << " fore " << call.fore << " back " << call.back << " mode "
        << call.mode << " pattern";
    for (const int row : call.pattern) {
        out << ' ' << row;
    }
    return out << std::dec;
}

Call randomCall(Random& random) {
    Call call{};
    call.kind = random.between(0, kKinds - 1);
    call.x = random.coordinate(-5, kWidth + 5);
    call.y = random.coordinate(-5, kHeight + 5);
    call.right = random.coordinate(call.x - 2, kWidth + 5);
    call.bottom = random.coordinate(call.y - 2, kHeight + 5);
    call.fore = static_cast<uint32_t>(random.bits());
    call.back = static_cast<uint32_t>(random.bits());
    call.mode =
        random.oneIn(20) ? random.pick({-1, 4, INT32_MAX, INT32_MIN}) : random.between(0, 3);
    for (uint8_t& row : call.pattern) {
        row = static_cast<uint8_t>(random.bits());
    }
    return call;
}

/// What the services should do, pixel by pixel.
class Model {
  public:
    explicit Model(int bits) : mask_(bits == 32 ? ~0U : (1U << bits) - 1) {}

    void draw(const Call& call) {
        const bool knownMode = call.mode >= 0 && call.mode <= 3;
        if (call.kind == kNextPixel) {
            if (drawn_) {
                put(nextX_++, nextY_, color_, mode_);
            }
            return;
        }
        if (!knownMode) {
            return;
        }
        if (call.kind == kSetPixel || call.kind == kSpan) {
            const int count = call.kind == kSetPixel ? 1 : std::max<int>(call.right, 0);
            for (int index = 0; index < count; ++index) {
                put(call.x + index, call.y, call.fore, call.mode);
            }
            drawn_ = true;
            nextX_ = call.x + count;
            nextY_ = call.y;
            color_ = call.fore;
            mode_ = call.mode;
            return;
        }
        const bool patterned = call.kind == kPatternRect || call.kind == kBrushRect;
        for (int y = std::max<int>(call.y, 0); y <= std::min<int>(call.bottom, kHeight); ++y) {
            for (int x = std::max<int>(call.x, 0); x <= std::min<int>(call.right, kWidth); ++x) {
                const bool set = (call.pattern[static_cast<size_t>(y % 8)] << (x % 8) & 0x80) != 0;
                put(x, y, !patterned || set ? call.fore : call.back, call.mode);
            }
        }
    }

    uint32_t at(int x, int y) const { return pixels_[static_cast<size_t>(y * kWidth + x)]; }

  private:
    void put(int x, int y, uint32_t color, int32_t mode) {
        if (x < kRegion.left || x > kRegion.right || y < kRegion.top || y > kRegion.bottom) {
            return;
        }
        uint32_t& pixel = pixels_[static_cast<size_t>(y * kWidth + x)];
        switch (mode) {
        case G_MODE_COPY:
            pixel = color;
            break;
        case G_MODE_AND:
            pixel &= color;
            break;
        case G_MODE_OR:
            pixel |= color;
            break;
        default:
            pixel ^= color;
        }
        pixel &= mask_;
    }

    uint32_t mask_;
    std::vector<uint32_t> pixels_ = std::vector<uint32_t>(kWidth * kHeight);
    bool drawn_ = false;
    int nextX_ = 0;
    int nextY_ = 0;
    uint32_t color_ = 0;
    int32_t mode_ = 0;
};

void drawOn(GVram* surface, const Call& call) {
    const GRect rect{call.x, call.y, call.right, call.bottom};
    switch (call.kind) {
    case kSetPixel:
        setPixel(nullptr, surface, call.x, call.y, call.fore, call.mode);
        break;
    case kSpan:
        span(nullptr, surface, call.x, call.y, call.fore, call.mode, call.right);
        break;
    case kNextPixel:
        nextPixel();
        break;
    case kDrawRect:
        drawRect(nullptr, surface, &rect, call.fore, call.mode);
        break;
    case kFillRect:
        fillRect(nullptr, surface, &rect, call.fore, call.mode);
        break;
    case kPatternRect:
        patternRect(nullptr, surface, &rect, call.fore, call.back, call.mode, call.pattern.data());
        break;
    default:
        patternNotice(nullptr, surface, call.fore, call.back, call.pattern.data());
        patternRect(nullptr, surface, &rect, 0, 0, call.mode, nullptr);
    }
}

class DeviceDrawing : public testing::TestWithParam<const char*> {
  protected:
    static Environment::Values format() {
        return {{"QUARLO_FORMAT", GetParam()},
                {"QUARLO_WIDTH", std::to_string(kWidth)},
                {"QUARLO_HEIGHT", std::to_string(kHeight)}};
    }

    static std::string difference(const std::vector<Call>& calls) {
        const StartedPlatform platform(format());
        GVram* const surface = platform.surface();
        Model model(surface->bitsPerPixel);
        setRegion(nullptr, &kRegion);
        for (const Call& call : calls) {
            drawOn(surface, call);
            model.draw(call);
        }
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x) {
                const uint32_t actual = platform.pixel(*surface, x, y);
                if (actual != model.at(x, y)) {
                    std::ostringstream text;
                    text << "pixel " << x << ',' << y << std::hex << " is " << actual
                         << " instead of " << model.at(x, y);
                    return text.str();
                }
            }
        }
        return "";
    }
};

TEST_P(DeviceDrawing, EqualsAModelOfSinglePixels) {
    quarlo::test::forRandomCalls(200, 30, randomCall, difference);
}

TEST_P(DeviceDrawing, IgnoresWhatAProgramWritesIntoTheRecord) {
    const StartedPlatform platform(format());
    GVram* const surface = platform.surface();
    uint8_t* const pixels = surface->pixels;
    surface->pixels = nullptr;
    surface->width = 30000;
    surface->height = 30000;
    surface->bytesPerLine = 30000;
    surface->bitsPerPixel = 5;
    surface->drawable = nullptr;
    const GRect huge{-30000, -30000, 30000, 30000};
    EXPECT_EQ(fillRect(nullptr, surface, &huge, 0x3F, G_MODE_COPY), 1);
    EXPECT_EQ(span(nullptr, surface, 20000, 20000, 1, G_MODE_COPY, 30000), 1);
    EXPECT_EQ(pixels[0], 0x3F);
}

TEST_P(DeviceDrawing, RefusesSurfacesThatAreNoPages) {
    const StartedPlatform platform(format());
    GVram copy = *platform.surface();
    const GRect rect{0, 0, 5, 5};
    const uint8_t pattern[8] = {0xFF};
    for (GVram* const surface : {&copy, static_cast<GVram*>(nullptr)}) {
        EXPECT_EQ(setPixel(nullptr, surface, 0, 0, 1, 0), 0);
        EXPECT_EQ(span(nullptr, surface, 0, 0, 1, 0, 5), 0);
        EXPECT_EQ(coveragePixel(nullptr, surface, 0, 0, 1, 0, 15), 0);
        EXPECT_EQ(drawRect(nullptr, surface, &rect, 1, 0), 0);
        EXPECT_EQ(fillRect(nullptr, surface, &rect, 1, 0), 0);
        EXPECT_EQ(patternRect(nullptr, surface, &rect, 1, 0, 0, pattern), 0);
        EXPECT_EQ(patternNotice(nullptr, surface, 1, 0, pattern), 0);
    }
    EXPECT_EQ(nextPixel(), 0);
    EXPECT_EQ(platform.pixel(*platform.surface(), 0, 0), 0U);
}

TEST_P(DeviceDrawing, RefusesMissingRecordsAndWildModes) {
    const StartedPlatform platform(format());
    GVram* const surface = platform.surface();
    const GRect rect{0, 0, 5, 5};
    const uint8_t pattern[8] = {0xFF};
    EXPECT_EQ(drawRect(nullptr, surface, nullptr, 1, 0), 0);
    EXPECT_EQ(fillRect(nullptr, surface, nullptr, 1, 0), 0);
    EXPECT_EQ(patternRect(nullptr, surface, nullptr, 1, 0, 0, pattern), 0);
    EXPECT_EQ(patternRect(nullptr, surface, &rect, 1, 0, 0, nullptr), 0); // no brush yet
    EXPECT_EQ(patternNotice(nullptr, surface, 1, 0, nullptr), 0);
    for (const int32_t mode : {-1, 4, INT32_MIN, INT32_MAX}) {
        EXPECT_EQ(setPixel(nullptr, surface, 0, 0, 1, mode), 0);
        EXPECT_EQ(span(nullptr, surface, 0, 0, 1, mode, 5), 0);
        EXPECT_EQ(coveragePixel(nullptr, surface, 0, 0, 1, mode, 15), 0);
        EXPECT_EQ(fillRect(nullptr, surface, &rect, 1, mode), 0);
        EXPECT_EQ(patternRect(nullptr, surface, &rect, 1, 0, mode, pattern), 0);
    }
    EXPECT_EQ(nextPixel(), 0);
    EXPECT_EQ(platform.pixel(*surface, 0, 0), 0U);
}

INSTANTIATE_TEST_SUITE_P(Formats, DeviceDrawing, testing::Values("8", "555", "565", "24"));

TEST(CoveragePixel, MixesColoursByFifteenths) {
    const StartedPlatform platform{{"QUARLO_FORMAT", "24"}};
    GVram* const surface = platform.surface();
    const std::pair<int32_t, uint32_t> levels[] = {
        {-3, 0x0000FF}, {0, 0x0000FF}, {5, 0x5500AA}, {15, 0xFF0000}, {16, 0xFF0000}};
    for (const auto& [level, expected] : levels) {
        setPixel(nullptr, surface, 3, 2, 0x0000FF, G_MODE_COPY);
        EXPECT_EQ(coveragePixel(nullptr, surface, 3, 2, 0xFF0000, G_MODE_COPY, level), 1);
        EXPECT_EQ(platform.pixel(*surface, 3, 2), expected) << level;
    }
}

TEST(CoveragePixel, MixesEveryChannelOfShortPixels) {
    const StartedPlatform platform{{"QUARLO_FORMAT", "565"}};
    GVram* const surface = platform.surface();
    coveragePixel(nullptr, surface, 0, 0, 0xFFFF, G_MODE_COPY, 5);
    // A third of 31, 63 and 31, rounded.
    EXPECT_EQ(platform.pixel(*surface, 0, 0), 10U << 11 | 21U << 5 | 10U);
}

TEST(CoveragePixel, DrawsOrNotWhereColoursCannotBeMixed) {
    const StartedPlatform platform{{"QUARLO_FORMAT", "8"}};
    GVram* const surface = platform.surface();
    coveragePixel(nullptr, surface, 0, 0, 9, G_MODE_COPY, 7);
    EXPECT_EQ(platform.pixel(*surface, 0, 0), 0U);
    coveragePixel(nullptr, surface, 0, 0, 9, G_MODE_COPY, 8);
    EXPECT_EQ(platform.pixel(*surface, 0, 0), 9U);
    coveragePixel(nullptr, surface, 0, 0, 3, G_MODE_XOR, 15);
    EXPECT_EQ(platform.pixel(*surface, 0, 0), 10U);
}

TEST(CoveragePixel, StaysOnTheSurface) {
    const StartedPlatform platform{{"QUARLO_WIDTH", "4"}, {"QUARLO_HEIGHT", "4"}};
    GVram* const surface = platform.surface();
    for (const auto at : std::initializer_list<int16_t>{INT16_MIN, -1, 4, INT16_MAX}) {
        EXPECT_EQ(coveragePixel(nullptr, surface, at, 1, 0x7FFF, G_MODE_COPY, 15), 1);
        EXPECT_EQ(coveragePixel(nullptr, surface, 1, at, 0x7FFF, G_MODE_COPY, 15), 1);
    }
    for (int at = 0; at < 16; ++at) {
        EXPECT_EQ(platform.pixel(*surface, at % 4, at / 4), 0U);
    }
}

} // namespace
