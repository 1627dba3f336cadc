// Where a platform cannot load modules.
#include "module/module_store.h"

namespace gpi {

void ModuleStore::Unload::operator()(void* /*object*/) const {}

GModule* ModuleStore::load(const char16_t* /*path*/, bool /*shared*/) {
    return nullptr;
}

bool ModuleStore::free(GModule* /*module*/) {
    return false;
}

GModuleFunction ModuleStore::function(GModule* /*module*/, const char* /*name*/) const {
    return nullptr;
}

} // namespace gpi
