#include "module/module_store.h"

#include <dlfcn.h>

namespace gpi {

void ModuleStore::Unload::operator()(void* object) const {
    dlclose(object);
}

std::filesystem::path ModuleStore::locate(const char16_t* path) const {
    std::filesystem::path file = root_.resolve(path);
    if (!std::filesystem::exists(file)) {
        file += ".so";
    }
    return file;
}

GModule* ModuleStore::load(const char16_t* path, bool shared) {
    const std::string file = locate(path).string();
    const std::lock_guard lock(mutex_);
    if (const auto known = byPath_.find(file); known != byPath_.end()) {
        ++loaded_.find(known->second)->count;
        return known->second;
    }
    Object object(dlopen(file.c_str(), RTLD_NOW | (shared ? RTLD_GLOBAL : RTLD_LOCAL)));
    if (object == nullptr) {
        return nullptr;
    }
    GModule* const module =
        loaded_.add(std::make_shared<Loaded>(Loaded{std::move(object), file, 1}));
    if (module != nullptr) {
        byPath_[file] = module;
    }
    return module;
}

bool ModuleStore::free(GModule* module) {
    const std::lock_guard lock(mutex_);
    const auto loaded = loaded_.find(module);
    if (loaded == nullptr) {
        return false;
    }
    if (--loaded->count == 0) {
        byPath_.erase(loaded->path);
        loaded_.remove(module);
    }
    return true;
}

GModuleFunction ModuleStore::function(GModule* module, const char* name) const {
    const auto loaded = loaded_.find(module);
    return loaded != nullptr ? reinterpret_cast<GModuleFunction>(dlsym(loaded->object.get(), name))
                             : nullptr;
}

} // namespace gpi
