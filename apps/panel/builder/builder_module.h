// The machine builder's module.
#pragma once

#include "builder/panel_screen.h"

namespace panel {

/// Loads the module "builder" if there is one. The platform must run.
class BuilderModule {
  public:
    BuilderModule();
    ~BuilderModule();
    BuilderModule(const BuilderModule&) = delete;
    BuilderModule& operator=(const BuilderModule&) = delete;

    /// Its screen; null where there is no module, or one for another panel.
    const PanelScreen* screen() const { return screen_; }

  private:
    GModule* module_;
    const PanelScreen* screen_ = nullptr;
};

} // namespace panel
