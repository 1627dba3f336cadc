// Stands in where the platform is built without libevdev.
#include "display/screen/input_devices.h"

namespace gpi {

std::unique_ptr<InputDevices> InputDevices::open(const std::string& /*folder*/, Input& /*input*/,
                                                 ScreenPointer& /*pointer*/) {
    return nullptr;
}

} // namespace gpi
