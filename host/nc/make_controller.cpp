#include "nc/make_controller.h"

#include "nc/helper/helper_controller.h"
#include "nc/sim/sim_controller.h"

namespace gpi::nc {

std::unique_ptr<Controller> makeController(const Settings& settings) {
    if (settings.control == ControlKind::Sim) {
        return std::make_unique<SimController>();
    }
    return std::make_unique<HelperController>(
        settings.controlHelper.empty() ? GPI_LINUXCNC_HELPER : settings.controlHelper);
}

} // namespace gpi::nc
