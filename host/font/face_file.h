// Where a face lies.
#pragma once

#include <string>
#include <tuple>

namespace gpi {

/// A font file and, for a collection, which of its faces.
struct FaceFile {
    std::string path;
    int index = 0;

    friend bool operator==(const FaceFile&, const FaceFile&) = default;
    friend bool operator<(const FaceFile& a, const FaceFile& b) {
        return std::tie(a.path, a.index) < std::tie(b.path, b.index);
    }
};

/// From "PATH" or "PATH#INDEX".
FaceFile faceFileOf(const std::string& text);

} // namespace gpi
