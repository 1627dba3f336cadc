// The C library's iconv with an owner.
#pragma once

#include <iconv.h>

#include <bit>
#include <cerrno>
#include <string>
#include <string_view>

namespace gpi {

inline constexpr const char* kNativeUtf16 =
    std::endian::native == std::endian::little ? "UTF-16LE" : "UTF-16BE";

/// A conversion in progress.
class Conversion {
  public:
    /// Names of encodings as iconv knows them.
    Conversion(const char* from, const char* to) : state_(iconv_open(to, from)) {}
    ~Conversion() {
        if (isOpen()) {
            iconv_close(state_);
        }
    }
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;

    // NOLINTNEXTLINE(performance-no-int-to-ptr): what stands for none
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

} // namespace gpi
