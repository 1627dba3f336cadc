// The keyboard and the pointer in front of the display.
#pragma once

#include "input/keyboard.h"
#include "message/message_queue.h"

#include <array>
#include <cstdint>
#include <mutex>

namespace gpi {

/// Buttons of the pointer, as bits of what is held.
enum class Button : uint8_t { Left = 1, Right = 2 };

/// What a person does with keys and pointer becomes messages here, whether a window tells of it or
/// a program that stands in for one. Any thread may use it.
///
/// Knows what is held down: a release follows every press, and nothing else. A press that finds no
/// room among the messages is lost as a whole, with its release.
class Input {
  public:
    explicit Input(MessageQueue& messages) : messages_(messages) {}

    /// A key goes down, or repeats. This and all below: false when it is lost or changes nothing.
    bool keyDown(Key key);
    bool keyUp(uint8_t place);

    /// The pointer comes to a position on the display.
    bool moveTo(int16_t x, int16_t y);

    /// A button goes down or up where the pointer is.
    bool press(Button button);
    bool release(Button button);

    bool isHeld(Button button) const;

    /// Releases all that is held: whoever holds it has turned to something else.
    void releaseAll();

    /// What shows the display was uncovered; a person wants to close it.
    void expose();
    void close();

    /// Forgets what is held and where the pointer was.
    void reset();

  private:
    /// When and where a button went down.
    struct Press {
        uint32_t time;
        int16_t x;
        int16_t y;
    };

    struct State {
        std::array<uint8_t, 256> keys{}; ///< by place, the number of the key that is down there
        uint8_t buttons = 0;
        int16_t x = 0;
        int16_t y = 0;
        std::optional<Press>
            single; ///< of the left button; a second one soon after is a double one
    };

    bool letGo(uint8_t place);
    bool letGo(Button button);
    bool isDown(uint8_t number) const;
    bool isDown(Button button) const;
    uint32_t numberOf(const Press& press, Button button) const;
    bool postKey(uint32_t number, Key key, GWord bits);
    bool postPointer(uint32_t number);
    bool post(uint32_t number, GWord param1, GWord param2);

    MessageQueue& messages_;
    mutable std::mutex mutex_;
    State state_; ///< guarded by the lock
};

} // namespace gpi
