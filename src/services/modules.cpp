// Loadable modules.
#include "platform/service_table.h"

#include <quarlo/module.h>

using quarlo::ForwardTo;

GModule* GDFCLoadModule(const char16_t* path, uint32_t flags) {
    return ForwardTo<GDFCLoadModule, 45>::lazy(path, flags);
}

GModule* GDFCLoadModuleEx(const char16_t* path) {
    return ForwardTo<GDFCLoadModuleEx, 128>::lazy(path);
}

int32_t GDFCFreeModule(GModule* module) {
    return ForwardTo<GDFCFreeModule, 46>::lazy(module);
}

GModuleFunction GDFCGetModuleFuncAddress(GModule* module, const char16_t* name) {
    return ForwardTo<GDFCGetModuleFuncAddress, 47>::lazy(module, name);
}
