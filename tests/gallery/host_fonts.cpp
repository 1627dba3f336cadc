#include "host_fonts.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

namespace quarlo::test {

HostFonts::HostFonts(RecordingPlatform& platform)
    : library_(dlopen(GALLERY_PLATFORM, RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE)) {
    if (library_ == nullptr) {
        ADD_FAILURE() << dlerror();
        return;
    }
    getService_ = reinterpret_cast<decltype(getService_)>(dlsym(library_, "GPIGetService"));
    service<1>()(0);
    serve<13, 14, 15, 16, 17, 18, 19, 20, 21, 25, 207>(platform);
    platform.remove({44});
}

HostFonts::~HostFonts() {
    if (library_ != nullptr) {
        service<2>()();
        dlclose(library_);
    }
}

} // namespace quarlo::test
