#include "support/started_platform.h"

namespace gpi::test {

Environment::Values settings(const Environment::Values& changes) {
    Environment::Values values = {{"QUARLO_CONFIG", std::nullopt},
                                  {"XDG_CONFIG_HOME", "/nonexistent"},
                                  {"QUARLO_DISPLAY", "memory"}};
    for (const char* name : {"QUARLO_WIDTH",
                             "QUARLO_HEIGHT",
                             "QUARLO_FORMAT",
                             "QUARLO_SCALE",
                             "QUARLO_TITLE",
                             "QUARLO_NC",
                             "QUARLO_NC_HELPER",
                             "QUARLO_NET_CA_FILE",
                             "QUARLO_NET_CONNECT_TIMEOUT",
                             "QUARLO_NET_IDLE_TIMEOUT",
                             "QUARLO_NET_PROXY",
                             "QUARLO_NET_REDIRECTS",
                             "QUARLO_PNG",
                             "QUARLO_VNC_ADDRESS",
                             "QUARLO_VNC_PORT",
                             "QUARLO_VNC_PASSWORD",
                             "QUARLO_VNC_VIEW_ONLY",
                             "QUARLO_SCREEN",
                             "QUARLO_SCREEN_INPUT",
                             "QUARLO_MEMORY_LIMIT",
                             "QUARLO_PANEL_FONT",
                             "QUARLO_JAPANESE_FONT",
                             "QUARLO_CHINESE_FONT",
                             "QUARLO_GLYPH_CACHE",
                             "QUARLO_WHOLE_STRINGS",
                             "QUARLO_CODE_PAGE"}) {
        values[name] = std::nullopt;
    }
    for (const auto& [name, value] : changes) {
        values[name] = value;
    }
    return values;
}

StartedPlatform::StartedPlatform(const Environment::Values& changes)
    : environment_(settings(changes)) {
    service<GPIStart>(GPI_SERVICE_START)(0);
    started_ = service<GPIStartSecond>(GPI_SERVICE_START_SECOND)(0);
}

StartedPlatform::~StartedPlatform() {
    if (running_) {
        stop();
    }
}

GWord StartedPlatform::stop() {
    running_ = false;
    service<GPIStopFirst>(GPI_SERVICE_STOP_FIRST)();
    return service<GPIStop>(GPI_SERVICE_STOP)();
}

GVram* StartedPlatform::surface(int32_t number) {
    return service<GPIGetSurface>(GPI_SERVICE_GET_SURFACE)(nullptr, number);
}

uint32_t StartedPlatform::pixel(const GVram& surface, int x, int y) {
    const int bytes = surface.bitsPerPixel / 8;
    const uint8_t* const at = surface.pixels + y * surface.bytesPerLine + x * bytes;
    uint32_t value = 0;
    for (int index = bytes - 1; index >= 0; --index) {
        value = value << 8 | at[index];
    }
    return value;
}

int32_t StartedPlatform::flushAll() {
    return service<GPIFlushForce>(GPI_SERVICE_FLUSH_FORCE)(nullptr, 0, 0, INT16_MAX, INT16_MAX);
}

} // namespace gpi::test
