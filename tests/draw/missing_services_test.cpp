// Platforms that lack a service, or answer with nonsense.
#include "draw/draw_test.h"

#include <quarlo/draw.h>
#include <quarlo/memory.h>
#include <quarlo/transfer.h>

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <memory>
#include <ostream>
#include <vector>

using namespace quarlo::test;

namespace {

/// What the calls below are made on.
struct Scene {
    GDrawHandle* handle;
    GVram* surface;
    GVram* other;
};

/// A call that comes to nothing without a service.
struct Need {
    const char* function;
    int service;
    std::function<int64_t(const Scene&)> call;
};

void PrintTo(const Need& need, std::ostream* out) {
    *out << need.function << " without service " << need.service;
}

constexpr GRect kRegion = {1, 1, 5, 5};
uint32_t colors[1];
const GVram kDescriptor = [] {
    GVram record{};
    record.width = 4;
    record.height = 4;
    record.bitsPerPixel = 8;
    return record;
}();

const std::vector<Need> kNeeds = {
    {"GDOpenDrawHandle", 41, [](const Scene&) { return asWord(GDOpenDrawHandle(1, 2)); }},
    {"GDCreateVram", 41, [](const Scene&) { return asWord(GDCreateVram(&kDescriptor)); }},
    {"GDCreateVVram", 41, [](const Scene&) { return asWord(GDCreateVVram(4, 4, 8)); }},
    {"GDSetVram", 3, [](const Scene& s) { return GDSetVram(s.handle, 1, nullptr); }},
    {"GDSetVram", 3, [](const Scene& s) { return GDSetVram(s.handle, G_MEMORY_SURFACE, s.other); }},
    {"GDSetDisplay", 3, [](const Scene& s) { return GDSetDisplay(s.handle, 0); }},
    {"GDBitBlt", 8,
     [](const Scene& s) {
         GDBitBlt(s.handle, s.other, 0, 0, 4, 4, s.surface, 1, 1, G_MODE_XOR);
         return 0;
     }},
    {"GDFlushScreen", 9, [](const Scene& s) { return GDFlushScreen(s.handle, 0, 0, 4, 4); }},
    {"GDFlushScreenForce", 58,
     [](const Scene& s) { return GDFlushScreenForce(s.handle, 0, 0, 4, 4); }},
    {"GDSetPalette", 10,
     [](const Scene& s) { return asWord(GDSetPalette(s.handle, 0, 1, colors)); }},
    {"GDGetPalette", 11,
     [](const Scene& s) { return asWord(GDGetPalette(s.handle, 0, 1, colors)); }},
    {"GDSetZoomScale", 55, [](const Scene& s) { return asWord(GDSetZoomScale(s.handle, 2, 2)); }},
    {"GDSetScrollPos", 56, [](const Scene& s) { return asWord(GDSetScrollPos(s.handle, 2, 2)); }},
    {"GDSetDrawableRegion", 59,
     [](const Scene& s) { return GDSetDrawableRegion(s.handle, &kRegion); }},
    {"GDRemoveDrawableRegion", 60,
     [](const Scene& s) { return GDRemoveDrawableRegion(s.handle, &kRegion); }},
    {"GDChangeVirtualVram", 119, [](const Scene&) { return asWord(GDChangeVirtualVram(1, 2)); }},
};

class MissingService : public HandleTest, public testing::WithParamInterface<Need> {};

INSTANTIATE_TEST_SUITE_P(Each, MissingService, testing::ValuesIn(kNeeds), [](const auto& need) {
    return std::to_string(need.index) + need.param.function;
});

TEST_P(MissingService, GivesZeroAndTouchesNothing) {
    GuardedSurface surface(8, 8, 16);
    GuardedSurface other(8, 8, 16);
    std::memset(other.memory().data(), 0x77, other.memory().size());
    handle->display = surface.get();
    handle->target = surface.get();
    const Scene scene = {handle.get(), surface.get(), other.get()};
    platform.remove({GetParam().service});
    platform.forget();
    const auto handleBefore = bytesOf(*handle);
    const auto surfaceBefore = bytesOf(*surface);
    const std::vector<uint8_t> pixelsBefore(surface.memory().size());
    EXPECT_EQ(GetParam().call(scene), 0);
    EXPECT_EQ(bytesOf(*handle), handleBefore);
    EXPECT_EQ(bytesOf(*surface), surfaceBefore);
    EXPECT_TRUE(std::equal(pixelsBefore.begin(), pixelsBefore.end(), surface.memory().data()));
    EXPECT_TRUE(platform.calls.empty());
    handle->display = display.get();
}

/// Draws by every call there is, on whatever the handle draws on.
void drawEverything(GDrawHandle* handle) {
    const GRect rect = {-2, 1, 6, 30};
    GLine line = {-3, 4, 40, 5};
    const GGradationInfo gradation = {G_GRADATION_DOWN, 0xFF, 0xFF00, 10, 5};
    GDSetGradationInfo(handle, &gradation);
    for (const int32_t mode : std::initializer_list<int32_t>{G_MODE_COPY, G_MODE_AND, G_MODE_OR,
                                                             G_MODE_XOR, 4, 32, -1}) {
        GDSetDrawingMode(handle, mode);
        GDSetPixel(handle, 2, 2);
        GDGetPixel(handle, 2, 2);
        for (const int32_t pattern :
             std::initializer_list<int32_t>{G_FILL_NONE, G_FILL_FORE, G_FILL_GRADATION, 0, 5}) {
            GDSetFillAttribute(handle, pattern, 0x123456, 0x654321);
            GDDrawRect(handle, &rect);
        }
        for (const int32_t dash : std::initializer_list<int32_t>{0, 3}) {
            GDSetPenDash(handle, dash);
            GDDrawLine(handle, &line);
            GDMoveTo(handle, 5, 5);
            GDLineTo(handle, 0, 20);
        }
    }
}

/// Sets every state that clips, maps and colours.
void setEverything(GDrawHandle* handle) {
    const GPoint origin = {1, 1};
    GRect clip{};
    GDSetLocalOrigin(handle, &origin);
    GDSetColorMode(handle, 1, 0xF800, 0x7E0, 0x1F);
    GDSetPenColor(handle, 0xABCDEF);
    GDInitBackupClipBuf();
    GDPushClipRect(handle, &kRegion);
    GDInceptClipRect(handle, &kRegion, &clip);
    GDGetClipRect(handle, &clip);
    GDSetClipRect(handle, nullptr);
    GDPopClipRect(handle);
    GDSetClipRect(handle, nullptr);
}

/// A program that uses all of drawing, and that goes on whatever fails.
void runProgram() {
    const Handle handle = openHandle();
    if (handle == nullptr) {
        return;
    }
    const Surface page = makeSurface(8, 8, 24);
    setEverything(handle.get());
    drawEverything(handle.get());
    GVram* const display = GDGetVram(handle.get());
    for (const int32_t mode : std::initializer_list<int32_t>{G_MODE_COPY, G_MODE_XOR, 9}) {
        GDBitBlt(handle.get(), page.get(), 0, 0, 8, 8, display, -2, 3, mode);
        GDBitBlt(handle.get(), display, 0, 0, 8, 8, page.get(), -2, 3, mode);
        GDBitBlt(handle.get(), display, 0, 0, 8, 8, display, 1, 3, mode);
    }
    GDFlushScreen(handle.get(), 0, 0, 100, 100);
    GDSetDisplay(handle.get(), 0);
    Surface target = makeSurface(16, 16, 16);
    if (GDSetVram(handle.get(), G_MEMORY_SURFACE, target.get()) == 1) {
        static_cast<void>(target.release()); // the handle's now
    }
    setEverything(handle.get());
    drawEverything(handle.get());
    GDSetVram(handle.get(), 1, nullptr);
    drawEverything(handle.get());
}

TEST(MissingServices, AProgramRunsOnWithoutAnyOneOfThem) {
    Services::forEach([]<int Number, typename Signature>(Offer<Number, Signature>) {
        SCOPED_TRACE(Number);
        // Declared before the platform: without a free the blocks are not given back.
        std::vector<std::unique_ptr<GuardedMemory>> blocks;
        GuardedSurface display(30, 20, 16);
        GuardedSurface second(30, 20, 8);
        RecordingPlatform platform;
        platform.addDisplay(0, display);
        platform.addDisplay(1, second);
        platform.remove({Number});
        if (Number == 42) {
            platform.serve<41>([&](int32_t, uint32_t, int32_t size) -> void* {
                blocks.push_back(
                    std::make_unique<GuardedMemory>(static_cast<size_t>(size), Against::End, 16));
                return blocks.back()->data();
            });
        }
        runProgram();
        EXPECT_EQ(platform.count(Number), 0U);
        EXPECT_TRUE(display.memory().intact());
        EXPECT_TRUE(second.memory().intact());
        for (const auto& block : blocks) {
            EXPECT_TRUE(block->intact());
        }
    });
}

TEST(MissingServices, AProgramRunsOnWithoutAnyOfThem) {
    RecordingPlatform platform;
    Services::forEach([&]<int Number, typename Signature>(Offer<Number, Signature>) {
        platform.remove({Number});
    });
    runProgram();
    EXPECT_TRUE(platform.calls.empty());
}

TEST(FailingAllocations, AProgramRunsOnWithoutAnyOneOfThem) {
    GuardedSurface display(30, 20, 16);
    GuardedSurface second(30, 20, 8);
    RecordingPlatform platform;
    platform.addDisplay(0, display);
    platform.addDisplay(1, second);
    failEachAllocation(platform, [&] {
        runProgram();
        EXPECT_EQ(platform.blocksInUse(), 0U);
    });
    EXPECT_TRUE(display.memory().intact());
    EXPECT_TRUE(second.memory().intact());
}

/// What is wrong with a device surface.
struct Nonsense {
    const char* name;
    std::function<void(GVram&)> spoil;
};

const std::vector<Nonsense> kNonsense = {
    {"NoPixels", [](GVram& surface) { surface.pixels = nullptr; }},
    {"NoClip", [](GVram& surface) { surface.drawable = nullptr; }},
    {"NoWidth", [](GVram& surface) { surface.width = 0; }},
    {"NegativeWidth", [](GVram& surface) { surface.width = -30; }},
    {"LeastWidth", [](GVram& surface) { surface.width = -32768; }},
    {"NoHeight", [](GVram& surface) { surface.height = 0; }},
    {"NegativeHeight", [](GVram& surface) { surface.height = -1; }},
    {"NoDepth", [](GVram& surface) { surface.bitsPerPixel = 0; }},
    {"OneBit", [](GVram& surface) { surface.bitsPerPixel = 1; }},
    {"FifteenBits", [](GVram& surface) { surface.bitsPerPixel = 15; }},
    {"NegativeDepth", [](GVram& surface) { surface.bitsPerPixel = -16; }},
    {"HugeDepth", [](GVram& surface) { surface.bitsPerPixel = 32767; }},
    {"NoRows", [](GVram& surface) { surface.bytesPerLine = 0; }},
    {"ShortRows", [](GVram& surface) { surface.bytesPerLine = 7; }},
    {"NegativeRows", [](GVram& surface) { surface.bytesPerLine = -60; }},
    {"WildBounds",
     [](GVram& surface) {
         surface.bounds = {-32768, -32768, 32767, 32767};
     }},
    {"InvertedBounds",
     [](GVram& surface) {
         surface.bounds = {20, 15, 3, 2};
     }},
    {"NoMasks",
     [](GVram& surface) {
         surface.redMask = 0;
         surface.greenMask = 0;
         surface.blueMask = 0;
     }},
    {"AllMasks",
     [](GVram& surface) {
         surface.redMask = 0xFFFFFFFF;
         surface.greenMask = 0xFFFFFFFF;
         surface.blueMask = 0x80000001;
     }},
    {"NoPalette",
     [](GVram& surface) {
         surface.colorType = G_COLOR_PALETTE;
         surface.paletteCount = 256;
         surface.palette = nullptr;
     }},
    {"EmptyPalette",
     [](GVram& surface) {
         surface.colorType = G_COLOR_PALETTE;
         surface.paletteCount = 0;
         surface.palette = &colors[0];
     }},
};

void PrintTo(const Nonsense& nonsense, std::ostream* out) {
    *out << nonsense.name;
}

class NonsenseSurface : public testing::TestWithParam<Nonsense> {};

INSTANTIATE_TEST_SUITE_P(Each, NonsenseSurface, testing::ValuesIn(kNonsense),
                         [](const auto& nonsense) { return nonsense.param.name; });

/// The platform draws nothing itself: what is written, the library has written.
TEST_P(NonsenseSurface, DoesNoHarm) {
    for (const Against side : {Against::End, Against::Start}) {
        GuardedSurface display(30, 20, 16, side);
        GuardedSurface second(30, 20, 24, side);
        RecordingPlatform platform;
        platform.addDisplay(0, display);
        platform.addDisplay(1, second);
        platform.remove({5, 6, 7, 43, 67, 68, 70});
        GetParam().spoil(*display);
        GetParam().spoil(*second);
        runProgram();
        EXPECT_TRUE(display.memory().intact());
        EXPECT_TRUE(second.memory().intact());
    }
}

TEST(NonsenseResults, ArePassedOn) {
    GuardedSurface display(30, 20, 16);
    RecordingPlatform platform;
    platform.addDisplay(0, display);
    const Handle handle = openHandle();
    platform.answer(9, -77);
    platform.answer(59, 0x7FFFFFFF);
    platform.answer(119, -1);
    EXPECT_EQ(GDFlushScreen(handle.get(), 0, 0, 1, 1), -77);
    EXPECT_EQ(GDSetDrawableRegion(handle.get(), &kRegion), 0x7FFFFFFF);
    EXPECT_EQ(GDChangeVirtualVram(0, 0), ~GWord{0});
}

} // namespace
