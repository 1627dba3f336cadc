// Modules: services 45 to 47 and 128.
#pragma once

#include <quarlo/module.h>

namespace gpi {

GModule* loadModule(const char16_t* path, uint32_t flags);
GModule* loadModuleEx(const char16_t* path);
int32_t freeModule(GModule* module);
GModuleFunction getModuleFunction(GModule* module, const char16_t* name);

} // namespace gpi
