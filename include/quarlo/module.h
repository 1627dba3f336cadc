/**
 * @file module.h
 * Modules: code that a program loads while it runs.
 *
 * Every function forwards to one service, bound on demand, and returns 0 or null when the platform
 * lacks it.
 */
#ifndef QUARLO_MODULE_H
#define QUARLO_MODULE_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** How a module is loaded; bits. */
enum {
    G_MODULE_SHARED = 1 /**< modules loaded later may use its functions by name */
};

/** A loaded module. */
typedef struct GModule GModule;

/** A function of a module; convert it to its own type before calling it. */
typedef void (*GModuleFunction)(void);

/**
 * Forwards to service 45: loads a module. One that is loaded already is counted once more.
 *
 * @param path below the platform's module root, by the path rules of file.h; the system's own
 *     extension may be left out
 * @param flags #G_MODULE_SHARED or 0
 * @return the module, to be freed; null when it cannot be loaded
 */
QUARLO_API GModule* GDFCLoadModule(const char16_t* path, uint32_t flags);

/** Forwards to service 128: GDFCLoadModule() with flags 0. */
QUARLO_API GModule* GDFCLoadModuleEx(const char16_t* path);

/**
 * Forwards to service 46: frees a module, which stays until it was freed as often as loaded.
 *
 * @return 1; 0 when it is no loaded module
 */
QUARLO_API int32_t GDFCFreeModule(GModule* module);

/**
 * Forwards to service 47: finds a function of a module.
 *
 * @param name its exported name
 * @return the function; null when there is none
 */
QUARLO_API GModuleFunction GDFCGetModuleFuncAddress(GModule* module, const char16_t* name);

QUARLO_END

#endif
