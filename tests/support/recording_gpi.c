#include "recording_gpi.h"

static GPIEntryPoints program;

void connectProgram(const GPIEntryPoints* entryPoints) {
    program = *entryPoints;
}

GPIFunction GPIGetService(int32_t number) {
    return program.getService(number);
}

int32_t GPIGetFontCount(void) {
    return program.getFontCount();
}

void GPIShutdownEvents(void) {
    program.shutdownEvents();
}
