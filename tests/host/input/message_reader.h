// Messages as short text: what a test expects can be read.
#pragma once

#include <gpi/host.h>

#include <sstream>
#include <string>

namespace gpi::test {

/// A pointer message as "left down 3,4" with what is held behind it, " held 5"; a key message as
/// "key down 65"; any other as its number.
inline std::string textOf(const GMessage& message) {
    constexpr const char* kPointer[] = {"move",        "left down",  "left up",
                                        "left double", "right down", "right up"};
    std::ostringstream text;
    if (message.number >= G_MESSAGE_POINTER_MOVE && message.number <= G_MESSAGE_RIGHT_UP) {
        text << kPointer[message.number - G_MESSAGE_POINTER_MOVE] << ' '
             << static_cast<int16_t>(message.param2) << ','
             << static_cast<int16_t>(message.param2 >> 16);
        if (message.param1 != 0) {
            text << " held " << message.param1;
        }
    } else if (message.number == G_MESSAGE_KEY_DOWN || message.number == G_MESSAGE_KEY_UP) {
        text << (message.number == G_MESSAGE_KEY_DOWN ? "key down " : "key up ") << message.param1;
    } else if (message.number == G_MESSAGE_PAINT || message.number == G_MESSAGE_QUIT) {
        text << (message.number == G_MESSAGE_PAINT ? "paint" : "quit");
    } else {
        text << message.number;
    }
    return text.str();
}

} // namespace gpi::test
