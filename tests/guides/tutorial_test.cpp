// The programs of the tutorial, used by a person who waits for each effect before going on. What
// they leave on the display is what the tutorial shows.
#include "support/environment.h"
#include "support/png_reader.h"
#include "support/started_platform.h"

#include <gpi/host.h>
#include <quarlo/quarlo.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

extern "C" {
int run_window();
int run_shapes();
int run_text();
int run_images();
int run_damage();
int run_keys();
int run_timers();
int run_machine();
GWord startHeld(GWord arg);
int32_t nextEvent(GEventMsg* event, int32_t wait);
int32_t endFrame();
}

namespace {

using namespace gpi::test;
using Act = std::function<void()>;
using Script = std::vector<Act>;

Script acts;
size_t nextAct;
int frames;

void press(int32_t key) {
    GPIHostFeedKey(key, 1);
    GPIHostFeedKey(key, 0);
}

Act key(int32_t number) {
    return [number] { press(number); };
}

Act pointer(int32_t x, int32_t y, uint32_t buttons) {
    return [=] { GPIHostFeedPointer(x, y, buttons); };
}

void quit() {
    GMessage message{};
    message.number = G_MESSAGE_QUIT;
    GPIHostPostMessage(&message);
}

/// Lets time pass, in steps in which every timer expires.
Script pass(int milliseconds) {
    constexpr int kStep = 20;
    return Script(static_cast<size_t>(milliseconds / kStep), [] { GPIHostStepClock(kStep); });
}

Script operator+(Script first, const Script& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

class Tutorial : public testing::Test {
  protected:
    Tutorial() {
        nextAct = 0;
        frames = 0;
    }

    /// Runs a program to its end, and compares what it left on the display.
    void expectPicture(int (*program)(), const std::string& name, Script script = {}) {
        acts = std::move(script);
        EXPECT_EQ(program(), 0);
        EXPECT_EQ(nextAct, acts.size());
        const std::string reviewed = TUTORIAL_PICTURES "/" + name + ".png";
        const PngPicture expected = readPng(reviewed);
        const PngPicture drawn = readPng(drawn_);
        EXPECT_EQ(drawn.width, 480);
        EXPECT_EQ(drawn.height, 272);
        if (rgb(drawn) != rgb(expected)) {
            std::filesystem::create_directories(TUTORIAL_FAILURES);
            const std::string kept = TUTORIAL_FAILURES "/" + name + ".png";
            std::filesystem::copy_file(drawn_, kept,
                                       std::filesystem::copy_options::overwrite_existing);
            ADD_FAILURE() << kept << " is not " << reviewed;
        }
    }

  private:
    /// Colours, whether or not the file has made a palette of them.
    static std::vector<uint32_t> rgb(const PngPicture& picture) {
        std::vector<uint32_t> pixels = picture.pixels;
        if (picture.palette) {
            for (uint32_t& pixel : pixels) {
                pixel = picture.colors.at(pixel);
            }
        }
        return pixels;
    }

    TemporaryFolder folder_;
    std::string drawn_ = folder_.path("panel.png");
    Environment environment_{settings({{"QUARLO_DISPLAY", "png"},
                                       {"QUARLO_PNG", drawn_},
                                       {"QUARLO_CONFIG", TUTORIAL_FILES "/tutorial.conf"},
                                       {"QUARLO_FILES", TUTORIAL_FILES},
                                       {"QUARLO_FORMAT", std::nullopt},
                                       {"QUARLO_WIDTH", std::nullopt},
                                       {"QUARLO_HEIGHT", std::nullopt}})};
};

TEST_F(Tutorial, Window) {
    expectPicture(run_window, "window");
}

TEST_F(Tutorial, Shapes) {
    expectPicture(run_shapes, "shapes");
}

TEST_F(Tutorial, Text) {
    expectPicture(run_text, "text");
}

TEST_F(Tutorial, Images) {
    expectPicture(run_images, "images");
}

TEST_F(Tutorial, Damage) {
    expectPicture(run_damage, "damage");
    EXPECT_EQ(frames, 2);
}

TEST_F(Tutorial, Keys) {
    expectPicture(run_keys, "keys",
                  {key(GPI_KEY_F1), key(GPI_KEY_UP), key(GPI_KEY_UP),
                   pointer(300, 230, GPI_POINTER_LEFT), pointer(300, 231, 0),
                   pointer(180, 230, GPI_POINTER_LEFT), quit});
    EXPECT_EQ(frames, 7) << "one for each act but the last, and the first";
}

TEST_F(Tutorial, Timers) {
    expectPicture(run_timers, "timers",
                  pass(1000) + Script{key(GPI_KEY_F1)} + pass(2000) + Script{quit});
}

TEST_F(Tutorial, Machine) {
    expectPicture(run_machine, "machine",
                  pass(1000) + Script{key(GPI_KEY_F1)} + pass(9000) +
                      Script{key(GPI_KEY_UP), key(GPI_KEY_UP)} + pass(1000) + Script{quit});
}

TEST_F(Tutorial, MachineIsHeldAndReset) {
    const Script start = pass(1000) + Script{key(GPI_KEY_F1)} + pass(3000);
    int32_t state = -1;
    const auto expectState = [&](int32_t expected) {
        return Script{[&state, expected] {
            GNCDataGetSystemVal(G_NC_SYSTEM_STATE, &state);
            EXPECT_EQ(state, expected);
        }};
    };
    acts = start + expectState(G_NC_STATE_RUNNING) + Script{key(GPI_KEY_F1 + 1)} + pass(1000) +
           expectState(G_NC_STATE_HELD) + Script{key(GPI_KEY_F1 + 3)} + pass(1000) +
           expectState(G_NC_STATE_IDLE) + Script{key(GPI_KEY_ESCAPE)};
    EXPECT_EQ(run_machine(), 0);
    EXPECT_EQ(nextAct, acts.size());
}

} // namespace

/// Starts the platform with clocks that the person moves, at eight o'clock.
GWord startHeld(GWord arg) {
    const GWord started = GDInitPlatform(arg);
    GPIHostHoldClock(8 * 3600);
    return started;
}

/// Before a program goes to sleep, the person does something.
int32_t nextEvent(GEventMsg* event, int32_t wait) {
    if (GEGetEvent(event, 0)) {
        return 1;
    }
    if (wait == 0 || nextAct == acts.size()) {
        EXPECT_EQ(wait, 0) << "the program waits and nobody is there";
        return 0;
    }
    acts[nextAct++]();
    return GEGetEvent(event, 0);
}

int32_t endFrame() {
    ++frames;
    return GPIHostEndFrame();
}
