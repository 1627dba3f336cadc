/**
 * @file nc.h
 * The numbers behind the numerical-control data of the host platform: alarms, modal groups, macro
 * variables and how many there are of what. nc_data.h has the addresses; docs/nc.md tells what each
 * of the two controllers makes of them.
 */
#ifndef GPI_NC_H
#define GPI_NC_H

/** Numbers of alarms (#G_NC_ALARM). */
enum {
    GPI_NC_ALARM_PROGRAM = 100,     /**< a block cannot be read or run */
    GPI_NC_ALARM_LIMIT = 200,       /**< a block leads beyond a limit */
    GPI_NC_ALARM_CONTROL = 300,     /**< an error that a foreign control reports */
    GPI_NC_ALARM_CONTROL_LOST = 301 /**< a foreign control no longer answers */
};

/** Modal groups (#G_NC_MODAL). */
enum {
    GPI_NC_MODAL_MOTION = 0,       /**< 0 to 3, 73, 80 to 89 */
    GPI_NC_MODAL_PLANE = 1,        /**< 17, 18, 19 */
    GPI_NC_MODAL_DISTANCE = 2,     /**< 90, 91 */
    GPI_NC_MODAL_FEED = 3,         /**< 94; 93 and 95 on a control that has them */
    GPI_NC_MODAL_UNITS = 4,        /**< 20, 21 */
    GPI_NC_MODAL_RADIUS = 5,       /**< 40; 41 and 42 on a control that has them */
    GPI_NC_MODAL_LENGTH = 6,       /**< 43, 49 */
    GPI_NC_MODAL_WORK_OFFSET = 7,  /**< 54 to 59 */
    GPI_NC_MODAL_RETRACT = 8,      /**< 98, 99 */
    GPI_NC_MODAL_PATH_CONTROL = 9, /**< 61, 64 */
    GPI_NC_MODAL_GROUPS = 10       /**< number of groups */
};

/** Macro variables (#G_NC_MACRO), from first to last. */
enum {
    GPI_NC_MACRO_LOCAL_FIRST = 1,    /**< of the program that runs; unset when one starts */
    GPI_NC_MACRO_LOCAL_LAST = 33,    /**< the last of them */
    GPI_NC_MACRO_COMMON_FIRST = 100, /**< shared by all programs */
    GPI_NC_MACRO_COMMON_LAST = 199,  /**< the last of them */
    GPI_NC_MACRO_KEPT_FIRST = 500,   /**< likewise */
    GPI_NC_MACRO_KEPT_LAST = 999     /**< the last of them */
};

/** How many there are. */
enum {
    GPI_NC_CHANNELS = 1,       /**< channels */
    GPI_NC_WORK_OFFSETS = 7,   /**< 0 common, 1 to 6 for G54 to G59 */
    GPI_NC_MOST_ALARMS = 32,   /**< alarms that are kept */
    GPI_NC_LONGEST_BLOCK = 255 /**< units of a manual block */
};

#endif
