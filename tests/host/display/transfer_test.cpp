// Block transfers onto device surfaces.
#include "support/guarded_surface.h"
#include "support/random_calls.h"
#include "support/started_platform.h"

#include <gtest/gtest.h>

#include <ostream>
#include <sstream>
#include <vector>

namespace {

using namespace gpi::test;
using quarlo::test::GuardedSurface;
using quarlo::test::Random;

const auto transfer = service<GPIBlockTransfer>(GPI_SERVICE_BLOCK_TRANSFER);
const auto setPixel = service<GPISetPixel>(GPI_SERVICE_SET_PIXEL);
const auto setRegion = service<GPISetDrawableRegion>(GPI_SERVICE_SET_DRAWABLE_REGION);
const auto setPalette = service<GPISetPalette>(GPI_SERVICE_SET_PALETTE);

constexpr int kWidth = 24;
constexpr int kHeight = 20;

struct Call {
    int source; ///< 0 and 1 are pages, 2 is a memory surface
    int16_t sourceX;
    int16_t sourceY;
    int16_t width;
    int16_t height;
    int16_t x;
    int16_t y;
    int32_t mode;
};

std::ostream& operator<<(std::ostream& out, const Call& call) {
    return out << "source " << call.source << " at " << call.sourceX << ',' << call.sourceY
               << " size " << call.width << 'x' << call.height << " to " << call.x << ',' << call.y
               << " mode " << call.mode;
}

Call randomCall(Random& random) {
    Call call{};
    call.source = random.between(0, 2);
    call.sourceX = random.coordinate(-4, kWidth + 2);
    call.sourceY = random.coordinate(-4, kHeight + 2);
    call.width = random.coordinate(-1, kWidth + 4);
    call.height = random.coordinate(-1, kHeight + 4);
    call.x = random.coordinate(-4, kWidth + 2);
    call.y = random.coordinate(-4, kHeight + 2);
    call.mode = random.oneIn(20) ? random.pick({-1, 4}) : random.between(0, 3);
    return call;
}

using Pixels = std::vector<uint32_t>;

Pixels pixelsOf(const GVram& surface) {
    Pixels pixels;
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            pixels.push_back(StartedPlatform::pixel(surface, x, y));
        }
    }
    return pixels;
}

uint32_t combined(uint32_t old, uint32_t color, int32_t mode) {
    switch (mode) {
    case G_MODE_COPY:
        return color;
    case G_MODE_AND:
        return old & color;
    case G_MODE_OR:
        return old | color;
    case G_MODE_XOR:
        return old ^ color;
    default:
        return old;
    }
}

bool inside(int x, int y) {
    return x >= 0 && x < kWidth && y >= 0 && y < kHeight;
}

/// The destination after a transfer through a copy of the source.
Pixels expectedAfter(const Pixels& source, Pixels destination, const Call& call, bool same) {
    if (same && call.sourceX == call.x && call.sourceY == call.y) {
        return destination; // a transfer onto itself does nothing in any mode
    }
    const Pixels from = source;
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            const int fromX = x - call.x + call.sourceX;
            const int fromY = y - call.y + call.sourceY;
            const bool covered = x >= call.x && x - call.x < call.width && y >= call.y &&
                                 y - call.y < call.height && inside(fromX, fromY);
            if (covered) {
                uint32_t& pixel = destination[static_cast<size_t>(y * kWidth + x)];
                const uint32_t color = from[static_cast<size_t>(fromY * kWidth + fromX)];
                pixel = combined(pixel, color, call.mode);
            }
        }
    }
    return destination;
}

class Transfer : public testing::TestWithParam<const char*> {
  protected:
    static Environment::Values format(const char* name) {
        return {{"QUARLO_FORMAT", name},
                {"QUARLO_WIDTH", std::to_string(kWidth)},
                {"QUARLO_HEIGHT", std::to_string(kHeight)}};
    }

    static void fill(GVram& surface, Random& random) {
        const int bytes = surface.height * surface.bytesPerLine;
        for (int at = 0; at < bytes; ++at) {
            surface.pixels[at] = static_cast<uint8_t>(random.bits());
        }
    }

    static std::string difference(const std::vector<Call>& calls) {
        const StartedPlatform platform(format(GetParam()));
        GVram memory = *platform.surface();
        quarlo::test::GuardedMemory bytes(static_cast<size_t>(memory.height) *
                                          static_cast<size_t>(memory.bytesPerLine));
        memory.id = G_MEMORY_SURFACE;
        memory.pixels = bytes.data();
        GVram* const surfaces[] = {platform.surface(0), platform.surface(1), &memory};
        Random random(1);
        for (GVram* const surface : surfaces) {
            fill(*surface, random);
        }
        for (const Call& call : calls) {
            GVram* const source = surfaces[call.source];
            GVram* const destination = surfaces[0];
            const Pixels expected =
                expectedAfter(pixelsOf(*source), pixelsOf(*destination), call, call.source == 0);
            transfer(nullptr, source, call.sourceX, call.sourceY, call.width, call.height,
                     destination, call.x, call.y, call.mode);
            if (pixelsOf(*destination) != expected) {
                return "the destination is wrong";
            }
        }
        return "";
    }
};

TEST_P(Transfer, EqualsOneThroughACopy) {
    quarlo::test::forRandomCalls(300, 8, randomCall, difference);
}

INSTANTIATE_TEST_SUITE_P(Formats, Transfer, testing::Values("8", "555", "565", "24"));

class Conversion : public Transfer {};

TEST_P(Conversion, MovesTheChannels) {
    const StartedPlatform platform(format(GetParam()));
    GVram* const screen = platform.surface();
    GuardedSurface memory(4, 1, 24);
    const uint8_t pixels[] = {0xFF, 0, 0, 0, 0xFF, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF};
    std::copy(std::begin(pixels), std::end(pixels), memory->pixels);
    EXPECT_EQ(transfer(nullptr, memory.get(), 0, 0, 4, 1, screen, 2, 3, G_MODE_COPY), 1);
    EXPECT_EQ(platform.pixel(*screen, 2, 3), screen->redMask);
    EXPECT_EQ(platform.pixel(*screen, 3, 3), screen->greenMask);
    EXPECT_EQ(platform.pixel(*screen, 4, 3), screen->blueMask);
    EXPECT_EQ(platform.pixel(*screen, 5, 3),
              screen->redMask | screen->greenMask | screen->blueMask);
}

TEST_P(Conversion, LooksUpPalettes) {
    const StartedPlatform platform(format(GetParam()));
    GVram* const screen = platform.surface();
    GuardedSurface memory(3, 1, std::vector<uint32_t>{0x0000FF, 0xFF0000});
    memory->redMask = 0xFF0000;
    memory->greenMask = 0xFF00;
    memory->blueMask = 0xFF;
    const uint8_t pixels[] = {0, 1, 2};
    std::copy(std::begin(pixels), std::end(pixels), memory->pixels);
    setPixel(nullptr, screen, 2, 0, 0x1234, G_MODE_COPY);
    EXPECT_EQ(transfer(nullptr, memory.get(), 0, 0, 3, 1, screen, 0, 0, G_MODE_COPY), 1);
    EXPECT_EQ(platform.pixel(*screen, 0, 0), screen->blueMask);
    EXPECT_EQ(platform.pixel(*screen, 1, 0), screen->redMask);
    EXPECT_EQ(platform.pixel(*screen, 2, 0), 0U); // past the palette
}

INSTANTIATE_TEST_SUITE_P(DirectFormats, Conversion, testing::Values("555", "565", "24"));

TEST(PaletteTransfer, TakesIndexesFromAPaletteSurface) {
    const StartedPlatform platform{{"QUARLO_FORMAT", "8"}};
    GVram* const screen = platform.surface();
    GuardedSurface memory(2, 1, std::vector<uint32_t>{0x0000FF, 0xFF0000});
    memory->redMask = screen->redMask;
    memory->greenMask = screen->greenMask;
    memory->blueMask = screen->blueMask;
    memory->pixels[0] = 200;
    EXPECT_EQ(transfer(nullptr, memory.get(), 0, 0, 2, 1, screen, 0, 0, G_MODE_COPY), 1);
    EXPECT_EQ(platform.pixel(*screen, 0, 0), 200U);
}

TEST(PaletteTransfer, RefusesDirectColours) {
    const StartedPlatform platform{{"QUARLO_FORMAT", "8"}};
    GuardedSurface memory(2, 2, 8);
    EXPECT_EQ(transfer(nullptr, memory.get(), 0, 0, 2, 2, platform.surface(), 0, 0, 0), 0);
}

TEST(TransferRefusal, CoversWhatCannotBeRead) {
    const StartedPlatform platform;
    GVram* const screen = platform.surface();
    const GuardedSurface memory(4, 4, 16);
    const auto refused = [&](auto change) {
        GVram source = *memory;
        change(source);
        return transfer(nullptr, &source, 0, 0, 4, 4, screen, 0, 0, G_MODE_COPY) == 0;
    };
    EXPECT_FALSE(refused([](GVram&) {}));
    EXPECT_TRUE(refused([](GVram& source) { source.pixels = nullptr; }));
    EXPECT_TRUE(refused([](GVram& source) { source.width = 0; }));
    EXPECT_TRUE(refused([](GVram& source) { source.height = -1; }));
    EXPECT_TRUE(refused([](GVram& source) { source.bitsPerPixel = 32; }));
    EXPECT_TRUE(refused([](GVram& source) { source.bytesPerLine = 7; }));
    EXPECT_TRUE(refused([](GVram& source) { source.colorType = G_COLOR_PALETTE; }));
    EXPECT_EQ(transfer(nullptr, nullptr, 0, 0, 4, 4, screen, 0, 0, 0), 0);
    EXPECT_EQ(transfer(nullptr, screen, 0, 0, 4, 4, nullptr, 0, 0, 0), 0);
    GVram copy = *screen;
    EXPECT_EQ(transfer(nullptr, screen, 0, 0, 4, 4, &copy, 0, 0, 0), 0);
    EXPECT_EQ(transfer(nullptr, screen, 0, 0, 4, 4, screen, 1, 1, 4), 0);
    EXPECT_EQ(transfer(nullptr, screen, 0, 0, 4, 4, screen, 1, 1, -1), 0);
}

TEST(TransferClipping, StopsAtTheSourcesBounds) {
    const StartedPlatform platform;
    GVram* const screen = platform.surface();
    GuardedSurface memory(4, 4, 16);
    std::fill_n(memory->pixels, 32, uint8_t{0x11});
    memory->bounds = {1, 1, 2, 2};
    EXPECT_EQ(transfer(nullptr, memory.get(), 0, 0, 4, 4, screen, 0, 0, G_MODE_COPY), 1);
    for (int y = 0; y < 5; ++y) {
        for (int x = 0; x < 5; ++x) {
            const bool within = x >= 1 && x <= 2 && y >= 1 && y <= 2;
            EXPECT_EQ(platform.pixel(*screen, x, y), within ? 0x1111U : 0U);
        }
    }
    memory->bounds = {3, 3, 2, 2};
    EXPECT_EQ(transfer(nullptr, memory.get(), 0, 0, 4, 4, screen, 10, 10, G_MODE_COPY), 1);
    EXPECT_EQ(platform.pixel(*screen, 11, 11), 0U);
}

TEST(TransferClipping, StopsAtTheDestinationsRegion) {
    const StartedPlatform platform;
    GVram* const screen = platform.surface();
    const GRect region{2, 0, 3, 1};
    ASSERT_EQ(setRegion(nullptr, &region), 1);
    GuardedSurface memory(6, 6, 16);
    std::fill_n(memory->pixels, 72, uint8_t{0x11});
    EXPECT_EQ(transfer(nullptr, memory.get(), 0, 0, 6, 6, screen, 0, 0, G_MODE_COPY), 1);
    for (int y = 0; y < 7; ++y) {
        for (int x = 0; x < 7; ++x) {
            const bool within = x >= 2 && x <= 3 && y <= 1;
            EXPECT_EQ(platform.pixel(*screen, x, y), within ? 0x1111U : 0U);
        }
    }
}

} // namespace
