#include "module/services.h"

#include "guard.h"
#include "platform.h"
#include "text/transcode.h"

namespace gpi {

GModule* loadModule(const char16_t* path, uint32_t flags) {
    return guarded<GModule*>(nullptr, [&]() -> GModule* {
        const bool known = (flags & ~static_cast<uint32_t>(G_MODULE_SHARED)) == 0;
        const auto& modules = platform().modules;
        return modules != nullptr && known ? modules->load(path, flags != 0) : nullptr;
    });
}

GModule* loadModuleEx(const char16_t* path) {
    return loadModule(path, 0);
}

int32_t freeModule(GModule* module) {
    return guarded(0, [&] {
        const auto& modules = platform().modules;
        return modules != nullptr && modules->free(module) ? 1 : 0;
    });
}

GModuleFunction getModuleFunction(GModule* module, const char16_t* name) {
    return guarded<GModuleFunction>(nullptr, [&]() -> GModuleFunction {
        const auto& modules = platform().modules;
        const auto utf8 = name != nullptr ? utf8Of(name) : std::nullopt;
        return modules != nullptr && utf8 ? modules->function(module, utf8->c_str()) : nullptr;
    });
}

} // namespace gpi
