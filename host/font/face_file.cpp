#include "font/face_file.h"

#include <charconv>

namespace gpi {

FaceFile faceFileOf(const std::string& text) {
    const size_t mark = text.rfind('#');
    if (mark != std::string::npos) {
        int index = 0;
        const char* const end = text.data() + text.size();
        const auto [stop, error] = std::from_chars(text.data() + mark + 1, end, index);
        if (error == std::errc() && stop == end) {
            return {text.substr(0, mark), index};
        }
    }
    return {text, 0};
}

} // namespace gpi
