#include "text/transcode.h"

#include <iconv.h>

#include <bit>
#include <cerrno>

namespace gpi {
namespace {

constexpr const char* kNativeUtf16 =
    std::endian::native == std::endian::little ? "UTF-16LE" : "UTF-16BE";

/// A conversion in progress.
class Conversion {
  public:
    Conversion(const char* from, const char* to) : state_(iconv_open(to, from)) {}
    ~Conversion() {
        if (isOpen()) {
            iconv_close(state_);
        }
    }
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;

    bool isOpen() const { return state_ != iconv_t(-1); }

    /// Converts as far as the text is sound, appends that, and takes it off the text.
    ///
    /// @return whether all of it was sound
    bool advance(std::string_view& text, std::string& out) {
        char* from = const_cast<char*>(text.data()); // iconv only reads there
        size_t left = text.size();
        for (;;) {
            char piece[256];
            char* to = piece;
            size_t room = sizeof piece;
            const size_t result = iconv(state_, &from, &left, &to, &room);
            const bool full = result == size_t(-1) && errno == E2BIG;
            out.append(piece, sizeof piece - room);
            if (!full) {
                text = text.substr(text.size() - left);
                return result != size_t(-1);
            }
        }
    }

  private:
    iconv_t state_;
};

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
    while (!conversion.advance(utf8, out)) {
        const char16_t replacement = 0xFFFD;
        out.append(reinterpret_cast<const char*>(&replacement), 2);
        utf8.remove_prefix(1);
    }
    return unitsOf(out);
}

} // namespace gpi
