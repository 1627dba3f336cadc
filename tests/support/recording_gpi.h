/* The platform library of the tests on Windows: a GPI.dll that records nothing itself. */
#pragma once

#include <gpi/gpi.h>

/** Who answers. */
typedef struct GPIEntryPoints {
    GPIFunction (*getService)(int32_t number);
    int32_t (*getFontCount)(void);
    void (*shutdownEvents)(void);
} GPIEntryPoints;

QUARLO_BEGIN

/** Says that a program answers. */
GPI_API void connectProgram(const GPIEntryPoints* program);

QUARLO_END
