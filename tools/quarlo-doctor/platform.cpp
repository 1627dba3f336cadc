#include "platform.h"

#include <dlfcn.h>

namespace doctor {
namespace {

/// What every platform library has to export.
constexpr const char* kEntryPoints[] = {"GPIGetService", "GPIGetFontCount", "GPIShutdownEvents",
                                        "GPITranslateMessage", "GPIDispatchMessage"};

} // namespace

Platform::Platform(const std::string& path) {
    void* const library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        error_ = dlerror();
        return;
    }
    for (const char* const name : kEntryPoints) {
        if (dlsym(library, name) == nullptr) {
            error_ = path + " has no entry point " + name;
            return;
        }
    }
    getService_ = reinterpret_cast<decltype(getService_)>(dlsym(library, "GPIGetService"));
}

} // namespace doctor
