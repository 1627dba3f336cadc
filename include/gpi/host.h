/**
 * @file host.h
 * What the host platform offers beside the numbered services, and how it understands those whose
 * arguments every platform defines for itself.
 *
 * Start: GDInitPlatform() reads the settings (docs/host.md). Its argument is 0, or the address of
 * the path of a configuration file that is read instead of the usual one. Starting a platform that
 * runs changes nothing. GDQuitPlatform() gives 0 when the platform does not run, or when the last
 * picture could not be written to its file.
 *
 * Device surfaces: numbers 0 to 3 are pages of the same size and format. Page 0 is on the screen;
 * the others are drawn on out of sight until GDChangeVirtualVram() shows them. A page keeps its
 * picture until the platform stops. On a display of 8 bits a pixel the pages have a palette; at
 * first index 0bRRRGGGBB is the colour it spells.
 *
 * GDFlushScreen() takes the rectangle over from the page that is shown and returns at once; a
 * window shows it within a frame. GDFlushScreenForce() returns when it is visible. Changed palette
 * entries show at once.
 *
 * GDSetDrawableRegion() confines drawing on the device surface that the handle targets (page 0
 * where it targets none) to a rectangle, whatever clip rectangles are set later. Regions add up:
 * drawing goes where all of them are. Setting and removing one sets the surface's clip rectangle to
 * what is left. Refused: a region that leaves nothing, and removing one that was not set.
 *
 * GDSetZoomScale() takes whole factors from 1 to 16. GDSetScrollPos() takes a position on the
 * display; one too far right or down to fill the display with is moved back. A picture file shows
 * the whole display, whatever the zoom.
 *
 * GDChangeVirtualVram() shows a page as a whole, and flushes take from that page from then on.
 *
 * Drawing on a device surface stays inside it whatever the coordinates. Smooth glyphs have levels
 * from 0 to 15. A fill by service 70 without a pattern takes the one that service 69 was told of.
 */
#ifndef GPI_HOST_H
#define GPI_HOST_H

#include <gpi/gpi.h>

QUARLO_BEGIN

/**
 * Waits until the user closes the window.
 *
 * @return 1 when it was closed, now or earlier; 0 at once where there is no window to close
 */
GPI_API int32_t GPIHostWaitForClose(void);

/**
 * Writes what the display shows to a PNG file, in place of an old one: 256 colours for a display
 * with a palette, else 8 bits a channel.
 *
 * @param path the file
 * @return 1; 0 when the platform is not started, `path` is null, or the file cannot be written (one
 *     line on the standard error stream says why)
 */
GPI_API int32_t GPIHostWritePng(const char* path);

/**
 * Posts a message to the program's main loop, from any thread: input of a device that the platform
 * does not know, or a program's own.
 *
 * @param message copied
 * @return 1; 0 for null
 */
GPI_API int32_t GPIHostPostMessage(const GMessage* message);

QUARLO_END

#endif
