#include "display/back_end.h"

#include "display/canvas/canvas_back_end.h"
#include "display/headless_back_end.h"
#include "report.h"

namespace gpi {

std::unique_ptr<BackEnd> openBackEnd(const Settings& settings, const Frame& frame, Input& input) {
    switch (settings.display) {
    case DisplayKind::Automatic:
        return std::make_unique<CanvasBackEnd>(frame, input);
    case DisplayKind::Memory:
        return std::make_unique<MemoryBackEnd>();
    case DisplayKind::Png:
        return std::make_unique<PngBackEnd>(settings.png);
    default:
        report("a browser has no such display");
        return nullptr;
    }
}

} // namespace gpi
