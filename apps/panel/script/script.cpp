#include "script/script.h"

#include "keyboard/key_names.h"

#include <gpi/host.h>

#include <algorithm>
#include <iomanip>
#include <sstream>
#include <utility>

namespace panel {
namespace {

constexpr int kStep = 10; // milliseconds between looks at the timers

} // namespace

Script::Script(Panel& panel, std::filesystem::path shots, std::ostream& out)
    : panel_(panel), shots_(std::move(shots)), out_(out) {}

std::optional<std::string> Script::run(std::istream& lines) {
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        line.erase(std::min(line.find('#'), line.size()));
        if (line.find_first_not_of(" \t") == std::string::npos) {
            continue;
        }
        if (!carryOut(line)) {
            return "line " + std::to_string(number) + ": " + line;
        }
        if (!panel_.handlePending()) {
            break; // somebody has quit
        }
    }
    return std::nullopt;
}

bool Script::carryOut(const std::string& line) {
    std::istringstream words(line);
    std::string verb;
    words >> verb;
    if (verb == "type") {
        std::string text;
        std::getline(words >> std::ws, text);
        return type(text);
    }
    if (verb == "wait") {
        int milliseconds = 0;
        return words >> milliseconds && wait(milliseconds);
    }
    if (verb == "tap" || verb == "press" || verb == "move" || verb == "release") {
        int x = 0;
        int y = 0;
        if (!(words >> x >> y)) {
            return false;
        }
        const bool down = verb == "tap" || verb == "press";
        buttons_ = down ? uint32_t{GPI_POINTER_LEFT} : verb == "move" ? buttons_ : 0;
        return point(x, y, buttons_) && (verb != "tap" || point(x, y, buttons_ = 0));
    }
    std::string name;
    words >> name;
    if (verb == "shot") {
        return shoot(name);
    }
    if (verb == "checksum") {
        return !name.empty() && sum(name);
    }
    const bool known = verb == "key" || verb == "down" || verb == "up";
    return known && !name.empty() && press(name, verb != "up", verb != "down");
}

bool Script::press(const std::string& name, bool down, bool up) {
    const auto key = keyNamed(name);
    if (!key || (down && GPIHostFeedKey(*key, 1) == 0)) {
        return false;
    }
    panel_.handlePending();
    return !up || GPIHostFeedKey(*key, 0) != 0;
}

bool Script::type(const std::string& text) {
    for (const char character : text) {
        const auto stroke = strokeOf(character);
        if (!stroke || (stroke->shifted && !press("Shift", true, false)) ||
            !press(std::string(1, character), true, true) ||
            (stroke->shifted && !press("Shift", false, true))) {
            return false;
        }
    }
    return true;
}

bool Script::point(int x, int y, uint32_t buttons) {
    const bool fed = GPIHostFeedPointer(x, y, buttons) != 0;
    panel_.handlePending();
    return fed;
}

bool Script::wait(int milliseconds) {
    for (int passed = 0; passed < milliseconds; passed += kStep) {
        if (GPIHostStepClock(static_cast<uint32_t>(std::min(kStep, milliseconds - passed))) == 0) {
            return false;
        }
        GECheckTimer();
        if (!panel_.handlePending()) {
            break;
        }
    }
    return true;
}

bool Script::sum(const std::string& name) {
    panel_.handlePending();
    // Nothing has changed in that pixel, but the call waits for all that was flushed before.
    GDFlushScreenForce(panel_.context().painter.handle(), 0, 0, 1, 1);
    out_ << name << ' ' << std::hex << std::setw(8) << std::setfill('0') << GPIHostFrameChecksum()
         << std::dec << std::setfill(' ') << std::endl;
    return true;
}

bool Script::shoot(const std::string& name) {
    panel_.handlePending();
    return GPIHostWritePng((shots_ / (name + ".png")).string().c_str()) != 0;
}

} // namespace panel
