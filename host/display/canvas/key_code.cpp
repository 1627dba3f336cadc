#include "display/canvas/key_code.h"

#include <algorithm>
#include <charconv>

namespace gpi {
namespace {

struct NamedPlace {
    std::string_view code;
    uint8_t place;
};

/// By the standard "UI Events KeyboardEvent code Values"; letters, digits and F keys are worked
/// out.
constexpr NamedPlace kPlaces[] = {
    {"Enter", 0x28},
    {"Escape", 0x29},
    {"Backspace", 0x2A},
    {"Tab", 0x2B},
    {"Space", 0x2C},
    {"Minus", 0x2D},
    {"Equal", 0x2E},
    {"BracketLeft", 0x2F},
    {"BracketRight", 0x30},
    {"Backslash", 0x31},
    {"Semicolon", 0x33},
    {"Quote", 0x34},
    {"Backquote", 0x35},
    {"Comma", 0x36},
    {"Period", 0x37},
    {"Slash", 0x38},
    {"CapsLock", 0x39},
    {"PrintScreen", 0x46},
    {"ScrollLock", 0x47},
    {"Pause", 0x48},
    {"Insert", 0x49},
    {"Home", 0x4A},
    {"PageUp", 0x4B},
    {"Delete", 0x4C},
    {"End", 0x4D},
    {"PageDown", 0x4E},
    {"ArrowRight", 0x4F},
    {"ArrowLeft", 0x50},
    {"ArrowDown", 0x51},
    {"ArrowUp", 0x52},
    {"NumLock", 0x53},
    {"NumpadDivide", 0x54},
    {"NumpadMultiply", 0x55},
    {"NumpadSubtract", 0x56},
    {"NumpadAdd", 0x57},
    {"NumpadEnter", 0x58},
    {"Numpad0", 0x62},
    {"NumpadDecimal", 0x63},
    {"IntlBackslash", 0x64},
    {"ContextMenu", 0x65},
    {"NumpadEqual", 0x67},
    {"Help", 0x75},
    {"NumpadComma", 0x85},
    {"IntlRo", 0x87},
    {"IntlYen", 0x89},
    {"ControlLeft", 0xE0},
    {"ShiftLeft", 0xE1},
    {"AltLeft", 0xE2},
    {"MetaLeft", 0xE3},
    {"ControlRight", 0xE4},
    {"ShiftRight", 0xE5},
    {"AltRight", 0xE6},
    {"MetaRight", 0xE7},
};

/// The number behind a prefix of a code, if it is from 1 to `most`.
std::optional<int> numberBehind(std::string_view prefix, std::string_view code, int most) {
    if (!code.starts_with(prefix)) {
        return std::nullopt;
    }
    int number = 0;
    const char* const end = code.data() + code.size();
    const auto [stop, error] = std::from_chars(code.data() + prefix.size(), end, number);
    const bool sound = error == std::errc() && stop == end && number >= 1 && number <= most;
    return sound ? std::optional(number) : std::nullopt;
}

/// 0 for a code that is not known.
uint8_t placeOfCode(std::string_view code) {
    int place = 0;
    if (code.size() == 4 && code.starts_with("Key") && code[3] >= 'A' && code[3] <= 'Z') {
        place = 0x04 + code[3] - 'A';
    } else if (code == "Digit0") {
        place = 0x27;
    } else if (const auto digit = numberBehind("Digit", code, 9)) {
        place = 0x1E + *digit - 1;
    } else if (const auto function = numberBehind("F", code, 24)) {
        place = *function <= 12 ? 0x3A + *function - 1 : 0x68 + *function - 13;
    } else if (const auto pad = numberBehind("Numpad", code, 9)) {
        place = 0x59 + *pad - 1;
    } else {
        const auto* const named =
            std::find_if(std::begin(kPlaces), std::end(kPlaces),
                         [&](const NamedPlace& known) { return known.code == code; });
        place = named != std::end(kPlaces) ? named->place : 0;
    }
    return static_cast<uint8_t>(place);
}

} // namespace

std::optional<Key> keyOfCode(std::string_view code, std::string_view character) {
    const uint8_t place = placeOfCode(code);
    if (place == 0) {
        return std::nullopt;
    }
    const bool isPad = code.starts_with("Numpad");
    const char typed = character.size() == 1 ? character[0] : '\0';
    if (!isPad && typed >= 'a' && typed <= 'z') {
        return Key{static_cast<uint8_t>(typed - 'a' + 'A'), place};
    }
    if (!isPad && ((typed >= 'A' && typed <= 'Z') || (typed >= '0' && typed <= '9'))) {
        return Key{static_cast<uint8_t>(typed), place};
    }
    // With number lock the keypad types characters, without it their keys have names.
    const uint8_t number = numberAt(place, typed != '\0');
    return number != 0 ? std::optional(Key{number, place}) : std::nullopt;
}

} // namespace gpi
