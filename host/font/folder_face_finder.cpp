// By looking into the font files of one folder.
#include "font/face_finder.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <strings.h>

#include <filesystem>
#include <map>

namespace gpi {
namespace {

constexpr const char* kFolder = "/usr/share/fonts";

struct IgnoringCase {
    bool operator()(const std::string& a, const std::string& b) const {
        return strcasecmp(a.c_str(), b.c_str()) < 0;
    }
};

using Families = std::map<std::string, FaceFile, IgnoringCase>;

/// Enters the upright, regular faces of a file.
void addFacesOf(const std::string& path, FT_Library library, Families& families) {
    FT_Long count = 1;
    for (FT_Long index = 0; index < count; ++index) {
        FT_Face face = nullptr;
        if (FT_New_Face(library, path.c_str(), index, &face) != 0) {
            return; // no font
        }
        count = face->num_faces;
        if (face->family_name != nullptr && face->style_flags == 0) {
            families.try_emplace(face->family_name, FaceFile{path, static_cast<int>(index)});
        }
        FT_Done_Face(face);
    }
}

} // namespace

struct FaceFinder::Installed {
    Families families;

    Installed() {
        FT_Library library = nullptr;
        if (FT_Init_FreeType(&library) != 0) {
            return;
        }
        std::error_code none; // where there is no folder, there are no fonts
        for (const auto& entry : std::filesystem::recursive_directory_iterator(kFolder, none)) {
            if (entry.is_regular_file()) {
                addFacesOf(entry.path(), library, families);
            }
        }
        FT_Done_FreeType(library);
    }
};

FaceFinder::FaceFinder() = default;
FaceFinder::~FaceFinder() = default;

const FaceFinder::Installed& FaceFinder::installed() {
    if (installed_ == nullptr) {
        installed_ = std::make_unique<Installed>();
    }
    return *installed_;
}

std::optional<FaceFile> FaceFinder::find(const std::string& family) {
    const auto& families = installed().families;
    const auto found = families.find(family);
    return found != families.end() ? std::optional(found->second) : std::nullopt;
}

int32_t FaceFinder::count() {
    return static_cast<int32_t>(installed().families.size());
}

} // namespace gpi
