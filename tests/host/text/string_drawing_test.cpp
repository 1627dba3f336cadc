// Text by the platform's whole-string services and text by the library, glyph by glyph: the same
// pixels, and the pen in the same place.
#include "support/random_calls.h"
#include "support/started_platform.h"

#include <quarlo/quarlo.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace {

using namespace gpi::test;
using quarlo::test::Random;

constexpr int16_t kWidth = 120;
constexpr int16_t kHeight = 90;

enum class Way { String, Caption, CaptionLines };

/// A text and all that decides how it looks.
struct Scene {
    Way way;
    const char* format; ///< of the display
    int16_t depth;      ///< of a memory surface; 0 draws on the display
    uint8_t bits;
    uint8_t magnifyX;
    uint8_t magnifyY;
    int32_t mode;
    int32_t textMode;
    uint32_t pen;
    uint32_t back;
    bool virtualMode;
    GPoint origin;
    GPoint at;
    GRect clip;
    GCaptionAttr attr;
    std::u16string text;
};

std::ostream& operator<<(std::ostream& out, const Scene& scene) {
    out << "way " << static_cast<int>(scene.way) << " on " << scene.format << '/' << scene.depth
        << ", font " << int{scene.bits} << ' ' << int{scene.magnifyX} << 'x' << int{scene.magnifyY}
        << ", mode " << scene.mode << ", text mode " << scene.textMode << ", colours " << scene.pen
        << ' ' << scene.back << (scene.virtualMode ? ", virtual" : "") << ", origin "
        << scene.origin.x << ' ' << scene.origin.y << ", at " << scene.at.x << ' ' << scene.at.y
        << ", clip " << scene.clip.left << ' ' << scene.clip.top << ' ' << scene.clip.right << ' '
        << scene.clip.bottom << ", align " << int{scene.attr.horizontal} << ' '
        << int{scene.attr.vertical} << ", text";
    for (const char16_t unit : scene.text) {
        out << ' ' << std::hex << uint32_t{unit} << std::dec;
    }
    return out;
}

/// In captions a unit without a glyph costs the library's way a glyph at the line's end, which the
/// platform, not knowing the count, draws: there is none in theirs.
std::u16string randomText(Random& random, Way way) {
    static const std::u16string kPieces[] = {u"\uE123", u"A",  u"g", u"mm ", u"-1.5",
                                             u"軸",     u"轴", u"ｱ", u"Ж",   u"\U00020BB7"};
    std::u16string text;
    for (int32_t left = random.between(0, 9); left > 0; --left) {
        text += kPieces[random.between(way == Way::String ? 0 : 1, std::size(kPieces) - 1)];
        if (way == Way::CaptionLines && random.oneIn(3)) {
            text += random.oneIn(2) ? u"\r\n" : u"\n";
        }
    }
    return text;
}

Scene randomScene(Random& random) {
    Scene scene{};
    scene.way = random.pick({Way::String, Way::Caption, Way::CaptionLines});
    scene.format = random.pick({"8", "555", "565", "24"});
    scene.depth = random.pick({int16_t{0}, int16_t{0}, int16_t{8}, int16_t{16}, int16_t{24}});
    scene.bits = random.pick({uint8_t{1}, uint8_t{2}, uint8_t{4}});
    const bool magnified = scene.way == Way::CaptionLines && random.oneIn(2);
    scene.magnifyX = static_cast<uint8_t>(magnified ? random.between(1, 3) : 1);
    scene.magnifyY = static_cast<uint8_t>(magnified ? random.between(1, 3) : 1);
    scene.mode = random.between(0, 3);
    scene.textMode = random.oneIn(3) ? G_TEXT_TRANSPARENT : 0;
    const auto color = [&] {
        return random.oneIn(6) ? G_NO_COLOR : static_cast<uint32_t>(random.bits() & 0xFFFFFF);
    };
    scene.pen = color();
    scene.back = color();
    scene.virtualMode = scene.way == Way::String && random.oneIn(3);
    scene.origin = {random.coordinate(-30, 30), random.coordinate(-30, 30)};
    scene.at = {random.coordinate(-60, kWidth), random.coordinate(-30, kHeight)};
    scene.clip = {static_cast<int16_t>(random.between(-20, 60)),
                  static_cast<int16_t>(random.between(-20, 40)),
                  static_cast<int16_t>(random.between(50, 140)),
                  static_cast<int16_t>(random.between(30, 110))};
    scene.attr.color = scene.pen;
    scene.attr.horizontal = static_cast<uint8_t>(random.between(0, 2));
    scene.attr.vertical = static_cast<uint8_t>(random.between(0, 2));
    scene.text = randomText(random, scene.way);
    return scene;
}

struct CloseHandle {
    void operator()(GDrawHandle* handle) const { GDCloseDrawHandle(handle); }
};

/// What a scene leaves behind: pixels, and the pen where it is looked at.
struct Result {
    std::vector<uint32_t> pixels;
    GPoint pen{};

    bool operator==(const Result& other) const {
        return pixels == other.pixels && pen.x == other.pen.x && pen.y == other.pen.y;
    }
};

void setUp(GDrawHandle* handle, const Scene& scene) {
    const GRect all = {0, 0, kWidth - 1, kHeight - 1};
    GDSetPenColor(handle, G_NO_COLOR);
    GDSetFillAttribute(handle, 20, 0x5A5A5A, 0x21C3A5);
    GDDrawRect(handle, &all);
    GDSetClipRect(handle, &scene.clip);
    GDSetLocalOrigin(handle, &scene.origin);
    if (scene.virtualMode) {
        const GRect frame = {0, 0, 3000, 1000};
        GDSetVirtualRect(handle, &frame);
        GDSetVirtualMode(handle);
    }
    GDSetDrawingMode(handle, scene.mode);
    GDSetTextMode(handle, scene.textMode);
    GDSetPenColor(handle, scene.pen);
    GDSetBackColor(handle, scene.back);
    GSimpleFont font{};
    std::u16string(u"TORVANDELL CNC Gothic").copy(font.face, G_FACE_SIZE);
    font.bitsPerPixel = scene.bits;
    font.magnifyX = scene.magnifyX;
    font.magnifyY = scene.magnifyY;
    GDSetSimpleFont(handle, &font);
    GDMoveTo(handle, scene.at.x, scene.at.y);
}

/// Draws a scene on a started platform.
Result draw(const Scene& scene, bool wholeStrings) {
    const std::unique_ptr<GDrawHandle, CloseHandle> handle(GDOpenDrawHandle(0, 0));
    if (scene.depth != 0) {
        GDSetVram(handle.get(), G_MEMORY_SURFACE, GDCreateVVram(kWidth, kHeight, scene.depth));
    }
    setUp(handle.get(), scene);
    const GRect box = {scene.at.x, scene.at.y, static_cast<int16_t>(scene.at.x + 100),
                       static_cast<int16_t>(scene.at.y + 40)};
    Result result;
    if (scene.way == Way::String) {
        GDDrawString(handle.get(), scene.text.c_str());
        result.pen = handle->penPos;
    } else if (scene.way == Way::CaptionLines && wholeStrings) {
        GDDrawCaptionStringDirect(handle.get(), &box, &scene.attr, scene.text.c_str());
    } else {
        GDDrawCaptionString(handle.get(), &box, &scene.attr, scene.text.c_str());
    }
    const GVram& target = *GDGetVram(handle.get());
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            result.pixels.push_back(StartedPlatform::pixel(target, x, y));
        }
    }
    GFReleaseFont(handle->font);
    GDSetVram(handle.get(), 0, nullptr); // frees a memory surface
    return result;
}

std::vector<Result> drawAll(const std::vector<Scene>& scenes, bool wholeStrings) {
    std::vector<Result> results;
    for (const char* format : {"8", "555", "565", "24"}) {
        const Environment environment(
            settings({{"QUARLO_FORMAT", format},
                      {"QUARLO_WIDTH", std::to_string(kWidth)},
                      {"QUARLO_HEIGHT", std::to_string(kHeight)},
                      {"QUARLO_WHOLE_STRINGS", wholeStrings ? "yes" : "no"}}));
        GetGPIFunction();
        GDInitPlatform(0);
        for (const Scene& scene : scenes) {
            if (std::string(scene.format) == format) {
                results.push_back(draw(scene, wholeStrings));
            }
        }
        GDQuitPlatform();
    }
    return results;
}

TEST(WholeStrings, HaveThePixelsOfTheirGlyphs) {
    quarlo::test::forRandomCalls(60, 40, randomScene, [](const std::vector<Scene>& scenes) {
        const bool same = drawAll(scenes, true) == drawAll(scenes, false);
        return std::string(same ? "" : "they differ");
    });
}

TEST(WholeStrings, AreOfferedAsConfigured) {
    const auto isOffered = [](const char* setting) {
        const Environment environment(settings({{"QUARLO_WHOLE_STRINGS", setting}}));
        const bool before = GPIGetService(GPI_SERVICE_DRAW_STRING) != nullptr;
        const StartedPlatform platform{{"QUARLO_WHOLE_STRINGS", setting}};
        EXPECT_EQ(GPIGetService(GPI_SERVICE_DRAW_STRING) != nullptr, before);
        EXPECT_EQ(GPIGetService(GPI_SERVICE_DRAW_CAPTION_LINE) != nullptr, before);
        return before;
    };
    EXPECT_TRUE(isOffered("yes"));
    EXPECT_FALSE(isOffered("no"));
}

TEST(WholeStrings, RefuseWhatMakesNoSense) {
    StartedPlatform platform;
    const auto string = service<GPIDrawString>(GPI_SERVICE_DRAW_STRING);
    const auto line = service<GPIDrawCaptionLine>(GPI_SERVICE_DRAW_CAPTION_LINE);
    const auto load = service<GPILoadFont>(GPI_SERVICE_LOAD_FONT);
    GDrawHandle handle{};
    const GRect clip = {0, 0, 9, 9};
    handle.font = load(u"TORVANDELL CNC Gothic");
    EXPECT_EQ(string(&handle, u"A", 0, 0, nullptr), 0); // no target
    handle.target = StartedPlatform::surface();
    EXPECT_EQ(string(&handle, u"A", 0, 0, nullptr), 1);
    EXPECT_EQ(line(&handle, u"A", 0, 0, &clip), 1);
    const GRect everywhere = {INT16_MIN, INT16_MIN, INT16_MAX, INT16_MAX};
    for (const int16_t at : std::initializer_list<int16_t>{INT16_MIN, -4, 796, INT16_MAX}) {
        EXPECT_EQ(string(&handle, u"軸", at, at, &everywhere), 1); // inside the page's memory
    }
    EXPECT_EQ(line(&handle, u"A", 0, 0, nullptr), 0);
    EXPECT_EQ(string(&handle, nullptr, 0, 0, nullptr), 0);
    EXPECT_EQ(string(nullptr, u"A", 0, 0, nullptr), 0);
    GFontRecord stranger{};
    handle.font = &stranger;
    EXPECT_EQ(string(&handle, u"A", 0, 0, nullptr), 0);
    handle.font = nullptr;
    EXPECT_EQ(line(&handle, u"A", 0, 0, &clip), 0);
}

} // namespace
