#include "nc/services.h"

#include "guard.h"
#include "nc/address.h"
#include "platform.h"
#include "text/transcode.h"

#include <gpi/nc.h>

#include <algorithm>
#include <cmath>
#include <string_view>

namespace gpi {
namespace {

using nc::Controller;
using nc::kDone;

/// Runs an action on the controller; there is none before the start.
template <typename Action>
int32_t onController(Action&& action) {
    return guarded<int32_t>(G_NC_REFUSED, [&]() -> int32_t {
        Controller* const controller = platform().controller.get();
        return controller != nullptr ? action(*controller) : G_NC_OFFLINE;
    });
}

/// The units of a text, at most `most` and one more.
std::u16string_view textOf(const char16_t* text, size_t most) {
    size_t length = 0;
    while (length <= most && text[length] != u'\0') {
        ++length;
    }
    return {text, length};
}

/// Chooses a program by the name that a panel gives it.
int32_t chooseProgram(Controller& controller, const char16_t* name) {
    try {
        const Root& root = platform().files->root;
        auto text = nc::readProgramText(openFile(root.locate(name), G_OPEN_READ));
        auto shownName = utf8Of(textOf(name, G_PATH_SIZE));
        if (!text || !shownName) {
            return G_NC_RANGE;
        }
        return controller.choose(std::make_shared<nc::Program>(
            std::move(*shownName), root.resolve(name), std::move(*text)));
    } catch (const IoError&) {
        return G_NC_RANGE;
    } catch (const std::filesystem::filesystem_error&) {
        return G_NC_RANGE;
    }
}

int32_t runBlock(Controller& controller, const char16_t* block) {
    const std::u16string_view text = textOf(block, GPI_NC_LONGEST_BLOCK);
    const bool oneLine = std::none_of(text.begin(), text.end(),
                                      [](char16_t unit) { return unit < u' ' && unit != u'\t'; });
    if (text.empty() || text.size() > GPI_NC_LONGEST_BLOCK || !oneLine) {
        return G_NC_RANGE;
    }
    const auto line = utf8Of(text);
    return line ? controller.runBlock(*line) : static_cast<int32_t>(G_NC_RANGE);
}

/// Copies what fits, never half a character, and a NUL.
/// @param size room in `out`, units; at least 1
void copyText(std::u16string_view text, char16_t* out, size_t size) {
    size_t length = std::min(text.size(), size - 1);
    const bool splitsPair = length < text.size() && (text[length] & 0xFC00) == 0xDC00;
    length -= splitsPair && length > 0 ? 1 : 0;
    std::copy_n(text.begin(), length, out);
    out[length] = u'\0';
}

} // namespace

int32_t setNcValue(int32_t channel, int32_t area, int32_t number, int32_t index,
                   const double* value) {
    return onController([&](Controller& controller) {
        if (value == nullptr) {
            return static_cast<int32_t>(G_NC_BUFFER);
        }
        const nc::ValueAddress address{area, number, index};
        const int32_t checked = checkWrite(controller.extent(), channel, address, *value);
        return checked == kDone ? controller.setValue(address, *value) : checked;
    });
}

int32_t getNcValue(int32_t channel, int32_t area, int32_t number, int32_t index, double* value) {
    return onController([&](Controller& controller) {
        if (value == nullptr) {
            return static_cast<int32_t>(G_NC_BUFFER);
        }
        const nc::ValueAddress address{area, number, index};
        const int32_t checked = checkRead(controller.extent(), channel, address);
        return checked == kDone ? controller.getValue(address, *value) : checked;
    });
}

int32_t setNcString(int32_t channel, int32_t string, int32_t number, const char16_t* text) {
    return onController([&](Controller& controller) {
        if (text == nullptr) {
            return static_cast<int32_t>(G_NC_BUFFER);
        }
        const int32_t checked = checkTextWrite(controller.extent(), channel, string, number);
        if (checked != kDone) {
            return checked;
        }
        return string == G_NC_PROGRAM_NAME ? chooseProgram(controller, text)
                                           : runBlock(controller, text);
    });
}

int32_t getNcString(int32_t channel, int32_t string, int32_t number, char16_t* text, int32_t size) {
    return onController([&](Controller& controller) {
        if (text == nullptr || size < 1) {
            return static_cast<int32_t>(G_NC_BUFFER);
        }
        const int32_t checked = checkTextRead(controller.extent(), channel, string, number);
        if (checked != kDone) {
            return checked;
        }
        std::string found;
        const int32_t result = controller.getText(string, number, found);
        if (result == kDone) {
            copyText(utf16Of(found), text, static_cast<size_t>(size));
        }
        return result;
    });
}

int32_t isNcValueUnset(int32_t channel, int32_t variable) {
    double value = 0.0;
    const int32_t result = getNcValue(channel, G_NC_MACRO, variable, 0, &value);
    return result == kDone ? std::isnan(value) : result;
}

int32_t setNcSystemValue(int32_t number, int32_t value) {
    return onController([&](Controller& controller) {
        const int32_t checked = nc::checkSystemWrite(number, value);
        return checked == kDone ? controller.setSystem(number, value) : checked;
    });
}

int32_t getNcSystemValue(int32_t number, int32_t* value) {
    return onController([&](Controller& controller) {
        if (value == nullptr) {
            return static_cast<int32_t>(G_NC_BUFFER);
        }
        const int32_t checked = nc::checkSystemRead(number);
        return checked == kDone ? controller.getSystem(number, *value) : checked;
    });
}

} // namespace gpi
