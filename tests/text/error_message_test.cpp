#include "text/text_test.h"

#include <quarlo/profile.h>

#include <map>

using namespace quarlo::test;

namespace {

/// A platform with a display of 900 x 720 pixels and a panel font.
class ErrorMessage : public RasterTest {
  protected:
    ErrorMessage() {
        platform.recordOperations(false);
        platform.addDisplay(0, screen_);
        platform.answer(13, asWord(font.get()));
        platform.serve<54>([this](const char16_t*, const char16_t* key, const char16_t* fallback,
                                  char16_t* value, int32_t size, uint32_t, const char16_t*) {
            const std::u16string text = profile.contains(key) ? profile[key] : fallback;
            value[text.copy(value, static_cast<size_t>(size) - 1)] = u'\0';
            return static_cast<int32_t>(text.size());
        });
        platform.serve<62>([](const char* text, int32_t, char16_t* out, int32_t units) {
            int32_t count = 0;
            while (count < units && text[count] != '\0') {
                out[count] = static_cast<char16_t>(text[count]);
                ++count;
            }
            return count;
        });
        platform.serve<75>([this](GDrawHandle* handle, const char16_t* line, int16_t x, int16_t y,
                                  const GRect* given) {
            shown = line;
            at = {x, y};
            clip = *given;
            penPixel = handle->penPixel;
            backPixel = handle->backPixel;
            return 1;
        });
        GetGPIFunction();
        platform.forget();
    }

    ScriptedFont font{platform, 1, 16};
    std::map<std::u16string, std::u16string> profile;
    std::u16string shown;
    GPoint at{};
    GRect clip{};
    uint32_t penPixel = 0;
    uint32_t backPixel = 0;

    GuardedSurface& screen() { return screen_; }

  private:
    GuardedSurface screen_{900, 720, 16};
};

TEST_F(ErrorMessage, StandsAtAFixedPlaceOfAPanelDisplay) {
    GDDrawErrorMessage("Disk full");
    EXPECT_EQ(shown, u"Disk full");
    EXPECT_EQ(at.x, 270);
    EXPECT_EQ(at.y, 403); // 17 rows hold a line of 16
    EXPECT_EQ(clip.left, 270);
    EXPECT_EQ(clip.top, 403);
    EXPECT_EQ(clip.right, 640);
    EXPECT_EQ(clip.bottom, 419);
    EXPECT_EQ(penPixel, 0x00FFFFFFU);
    EXPECT_EQ(backPixel, 0xF800U);
}

TEST_F(ErrorMessage, StandsAtAnotherPlaceOfAnyOtherDisplay) {
    const struct {
        const char16_t* width;
        const char16_t* height;
        bool panel;
    } cases[] = {{u"800", u"600", false},        {u"640", u"480", true},
                 {u" 640px", u"+480", true},     {u"640", u"481", false},
                 {u"", u"480", false},           {u"-640", u"480", false},
                 {u"4294967936", u"480", false}, {u"\t640", u" \t480", true}};
    for (const auto& known : cases) {
        profile = {{u"WIDTH", known.width}, {u"HEIGHT", known.height}};
        GDDrawErrorMessage("x");
        EXPECT_EQ(at.x, known.panel ? 270 : 383);
        EXPECT_EQ(clip.top, known.panel ? 403 : 688);
    }
}

TEST_F(ErrorMessage, TakesThePanelFontInOneBit) {
    GFontAttribute given{};
    platform.serve<17>([](GFontRecord*, GFontAttribute* attribute) {
        attribute->bitsPerPixel = 4;
        attribute->bold = 1;
        return 1;
    });
    platform.serve<16>([&given](GFontRecord*, const GFontAttribute* attribute) {
        given = *attribute;
        return 1;
    });
    platform.serve<13>([this](const char16_t* face) {
        EXPECT_EQ(std::u16string(face), u"TORVANDELL CNC Gothic");
        return font.get();
    });
    GDDrawErrorMessage("x");
    EXPECT_EQ(given.bitsPerPixel, 1);
    EXPECT_EQ(given.bold, 1);
    EXPECT_EQ(platform.callsOf(14)[0], call(14, font.get(), 8, 16));
    EXPECT_EQ(platform.count(21), 1U);
}

TEST_F(ErrorMessage, GivesItsSurfaceBack) {
    const int displays = platform.displaysInUse();
    for (const char* const message : {"x", "", static_cast<const char*>(nullptr)}) {
        shown = u"nothing";
        GDDrawErrorMessage(message);
        EXPECT_EQ(platform.displaysInUse(), displays);
        EXPECT_EQ(shown, message != nullptr && *message != '\0' ? u"x" : u"nothing");
    }
    EXPECT_EQ(platform.count(21), 3U);
    EXPECT_EQ(platform.count(4), 3U);
}

TEST_F(ErrorMessage, LeavesASurfaceThatIsNotTheDevices) {
    screen()->id = G_MEMORY_SURFACE;
    GDDrawErrorMessage("x");
    EXPECT_EQ(shown, u"x");
    EXPECT_EQ(platform.count(4), 0U);
}

TEST_F(ErrorMessage, OpensTheClipRectangleOfTheDisplay) {
    screen()->bounds = {400, 400, 401, 401};
    GDDrawErrorMessage("x");
    EXPECT_EQ(clip.left, 270);
    EXPECT_EQ(clip.right, 640);
    EXPECT_EQ(screen()->bounds.right, 899);
    EXPECT_EQ(screen()->bounds.bottom, 719);
}

TEST_F(ErrorMessage, OnADisplayWithoutClipRectangleDrawsNothing) {
    screen()->drawable = nullptr;
    GDDrawErrorMessage("x");
    EXPECT_EQ(shown, u"");
    EXPECT_EQ(platform.count(4), 1U);
}

TEST_F(ErrorMessage, IsCutTo127Units) {
    GDDrawErrorMessage(std::string(200, 'y').c_str());
    EXPECT_EQ(shown, std::u16string(127, u'y'));
}

TEST_F(ErrorMessage, WithoutFontDrawsNothing) {
    platform.answer(13, 0);
    GDDrawErrorMessage("x");
    EXPECT_EQ(shown, u"");
    EXPECT_EQ(platform.callsOf(14)[0], call(14, static_cast<GFontRecord*>(nullptr), 8, 16));
    EXPECT_EQ(platform.count(21), 0U);
    EXPECT_EQ(platform.count(4), 1U);
}

TEST_F(ErrorMessage, NeedsServices3And75Only) {
    for (const int service : {4, 13, 14, 16, 17, 20, 21, 41, 44, 54, 62}) {
        platform.remove({service});
        GetGPIFunction();
        GDDrawErrorMessage("x");
        platform.restore(service);
        GetGPIFunction();
    }
    platform.remove({54});
    GDDrawErrorMessage("without a profile");
    EXPECT_EQ(at.x, 270);
    platform.remove({75});
    shown.clear();
    GDDrawErrorMessage("x");
    platform.remove({3});
    platform.forget();
    GDDrawErrorMessage("x");
    EXPECT_EQ(shown, u"");
    EXPECT_EQ(platform.count(13), 0U);
}

} // namespace
