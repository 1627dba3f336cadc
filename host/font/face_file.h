// Where a face lies.
#pragma once

#include <compare>
#include <string>

namespace gpi {

/// A font file and, for a collection, which of its faces.
struct FaceFile {
    std::string path;
    int index = 0;

    auto operator<=>(const FaceFile&) const = default;
};

/// From "PATH" or "PATH#INDEX".
FaceFile faceFileOf(const std::string& text);

} // namespace gpi
