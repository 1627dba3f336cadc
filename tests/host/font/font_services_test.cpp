#include "support/started_platform.h"

#include <quarlo/font.h>

#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>
#include <vector>

namespace {

using namespace gpi::test;

const auto load = service<GPILoadFont>(GPI_SERVICE_LOAD_FONT);
const auto release = service<GPIReleaseFont>(GPI_SERVICE_RELEASE_FONT);
const auto setSize = service<GPISetFontSize>(GPI_SERVICE_SET_FONT_SIZE);
const auto getSize = service<GPIGetFontSize>(GPI_SERVICE_GET_FONT_SIZE);
const auto setAttribute = service<GPISetFontAttribute>(GPI_SERVICE_SET_FONT_ATTRIBUTE);
const auto getAttribute = service<GPIGetFontAttribute>(GPI_SERVICE_GET_FONT_ATTRIBUTE);
const auto setUser = service<GPISetFontUserAttribute>(GPI_SERVICE_SET_FONT_USER_ATTRIBUTE);
const auto getUser = service<GPIGetFontUserAttribute>(GPI_SERVICE_GET_FONT_USER_ATTRIBUTE);
const auto findGlyph = service<GPIGlyph>(GPI_SERVICE_GLYPH);
const auto information = service<GPIGetFontInformation>(GPI_SERVICE_GET_FONT_INFORMATION);
const auto setGb = service<GPISetGBFontFlag>(GPI_SERVICE_SET_GB_FONT_FLAG);

constexpr const char16_t* kPanel = u"TORVANDELL CNC Gothic";
constexpr const char* kUnifont = "/usr/share/fonts/X11/misc/unifont.pcf.gz";

/// A glyph as a program has it, its bits copied.
struct Answer {
    bool found = false;
    int units = 0;
    int width = 0;
    int height = 0;
    int depth = 0;
    std::vector<uint8_t> bits;

    bool operator==(const Answer&) const = default;

    int level(int x, int y) const {
        const int stride = (width * depth + 7) / 8;
        const int byte = bits[static_cast<size_t>(y * stride + x * depth / 8)];
        return byte >> (8 - depth - x * depth % 8) & ((1 << depth) - 1);
    }

    std::set<int> levels() const {
        std::set<int> all;
        for (int at = 0; at < width * height; ++at) {
            all.insert(level(at % width, at / width));
        }
        return all;
    }
};

Answer ask(GFontRecord* font, const char16_t* text) {
    GGlyphRequest request{};
    request.text = text;
    Answer answer;
    answer.found = (findGlyph(font, &request) & 0xFFFF) != 0;
    if (answer.found) {
        answer.units = static_cast<int>(request.next - text);
        answer.width = request.width;
        answer.height = request.height;
        answer.depth = request.bitsPerPixel;
        const int bytes = (request.width * request.bitsPerPixel + 7) / 8 * request.height;
        answer.bits.assign(request.bits, request.bits + bytes);
    }
    return answer;
}

bool setDepth(GFontRecord* font, uint16_t bits) {
    GFontAttribute attribute{};
    return getAttribute(font, &attribute) == 1 &&
           (attribute.bitsPerPixel = bits, setAttribute(font, &attribute) == 1);
}

TEST(Fonts, AreFoundByName) {
    StartedPlatform platform;
    GFontRecord* const panel = load(kPanel);
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->kind, 0);
    ASSERT_NE(panel->scale, nullptr);
    EXPECT_EQ(panel->scale->magnifyX, 1);
    EXPECT_EQ(panel->scale->magnifyY, 1);
    EXPECT_NE(load(u"DejaVu Sans Mono"), nullptr);
    EXPECT_EQ(load(u"No Such Face"), nullptr);
    EXPECT_EQ(load(u"torvandell cnc gothic"), nullptr);
    EXPECT_EQ(load(u""), nullptr);
    EXPECT_EQ(load(nullptr), nullptr);
    EXPECT_EQ(load(u"A name of more than the thirty-two units that fit"), nullptr);
    const char16_t half[] = {0xD800, 0};
    EXPECT_EQ(load(half), nullptr);
}

TEST(Fonts, AreFoundByADescriptorAtAnyAddress) {
    StartedPlatform platform;
    GSimpleFont simple{};
    std::u16string(kPanel).copy(simple.face, G_FACE_SIZE);
    std::vector<char> bytes(sizeof simple + 1);
    std::memcpy(bytes.data() + 1, &simple, sizeof simple);
    EXPECT_NE(load(reinterpret_cast<const char16_t*>(bytes.data() + 1)), nullptr);
}

TEST(Fonts, AreThereOnlyWhileThePlatformRuns) {
    EXPECT_EQ(GPIGetFontCount(), 0);
    EXPECT_EQ(load(kPanel), nullptr);
    EXPECT_EQ(setGb(1), 0);
    StartedPlatform platform;
    EXPECT_GE(GPIGetFontCount(), 2);
    GFontRecord* const font = load(kPanel);
    ASSERT_NE(font, nullptr);
    release(font);
    EXPECT_FALSE(ask(font, u"A").found);
    EXPECT_EQ(setSize(font, 8, 16), 0);
    release(font);
    release(nullptr);
}

TEST(Fonts, WithoutAFileOfTheirOwnAreNone) {
    StartedPlatform platform{{"QUARLO_PANEL_FONT", "/nowhere/font.ttf"}};
    EXPECT_EQ(load(kPanel), nullptr);
    EXPECT_NE(load(u"DejaVu Sans"), nullptr);
}

TEST(PanelFace, HasCellsOfTwoWidths) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    ASSERT_NE(font, nullptr);
    for (const char16_t* narrow : {u"A", u"i", u"0", u"ß", u"Ω", u"Ж", u"ｱ", u" "}) {
        const Answer answer = ask(font, narrow);
        ASSERT_TRUE(answer.found) << std::hex << uint32_t{narrow[0]};
        EXPECT_EQ(answer.units, 1);
        EXPECT_EQ(answer.width, 8) << std::hex << uint32_t{narrow[0]};
        EXPECT_EQ(answer.height, 16);
        EXPECT_EQ(answer.depth, 1);
        EXPECT_EQ(answer.levels().size(), narrow[0] == u' ' ? 1U : 2U);
    }
    for (const char16_t* wide : {u"ア", u"日", u"軸", u"轴", u"简", u"、"}) {
        const Answer answer = ask(font, wide);
        ASSERT_TRUE(answer.found) << std::hex << uint32_t{wide[0]};
        EXPECT_EQ(answer.width, 16) << std::hex << uint32_t{wide[0]};
        EXPECT_EQ(answer.height, 16);
        EXPECT_EQ(answer.levels().size(), 2U);
    }
    const Answer pair = ask(font, u"\U00020BB7");
    EXPECT_TRUE(pair.found);
    EXPECT_EQ(pair.units, 2);
    EXPECT_EQ(pair.width, 16);
}

TEST(PanelFace, HasNoGlyphForWhatIsNoCharacter) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    const char16_t half[] = {0xD842, u'A', 0};
    const char16_t otherHalf[] = {0xDFB7, 0};
    EXPECT_FALSE(ask(font, half).found);
    EXPECT_FALSE(ask(font, otherHalf).found);
    EXPECT_FALSE(ask(font, u"\uE123").found);
    EXPECT_FALSE(ask(font, u"\U0010FFFF").found);
    EXPECT_FALSE(ask(font, nullptr).found);
    EXPECT_EQ(findGlyph(font, nullptr), 0);
    EXPECT_FALSE(ask(nullptr, u"A").found);
}

TEST(PanelFace, ShowsTheChosenFormOfASharedIdeograph) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    const Answer japanese = ask(font, u"直");
    EXPECT_EQ(setGb(1), 1);
    const Answer chinese = ask(font, u"直");
    EXPECT_TRUE(chinese.found);
    EXPECT_NE(chinese, japanese);
    EXPECT_EQ(setGb(2), 0);
    EXPECT_EQ(setGb(-1), 0);
    EXPECT_EQ(setGb(0), 1);
    EXPECT_EQ(ask(font, u"直"), japanese);
    const Answer letter = ask(font, u"A");
    setGb(1);
    EXPECT_EQ(ask(font, u"A"), letter);
}

TEST(OtherFaces, BorrowIdeographsOnly) {
    StartedPlatform platform;
    GFontRecord* const font = load(u"Terminus (TTF)");
    ASSERT_NE(font, nullptr);
    EXPECT_EQ(ask(font, u"軸").width, 16);
    EXPECT_EQ(ask(font, u"ｱ").width, 8);
    EXPECT_FALSE(ask(font, u"\u0E01").found); // Thai
    GFontInformation told{};
    ASSERT_EQ(information(font, &told), 1);
    EXPECT_EQ(told.flags, G_FONT_FIXED | G_FONT_BITMAP | G_FONT_IDEOGRAPHS);
}

TEST(OtherFaces, MayBeProportional) {
    StartedPlatform platform;
    GFontRecord* const font = load(u"DejaVu Sans");
    ASSERT_NE(font, nullptr);
    EXPECT_LT(ask(font, u"i").width, ask(font, u"n").width);
    EXPECT_LT(ask(font, u"n").width, ask(font, u"W").width);
    EXPECT_EQ(ask(font, u"W").height, 16);
    GFontInformation told{};
    ASSERT_EQ(information(font, &told), 1);
    EXPECT_EQ(told.flags & G_FONT_FIXED, 0);
}

TEST(Fonts, ChangeTheirSize) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    int16_t width = 0;
    int16_t height = 0;
    EXPECT_EQ(getSize(font, &width, &height), 1);
    EXPECT_EQ(width, 8);
    EXPECT_EQ(height, 16);
    EXPECT_EQ(setSize(font, 12, 24), 1);
    EXPECT_EQ(getSize(font, &width, &height), 1);
    EXPECT_EQ(width, 12);
    EXPECT_EQ(height, 24);
    EXPECT_EQ(ask(font, u"A").width, 12);
    EXPECT_EQ(ask(font, u"日").width, 24);
    EXPECT_EQ(ask(font, u"日").height, 24);
    for (const auto& [w, h] : {std::pair<int16_t, int16_t>{0, 16},
                               {8, 0},
                               {-8, 16},
                               {8, -16},
                               {257, 16},
                               {8, 257},
                               {INT16_MIN, INT16_MAX}}) {
        EXPECT_EQ(setSize(font, w, h), 0);
    }
    EXPECT_EQ(ask(font, u"A").width, 12);
    EXPECT_EQ(setSize(font, 256, 256), 1);
    EXPECT_EQ(ask(font, u"日").width, 512);
    EXPECT_EQ(setSize(font, 1, 1), 1);
    EXPECT_EQ(ask(font, u"A").width, 1);
    EXPECT_EQ(getSize(font, nullptr, &height), 0);
    EXPECT_EQ(getSize(font, &width, nullptr), 0);
    EXPECT_EQ(getSize(nullptr, &width, &height), 0);
}

TEST(Fonts, HaveLevelsOfTheDepth) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    for (const uint16_t bits : std::initializer_list<uint16_t>{1, 2, 4}) {
        ASSERT_TRUE(setDepth(font, bits));
        const Answer answer = ask(font, u"S");
        EXPECT_EQ(answer.depth, bits);
        EXPECT_GE(answer.levels().size(), std::min<size_t>(size_t{1} << bits, 6));
    }
    EXPECT_FALSE(setDepth(font, 3));
    EXPECT_FALSE(setDepth(font, 8));
}

/// The last row of a glyph that has anything in it; -1 for none.
int lastRow(const Answer& answer) {
    for (int at = answer.width * answer.height - 1; at >= 0; --at) {
        if (answer.level(at % answer.width, at / answer.width) != 0) {
            return at / answer.width;
        }
    }
    return -1;
}

TEST(Fonts, ShowDescendersOfSmoothLettersWhole) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    ASSERT_TRUE(setDepth(font, 4));
    for (const int16_t height : std::initializer_list<int16_t>{16, 24, 32, 48}) {
        ASSERT_EQ(setSize(font, static_cast<int16_t>(height / 2), height), 1);
        EXPECT_GE(lastRow(ask(font, u"g")) - lastRow(ask(font, u"x")), height * 3 / 16) << height;
    }
}

TEST(Fonts, OfBitmapsHaveTwoLevelsAtAnyDepth) {
    StartedPlatform platform{{"QUARLO_PANEL_FONT", kUnifont}};
    GFontRecord* const font = load(kPanel);
    ASSERT_NE(font, nullptr);
    ASSERT_TRUE(setDepth(font, 4));
    EXPECT_EQ(ask(font, u"A").levels(), (std::set<int>{0, 15}));
    EXPECT_EQ(ask(font, u"A").width, 8);
    EXPECT_EQ(ask(font, u"日").width, 16);
}

TEST(Fonts, KeepTheirAttributes) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    const Answer plain = ask(font, u"l");
    GFontAttribute attribute{};
    attribute.height = 20;
    attribute.wideWidth = 18;
    attribute.bitsPerPixel = 1;
    attribute.bold = 1;
    attribute.magnification = 0x0802;
    EXPECT_EQ(setAttribute(font, &attribute), 1);
    GFontAttribute read{};
    EXPECT_EQ(getAttribute(font, &read), 1);
    EXPECT_EQ(std::memcmp(&read, &attribute, sizeof read), 0);
    EXPECT_EQ(font->scale->magnifyX, 2);
    EXPECT_EQ(font->scale->magnifyY, 8);
    EXPECT_EQ(ask(font, u"A").width, 9);
    EXPECT_EQ(ask(font, u"A").height, 20);

    const GFontAttribute unchanged{0, 0, 0, 0, {}, 0, 0};
    EXPECT_EQ(setAttribute(font, &unchanged), 1);
    EXPECT_EQ(ask(font, u"A").height, 20);
    EXPECT_EQ(font->scale->magnifyX, 1);
    for (const uint16_t factors : std::initializer_list<uint16_t>{0x0009, 0x0900, 0xFFFF}) {
        attribute.magnification = factors;
        EXPECT_EQ(setAttribute(font, &attribute), 0);
    }
    EXPECT_EQ(setAttribute(font, nullptr), 0);
    EXPECT_EQ(getAttribute(font, nullptr), 0);
    EXPECT_EQ(getAttribute(nullptr, &read), 0);

    EXPECT_EQ(setSize(font, 8, 16), 1);
    EXPECT_EQ(ask(font, u"l"), plain);
}

TEST(Fonts, EmboldenStrokes) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    const Answer plain = ask(font, u"l");
    GFontAttribute attribute{};
    attribute.bold = 1;
    ASSERT_EQ(setAttribute(font, &attribute), 1);
    const Answer bold = ask(font, u"l");
    int added = 0;
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 8; ++x) {
            const int left = x > 0 ? plain.level(x - 1, y) : 0;
            EXPECT_EQ(bold.level(x, y), plain.level(x, y) | left);
            added += bold.level(x, y) - plain.level(x, y);
        }
    }
    EXPECT_GE(added, 10);
}

TEST(Fonts, ShowASubstitute) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    const GFontUserAttribute question{u'?', 0, 77};
    EXPECT_EQ(setUser(font, &question), 1);
    GFontUserAttribute read{};
    EXPECT_EQ(getUser(font, &read), 1);
    EXPECT_EQ(read.substitute, u'?');
    EXPECT_EQ(read.data, GWord{77});
    EXPECT_EQ(ask(font, u"\uE123"), ask(font, u"?"));
    const GFontUserAttribute missing{0xE124, 0, 0};
    EXPECT_EQ(setUser(font, &missing), 1);
    EXPECT_FALSE(ask(font, u"\uE123").found);
    EXPECT_EQ(setUser(font, nullptr), 0);
    EXPECT_EQ(getUser(font, nullptr), 0);
}

TEST(Fonts, TellOfThemselves) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    GFontInformation told{};
    ASSERT_EQ(information(font, &told), 1);
    EXPECT_EQ(std::u16string(told.face), kPanel);
    EXPECT_EQ(told.flags, G_FONT_FIXED | G_FONT_IDEOGRAPHS);
    EXPECT_EQ(told.width, 8);
    EXPECT_EQ(told.height, 16);
    EXPECT_EQ(told.ascent, 13);
    EXPECT_EQ(told.bitsPerPixel, 1);
    EXPECT_EQ(told.cachedGlyphs, 0U);
    EXPECT_EQ(information(font, nullptr), 0);
    EXPECT_EQ(information(nullptr, &told), 0);
}

TEST(Fonts, HoldGlyphsReady) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    GGlyphRequest request{};
    request.text = u"A";
    ASSERT_EQ(findGlyph(font, &request), 1);
    const uint8_t* const bits = request.bits;
    ask(font, u"B");
    GFontInformation told{};
    information(font, &told);
    EXPECT_EQ(told.cachedGlyphs, 2U);
    EXPECT_EQ(told.cachedBytes, 2U * (24 + 16));
    ASSERT_EQ(findGlyph(font, &request), 1);
    EXPECT_EQ(request.bits, bits);
    // Another font of the same face and style shares them; one of another style does not.
    GFontRecord* const twin = load(kPanel);
    ASSERT_EQ(findGlyph(twin, &request), 1);
    EXPECT_EQ(request.bits, bits);
    setDepth(twin, 2);
    information(twin, &told);
    EXPECT_EQ(told.cachedGlyphs, 0U);
}

TEST(Fonts, HoldNoMoreGlyphsThanTheyMay) {
    StartedPlatform platform{{"QUARLO_GLYPH_CACHE", "16"}};
    GFontRecord* const font = load(kPanel);
    const Answer first = ask(font, u"一");
    uint32_t most = 0;
    for (char16_t unit = 0x4E00; unit < 0x6E00; ++unit) {
        const char16_t text[] = {unit, 0};
        ask(font, text);
        if (unit % 256 == 0) {
            GFontInformation told{};
            information(font, &told);
            EXPECT_LE(told.cachedBytes, 16U * 1024);
            most = std::max(most, told.cachedBytes);
        }
    }
    EXPECT_GT(most, 12U * 1024);
    EXPECT_EQ(ask(font, u"一"), first);
    setSize(font, 200, 200); // a glyph that does not fit at all
    EXPECT_EQ(ask(font, u"一").width, 400);
    EXPECT_EQ(ask(font, u"一").levels().size(), 2U);
}

} // namespace
