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
 * window shows it soon. GDFlushScreenForce() returns when it is visible; remote viewers are not
 * waited for. Changed palette entries show at once.
 *
 * Whole frames: a program that calls GPIHostEndFrame() behind the flushes of each picture is shown
 * whole pictures only, on every kind of display. What it flushes, and the palette entries that it
 * changes, are seen together, at the mark. GDFlushScreenForce() is a mark too, one that waits.
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
 * Messages: what a person does at the window, and what programs post, waits in one queue until the
 * program takes it, in the order in which it came. There are two ways to take it. A program that
 * wants messages waits for them with GPIHostWaitMessage(). One that wants events sets a handler,
 * which GEGetEvent() calls while it waits, and which posts events:
 *
 *     void onMessage(void* context, const GMessage* message) {
 *         const uint32_t key = (uint32_t)message->param1;
 *         GEventMsg event;
 *         if (message->number == G_MESSAGE_KEY_DOWN)
 *             GESetEvent(*GECreateEventMessage(&event, KEY, PANEL, key, 0), 0);
 *     }
 *
 * Threads: the window has a thread of its own, which asks the display server for input. It calls
 * nothing of the program: it only fills the queue and wakes whoever waits. Messages may be posted,
 * fed and taken from any thread.
 *
 * Keyboard: a key that goes down is #G_MESSAGE_KEY_DOWN, once more each time it repeats, and
 * #G_MESSAGE_KEY_UP when it is released or the window loses the keyboard. keys.h has the numbers of
 * keys and what else the parameters say.
 *
 * Pointer: a mouse, or the first finger on a touch screen as its left button. Positions are those
 * of the display's surface, whatever the size of the window, the zoom and the scroll position.
 * #G_MESSAGE_LEFT_DOUBLE comes in place of #G_MESSAGE_LEFT_DOWN for a press within half a second
 * and 16 pixels of the one before; it is a press like any other. A press beside the picture is
 * none, and a drag that leaves the picture goes on along its edge.
 *
 * Window: #G_MESSAGE_QUIT when the user closes it, which does nothing else; #G_MESSAGE_PAINT when
 * it was uncovered, which need not be answered since the window shows its picture again by itself.
 *
 * The queue is empty at a start, and bounded. Moves of the pointer that follow each other become
 * one, repeats of a key are counted in one message, and one paint and one quit message wait behind
 * all others. When 224 messages wait, others are refused; releases have 32 more places, and what
 * was refused is not released either.
 *
 * Drawing on a device surface stays inside it whatever the coordinates. Levels of smooth glyphs are
 * those of the handle's font: 0 to 3 with 2 bits a pixel, 0 to 15 with 4. A fill by service 70
 * without a pattern takes the one that service 69 was told of.
 */
#ifndef GPI_HOST_H
#define GPI_HOST_H

#include <gpi/gpi.h>
#include <gpi/keys.h>

QUARLO_BEGIN

/**
 * Waits until the user closes the window. On a screen and before remote viewers nobody can, and the
 * wait ends with the program.
 *
 * @return 1 when it was closed, now or earlier; 0 at once where nobody sees the display
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
 * Marks the end of a frame: what was flushed since the last mark becomes visible as one picture,
 * soon. From the first mark on nothing is shown before it is marked. The mark returns at once; a
 * display that is behind leaves out whole frames.
 *
 * @return 1; 0 when no display is open
 */
GPI_API int32_t GPIHostEndFrame(void);

/**
 * What the display shows, as a number: runs of a program are compared by it, whatever shows them.
 *
 * @return CRC-32 of all pixels, row by row, each as the bytes red, green, blue; 0 when the platform
 *     is not started
 */
GPI_API uint32_t GPIHostFrameChecksum(void);

/** Whether people see the display: in a window, remotely or on a screen. @return 1 or 0 */
GPI_API int32_t GPIHostHasWindow(void);

/**
 * Posts a message as it is: input of a device that the platform does not know, or a program's own.
 *
 * @param message copied
 * @return 1; 0 for null, or when too many wait
 */
GPI_API int32_t GPIHostPostMessage(const GMessage* message);

/**
 * Takes the next message, waiting for one. The thread sleeps meanwhile.
 *
 * @param message receives it; left as it was when there is none
 * @param wait milliseconds to wait, 0 not to wait, -1 without limit
 * @return 1; 0 for null, or when no message came
 */
GPI_API int32_t GPIHostWaitMessage(GMessage* message, int32_t wait);

/**
 * Is told of a message, which is out of the queue by then.
 *
 * @param context as it was given with the handler
 * @param message valid during the call
 */
typedef void (*GPIHostMessageHandler)(void* context, const GMessage* message);

/**
 * Sets the function that takes the messages while a thread waits in GEGetEvent() (service 33). It
 * runs in that thread, without the event queue's lock, one call at a time: with one message each
 * wait while events are pending, and with all there are while none is, so that input neither waits
 * for ever nor floods the event queue. It may post events, take messages, and set or remove
 * handlers.
 *
 * Returns when the handler before it does not run any more, except to that handler itself. So the
 * caller must not hold what a running handler waits for.
 *
 * @param handler null to leave messages in the queue, as at first
 * @param context handed to each call
 */
GPI_API void GPIHostSetMessageHandler(GPIHostMessageHandler handler, void* context);

/**
 * Presses or releases a key as a person would, on any display: for scripts and tests.
 *
 * @param key a number of keys.h
 * @param down 1 pressed, or repeated when it is down; 0 released
 * @return 1; 0 for a number that no key has, a release of what is not down, or when too many
 *     messages wait
 */
GPI_API int32_t GPIHostFeedKey(int32_t key, int32_t down);

/**
 * Moves the pointer and sets what is held down there, as a person would, on any display.
 *
 * @param x,y a position on the display's surface
 * @param buttons #GPI_POINTER_LEFT and #GPI_POINTER_RIGHT in any combination
 * @return 1; 0 for a negative position or one beyond 32767, or when too many messages wait
 */
GPI_API int32_t GPIHostFeedPointer(int32_t x, int32_t y, uint32_t buttons);

/**
 * Stops the platform's clocks, so that a run can be repeated to the millisecond: for scripts and
 * tests. The clock of timers (service 28), the time of day and the simulated control's stand still
 * and move on by GPIHostStepClock() only, until the platform stops. Waits take the time they take.
 *
 * @param timeOfDay what GETime() says from now on
 * @return 1
 */
GPI_API int32_t GPIHostHoldClock(uint32_t timeOfDay);

/** Lets clocks that are held go on. @return 1; 0 when they are not held */
GPI_API int32_t GPIHostStepClock(uint32_t milliseconds);

QUARLO_END

#endif
