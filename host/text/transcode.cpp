#include "text/transcode.h"

#include "text/conversion.h"

namespace gpi {
namespace {

std::u16string unitsOf(const std::string& bytes) {
    std::u16string units(bytes.size() / 2, u'\0');
    bytes.copy(reinterpret_cast<char*>(units.data()), units.size() * 2);
    return units;
}

} // namespace

std::optional<std::string> transcode(std::string_view text, const char* from, const char* to) {
    Conversion conversion(from, to);
    std::string out;
    if (!conversion.isOpen() || !conversion.advance(text, out)) {
        return std::nullopt;
    }
    return out;
}

std::optional<std::string> utf8Of(std::u16string_view text) {
    const std::string_view bytes(reinterpret_cast<const char*>(text.data()), text.size() * 2);
    return transcode(bytes, kNativeUtf16, "UTF-8");
}

std::u16string utf16Of(std::string_view utf8) {
    Conversion conversion("UTF-8", kNativeUtf16);
    std::string out;
    if (!conversion.isOpen()) {
        return {}; // small systems may lack the C library's conversions
    }
    while (!conversion.advance(utf8, out)) {
        const char16_t replacement = 0xFFFD;
        out.append(reinterpret_cast<const char*>(&replacement), 2);
        utf8.remove_prefix(1);
    }
    return unitsOf(out);
}

} // namespace gpi
