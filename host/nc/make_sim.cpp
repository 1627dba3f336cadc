// Where a platform has no control but its own.
#include "nc/make_controller.h"
#include "nc/sim/sim_controller.h"
#include "report.h"

namespace gpi::nc {

std::unique_ptr<Controller> makeController(const Settings& settings) {
    if (settings.control != ControlKind::Sim) {
        report("there is no control but the simulated one");
    }
    return std::make_unique<SimController>();
}

} // namespace gpi::nc
