// Programs of text calls with a font whose platform answers anything: sizes that are negative or
// huge, glyphs that end before they begin or far behind the text, bitmaps that are not there. No
// byte outside the clip rectangle may change, none behind a bitmap may be read, no memory may be
// left behind, and every call has to end.
#include "input.h"
#include "require.h"
#include "scene.h"

#include <quarlo/quarlo.h>

#include <array>
#include <iterator>
#include <memory>
#include <string>

namespace quarlo::fuzz {
namespace {

constexpr int kMostCalls = 32;

/// What the platform says of a glyph. The bitmap ends where its memory does; one that is too large
/// for that is not there.
struct Answer {
    int32_t result = 1;
    int32_t next = 1; ///< units from the glyph's first; 0 for null
    int16_t width = 6;
    int16_t height = 9;
    int16_t bitsPerPixel = 1;
    std::unique_ptr<GuardedMemory> bits;

    static Answer read(Input& in) {
        constexpr int32_t kNext[] = {1, 2, 0, -1, 1000, 5'000'000};
        constexpr int16_t kDepthsToo[] = {1, 2, 4, 8, 0, -1, 3, 16};
        Answer answer;
        answer.result = in.word();
        answer.next = kNext[in.below(static_cast<int32_t>(std::size(kNext)))];
        answer.width = in.coordinate();
        answer.height = in.coordinate();
        answer.bitsPerPixel = kDepthsToo[in.below(static_cast<int32_t>(std::size(kDepthsToo)))];
        answer.makeBits(in.eightBytes(), in.flag());
        return answer;
    }

  private:
    void makeBits(const std::array<uint8_t, 8>& pattern, bool wanted) {
        constexpr int64_t kMostBytes = 1 << 16;
        const int64_t rowBytes = (int64_t{width} * bitsPerPixel + 7) / 8;
        const int64_t size = rowBytes * height;
        if (!wanted || rowBytes <= 0 || height <= 0 || size > kMostBytes) {
            return;
        }
        bits = std::make_unique<GuardedMemory>(static_cast<size_t>(size));
        for (size_t i = 0; i < bits->size(); ++i) {
            bits->data()[i] = pattern[i % pattern.size()];
        }
    }
};

/// A font that has an answer for each unit, and for some units a new one each time.
class HostileFont {
  public:
    explicit HostileFont(RecordingPlatform& platform) {
        platform.answer(13, asWord(&record_)); // the font that an error message loads
        platform.serve<20>([this](GFontRecord*, GGlyphRequest* request) {
            require(*request->text != u'\0', "a glyph was asked for at the end of a text");
            return answer(*request);
        });
    }

    GFontRecord* get() { return &record_; }
    void define(Input& in) { answers_[static_cast<size_t>(in.below(kAnswers))] = Answer::read(in); }
    void magnify(Input& in) {
        record_.kind = static_cast<uint16_t>(in.below(3));
        scale_.magnifyX = in.byte();
        scale_.magnifyY = in.byte();
        record_.scale = in.below(8) == 0 ? nullptr : &scale_;
    }

  private:
    static constexpr int32_t kAnswers = 4;

    int32_t answer(GGlyphRequest& request) {
        const char16_t unit = *request.text;
        ++questions_;
        const size_t number = unit % 16 == 15 ? questions_ : unit;
        const Answer& chosen = answers_[number % kAnswers];
        request.next = chosen.next == 0 ? nullptr : request.text + chosen.next;
        request.width = chosen.width;
        request.height = chosen.height;
        request.bitsPerPixel = chosen.bitsPerPixel;
        request.bits = chosen.bits != nullptr ? chosen.bits->data() : nullptr;
        return chosen.result;
    }

    GFontScale scale_{{}, 1, 1};
    GFontRecord record_{0, 0, &scale_};
    std::array<Answer, kAnswers> answers_;
    size_t questions_ = 0;
};

/// Makes the calls that an input spells.
class Program {
  public:
    explicit Program(Input& input)
        : in_(input), scene_(input), font_(scene_.platform()), handle_(*scene_.handle()) {
        scene_.platform().serve<62>([this](const char* text, int32_t, char16_t* out,
                                           int32_t units) { return convert(text, out, units); });
        GDSetFont(&handle_, font_.get());
    }

    void run() { runSteps(*this, in_, kMostCalls, kDraws, kSettings); }

  private:
    using Step = void (Program::*)();

    GPoint point() { return readPoint(in_); }
    GRect rect() { return readRect(in_); }
    std::u16string string() {
        std::u16string text;
        for (int32_t left = in_.below(12); left > 0; --left) {
            const uint8_t unit = in_.byte();
            text.push_back(unit != 0 ? unit : u'\n');
        }
        return text;
    }
    GCaptionAttr attributes() {
        const uint32_t color = in_.pixel();
        const auto horizontal = static_cast<uint8_t>(in_.below(4));
        const auto vertical = static_cast<uint8_t>(in_.below(4));
        const GPoint sides = point();
        const GPoint ends = point();
        return {color, horizontal, vertical, sides.x, sides.y, ends.x, ends.y};
    }

    /// As many units as an input says, which may be more than there are.
    int32_t convert(const char* text, char16_t* out, int32_t units) {
        int32_t count = 0;
        for (; count < units && text[count] != '\0'; ++count) {
            out[count] = static_cast<uint8_t>(text[count]);
        }
        return in_.flag() ? count : in_.word();
    }

    // Settings.

    void defineGlyph() { font_.define(in_); }
    void magnify() { font_.magnify(in_); }
    void font() { GDSetFont(&handle_, in_.below(8) == 0 ? nullptr : font_.get()); }
    void penColor() { GDSetPenColor(&handle_, in_.flag() ? in_.pixel() : G_NO_COLOR); }
    void backColor() { GDSetBackColor(&handle_, in_.flag() ? in_.pixel() : G_NO_COLOR); }
    void textMode() { GDSetTextMode(&handle_, in_.byte()); }
    void drawingMode() { GDSetDrawingMode(&handle_, in_.below(4)); }
    void moveTo() {
        const GPoint to = point();
        GDMoveTo(&handle_, to.x, to.y);
    }
    void localOrigin() {
        const GPoint origin = point();
        GDSetLocalMode(&handle_);
        GDSetLocalOrigin(&handle_, &origin);
    }
    void virtualMode() {
        const GRect frame = rect();
        GDSetVirtualRect(&handle_, &frame);
        GDSetVirtualMode(&handle_);
    }
    void clip() {
        const GRect clip = rect();
        GDSetClipRect(&handle_, &clip);
    }
    void wildClip() { *scene_.surface().drawable = rect(); }
    void failAllocation() { scene_.platform().failAllocation(in_.below(4)); }
    /// Of those that text can do without.
    void toggleService() {
        constexpr int kServices[] = {13, 14, 16, 17, 20, 21, 41, 43, 44, 54, 62, 75};
        const int service = kServices[in_.below(static_cast<int32_t>(std::size(kServices)))];
        if (scene_.platform().offers(service)) {
            scene_.platform().remove({service});
        } else {
            scene_.platform().restore(service);
        }
        GetGPIFunction();
    }

    static constexpr Step kSettings[] = {
        &Program::defineGlyph,    &Program::magnify,      &Program::font,        &Program::penColor,
        &Program::backColor,      &Program::textMode,     &Program::drawingMode, &Program::moveTo,
        &Program::localOrigin,    &Program::virtualMode,  &Program::clip,        &Program::wildClip,
        &Program::failAllocation, &Program::toggleService};

    // Text.

    void measure() {
        const std::u16string text = string();
        GDGetCharWidth(&handle_, text.empty() ? u'A' : text[0]);
        GDGetStringWidth(&handle_, text.c_str());
        GSize size;
        GDGetStringSize(&size, &handle_, text.c_str());
    }
    void drawString() {
        const std::u16string text = string();
        checkDrawing(scene_, [&] { GDDrawString(&handle_, text.c_str()); });
    }

    /// Calls draw(rect, attributes, text).
    template <typename Draw>
    void caption(Draw draw) {
        const GRect box = rect();
        const GCaptionAttr attr = attributes();
        const std::u16string text = string();
        checkDrawing(scene_, [&] { draw(&box, &attr, text.c_str()); });
    }
    void plainCaption() {
        caption([this](auto... of) { GDDrawCaptionString(&handle_, of...); });
    }
    void directCaption() {
        caption([this](auto... of) { GDDrawCaptionStringDirect(&handle_, of...); });
    }
    void scrolledCaption() {
        const bool fromRight = in_.flag();
        const auto scroll = static_cast<int32_t>(in_.pixel());
        caption([=, this](auto... of) {
            GDDrawCaptionScrollString(&handle_, of..., fromRight ? 1 : 0, scroll);
        });
    }
    void cursorCaption() {
        const GCaptionCursor cursor{static_cast<uint8_t>(in_.below(3)), in_.pixel()};
        const GCaptionSelect selection{static_cast<uint8_t>(in_.below(2)),
                                       static_cast<uint16_t>(in_.below(16)),
                                       static_cast<uint16_t>(in_.below(16)), in_.pixel()};
        const int16_t position = in_.coordinate();
        const bool selected = in_.flag();
        caption([&](const GRect* box, const GCaptionAttr* attr, const char16_t* text) {
            if (selected) {
                GDDrawCaptionCursorSelectString(&handle_, box, attr, &cursor, &selection, position,
                                                text);
            } else {
                GDDrawCaptionCursorString(&handle_, box, attr, &cursor, position, text);
            }
        });
    }
    void errorMessage() {
        std::string message;
        for (int32_t left = in_.byte(); left > 0; --left) {
            message.push_back(static_cast<char>(in_.byte()));
        }
        GDDrawErrorMessage(message.c_str());
        require(scene_.platform().displaysInUse() == displays_, "the display was not given back");
    }

    static constexpr Step kDraws[] = {&Program::measure,         &Program::drawString,
                                      &Program::plainCaption,    &Program::directCaption,
                                      &Program::scrolledCaption, &Program::cursorCaption,
                                      &Program::errorMessage};

    Input& in_;
    Scene scene_;
    HostileFont font_;
    GDrawHandle& handle_;
    const int displays_ = scene_.platform().displaysInUse();
};

} // namespace
} // namespace quarlo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    testing::GTEST_FLAG(break_on_failure) = true; // of what the platform watches
    quarlo::fuzz::Input input({data, size});
    quarlo::fuzz::Program(input).run();
    return 0;
}
