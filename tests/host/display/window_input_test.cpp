// What a window makes of SDL's events: on SDL's dummy driver, which has none of its own.
#include "display/sdl_back_end.h"
#include "display/sdl_input.h"
#include "input/message_reader.h"
#include "support/environment.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <vector>

namespace {

using namespace gpi;
using gpi::test::Environment;
using gpi::test::textOf;

using Texts = std::vector<std::string>;

constexpr int32_t kLong = 60'000;

Settings smallWindow(int scale) {
    Settings settings;
    settings.display = DisplayKind::Sdl;
    settings.width = 60;
    settings.height = 40;
    settings.scale = scale;
    return settings;
}

SDL_Event keyEvent(uint32_t type, SDL_Scancode place, SDL_Keycode sym, uint16_t mod = KMOD_NUM) {
    SDL_Event event{};
    event.type = type;
    event.key.keysym.scancode = place;
    event.key.keysym.sym = sym;
    event.key.keysym.mod = mod;
    return event;
}

SDL_Event windowEvent(SDL_WindowEventID id) {
    SDL_Event event{};
    event.type = SDL_WINDOWEVENT;
    event.window.event = static_cast<uint8_t>(id);
    return event;
}

SDL_Event motion(int x, int y, uint32_t device = 0) {
    SDL_Event event{};
    event.type = SDL_MOUSEMOTION;
    event.motion.which = device;
    event.motion.x = x;
    event.motion.y = y;
    return event;
}

SDL_Event button(uint32_t type, uint8_t which, int x, int y, uint32_t device = 0) {
    SDL_Event event{};
    event.type = type;
    event.button.which = device;
    event.button.button = which;
    event.button.x = x;
    event.button.y = y;
    return event;
}

class WindowInput : public testing::Test {
  protected:
    void open(int scale = 1) {
        window_ = SdlWindow::open(smallWindow(scale), VideoDriver::Any);
        ASSERT_NE(window_, nullptr) << SDL_GetError();
        window_->present(View());
        sdl_ = std::make_unique<SdlInput>(*window_, input_);
    }

    void SetUp() override { open(); }

    void resize(int width, int height) {
        SDL_SetWindowSize(window_->window(), width, height);
        SDL_PumpEvents();
    }

    Texts after(std::initializer_list<SDL_Event> events) {
        for (const SDL_Event& event : events) {
            sdl_->handle(event);
        }
        Texts texts;
        while (const auto message = messages_.take()) {
            texts.push_back(textOf(*message));
        }
        return texts;
    }

    Environment environment_{{"SDL_VIDEODRIVER", "dummy"}};
    Signal events_;
    MessageQueue messages_{events_};
    Input input_{messages_};
    std::unique_ptr<SdlWindow> window_;
    std::unique_ptr<SdlInput> sdl_;
};

TEST_F(WindowInput, HasKeys) {
    EXPECT_EQ(after({keyEvent(SDL_KEYDOWN, SDL_SCANCODE_A, SDLK_a),
                     keyEvent(SDL_KEYUP, SDL_SCANCODE_A, SDLK_a),
                     keyEvent(SDL_KEYDOWN, SDL_SCANCODE_F12, SDLK_F12),
                     keyEvent(SDL_KEYUP, SDL_SCANCODE_F12, SDLK_F12),
                     keyEvent(SDL_KEYDOWN, SDL_SCANCODE_RCTRL, SDLK_RCTRL),
                     keyEvent(SDL_KEYUP, SDL_SCANCODE_RCTRL, SDLK_RCTRL)}),
              (Texts{"key down 65", "key up 65", "key down 123", "key up 123", "key down 17",
                     "key up 17"}));
}

TEST_F(WindowInput, NamesLettersAndDigitsByTheUsersKeyboard) {
    EXPECT_EQ(after({keyEvent(SDL_KEYDOWN, SDL_SCANCODE_Z, SDLK_y)}), Texts{"key down 89"})
        << "on a German keyboard";
    EXPECT_EQ(after({keyEvent(SDL_KEYDOWN, SDL_SCANCODE_B, SDL_Keycode{0x438})}),
              Texts{"key down 66"})
        << "on a Russian one";
    EXPECT_EQ(after({keyEvent(SDL_KEYDOWN, SDL_SCANCODE_1, SDLK_AMPERSAND)}), Texts{"key down 49"})
        << "on a French one";
    EXPECT_EQ(after({keyEvent(SDL_KEYDOWN, SDL_SCANCODE_SEMICOLON, SDL_Keycode{0xF6})}),
              Texts{"key down 186"})
        << "on a German one";
}

TEST_F(WindowInput, HasAKeypadWithAndWithoutNumberLock) {
    EXPECT_EQ(after({keyEvent(SDL_KEYDOWN, SDL_SCANCODE_KP_4, SDLK_KP_4, KMOD_NUM),
                     keyEvent(SDL_KEYUP, SDL_SCANCODE_KP_4, SDLK_KP_4, KMOD_NONE),
                     keyEvent(SDL_KEYDOWN, SDL_SCANCODE_KP_4, SDLK_KP_4, KMOD_NONE)}),
              (Texts{"key down 100", "key up 100", "key down 37"}));
}

TEST_F(WindowInput, LeavesKeysOutThatHaveNoNumber) {
    EXPECT_EQ(after({keyEvent(SDL_KEYDOWN, SDL_SCANCODE_UNKNOWN, SDLK_UNKNOWN),
                     keyEvent(SDL_KEYDOWN, SDL_SCANCODE_VOLUMEUP, SDLK_VOLUMEUP),
                     keyEvent(SDL_KEYDOWN, SDL_SCANCODE_AUDIOPLAY, SDLK_AUDIOPLAY)}),
              Texts{});
}

TEST_F(WindowInput, HasAPointerWithTwoButtons) {
    EXPECT_EQ(after({motion(3, 4), button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_LEFT, 5, 6), motion(7, 8),
                     button(SDL_MOUSEBUTTONUP, SDL_BUTTON_LEFT, 7, 8),
                     button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_RIGHT, 7, 8),
                     button(SDL_MOUSEBUTTONUP, SDL_BUTTON_RIGHT, 7, 8)}),
              (Texts{"move 5,6", "left down 5,6 held 1", "move 7,8 held 1", "left up 7,8",
                     "right down 7,8 held 2", "right up 7,8"}));
}

TEST_F(WindowInput, LeavesOtherButtonsAndTheWheelOut) {
    SDL_Event wheel{};
    wheel.type = SDL_MOUSEWHEEL;
    wheel.wheel.y = 1;
    EXPECT_EQ(after({button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_MIDDLE, 5, 6),
                     button(SDL_MOUSEBUTTONUP, SDL_BUTTON_MIDDLE, 5, 6),
                     button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_X1, 5, 6), wheel}),
              Texts{});
}

TEST_F(WindowInput, TakesAFingerForTheLeftButton) {
    EXPECT_EQ(after({motion(9, 9, SDL_TOUCH_MOUSEID),
                     button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_LEFT, 9, 9, SDL_TOUCH_MOUSEID),
                     motion(20, 9, SDL_TOUCH_MOUSEID),
                     button(SDL_MOUSEBUTTONUP, SDL_BUTTON_LEFT, 20, 9, SDL_TOUCH_MOUSEID)}),
              (Texts{"move 9,9", "left down 9,9 held 1", "move 20,9 held 1", "left up 20,9"}));
    EXPECT_STREQ(SDL_GetHint(SDL_HINT_TOUCH_MOUSE_EVENTS), "1");
}

TEST_F(WindowInput, CountsPixelsOfThePictureInALargerWindow) {
    open(3);
    EXPECT_EQ(after({motion(2, 2)}), Texts{}) << "the pointer is there already";
    EXPECT_EQ(after({motion(3, 2)}), Texts{"move 1,0"});
    EXPECT_EQ(after({motion(179, 119)}), Texts{"move 59,39"});
    resize(200, 100); // twice as large, 40 pixels of black on the left, 10 above
    EXPECT_EQ(after({motion(40, 10)}), Texts{"move 0,0"});
    EXPECT_EQ(after({motion(43, 13)}), Texts{"move 1,1"});
    EXPECT_EQ(after({motion(159, 89)}), Texts{"move 59,39"});
    resize(30, 20); // half as large
    EXPECT_EQ(after({motion(15, 10)}), Texts{"move 30,20"});
    EXPECT_EQ(after({motion(29, 19)}), Texts{"move 58,38"});
}

TEST_F(WindowInput, CountsPixelsOfThePictureInAView) {
    window_->present(View{2, 4, 10, 5}); // 30 x 10 pixels from (10, 5) on
    EXPECT_EQ(after({motion(0, 0)}), Texts{"move 10,5"});
    EXPECT_EQ(after({motion(3, 7)}), Texts{"move 11,6"});
    EXPECT_EQ(after({motion(59, 39)}), Texts{"move 39,14"});
}

TEST_F(WindowInput, HasNothingBesideThePicture) {
    resize(200, 100); // the picture is 120 x 80 at (40, 10)
    EXPECT_EQ(after({motion(39, 50), motion(160, 50), motion(100, 9), motion(100, 90)}), Texts{});
    EXPECT_EQ(after({button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_LEFT, 10, 50),
                     button(SDL_MOUSEBUTTONUP, SDL_BUTTON_LEFT, 10, 50)}),
              Texts{});
}

TEST_F(WindowInput, FollowsADragThatLeavesThePicture) {
    EXPECT_EQ(after({button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_LEFT, 30, 20)}),
              (Texts{"move 30,20", "left down 30,20 held 1"}));
    EXPECT_EQ(after({motion(-500, 21)}), Texts{"move 0,21 held 1"});
    EXPECT_EQ(after({motion(1000, 1000)}), Texts{"move 59,39 held 1"});
    EXPECT_EQ(after({button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_RIGHT, 1000, -1)}),
              Texts{"move 59,0 held 1"})
        << "a press beside the picture is none";
    EXPECT_EQ(after({button(SDL_MOUSEBUTTONUP, SDL_BUTTON_LEFT, 1000, 5)}),
              (Texts{"move 59,5 held 1", "left up 59,5"}));
    EXPECT_EQ(after({motion(1000, 1000)}), Texts{});
}

TEST_F(WindowInput, ReleasesWhatIsHeldWhenItLosesTheKeyboard) {
    after({keyEvent(SDL_KEYDOWN, SDL_SCANCODE_A, SDLK_a),
           keyEvent(SDL_KEYDOWN, SDL_SCANCODE_LSHIFT, SDLK_LSHIFT),
           button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_LEFT, 1, 1)});
    EXPECT_EQ(after({windowEvent(SDL_WINDOWEVENT_FOCUS_LOST)}),
              (Texts{"key up 65", "key up 16", "left up 1,1"}));
    EXPECT_EQ(after({keyEvent(SDL_KEYUP, SDL_SCANCODE_A, SDLK_a),
                     button(SDL_MOUSEBUTTONUP, SDL_BUTTON_LEFT, 1, 1)}),
              Texts{})
        << "released already";
}

TEST_F(WindowInput, QuitsAndPaints) {
    EXPECT_EQ(after({windowEvent(SDL_WINDOWEVENT_EXPOSED)}), Texts{"paint"});
    EXPECT_EQ(after({windowEvent(SDL_WINDOWEVENT_CLOSE)}), Texts{"quit"});
    EXPECT_EQ(after({windowEvent(SDL_WINDOWEVENT_CLOSE)}), Texts{"quit"}) << "asked again";
    SDL_Event quit{};
    quit.type = SDL_QUIT;
    EXPECT_EQ(after({quit}), Texts{"quit"});
    EXPECT_STREQ(SDL_GetHint(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE), "0") << "closing counts once";
}

TEST_F(WindowInput, IsNotShakenByWildEvents) {
    constexpr uint32_t kTypes[] = {
        SDL_MOUSEMOTION, SDL_MOUSEBUTTONDOWN, SDL_MOUSEBUTTONUP, SDL_MOUSEWHEEL, SDL_KEYDOWN,
        SDL_KEYUP,       SDL_WINDOWEVENT,     SDL_FINGERDOWN,    SDL_USEREVENT,  SDL_LASTEVENT};
    for (int fill = 0; fill < 256; ++fill) {
        for (const uint32_t type : kTypes) {
            SDL_Event event;
            std::fill(std::begin(event.padding), std::end(event.padding),
                      static_cast<uint8_t>(fill));
            event.type = type;
            if (type == SDL_KEYDOWN || type == SDL_KEYUP) {
                event.key.keysym.scancode = SDL_SCANCODE_A; // an enumeration holds no other value
            } else if (type == SDL_MOUSEBUTTONDOWN || type == SDL_MOUSEBUTTONUP) {
                event.button.button = SDL_BUTTON_LEFT;
            }
            sdl_->handle(event);
            while (const auto message = messages_.take()) {
                EXPECT_TRUE(message->x >= 0 && message->x < 60 && message->y >= 0 &&
                            message->y < 40);
            }
        }
    }
}

/// The window as a program has it, in its own thread.
class WindowThreadInput : public testing::Test {
  protected:
    void SetUp() override {
        backEnd_ = openSdlBackEnd(smallWindow(1), frame_, input_, VideoDriver::Any);
        ASSERT_NE(backEnd_, nullptr);
    }

    /// The next message that is no paint; those come when they like.
    std::string next() {
        auto message = messages_.take(kLong);
        while (message && message->number == G_MESSAGE_PAINT) {
            message = messages_.take(kLong);
        }
        return message ? textOf(*message) : "nothing";
    }

    static void push(SDL_Event event) { SDL_PushEvent(&event); }

    Environment environment_{{"SDL_VIDEODRIVER", "dummy"}};
    Frame frame_{60, 40, kFormat24};
    Signal events_;
    MessageQueue messages_{events_};
    Input input_{messages_};
    std::unique_ptr<BackEnd> backEnd_;
};

TEST_F(WindowThreadInput, ArrivesWhileTheProgramWaits) {
    push(keyEvent(SDL_KEYDOWN, SDL_SCANCODE_LEFT, SDLK_LEFT));
    EXPECT_EQ(next(), "key down 37");
    push(keyEvent(SDL_KEYUP, SDL_SCANCODE_LEFT, SDLK_LEFT));
    EXPECT_EQ(next(), "key up 37");
    push(button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_LEFT, 11, 12));
    EXPECT_EQ(next(), "move 11,12");
    EXPECT_EQ(next(), "left down 11,12 held 1");
    push(windowEvent(SDL_WINDOWEVENT_CLOSE));
    EXPECT_EQ(next(), "quit");
    EXPECT_TRUE(backEnd_->isWindow());
    EXPECT_TRUE(backEnd_->waitForClose());
}

TEST_F(WindowThreadInput, IsThereWhileTheWindowDraws) {
    constexpr std::array<GRect, 1> kWhole{GRect{0, 0, 59, 39}};
    for (int round = 0; round < 200; ++round) {
        push(keyEvent(SDL_KEYDOWN, SDL_SCANCODE_A, SDLK_a));
        backEnd_->show(frame_, kWhole);
        push(keyEvent(SDL_KEYUP, SDL_SCANCODE_A, SDLK_a));
        backEnd_->setView(View{1 + round % 3, 1, 0, 0});
        ASSERT_EQ(next(), "key down 65");
        ASSERT_EQ(next(), "key up 65");
    }
}

} // namespace
