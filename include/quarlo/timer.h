/**
 * @file timer.h
 * Periodic timers that post events, and time.
 *
 * There is no timer thread: timers expire when the main loop calls GECheckTimer(). Up to 50 run at
 * once. All functions here belong to one thread. Records must not be null.
 */
#ifndef QUARLO_TIMER_H
#define QUARLO_TIMER_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Most timers that run at once. */
enum { G_TIMER_COUNT = 50 };

/**
 * A time of the platform's clock: a 64-bit count of milliseconds. The clock runs steadily from 0 at
 * the platform's start, unless GESetSystemTime() sets it, and wraps around at 2^63.
 */
typedef struct GSystemTime {
    uint32_t low; /**< low 32 bits */
    int32_t high; /**< high 32 bits */
} GSystemTime;

/** A date and time of day, UTC. */
typedef struct GBrokenDownTime {
    int32_t second;  /**< 0 to 60 */
    int32_t minute;  /**< 0 to 59 */
    int32_t hour;    /**< 0 to 23 */
    int32_t day;     /**< 1 to 31 */
    int32_t month;   /**< 1 to 12 */
    int32_t year;    /**< such as 2024 */
    int32_t weekday; /**< 0 (Sunday) to 6 */
} GBrokenDownTime;

/**
 * Starts a periodic timer. One with a target and id that run already is a second timer.
 *
 * @param target receiver of its events
 * @param id parameter of its events
 * @param interval milliseconds; 0 expires at every check
 * @return 1; 0 when 50 timers run or the platform has no clock (service 28)
 */
QUARLO_API int32_t GESetTimer(uint32_t target, uint16_t id, uint32_t interval);

/** Stops the first timer of that target and id, and drops its pending events. */
QUARLO_API void GEKillTimer(uint32_t target, uint16_t id);

/**
 * Posts an event for every timer that is due: type #G_EVENT_TIMER, the timer's target, its id as
 * `param1`. A timer has one event pending at most and starts anew when that is posted: late checks
 * catch nothing up. Does nothing without a clock (service 28).
 */
QUARLO_API void GECheckTimer(void);

/**
 * Forwards to service 27, which the platform must have: sets the platform's clock.
 *
 * @return the service's result: 1 set, 0 refused
 */
QUARLO_API int32_t GESetSystemTime(const GSystemTime* time);

/**
 * Forwards to service 28: reads the platform's clock.
 *
 * @return the service's result: 1 read, negative for a clock that cannot be read; 0 when the
 *     platform lacks it
 */
QUARLO_API int32_t GEGetSystemTime(GSystemTime* time);

/** The low word of `b` minus the low word of `a`. */
QUARLO_API uint32_t GECompareSystemTime(const GSystemTime* a, const GSystemTime* b);

/**
 * The time from `start` to `now`. A `start` later than `now` means that the clock has wrapped: the
 * result is now + 2^63 - start.
 *
 * @param out the result; may be `start` or `now`
 * @return `out`
 */
QUARLO_API GSystemTime* GEDiffTime(GSystemTime* out, const GSystemTime* start,
                                   const GSystemTime* now);

/**
 * Forwards to service 76, which the platform must have: the time of day.
 *
 * @param time receives the result too; may be null
 * @return seconds since 1970-01-01 00:00:00 UTC, up to the year 2106
 */
QUARLO_API uint32_t GETime(uint32_t* time);

/**
 * Forwards to service 77, which the platform must have: breaks a time of day down.
 *
 * @param out receives date and time of day
 * @param time as of GETime()
 * @return `out`
 */
QUARLO_API GBrokenDownTime* GEGmTime(GBrokenDownTime* out, uint32_t time);

QUARLO_END

#endif
