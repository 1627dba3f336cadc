/**
 * @file gpi.h
 * The platform's side of the library: the entry points that a platform library defines and the
 * number of every service. services.h and forwards.h, included at the end, have each service's
 * signature and contract.
 *
 * The library gets along without most services: the functions that use a missing one return 0 and
 * do nothing else, unless its contract says more. Event services are called from any thread, all
 * others from the thread that calls the library.
 */
#ifndef GPI_GPI_H
#define GPI_GPI_H

#include <quarlo/event.h>
#include <quarlo/types.h>

#if !defined(_WIN32)
#define GPI_API __attribute__((visibility("default")))
#elif defined(GPI_BUILDING)
#define GPI_API /* exported by ordinal: 23, 21 and 24, in the order below */
#else
#define GPI_API __declspec(dllimport)
#endif

QUARLO_BEGIN

/** A service as it is handed out; callers convert it to the service's own type. */
typedef void (*GPIFunction)(void);

/**
 * Hands out a service.
 *
 * @param number a service number; any number may be asked for, at any time and more than once
 * @return the service, or null when the platform does not offer it
 */
GPI_API GPIFunction GPIGetService(int32_t number);

/** Number of fonts that the platform offers. */
GPI_API int32_t GPIGetFontCount(void);

/** Shuts the platform's side of the event queue down, waking whoever waits in service 33. */
GPI_API void GPIShutdownEvents(void);

#ifndef _WIN32
/** What the system itself does with a message on Windows: readies one for dispatching. */
GPI_API void GPITranslateMessage(GMessage* message);

/** Hands a message to the window that it is for. */
GPI_API void GPIDispatchMessage(GMessage* message);
#endif

/** The number of every service. */
enum {
    /* Start and stop. */
    GPI_SERVICE_START = 1,
    GPI_SERVICE_STOP = 2,
    GPI_SERVICE_START_SECOND = 12,
    GPI_SERVICE_STOP_FIRST = 22,

    /* Displays. */
    GPI_SERVICE_GET_SURFACE = 3,
    GPI_SERVICE_RELEASE_SURFACE = 4,
    GPI_SERVICE_SET_PIXEL = 5,
    GPI_SERVICE_SPAN = 6,
    GPI_SERVICE_NEXT_PIXEL = 7,
    GPI_SERVICE_BLOCK_TRANSFER = 8,
    GPI_SERVICE_FLUSH = 9,
    GPI_SERVICE_SET_PALETTE = 10,
    GPI_SERVICE_GET_PALETTE = 11,
    GPI_SERVICE_COVERAGE_PIXEL = 43,
    GPI_SERVICE_SET_ZOOM_SCALE = 55,
    GPI_SERVICE_SET_SCROLL_POS = 56,
    GPI_SERVICE_FLUSH_FORCE = 58,
    GPI_SERVICE_SET_DRAWABLE_REGION = 59,
    GPI_SERVICE_REMOVE_DRAWABLE_REGION = 60,
    GPI_SERVICE_DRAW_RECT = 67,
    GPI_SERVICE_FILL_RECT = 68,
    GPI_SERVICE_FILL_PATTERN_NOTICE = 69,
    GPI_SERVICE_PATTERN_RECT = 70,
    GPI_SERVICE_CHANGE_VIRTUAL_SURFACE = 119,

    /* Fonts and text. */
    GPI_SERVICE_LOAD_FONT = 13,
    GPI_SERVICE_SET_FONT_SIZE = 14,
    GPI_SERVICE_GET_FONT_SIZE = 15,
    GPI_SERVICE_SET_FONT_ATTRIBUTE = 16,
    GPI_SERVICE_GET_FONT_ATTRIBUTE = 17,
    GPI_SERVICE_SET_FONT_USER_ATTRIBUTE = 18,
    GPI_SERVICE_GET_FONT_USER_ATTRIBUTE = 19,
    GPI_SERVICE_GLYPH = 20,
    GPI_SERVICE_RELEASE_FONT = 21,
    GPI_SERVICE_GET_FONT_INFORMATION = 25,
    GPI_SERVICE_STRING_LENGTH = 36,
    GPI_SERVICE_PREVIOUS_CHAR = 37,
    GPI_SERVICE_NEXT_CHAR = 38,
    GPI_SERVICE_DRAW_STRING = 44,
    GPI_SERVICE_UNICODE_TO_MULTI_BYTE = 61,
    GPI_SERVICE_MULTI_BYTE_TO_UNICODE = 62,
    GPI_SERVICE_DRAW_CAPTION_LINE = 75,
    GPI_SERVICE_IS_LEAD_BYTE = 79,
    GPI_SERVICE_SET_GB_FONT_FLAG = 207,

    /* For tools: the library binds these and calls none of them. */
    GPI_SERVICE_DESCRIBE = 23,
    GPI_SERVICE_COUNT_SURFACES = 24,
    GPI_SERVICE_COUNT_SIGNALS = 30,

    /* Events and time. */
    GPI_SERVICE_START_EVENT_SIGNAL = 26,
    GPI_SERVICE_SET_SYSTEM_TIME = 27,
    GPI_SERVICE_GET_SYSTEM_TIME = 28,
    GPI_SERVICE_START_EVENT_LOCK = 29,
    GPI_SERVICE_SIGNAL_EVENT = 31,
    GPI_SERVICE_EVENT_TAKEN = 32,
    GPI_SERVICE_WAIT_EVENT = 33,
    GPI_SERVICE_LOCK_EVENTS = 34,
    GPI_SERVICE_UNLOCK_EVENTS = 35,
    GPI_SERVICE_TIME = 76,
    GPI_SERVICE_BROKEN_DOWN_TIME = 77,
    GPI_SERVICE_NEXT_MESSAGE = 124,

    /* Memory spaces. */
    GPI_SERVICE_SET_MEMORY_SPACE = 39,
    GPI_SERVICE_DELETE_MEMORY_SPACE = 40,
    GPI_SERVICE_MEMORY_ALLOC = 41,
    GPI_SERVICE_MEMORY_FREE = 42,
    GPI_SERVICE_SET_MEMORY_MODE = 57,
    GPI_SERVICE_MEMORY_REALLOC = 66,
    GPI_SERVICE_BEGIN_RESET_MEMORY_SPACE = 80,
    GPI_SERVICE_END_RESET_MEMORY_SPACE = 81,
    GPI_SERVICE_CANCEL_RESET_MEMORY_SPACE = 82,

    /* Modules, applications, search. */
    GPI_SERVICE_LOAD_MODULE = 45,
    GPI_SERVICE_FREE_MODULE = 46,
    GPI_SERVICE_GET_MODULE_FUNCTION = 47,
    GPI_SERVICE_SEARCH = 78,
    GPI_SERVICE_EXECUTE = 117,
    GPI_SERVICE_EXIT = 118,
    GPI_SERVICE_LOAD_MODULE_EX = 128,

    /* Files. */
    GPI_SERVICE_OPEN_FILE = 48,
    GPI_SERVICE_CLOSE_FILE = 49,
    GPI_SERVICE_READ_FILE = 50,
    GPI_SERVICE_WRITE_FILE = 51,
    GPI_SERVICE_SEEK_FILE = 52,
    GPI_SERVICE_MAKE_PATH = 63,
    GPI_SERVICE_SPLIT_PATH = 64,
    GPI_SERVICE_READ_LINE = 65,
    GPI_SERVICE_GET_DIRECTORY = 71,
    GPI_SERVICE_READ_BYTE = 72,
    GPI_SERVICE_GET_JPEG_INFO = 73,
    GPI_SERVICE_LOAD_JPEG = 74,
    GPI_SERVICE_RENAME_FILE = 120,
    GPI_SERVICE_REMOVE_FILE = 121,
    GPI_SERVICE_GET_FILE_ACCESS = 122,
    GPI_SERVICE_GET_FILE_SIZE = 123,
    GPI_SERVICE_FLUSH_AND_CLOSE_FILE = 125,

    /* Data-server files. */
    GPI_SERVICE_OPEN_DATA_FILE = 129,
    GPI_SERVICE_READ_DATA_FILE = 130,
    GPI_SERVICE_CLOSE_DATA_FILE = 131,
    GPI_SERVICE_SEEK_DATA_FILE = 132,
    GPI_SERVICE_GET_DATA_FILE_SIZE = 133,
    GPI_SERVICE_WRITE_DATA_FILE = 134,
    GPI_SERVICE_RENAME_DATA_FILE = 135,
    GPI_SERVICE_REMOVE_DATA_FILE = 136,
    GPI_SERVICE_CREATE_DATA_FILE = 137,

    /* Profiles. */
    GPI_SERVICE_GET_PROFILE_INT = 53,
    GPI_SERVICE_GET_PROFILE_STRING = 54,
    GPI_SERVICE_SET_PROFILE_STRING = 116,
    GPI_SERVICE_GET_PROFILE_INT_EX = 126,
    GPI_SERVICE_GET_PROFILE_STRING_EX = 127,

    /* Network. */
    GPI_SERVICE_CRACK_URL = 83,
    GPI_SERVICE_CREATE_URL = 84,
    GPI_SERVICE_CANONICALIZE_URL = 85,
    GPI_SERVICE_COMBINE_URL = 86,
    GPI_SERVICE_NET_OPEN = 87,
    GPI_SERVICE_NET_CLOSE_HANDLE = 88,
    GPI_SERVICE_NET_CONNECT = 89,
    GPI_SERVICE_NET_OPEN_URL = 90,
    GPI_SERVICE_NET_READ_FILE = 91,
    GPI_SERVICE_NET_SET_FILE_POINTER = 92,
    GPI_SERVICE_NET_WRITE_FILE = 93,
    GPI_SERVICE_NET_QUERY_DATA_AVAILABLE = 94,
    GPI_SERVICE_NET_FIND_NEXT_FILE = 95,
    GPI_SERVICE_NET_QUERY_OPTION = 96,
    GPI_SERVICE_NET_SET_OPTION = 97,
    GPI_SERVICE_NET_LOCK_REQUEST_FILE = 98,
    GPI_SERVICE_NET_UNLOCK_REQUEST_FILE = 99,
    GPI_SERVICE_HTTP_OPEN_REQUEST = 100,
    GPI_SERVICE_HTTP_ADD_REQUEST_HEADERS = 101,
    GPI_SERVICE_HTTP_SEND_REQUEST = 102,
    GPI_SERVICE_HTTP_END_REQUEST = 103,
    GPI_SERVICE_HTTP_QUERY_INFO = 104,
    GPI_SERVICE_FTP_FIND_FIRST_FILE = 105,
    GPI_SERVICE_FTP_GET_FILE = 106,
    GPI_SERVICE_FTP_PUT_FILE = 107,
    GPI_SERVICE_FTP_DELETE_FILE = 108,
    GPI_SERVICE_FTP_RENAME_FILE = 109,
    GPI_SERVICE_FTP_OPEN_FILE = 110,
    GPI_SERVICE_FTP_CREATE_DIRECTORY = 111,
    GPI_SERVICE_FTP_REMOVE_DIRECTORY = 112,
    GPI_SERVICE_FTP_SET_CURRENT_DIRECTORY = 113,
    GPI_SERVICE_FTP_GET_CURRENT_DIRECTORY = 114,
    GPI_SERVICE_NET_GET_LAST_ERROR = 115,

    /* Numerical-control data. */
    GPI_SERVICE_SET_NC_VALUE = 200,
    GPI_SERVICE_GET_NC_VALUE = 201,
    GPI_SERVICE_SET_NC_STRING = 202,
    GPI_SERVICE_GET_NC_STRING = 203,
    GPI_SERVICE_IS_NC_VALUE_UNSET = 204,
    GPI_SERVICE_SET_NC_SYSTEM_VALUE = 205,
    GPI_SERVICE_GET_NC_SYSTEM_VALUE = 206
};

QUARLO_END

#include <gpi/forwards.h>
#include <gpi/services.h>

#endif
