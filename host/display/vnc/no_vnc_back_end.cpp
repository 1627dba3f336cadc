// Stands in where the platform is built without libvncserver.
#include "display/vnc/vnc_back_end.h"
#include "report.h"

namespace gpi {

std::unique_ptr<BackEnd> openVncBackEnd(const Settings& /*settings*/, const Frame& /*frame*/,
                                        Input& /*input*/) {
    report("viewers cannot connect: the platform was built without libvncserver");
    return nullptr;
}

} // namespace gpi
