/**
 * @file platform.h
 * Binding, starting and stopping the platform, and the error cells.
 *
 * A program calls GetGPIFunction(), then GDInitPlatform(), and at its end GDQuitPlatform(). Until
 * the services are bound, only those functions work that bind their service on demand.
 *
 * Everything the library keeps for the whole process is meant for one thread, the event queue
 * apart (event.h).
 */
#ifndef QUARLO_PLATFORM_H
#define QUARLO_PLATFORM_H

#include <quarlo/types.h>

QUARLO_BEGIN

/**
 * Binds the platform's services. A service that the platform lacks stays unbound. Calling it again
 * binds them anew.
 *
 * Two services, 65 (GIOGets()) and 66 (GMMemoryRealloc()), are left to be bound on demand.
 *
 * @return the low 32 bits of the address of service 207; not a status
 */
QUARLO_API int32_t GetGPIFunction(void);

/**
 * Starts the platform: service 1, which it must have, then service 12 where it has that, also when
 * service 1 failed.
 *
 * @param arg handed to both services; the platform defines it (gpi/gpi.h)
 * @return the result of service 12 if there is one, else that of service 1
 */
QUARLO_API GWord GDInitPlatform(GWord arg);

/**
 * Stops the platform: service 22 where it has that, then service 2, which it must have. The
 * services stay bound.
 *
 * @return the result of service 2
 */
QUARLO_API GWord GDQuitPlatform(void);

/** Stores the low 16 bits of a code in the process-wide error cell. */
QUARLO_API void GDSetGlobalError(uint32_t code);

/** The process-wide error cell, 0 to 65535: 0 at load, and never written by the library itself. */
QUARLO_API uint32_t GDQueryGlobalError(void);

/**
 * The error cell of a draw handle, never written by the library itself.
 *
 * @param handle the handle; null reads the process-wide cell
 */
QUARLO_API uint32_t GDQueryError(const GDrawHandle* handle);

QUARLO_END

#endif
