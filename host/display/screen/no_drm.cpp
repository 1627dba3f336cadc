// Stands in where the platform is built without libdrm.
#include "display/screen/screen_device.h"

namespace gpi {

std::unique_ptr<ScreenDevice> openDrm(const std::string& /*path*/, std::string& failure) {
    failure = "the platform was built without libdrm";
    return nullptr;
}

} // namespace gpi
