#include "keyboard/key_names.h"

#include <gpi/keys.h>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <iterator>

namespace panel {
namespace {

struct NamedKey {
    std::string_view name;
    int32_t key;
};

constexpr NamedKey kNamedKeys[] = {
    {"Backspace", GPI_KEY_BACKSPACE},
    {"Delete", GPI_KEY_DELETE},
    {"Down", GPI_KEY_DOWN},
    {"End", GPI_KEY_END},
    {"Enter", GPI_KEY_ENTER},
    {"Esc", GPI_KEY_ESCAPE},
    {"Help", GPI_KEY_HELP},
    {"Home", GPI_KEY_HOME},
    {"Left", GPI_KEY_LEFT},
    {"PadAdd", GPI_KEY_PAD_ADD},
    {"PadSubtract", GPI_KEY_PAD_SUBTRACT},
    {"PageDown", GPI_KEY_PAGE_DOWN},
    {"PageUp", GPI_KEY_PAGE_UP},
    {"Pause", GPI_KEY_PAUSE},
    {"Right", GPI_KEY_RIGHT},
    {"Shift", GPI_KEY_SHIFT},
    {"Tab", GPI_KEY_TAB},
    {"Up", GPI_KEY_UP},
};

struct TypedKey {
    char character;
    Stroke stroke;
};

constexpr TypedKey kTypedKeys[] = {
    {' ', {GPI_KEY_SPACE, false}},
    {'-', {GPI_KEY_MINUS, false}},
    {'-', {GPI_KEY_PAD_SUBTRACT, false}},
    {'.', {GPI_KEY_PERIOD, false}},
    {'.', {GPI_KEY_PAD_DECIMAL, false}},
    {',', {GPI_KEY_COMMA, false}},
    {'/', {GPI_KEY_SLASH, false}},
    {'/', {GPI_KEY_PAD_DIVIDE, false}},
    {'=', {GPI_KEY_EQUALS, false}},
    {'+', {GPI_KEY_EQUALS, true}},
    {'+', {GPI_KEY_PAD_ADD, false}},
    {'*', {'8', true}},
    {'*', {GPI_KEY_PAD_MULTIPLY, false}},
    {'#', {'3', true}},
    {'(', {'9', true}},
    {')', {'0', true}},
    {'[', {GPI_KEY_LEFT_BRACKET, false}},
    {']', {GPI_KEY_RIGHT_BRACKET, false}},
};

bool isPlain(int32_t key) {
    return (key >= 'A' && key <= 'Z') || (key >= '0' && key <= '9');
}

} // namespace

std::optional<int32_t> keyNamed(std::string_view name) {
    if (name.size() == 1) {
        const auto stroke = strokeOf(name.front());
        return stroke ? std::optional(stroke->key) : std::nullopt;
    }
    int32_t number = 0;
    if (name.front() == 'F' &&
        std::from_chars(name.data() + 1, name.data() + name.size(), number).ec == std::errc()) {
        return GPI_KEY_F1 + number - 1;
    }
    const auto* const found =
        std::find_if(std::begin(kNamedKeys), std::end(kNamedKeys),
                     [name](const NamedKey& key) { return key.name == name; });
    return found != std::end(kNamedKeys) ? std::optional(found->key) : std::nullopt;
}

std::optional<Stroke> strokeOf(char character) {
    const int upper = std::toupper(static_cast<unsigned char>(character));
    if (isPlain(upper)) {
        return Stroke{upper, false};
    }
    const auto* const found =
        std::find_if(std::begin(kTypedKeys), std::end(kTypedKeys),
                     [character](const TypedKey& typed) { return typed.character == character; });
    return found != std::end(kTypedKeys) ? std::optional(found->stroke) : std::nullopt;
}

char characterOf(const Stroke& stroke) {
    const auto* const found = std::find_if(
        std::begin(kTypedKeys), std::end(kTypedKeys), [&stroke](const TypedKey& typed) {
            return typed.stroke.key == stroke.key && typed.stroke.shifted == stroke.shifted;
        });
    if (found != std::end(kTypedKeys)) {
        return found->character;
    }
    if (stroke.key >= GPI_KEY_PAD_0 && stroke.key <= GPI_KEY_PAD_9) {
        return static_cast<char>('0' + stroke.key - GPI_KEY_PAD_0);
    }
    const bool letter = stroke.key >= 'A' && stroke.key <= 'Z';
    const bool digit = stroke.key >= '0' && stroke.key <= '9' && !stroke.shifted;
    return letter || digit ? static_cast<char>(stroke.key) : '\0';
}

} // namespace panel
