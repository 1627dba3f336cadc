#include "font/built_in_faces.h"

#include <filesystem>
#include <initializer_list>

namespace gpi {
namespace {

constexpr const char* kVlGothic = "/usr/share/fonts/truetype/vlgothic/VL-Gothic-Regular.ttf";
constexpr const char* kIpaGothic = "/usr/share/fonts/opentype/ipafont-gothic/ipag.ttf";
constexpr const char* kZenHeiMono = "/usr/share/fonts/truetype/wqy/wqy-zenhei.ttc#1";
constexpr const char* kMicroHeiMono = "/usr/share/fonts/truetype/wqy/wqy-microhei.ttc#1";
constexpr const char* kUnifont = "/usr/share/fonts/X11/misc/unifont.pcf.gz";
constexpr const char* kDejaVu = "/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf";

FaceFile choose(const std::string& configured, std::initializer_list<const char*> known) {
    if (!configured.empty()) {
        return faceFileOf(configured);
    }
    for (const char* name : known) {
        FaceFile file = faceFileOf(name);
        std::error_code error;
        if (std::filesystem::exists(file.path, error)) {
            return file;
        }
    }
    return {};
}

} // namespace

BuiltInFaces chooseBuiltInFaces(const Settings& settings) {
    return {choose(settings.panelFont, {kVlGothic, kIpaGothic, kUnifont, kDejaVu}),
            choose(settings.japaneseFont, {kVlGothic, kIpaGothic, kUnifont}),
            choose(settings.chineseFont, {kZenHeiMono, kMicroHeiMono, kUnifont})};
}

} // namespace gpi
