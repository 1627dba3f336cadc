// A person before a panel that runs.
#pragma once

#include "panel.h"

#include "host/nc/eventually.h"
#include "keyboard/key_names.h"
#include "support/png_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>

namespace panel::test {

using gpi::test::PngPicture;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// What a frame may take, drawing under a sanitizer and a busy computer included. A call that waits
/// for the control would take a second.
inline constexpr milliseconds kLongestPass{500};

/// A panel that runs as main() has it run, but for the keys, which a test presses.
class Operator {
  public:
    explicit Operator(const std::string& shots) : shots_(shots), panel_(PanelOptions{}) {}

    const Context& context() const { return panel_.context(); }

    /// One round of the panel's loop.
    void pass() {
        const auto begin = steady_clock::now();
        GECheckTimer();
        panel_.handlePending();
        longest_ = std::max(longest_, steady_clock::now() - begin);
    }

    /// Lets the panel run until something is so.
    template <class Condition>
    testing::AssertionResult until(Condition condition) {
        const bool came = gpi::nc::test::eventually([&] {
            pass();
            return condition();
        });
        return came ? testing::AssertionSuccess()
                    : testing::AssertionFailure() << "not within half a minute; " << said();
    }
    /// The same, and presses a key, again where the control that has just started was too slow to
    /// take the order.
    template <class Condition>
    testing::AssertionResult pressUntil(const char* key, Condition condition) {
        constexpr std::chrono::seconds kPatience{3};
        auto pressed = steady_clock::now();
        press({key});
        return until([&] {
            const auto now = steady_clock::now();
            const bool refused = context().messageIsFault && context().message != nullptr &&
                                 std::u16string_view(context().message) == u"RefusedOffline";
            if (refused && now - pressed > kPatience) {
                pressed = now;
                press({key});
            }
            return condition();
        });
    }

    /// What the panel tells its operator: the last message, and the alarms that stand.
    std::string said() const {
        std::u16string text = context().message != nullptr ? context().message : u"no message";
        for (const Alarm& alarm : context().alarms.standing()) {
            text += u"; " + alarm.text;
        }
        return {text.begin(), text.end()};
    }

    void hold(const char* key) {
        ASSERT_EQ(GPIHostFeedKey(*keyNamed(key), 1), 1);
        pass();
    }
    void let(const char* key) {
        ASSERT_EQ(GPIHostFeedKey(*keyNamed(key), 0), 1);
        pass();
    }
    void press(std::initializer_list<const char*> keys) {
        for (const char* const key : keys) {
            hold(key);
            let(key);
        }
    }
    /// Text of upper case letters, digits and what needs no Shift.
    void type(const std::string& text) {
        for (const char character : text) {
            press({std::string(1, character).c_str()});
        }
    }

    /// What the display shows now.
    PngPicture picture(const char* name) {
        pass();
        const std::string path = shots_ + "/" + name + ".png";
        EXPECT_EQ(GPIHostWritePng(path.c_str()), 1);
        return gpi::test::readPng(path);
    }

    steady_clock::duration longestPass() const { return longest_; }

  private:
    std::string shots_;
    Panel panel_;
    steady_clock::duration longest_{};
};

} // namespace panel::test
