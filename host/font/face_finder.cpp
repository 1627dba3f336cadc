// By fontconfig.
#include "font/face_finder.h"

#include <fontconfig/fontconfig.h>

#include <set>

namespace gpi {
namespace {

struct DestroyPattern {
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};

using Pattern = std::unique_ptr<FcPattern, DestroyPattern>;

const FcChar8* chars(const std::string& text) {
    return reinterpret_cast<const FcChar8*>(text.c_str());
}

/// Whether a family, in any of the languages of its name, is the one that was asked for.
bool isOfFamily(const FcPattern* face, const std::string& family) {
    FcChar8* name = nullptr;
    for (int i = 0; FcPatternGetString(face, FC_FAMILY, i, &name) == FcResultMatch; ++i) {
        if (FcStrCmpIgnoreCase(name, chars(family)) == 0) {
            return true;
        }
    }
    return false;
}

} // namespace

struct FaceFinder::Installed {
    FcConfig* config = FcInitLoadConfigAndFonts();

    Installed() = default;
    ~Installed() { FcConfigDestroy(config); }
    Installed(const Installed&) = delete;
    Installed& operator=(const Installed&) = delete;
};

FaceFinder::FaceFinder() = default;
FaceFinder::~FaceFinder() = default;

const FaceFinder::Installed& FaceFinder::installed() {
    if (installed_ == nullptr) {
        installed_ = std::make_unique<Installed>();
    }
    return *installed_;
}

/// Fontconfig finds some face for every name: one of another family counts as none.
std::optional<FaceFile> FaceFinder::find(const std::string& family) {
    FcConfig* const config = installed().config;
    const Pattern wanted(FcPatternCreate());
    FcPatternAddString(wanted.get(), FC_FAMILY, chars(family));
    FcConfigSubstitute(config, wanted.get(), FcMatchPattern);
    FcDefaultSubstitute(wanted.get());
    FcResult result = FcResultNoMatch;
    const Pattern found(FcFontMatch(config, wanted.get(), &result));
    FcChar8* path = nullptr;
    int index = 0;
    if (found == nullptr || !isOfFamily(found.get(), family) ||
        FcPatternGetString(found.get(), FC_FILE, 0, &path) != FcResultMatch) {
        return std::nullopt;
    }
    FcPatternGetInteger(found.get(), FC_INDEX, 0, &index);
    return FaceFile{reinterpret_cast<const char*>(path), index};
}

int32_t FaceFinder::count() {
    std::set<std::string> families;
    const FcFontSet* const fonts = FcConfigGetFonts(installed().config, FcSetSystem);
    for (int i = 0; fonts != nullptr && i < fonts->nfont; ++i) {
        FcChar8* name = nullptr;
        if (FcPatternGetString(fonts->fonts[i], FC_FAMILY, 0, &name) == FcResultMatch) {
            families.insert(reinterpret_cast<const char*>(name));
        }
    }
    return static_cast<int32_t>(families.size());
}

} // namespace gpi
