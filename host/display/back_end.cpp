#include "display/back_end.h"

#include "display/headless_back_end.h"
#include "display/screen/screen_back_end.h"
#include "display/sdl_back_end.h"
#include "display/vnc/vnc_back_end.h"
#include "report.h"

namespace gpi {

std::unique_ptr<BackEnd> openBackEnd(const Settings& settings, const Frame& frame, Input& input) {
    switch (settings.display) {
    case DisplayKind::Sdl:
        return openSdlBackEnd(settings, frame, input, VideoDriver::Any);
    case DisplayKind::Memory:
        return std::make_unique<MemoryBackEnd>();
    case DisplayKind::Png:
        return std::make_unique<PngBackEnd>(settings.png);
    case DisplayKind::Vnc:
        return openVncBackEnd(settings, frame, input);
    case DisplayKind::Fbdev:
        return openFbdevBackEnd(settings, frame, input);
    case DisplayKind::Drm:
        return openDrmBackEnd(settings, frame, input);
    case DisplayKind::Automatic:
        break;
    }
    if (auto window = openSdlBackEnd(settings, frame, input, VideoDriver::DisplayServer)) {
        return window;
    }
    return std::make_unique<PngBackEnd>(settings.png);
}

} // namespace gpi
