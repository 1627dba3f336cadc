/**
 * @file services.h
 * Signatures and contracts of the services that the library itself lives on: start and stop,
 * displays, fonts and text, events and time, memory. forwards.h has the others.
 *
 * "As X()" means: the service has the signature and the contract of that function, which hands its
 * arguments on unchanged and in order. Without a service marked "needed" nothing starts, nothing is
 * drawn or nothing shows; one marked "expected" is called by its function without asking whether it
 * is there. No service keeps a pointer that it is handed.
 */
#ifndef GPI_SERVICES_H
#define GPI_SERVICES_H

#include <gpi/gpi.h>
#include <quarlo/quarlo.h>

QUARLO_BEGIN

/* Start and stop. */

/**
 * Service 1, needed: starts the platform.
 *
 * @param argument 0, or the address of a NUL-terminated UTF-8 path: the platform's configuration
 * @return 1; 0 when it cannot start
 */
typedef GWord (*GPIStart)(GWord argument);

/** Service 2, expected: stops the platform and gives everything back. @return 1 */
typedef GWord (*GPIStop)(void);

/**
 * Service 12, optional: the second step of the start, also after a first one that failed. Its
 * result becomes that of GDInitPlatform(), so it must report a failed first step too.
 */
typedef GWord (*GPIStartSecond)(GWord argument);

/** Service 22, optional: called before service 2; its result is ignored. */
typedef GWord (*GPIStopFirst)(void);

/* Displays. */

/**
 * Service 3, needed: hands out a device surface.
 *
 * The record stays the platform's. Its `id` is the number, never -1, and its `drawable` points to a
 * rectangle that lives as long, at first the whole surface; the library changes that rectangle and
 * nothing else. Without pixel memory (`pixels` null) all drawing goes through the services below.
 *
 * @param handle the draw handle that asks
 * @param number 0 for the display, other numbers for further surfaces
 * @return the surface; null when there is none of that number
 */
typedef GVram* (*GPIGetSurface)(GDrawHandle* handle, int32_t number);

/**
 * Service 4: takes a device surface back, once for each time that it was handed out. Without it
 * nothing is told to the platform.
 */
typedef int32_t (*GPIReleaseSurface)(GDrawHandle* handle, GVram* surface);

/**
 * Service 5, needed: sets a pixel of a device surface (GPixelOps::setPixel). Coordinates are
 * clipped already, here and in the six services that follow. Without it whatever is drawn pixel by
 * pixel is not drawn.
 */
typedef int32_t (*GPISetPixel)(GDrawHandle* handle, GVram* surface, int16_t x, int16_t y,
                               uint32_t pixel, int32_t mode);

/**
 * Service 6, needed: draws a run of pixels (GPixelOps::span); none for a count below 1. Without
 * it whatever is drawn by runs is not drawn.
 */
typedef int32_t (*GPISpan)(GDrawHandle* handle, GVram* surface, int16_t x, int16_t y,
                           uint32_t pixel, int32_t mode, int16_t count);

/**
 * Service 7, optional: draws the pixel after the last one that service 5 or 6 drew, in its colour
 * (GPixelOps::nextPixel).
 */
typedef int32_t (*GPINextPixel)(void);

/**
 * Service 43, optional: plots a glyph pixel by coverage (GPixelOps::coveragePixel). Without it
 * glyph pixels of any coverage are drawn solid by service 5.
 */
typedef int32_t (*GPICoveragePixel)(GDrawHandle* handle, GVram* surface, int16_t x, int16_t y,
                                    uint32_t pixel, int32_t mode, int32_t level);

/**
 * Service 67, optional: fills the rectangle of GDDrawRect() (GPixelOps::drawRect). Without it
 * service 68 does.
 */
typedef int32_t (*GPIDrawRect)(GDrawHandle* handle, GVram* surface, const GRect* rect,
                               uint32_t pixel, int32_t mode);

/** Service 68, optional: fills a rectangle (GPixelOps::fillRect). Without it service 6 does. */
typedef int32_t (*GPIFillRect)(GDrawHandle* handle, GVram* surface, const GRect* rect,
                               uint32_t pixel, int32_t mode);

/**
 * Service 70, optional: fills a rectangle with a pattern (GPixelOps::patternRect). Without it
 * service 5 does.
 */
typedef int32_t (*GPIPatternRect)(GDrawHandle* handle, GVram* surface, const GRect* rect,
                                  uint32_t fore, uint32_t back, int32_t mode,
                                  const uint8_t pattern[8]);

/**
 * Service 69, optional: tells of a pattern that is about to be filled with, so that a brush can be
 * made ready. Also called for memory surfaces. Its result is ignored.
 *
 * @param fore pixel value of set bits
 * @param back pixel value of clear bits
 */
typedef int32_t (*GPIFillPatternNotice)(GDrawHandle* handle, GVram* surface, uint32_t fore,
                                        uint32_t back, const uint8_t pattern[8]);

/**
 * Service 8: copies pixels to device surface 0, from it or from any other surface, converting where
 * the formats differ. Rectangles are clipped already, and may overlap. Without it GDBitBlt() copies
 * nothing, not even between memory surfaces. Its result is ignored.
 *
 * @param mode drawing mode, unchecked: a wild one copies nothing
 */
typedef int32_t (*GPIBlockTransfer)(GDrawHandle* handle, const GVram* source, int16_t sourceX,
                                    int16_t sourceY, int16_t width, int16_t height,
                                    GVram* destination, int16_t destinationX, int16_t destinationY,
                                    int32_t mode);

/**
 * Service 9, needed: shows a rectangle of the display. It may be put off until the next one.
 *
 * @param left column of the surface; the rectangle lies inside it and is not empty
 * @return 1 shown, 0 not
 */
typedef int32_t (*GPIFlush)(GDrawHandle* handle, int16_t left, int16_t top, int16_t width,
                            int16_t height);

/** Service 58, expected: as service 9, at once. */
typedef int32_t (*GPIFlushForce)(GDrawHandle* handle, int16_t left, int16_t top, int16_t width,
                                 int16_t height);

/** Service 10, expected: as GDSetPalette(). @return 1; 0 without such entries or a palette */
typedef GWord (*GPISetPalette)(GDrawHandle* handle, int32_t first, int32_t count,
                               const uint32_t* colors);

/** Service 11, expected: as GDGetPalette(). @return 1; 0 without such entries or a palette */
typedef GWord (*GPIGetPalette)(GDrawHandle* handle, int32_t first, int32_t count, uint32_t* colors);

/** Service 55, expected: as GDSetZoomScale(). */
typedef GWord (*GPISetZoomScale)(GDrawHandle* handle, int32_t x, int32_t y);

/** Service 56, expected: as GDSetScrollPos(). */
typedef GWord (*GPISetScrollPos)(GDrawHandle* handle, int32_t x, int32_t y);

/** Service 59, optional: as GDSetDrawableRegion(); neither argument is null. */
typedef int32_t (*GPISetDrawableRegion)(GDrawHandle* handle, const GRect* region);

/** Service 60, optional: as GDRemoveDrawableRegion(); neither argument is null. */
typedef int32_t (*GPIRemoveDrawableRegion)(GDrawHandle* handle, const GRect* region);

/**
 * Service 119, optional: as GDChangeVirtualVram(): chooses what the display shows.
 *
 * @param number of the device surface to show
 * @param reserved 0
 * @return 1; 0 when there is none of that number
 */
typedef GWord (*GPIChangeVirtualSurface)(GWord number, GWord reserved);

/* Fonts and text. Without a font service its function returns 0; without service 20 no text is
   drawn and all of it measures 0. */

/** Service 13: as GFLoadFont(). */
typedef GFontRecord* (*GPILoadFont)(const char16_t* face);

/** Service 14: as GFSetSize(). */
typedef int32_t (*GPISetFontSize)(GFontRecord* font, int16_t width, int16_t height);

/** Service 15: as GFGetSize(). */
typedef int32_t (*GPIGetFontSize)(GFontRecord* font, int16_t* width, int16_t* height);

/** Service 16: as GFSetFontAttribute(). */
typedef int32_t (*GPISetFontAttribute)(GFontRecord* font, const GFontAttribute* attribute);

/** Service 17: as GFGetFontAttribute(). */
typedef int32_t (*GPIGetFontAttribute)(GFontRecord* font, GFontAttribute* attribute);

/** Service 18: as GFSetFontUserAttribute(). */
typedef int32_t (*GPISetFontUserAttribute)(GFontRecord* font, const GFontUserAttribute* attribute);

/** Service 19: as GFGetFontUserAttribute(). */
typedef int32_t (*GPIGetFontUserAttribute)(GFontRecord* font, GFontUserAttribute* attribute);

/**
 * Service 20: finds the glyph that a text begins with. The bitmap description must be filled in
 * whatever `metricsOnly` says, and stay good until the next call.
 *
 * @param font the font; may be null
 * @param request `text` is set, and at a NUL only when GDGetCharWidth() or GDGetCharHeight() is
 *     asked for unit 0
 * @return a value whose low 16 bits are 0 when there is no such glyph: nothing else is read then
 */
typedef int32_t (*GPIGlyph)(GFontRecord* font, GGlyphRequest* request);

/** Service 21: as GFReleaseFont(); never called with null. */
typedef void (*GPIReleaseFont)(GFontRecord* font);

/** Service 25: as GFGetFontInformation(). */
typedef int32_t (*GPIGetFontInformation)(GFontRecord* font, GFontInformation* information);

/** Service 207: as GFSetGBFontFlag(). */
typedef int32_t (*GPISetGBFontFlag)(int32_t flag);

/**
 * Service 44, optional: draws text of the handle's font at its natural size, as the library would,
 * glyph by glyph, and moves the pen past it. Without it the library does. Its result is ignored.
 *
 * @param text drawn up to its NUL, and with a clip rectangle up to a CR LF or LF before that
 * @param x surface column of its left edge
 * @param y surface row of its upper edge
 * @param clip surface coordinates; null stands for the surface's own
 */
typedef int32_t (*GPIDrawString)(GDrawHandle* handle, const char16_t* text, int16_t x, int16_t y,
                                 const GRect* clip);

/**
 * Service 75: draws a line of a caption: as service 44, but also of fonts that are magnified; the
 * clip rectangle is never null. Without it GDDrawCaptionStringDirect() and GDDrawErrorMessage()
 * draw nothing.
 */
typedef int32_t (*GPIDrawCaptionLine)(GDrawHandle* handle, const char16_t* line, int16_t x,
                                      int16_t y, const GRect* clip);

/** Service 36, expected: as GDGetStringLength(). */
typedef int32_t (*GPIStringLength)(const char16_t* text, int32_t limit);

/** Service 37, expected: as GDGetPrevChar(). */
typedef const char16_t* (*GPIPreviousChar)(const char16_t* text, const char16_t* position,
                                           uint32_t* character);

/** Service 38, expected: as GDGetNextChar(). */
typedef const char16_t* (*GPINextChar)(const char16_t* position, const char16_t* end,
                                       uint32_t* character);

/** Service 61, expected: as GRCUnicodeToMultiByte(). */
typedef int32_t (*GPIUnicodeToMultiByte)(const char16_t* text, int32_t units, char* out,
                                         int32_t size);

/** Service 62, expected: as GRCMultiByteToUnicode(). */
typedef int32_t (*GPIMultiByteToUnicode)(const char* text, int32_t bytes, char16_t* out,
                                         int32_t units);

/** Service 79, expected: as GRCIsLeadByte(). */
typedef int32_t (*GPIIsLeadByte)(uint8_t byte, int32_t codePage);

/* For tools: the library binds these services and calls none of them. */

/** Service 23, optional: the platform's name and version, always the same. */
typedef const char16_t* (*GPIDescribe)(void);

/** Service 24, optional: how many device surfaces service 3 hands out, numbered from 0. */
typedef int32_t (*GPICountSurfaces)(void);

/** Service 30, optional: how many signals of service 31 nobody has waited for yet. */
typedef int32_t (*GPICountSignals)(void);

/* Events and time. A missing event service counts as one that succeeded. */

/** Service 29: makes the queue's lock. @return below 0, as 16 bits, when it failed */
typedef int32_t (*GPIStartEventLock)(void);

/** Service 26, after 29: makes the queue's signal. @return below 0, as 16 bits, when it failed */
typedef int32_t (*GPIStartEventSignal)(void);

/** Service 31: signals that an event was posted. Called with the lock held, from any thread. */
typedef int32_t (*GPISignalEvent)(void);

/** Service 32: tells that an event was taken, or removed. */
typedef int32_t (*GPIEventTaken)(void);

/**
 * Service 33: waits until a post is signalled that nobody waited for yet. Without it GEGetEvent()
 * does not wait.
 *
 * @param wait milliseconds by a steady clock, 0 not to wait, -1 without limit
 * @return a value whose low 16 bits are 0 when nothing came
 */
typedef int32_t (*GPIWaitEvent)(int32_t wait);

/**
 * Service 34: locks the queue; one thread may lock it several times, and may leave a lock behind.
 *
 * @param wait -1: without limit
 * @return below 0, as 16 bits, when it failed
 */
typedef int32_t (*GPILockEvents)(int32_t wait);

/** Service 35: undoes one locking. */
typedef int32_t (*GPIUnlockEvents)(void);

/**
 * Service 124: the next message of the calling thread, without waiting.
 *
 * @param message receives it
 * @return 1; 0 when there is none
 */
typedef int32_t (*GPINextMessage)(GMessage* message);

/** Service 27, expected: as GESetSystemTime(). */
typedef int32_t (*GPISetSystemTime)(const GSystemTime* time);

/** Service 28: as GEGetSystemTime(). Without it there are no timers. */
typedef int32_t (*GPIGetSystemTime)(GSystemTime* time);

/** Service 76, expected: as GETime(). */
typedef uint32_t (*GPITime)(uint32_t* time);

/** Service 77, expected: as GEGmTime(). Its result is ignored. */
typedef GBrokenDownTime* (*GPIBrokenDownTime)(GBrokenDownTime* out, uint32_t time);

/* Memory spaces. Looked for again on every call while missing; without services 41 and 42 nothing
   can be made: no draw handle, no surface, no filled polygon. */

/** Service 39: as GMSetMemorySpace(). */
typedef int32_t (*GPISetMemorySpace)(int32_t space, GWord limit);

/** Service 40: as GMDeleteMemorySpace(). */
typedef int32_t (*GPIDeleteMemorySpace)(int32_t space, GWord flags);

/** Service 41, needed: as GMMemoryAlloc(). */
typedef void* (*GPIMemoryAlloc)(int32_t space, uint32_t flags, int32_t size);

/** Service 66: as GMMemoryRealloc(). Asked for by the first call, not at start-up. */
typedef void* (*GPIMemoryRealloc)(int32_t space, uint32_t flags, void* block, int32_t size);

/** Service 42, needed: as GMMemoryFree(). */
typedef int32_t (*GPIMemoryFree)(int32_t space, uint32_t flags, void* block);

/** Service 57: as GMSetMemoryMode(). */
typedef int32_t (*GPISetMemoryMode)(int32_t mode);

/** Service 80: as GMBeginResetMemorySpace(). */
typedef int32_t (*GPIBeginResetMemorySpace)(int32_t space, GWord flags);

/** Service 81: as GMEndResetMemorySpace(). */
typedef int32_t (*GPIEndResetMemorySpace)(int32_t space, GWord flags);

/** Service 82: as GMCancelResetMemorySpace(). */
typedef int32_t (*GPICancelResetMemorySpace)(int32_t space, GWord flags);

QUARLO_END

#endif
