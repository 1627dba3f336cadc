#include "nc/make_controller.h"

#include "nc/sim/sim_controller.h"

namespace gpi::nc {

std::unique_ptr<Controller> makeController(const Settings& /*settings*/) {
    return std::make_unique<SimController>();
}

} // namespace gpi::nc
