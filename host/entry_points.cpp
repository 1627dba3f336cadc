// The functions that the shared library exports by name.
#include "font/services.h"
#include "guard.h"
#include "platform.h"
#include "service_list.h"

#include <gpi/host.h>

GPIFunction GPIGetService(int32_t number) {
    return gpi::serviceOf(number);
}

int32_t GPIGetFontCount(void) {
    return gpi::fontCount();
}

void GPIShutdownEvents(void) {
    gpi::guarded(0, [] {
        gpi::platform().eventSignal.shutDown();
        gpi::platform().eventLock.shutDown();
        return 0;
    });
}

void GPITranslateMessage(GMessage* /*message*/) {
    // Messages come with nothing left to translate.
}

void GPIDispatchMessage(GMessage* message) {
    gpi::guarded(0, [&] {
        if (message != nullptr && message->number == G_MESSAGE_PAINT && gpi::screen() != nullptr) {
            gpi::screen()->display.repaint();
        }
        return 0;
    });
}

int32_t GPIHostWaitForClose(void) {
    return gpi::guarded(0, [] {
        return gpi::screen() != nullptr && gpi::screen()->display.waitForClose() ? 1 : 0;
    });
}

int32_t GPIHostHasWindow(void) {
    return gpi::guarded(
        0, [] { return gpi::screen() != nullptr && gpi::screen()->display.hasWindow() ? 1 : 0; });
}

int32_t GPIHostEndFrame(void) {
    return gpi::guarded(
        0, [] { return gpi::screen() != nullptr && gpi::screen()->display.endFrame() ? 1 : 0; });
}

uint32_t GPIHostFrameChecksum(void) {
    return gpi::guarded(0U, [] {
        return gpi::screen() != nullptr ? gpi::checksum(gpi::screen()->display.frame()) : 0U;
    });
}

int32_t GPIHostWritePng(const char* path) {
    return gpi::guarded(0, [&] {
        const bool possible = path != nullptr && gpi::screen() != nullptr;
        return possible && gpi::writePng(gpi::screen()->display.frame(), path) ? 1 : 0;
    });
}
