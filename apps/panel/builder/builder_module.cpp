#include "builder/builder_module.h"

namespace panel {

BuilderModule::BuilderModule() : module_(GDFCLoadModule(u"builder", 0)) {
    if (module_ == nullptr) {
        return;
    }
    const GModuleFunction function = GDFCGetModuleFuncAddress(module_, u"panelScreen");
    if (function == nullptr) {
        return;
    }
    const PanelScreen* const screen = reinterpret_cast<PanelScreenFunction>(function)();
    if (screen != nullptr && screen->version == PANEL_SCREEN_VERSION) {
        screen_ = screen;
    }
}

BuilderModule::~BuilderModule() {
    if (module_ != nullptr) {
        GDFCFreeModule(module_);
    }
}

} // namespace panel
