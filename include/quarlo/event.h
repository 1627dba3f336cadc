/**
 * @file event.h
 * The event queue: one for the whole process, with room for 50 events, filled by GESetEvent() from
 * any thread and emptied by the main loop with GEGetEvent().
 *
 * Events leave in the order in which they came, forced ones apart. The platform supplies lock and
 * signal; where it lacks one of its event services, the queue goes on as if that had succeeded.
 */
#ifndef QUARLO_EVENT_H
#define QUARLO_EVENT_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Events that the queue holds. */
enum { G_EVENT_QUEUE_SIZE = 50 };

/** Types of events that the library knows; all others are the program's. */
enum {
    G_EVENT_QUIT = 0, /**< the program is asked to end */
    G_EVENT_TIMER = 1 /**< a timer expired: `target` is its owner, `param1` its id */
};

/** An event. */
typedef struct GEventMsg {
    uint16_t type;        /**< #G_EVENT_QUIT, #G_EVENT_TIMER or a type of the program's */
    uint32_t target;      /**< the receiver */
    uint32_t param1;      /**< for a timer its id, in the low 16 bits */
    uint32_t param2;      /**< the program's */
    uint32_t reserved[2]; /**< 0 */
} GEventMsg;

/**
 * A message of the system's message pump, as the platform hands it to GEClearWindowsEvent(): on
 * Windows, the system's own record.
 */
typedef struct GMessage {
    void* window;    /**< the window that it is for, or null */
    uint32_t number; /**< one of the numbers below, or any other */
    GWord param1;    /**< first parameter, see the number */
    GWord param2;    /**< second parameter, see the number */
    uint32_t time;   /**< milliseconds since the system started */
    int32_t x;       /**< display column of the pointer at that time */
    int32_t y;       /**< display row of the pointer at that time */
} GMessage;

/** Message numbers. Those from #G_MESSAGE_KEY_DOWN up to 0x2FF are keyboard and pointer input. */
enum {
    G_MESSAGE_PAINT = 15,             /**< the window must be shown again */
    G_MESSAGE_QUIT = 18,              /**< the program is asked to end; param1 is its exit status */
    G_MESSAGE_KEY_DOWN = 0x100,       /**< param1 is the key */
    G_MESSAGE_KEY_UP = 0x101,         /**< param1 is the key */
    G_MESSAGE_POINTER_MOVE = 0x200,   /**< param2 is the row << 16 | the column */
    G_MESSAGE_LEFT_DOWN = 0x201,      /**< param2 is the row << 16 | the column */
    G_MESSAGE_LEFT_UP = 0x202,        /**< param2 is the row << 16 | the column */
    G_MESSAGE_LEFT_DOUBLE = 0x203,    /**< param2 is the row << 16 | the column */
    G_MESSAGE_RIGHT_DOWN = 0x204,     /**< param2 is the row << 16 | the column */
    G_MESSAGE_RIGHT_UP = 0x205,       /**< param2 is the row << 16 | the column */
    G_MESSAGE_FIRST_NOT_INPUT = 0x300 /**< the first number after those of input */
};

/**
 * Empties the queue and starts the platform's event system.
 *
 * @return 1; 0 when a step of the platform failed
 */
QUARLO_API int32_t GEInitEvent(void);

/** Shuts the platform's event system down, then empties the queue. No other thread may post. */
QUARLO_API void GEQuitEvent(void);

/**
 * Fills an event record.
 *
 * @param event receives the values, and zeros where there is none
 * @return `event`
 */
QUARLO_API GEventMsg* GECreateEventMessage(GEventMsg* event, uint16_t type, uint32_t target,
                                           uint32_t param1, uint32_t param2);

/**
 * Posts an event.
 *
 * While the force flag is set (GESetForceEventFlag()), the event goes to the front of the queue,
 * behind only those of its own type for other targets, and every pending event for its target is
 * dropped. A unique event that comes to stand before an equal one is not posted, and those that it
 * would have stood behind are lost.
 *
 * @param event copied as it is
 * @param unique 1 not to post when an equal one is pending: same type and target, and for a timer
 *     event the same parameters too
 * @return 1 posted, or an equal event that is no timer's was pending; 0 when an equal timer event
 *     was pending, the queue is full, or it cannot be locked
 */
QUARLO_API uint16_t GESetEvent(GEventMsg event, uint16_t unique);

/**
 * Takes the next event, waiting for one.
 *
 * @param event receives it; left as it was when there is none
 * @param wait milliseconds to wait, 0 not to wait, -1 without limit; a platform without the
 *     service does not wait
 * @return 1; 0 when no event came or the queue cannot be locked
 */
QUARLO_API int32_t GEGetEvent(GEventMsg* event, int32_t wait);

/** Drops every pending event for a target. A queue full to the last place is left as it is. */
QUARLO_API void GEClearTargetEvent(uint32_t target);

/**
 * Drops every pending event of a timer. Takes no lock: no other thread may use the queue.
 */
QUARLO_API void GEClearTimerEvent(uint32_t target, uint16_t id);

/**
 * Pumps the messages of the calling thread, then drops all pending events. Input messages are
 * dropped too, others dispatched. A quit message posts an event of type #G_EVENT_QUIT and ends the
 * call at once: pending events stay, and the queue's lock stays held by this thread.
 *
 * @return 1; 0 when the queue cannot be locked
 */
QUARLO_API int32_t GEClearWindowsEvent(void);

/** Sets how GESetEvent() posts: 1 forces every event to the front, any other value does not. */
QUARLO_API void GESetForceEventFlag(int16_t flag);

QUARLO_END

#endif
