/**
 * @file nc_data.h
 * Numerical-control data: what the machine's control knows, and what a panel may set.
 *
 * Every function forwards to one service, bound on demand, and returns 0 when the platform lacks
 * it. Success is 1; a failure is one of the negative numbers below, and changes nothing.
 *
 * A value goes by its channel (the first is 1), its area, and a number and an index whose meaning
 * the area says. Lengths are millimetres, angles degrees, feeds millimetres a minute, speeds
 * revolutions a minute. An axis is numbered from 0: X, Y, Z, A, B, C, U, V, W.
 */
#ifndef QUARLO_NC_DATA_H
#define QUARLO_NC_DATA_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Why a call failed. */
enum {
    G_NC_UNKNOWN = -1,   /**< no such channel, area, number or index */
    G_NC_RANGE = -2,     /**< a value that is not allowed there */
    G_NC_READ_ONLY = -3, /**< cannot be set */
    G_NC_MODE = -4,      /**< not in this mode or state of the machine */
    G_NC_BUFFER = -5,    /**< the buffer is null or has no room */
    G_NC_OFFLINE = -6,   /**< the control does not answer */
    G_NC_REFUSED = -7    /**< the control refused it */
};

/** Areas of values. Those marked W can be set. */
enum {
    G_NC_MACHINE_POSITION = 1, /**< index: axis; from the machine's own zero */
    G_NC_WORK_POSITION = 2,    /**< index: axis; from the work zero in force */
    G_NC_DISTANCE_TO_GO = 3,   /**< index: axis; of the block that runs */
    G_NC_FOLLOWING_ERROR = 4,  /**< index: axis */
    G_NC_FEED = 5,             /**< index: 0 actual, 1 programmed */
    G_NC_SPINDLE = 6,          /**< number: spindle from 0; index: 0 actual, 1 programmed */
    G_NC_OVERRIDE = 7,         /**< W; number: 0 feed, 1 rapid, 2 spindle; percent */
    G_NC_TOOL = 8,             /**< number: 0 in the spindle, 1 prepared; the tool's number */
    G_NC_TOOL_OFFSET = 9,      /**< W; number: tool from 1; index: 0 length, 1 radius, 2 wear of
                                    the length, 3 wear of the radius */
    G_NC_WORK_OFFSET = 10,     /**< W; number: 0 common, 1 to 6 for G54 to G59; index: axis */
    G_NC_LIMIT = 11,           /**< number: 0 lower, 1 upper; index: axis; machine position */
    G_NC_MODAL = 12,           /**< number: modal group from 0; its G code, such as 17 or 5.1 */
    G_NC_LINE = 13,            /**< number: 0 line that runs, 1 line that is read, from 1 */
    G_NC_TIME = 14,            /**< number: 0 this run, 1 all runs since the start; seconds */
    G_NC_ALARM = 15,           /**< number: alarm from 0, the newest first; the alarm's number */
    G_NC_MACRO = 16,           /**< W; number: macro variable; not a number when unset */
    G_NC_JOG = 17,             /**< W; index: axis; feed of a jog, negative backwards, 0 stops */
    G_NC_JOG_STEP = 18         /**< W; index: axis; length of one jog step, negative backwards */
};

/** Strings. Those marked W can be set. */
enum {
    G_NC_PROGRAM_NAME = 1, /**< W; file of the chosen program, by the path rules of file.h */
    G_NC_PROGRAM_LINE = 2, /**< number: a line, from 1; 0 for the line that runs */
    G_NC_MANUAL_BLOCK = 3, /**< W; a block to run at once, in mode #G_NC_MODE_MDI */
    G_NC_ALARM_TEXT = 4,   /**< number: alarm from 0, the newest first */
    G_NC_AXIS_NAME = 5,    /**< number: axis */
    G_NC_CONTROL_NAME = 6  /**< what the control calls itself, and its version */
};

/** System values, for all channels. Those marked W can be set. */
enum {
    G_NC_SYSTEM_MODE = 1,          /**< W; #G_NC_MODE_MANUAL and so on */
    G_NC_SYSTEM_STATE = 2,         /**< #G_NC_STATE_IDLE and so on */
    G_NC_SYSTEM_COMMAND = 3,       /**< W; #G_NC_COMMAND_START and so on; reads as the last */
    G_NC_SYSTEM_EMERGENCY = 4,     /**< W; 1 in emergency stop */
    G_NC_SYSTEM_POWER = 5,         /**< W; 1 with the drives on */
    G_NC_SYSTEM_SINGLE_BLOCK = 6,  /**< W; 1 to stop after every block */
    G_NC_SYSTEM_OPTIONAL_STOP = 7, /**< W; 1 to stop at M1 */
    G_NC_SYSTEM_BLOCK_SKIP = 8,    /**< W; 1 to skip blocks that begin with a slash */
    G_NC_SYSTEM_DRY_RUN = 9,       /**< W; 1 to run without spindle and coolant */
    G_NC_SYSTEM_COOLANT = 10,      /**< W; bit 0 flood, bit 1 mist */
    G_NC_SYSTEM_HOMED = 11,        /**< bit n: axis n has its reference */
    G_NC_SYSTEM_LIMITS = 12,       /**< bit n: axis n stands at a limit */
    G_NC_SYSTEM_ALARMS = 13,       /**< number of alarms */
    G_NC_SYSTEM_AXES = 14,         /**< number of axes */
    G_NC_SYSTEM_CHANNELS = 15,     /**< number of channels */
    G_NC_SYSTEM_UNITS = 16,        /**< of programs: 0 millimetres, 1 inches */
    G_NC_SYSTEM_LINES = 17         /**< lines of the chosen program */
};

/** Values of #G_NC_SYSTEM_MODE. */
enum {
    G_NC_MODE_MANUAL = 0, /**< jogging and homing */
    G_NC_MODE_AUTO = 1,   /**< running the chosen program */
    G_NC_MODE_MDI = 2     /**< running single blocks */
};

/** Values of #G_NC_SYSTEM_STATE. */
enum {
    G_NC_STATE_OFF = 0,     /**< in emergency stop or without power */
    G_NC_STATE_IDLE = 1,    /**< ready */
    G_NC_STATE_RUNNING = 2, /**< running a program or a block, jogging or homing */
    G_NC_STATE_HELD = 3,    /**< feed hold, single block or programmed stop; can go on */
    G_NC_STATE_ALARM = 4    /**< stopped by an alarm */
};

/** Values of #G_NC_SYSTEM_COMMAND. */
enum {
    G_NC_COMMAND_NONE = 0,       /**< nothing */
    G_NC_COMMAND_START = 1,      /**< cycle start; goes on where it is held */
    G_NC_COMMAND_HOLD = 2,       /**< feed hold */
    G_NC_COMMAND_STEP = 3,       /**< runs one block, then holds */
    G_NC_COMMAND_STOP = 4,       /**< ends what runs */
    G_NC_COMMAND_RESET = 5,      /**< stops, clears the alarms, goes to the program's begin */
    G_NC_COMMAND_HOME = 6,       /**< takes all axes to their reference */
    G_NC_COMMAND_CLEAR_ALARM = 7 /**< clears the newest alarm */
};

/**
 * Forwards to service 200: sets a value.
 *
 * @param channel from 1
 * @param area #G_NC_OVERRIDE and so on
 * @param number as the area says, else 0
 * @param index as the area says, else 0
 * @param value the value
 */
QUARLO_API int32_t GNCDataSetGNCValue(int32_t channel, int32_t area, int32_t number, int32_t index,
                                      const double* value);

/**
 * Forwards to service 201: reads a value.
 *
 * @param channel from 1
 * @param area #G_NC_MACHINE_POSITION and so on
 * @param number as the area says, else 0
 * @param index as the area says, else 0
 * @param value receives the value
 */
QUARLO_API int32_t GNCDataGetGNCValue(int32_t channel, int32_t area, int32_t number, int32_t index,
                                      double* value);

/**
 * Forwards to service 202: sets a string.
 *
 * @param channel from 1
 * @param string #G_NC_PROGRAM_NAME or #G_NC_MANUAL_BLOCK
 * @param number as the string says, else 0
 * @param text the text, NUL-terminated
 */
QUARLO_API int32_t GNCDataSetString(int32_t channel, int32_t string, int32_t number,
                                    const char16_t* text);

/**
 * Forwards to service 203: reads a string.
 *
 * @param channel from 1
 * @param string #G_NC_PROGRAM_NAME and so on
 * @param number as the string says, else 0
 * @param text receives the text, cut to what fits and always NUL-terminated
 * @param size room in `text`, units
 */
QUARLO_API int32_t GNCDataGetString(int32_t channel, int32_t string, int32_t number, char16_t* text,
                                    int32_t size);

/**
 * Forwards to service 204: whether a macro variable is unset.
 *
 * @param channel from 1
 * @param variable its number
 * @return 1 unset, 0 set; negative when there is no such variable
 */
QUARLO_API int32_t GNCDataIsNotaNumber(int32_t channel, int32_t variable);

/** Forwards to service 205: sets a system value. @param number #G_NC_SYSTEM_MODE and so on */
QUARLO_API int32_t GNCDataSetSystemVal(int32_t number, int32_t value);

/** Forwards to service 206: reads a system value. @param number #G_NC_SYSTEM_MODE and so on */
QUARLO_API int32_t GNCDataGetSystemVal(int32_t number, int32_t* value);

QUARLO_END

#endif
