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
    GPI_SERVICE_START = 1,         /**< GPIStart */
    GPI_SERVICE_STOP = 2,          /**< GPIStop */
    GPI_SERVICE_START_SECOND = 12, /**< GPIStartSecond */
    GPI_SERVICE_STOP_FIRST = 22,   /**< GPIStopFirst */

    /* Displays. */
    GPI_SERVICE_GET_SURFACE = 3,              /**< GPIGetSurface */
    GPI_SERVICE_RELEASE_SURFACE = 4,          /**< GPIReleaseSurface */
    GPI_SERVICE_SET_PIXEL = 5,                /**< GPISetPixel */
    GPI_SERVICE_SPAN = 6,                     /**< GPISpan */
    GPI_SERVICE_NEXT_PIXEL = 7,               /**< GPINextPixel */
    GPI_SERVICE_BLOCK_TRANSFER = 8,           /**< GPIBlockTransfer */
    GPI_SERVICE_FLUSH = 9,                    /**< GPIFlush */
    GPI_SERVICE_SET_PALETTE = 10,             /**< GPISetPalette */
    GPI_SERVICE_GET_PALETTE = 11,             /**< GPIGetPalette */
    GPI_SERVICE_COVERAGE_PIXEL = 43,          /**< GPICoveragePixel */
    GPI_SERVICE_SET_ZOOM_SCALE = 55,          /**< GPISetZoomScale */
    GPI_SERVICE_SET_SCROLL_POS = 56,          /**< GPISetScrollPos */
    GPI_SERVICE_FLUSH_FORCE = 58,             /**< GPIFlushForce */
    GPI_SERVICE_SET_DRAWABLE_REGION = 59,     /**< GPISetDrawableRegion */
    GPI_SERVICE_REMOVE_DRAWABLE_REGION = 60,  /**< GPIRemoveDrawableRegion */
    GPI_SERVICE_DRAW_RECT = 67,               /**< GPIDrawRect */
    GPI_SERVICE_FILL_RECT = 68,               /**< GPIFillRect */
    GPI_SERVICE_FILL_PATTERN_NOTICE = 69,     /**< GPIFillPatternNotice */
    GPI_SERVICE_PATTERN_RECT = 70,            /**< GPIPatternRect */
    GPI_SERVICE_CHANGE_VIRTUAL_SURFACE = 119, /**< GPIChangeVirtualSurface */

    /* Fonts and text. */
    GPI_SERVICE_LOAD_FONT = 13,               /**< GPILoadFont */
    GPI_SERVICE_SET_FONT_SIZE = 14,           /**< GPISetFontSize */
    GPI_SERVICE_GET_FONT_SIZE = 15,           /**< GPIGetFontSize */
    GPI_SERVICE_SET_FONT_ATTRIBUTE = 16,      /**< GPISetFontAttribute */
    GPI_SERVICE_GET_FONT_ATTRIBUTE = 17,      /**< GPIGetFontAttribute */
    GPI_SERVICE_SET_FONT_USER_ATTRIBUTE = 18, /**< GPISetFontUserAttribute */
    GPI_SERVICE_GET_FONT_USER_ATTRIBUTE = 19, /**< GPIGetFontUserAttribute */
    GPI_SERVICE_GLYPH = 20,                   /**< GPIGlyph */
    GPI_SERVICE_RELEASE_FONT = 21,            /**< GPIReleaseFont */
    GPI_SERVICE_GET_FONT_INFORMATION = 25,    /**< GPIGetFontInformation */
    GPI_SERVICE_STRING_LENGTH = 36,           /**< GPIStringLength */
    GPI_SERVICE_PREVIOUS_CHAR = 37,           /**< GPIPreviousChar */
    GPI_SERVICE_NEXT_CHAR = 38,               /**< GPINextChar */
    GPI_SERVICE_DRAW_STRING = 44,             /**< GPIDrawString */
    GPI_SERVICE_UNICODE_TO_MULTI_BYTE = 61,   /**< GPIUnicodeToMultiByte */
    GPI_SERVICE_MULTI_BYTE_TO_UNICODE = 62,   /**< GPIMultiByteToUnicode */
    GPI_SERVICE_DRAW_CAPTION_LINE = 75,       /**< GPIDrawCaptionLine */
    GPI_SERVICE_IS_LEAD_BYTE = 79,            /**< GPIIsLeadByte */
    GPI_SERVICE_SET_GB_FONT_FLAG = 207,       /**< GPISetGBFontFlag */

    /* For tools: the library binds these and calls none of them. */
    GPI_SERVICE_DESCRIBE = 23,       /**< GPIDescribe */
    GPI_SERVICE_COUNT_SURFACES = 24, /**< GPICountSurfaces */
    GPI_SERVICE_COUNT_SIGNALS = 30,  /**< GPICountSignals */

    /* Events and time. */
    GPI_SERVICE_START_EVENT_SIGNAL = 26, /**< GPIStartEventSignal */
    GPI_SERVICE_SET_SYSTEM_TIME = 27,    /**< GPISetSystemTime */
    GPI_SERVICE_GET_SYSTEM_TIME = 28,    /**< GPIGetSystemTime */
    GPI_SERVICE_START_EVENT_LOCK = 29,   /**< GPIStartEventLock */
    GPI_SERVICE_SIGNAL_EVENT = 31,       /**< GPISignalEvent */
    GPI_SERVICE_EVENT_TAKEN = 32,        /**< GPIEventTaken */
    GPI_SERVICE_WAIT_EVENT = 33,         /**< GPIWaitEvent */
    GPI_SERVICE_LOCK_EVENTS = 34,        /**< GPILockEvents */
    GPI_SERVICE_UNLOCK_EVENTS = 35,      /**< GPIUnlockEvents */
    GPI_SERVICE_TIME = 76,               /**< GPITime */
    GPI_SERVICE_BROKEN_DOWN_TIME = 77,   /**< GPIBrokenDownTime */
    GPI_SERVICE_NEXT_MESSAGE = 124,      /**< GPINextMessage */

    /* Memory spaces. */
    GPI_SERVICE_SET_MEMORY_SPACE = 39,          /**< GPISetMemorySpace */
    GPI_SERVICE_DELETE_MEMORY_SPACE = 40,       /**< GPIDeleteMemorySpace */
    GPI_SERVICE_MEMORY_ALLOC = 41,              /**< GPIMemoryAlloc */
    GPI_SERVICE_MEMORY_FREE = 42,               /**< GPIMemoryFree */
    GPI_SERVICE_SET_MEMORY_MODE = 57,           /**< GPISetMemoryMode */
    GPI_SERVICE_MEMORY_REALLOC = 66,            /**< GPIMemoryRealloc */
    GPI_SERVICE_BEGIN_RESET_MEMORY_SPACE = 80,  /**< GPIBeginResetMemorySpace */
    GPI_SERVICE_END_RESET_MEMORY_SPACE = 81,    /**< GPIEndResetMemorySpace */
    GPI_SERVICE_CANCEL_RESET_MEMORY_SPACE = 82, /**< GPICancelResetMemorySpace */

    /* Modules, applications, search. */
    GPI_SERVICE_LOAD_MODULE = 45,         /**< GPILoadModule */
    GPI_SERVICE_FREE_MODULE = 46,         /**< GPIFreeModule */
    GPI_SERVICE_GET_MODULE_FUNCTION = 47, /**< GPIGetModuleFunction */
    GPI_SERVICE_SEARCH = 78,              /**< GPISearch */
    GPI_SERVICE_EXECUTE = 117,            /**< GPIExecute */
    GPI_SERVICE_EXIT = 118,               /**< GPIExit */
    GPI_SERVICE_LOAD_MODULE_EX = 128,     /**< GPILoadModuleEx */

    /* Files. */
    GPI_SERVICE_OPEN_FILE = 48,             /**< GPIOpenFile */
    GPI_SERVICE_CLOSE_FILE = 49,            /**< GPICloseFile */
    GPI_SERVICE_READ_FILE = 50,             /**< GPIReadFile */
    GPI_SERVICE_WRITE_FILE = 51,            /**< GPIWriteFile */
    GPI_SERVICE_SEEK_FILE = 52,             /**< GPISeekFile */
    GPI_SERVICE_MAKE_PATH = 63,             /**< GPIMakePath */
    GPI_SERVICE_SPLIT_PATH = 64,            /**< GPISplitPath */
    GPI_SERVICE_READ_LINE = 65,             /**< GPIReadLine */
    GPI_SERVICE_GET_DIRECTORY = 71,         /**< GPIGetDirectory */
    GPI_SERVICE_READ_BYTE = 72,             /**< GPIReadByte */
    GPI_SERVICE_GET_JPEG_INFO = 73,         /**< GPIGetJpegInfo */
    GPI_SERVICE_LOAD_JPEG = 74,             /**< GPILoadJpeg */
    GPI_SERVICE_RENAME_FILE = 120,          /**< GPIRenameFile */
    GPI_SERVICE_REMOVE_FILE = 121,          /**< GPIRemoveFile */
    GPI_SERVICE_GET_FILE_ACCESS = 122,      /**< GPIGetFileAccess */
    GPI_SERVICE_GET_FILE_SIZE = 123,        /**< GPIGetFileSize */
    GPI_SERVICE_FLUSH_AND_CLOSE_FILE = 125, /**< GPIFlushAndCloseFile */

    /* Data-server files. */
    GPI_SERVICE_OPEN_DATA_FILE = 129,     /**< GPIOpenDataFile */
    GPI_SERVICE_READ_DATA_FILE = 130,     /**< GPIReadDataFile */
    GPI_SERVICE_CLOSE_DATA_FILE = 131,    /**< GPICloseDataFile */
    GPI_SERVICE_SEEK_DATA_FILE = 132,     /**< GPISeekDataFile */
    GPI_SERVICE_GET_DATA_FILE_SIZE = 133, /**< GPIGetDataFileSize */
    GPI_SERVICE_WRITE_DATA_FILE = 134,    /**< GPIWriteDataFile */
    GPI_SERVICE_RENAME_DATA_FILE = 135,   /**< GPIRenameDataFile */
    GPI_SERVICE_REMOVE_DATA_FILE = 136,   /**< GPIRemoveDataFile */
    GPI_SERVICE_CREATE_DATA_FILE = 137,   /**< GPICreateDataFile */

    /* Profiles. */
    GPI_SERVICE_GET_PROFILE_INT = 53,        /**< GPIGetProfileInt */
    GPI_SERVICE_GET_PROFILE_STRING = 54,     /**< GPIGetProfileString */
    GPI_SERVICE_SET_PROFILE_STRING = 116,    /**< GPISetProfileString */
    GPI_SERVICE_GET_PROFILE_INT_EX = 126,    /**< GPIGetProfileIntEx */
    GPI_SERVICE_GET_PROFILE_STRING_EX = 127, /**< GPIGetProfileStringEx */

    /* Network. */
    GPI_SERVICE_CRACK_URL = 83,                  /**< GPICrackUrl */
    GPI_SERVICE_CREATE_URL = 84,                 /**< GPICreateUrl */
    GPI_SERVICE_CANONICALIZE_URL = 85,           /**< GPICanonicalizeUrl */
    GPI_SERVICE_COMBINE_URL = 86,                /**< GPICombineUrl */
    GPI_SERVICE_NET_OPEN = 87,                   /**< GPINetOpen */
    GPI_SERVICE_NET_CLOSE_HANDLE = 88,           /**< GPINetCloseHandle */
    GPI_SERVICE_NET_CONNECT = 89,                /**< GPINetConnect */
    GPI_SERVICE_NET_OPEN_URL = 90,               /**< GPINetOpenUrl */
    GPI_SERVICE_NET_READ_FILE = 91,              /**< GPINetReadFile */
    GPI_SERVICE_NET_SET_FILE_POINTER = 92,       /**< GPINetSetFilePointer */
    GPI_SERVICE_NET_WRITE_FILE = 93,             /**< GPINetWriteFile */
    GPI_SERVICE_NET_QUERY_DATA_AVAILABLE = 94,   /**< GPINetQueryDataAvailable */
    GPI_SERVICE_NET_FIND_NEXT_FILE = 95,         /**< GPINetFindNextFile */
    GPI_SERVICE_NET_QUERY_OPTION = 96,           /**< GPINetQueryOption */
    GPI_SERVICE_NET_SET_OPTION = 97,             /**< GPINetSetOption */
    GPI_SERVICE_NET_LOCK_REQUEST_FILE = 98,      /**< GPINetLockRequestFile */
    GPI_SERVICE_NET_UNLOCK_REQUEST_FILE = 99,    /**< GPINetUnlockRequestFile */
    GPI_SERVICE_HTTP_OPEN_REQUEST = 100,         /**< GPIHttpOpenRequest */
    GPI_SERVICE_HTTP_ADD_REQUEST_HEADERS = 101,  /**< GPIHttpAddRequestHeaders */
    GPI_SERVICE_HTTP_SEND_REQUEST = 102,         /**< GPIHttpSendRequest */
    GPI_SERVICE_HTTP_END_REQUEST = 103,          /**< GPIHttpEndRequest */
    GPI_SERVICE_HTTP_QUERY_INFO = 104,           /**< GPIHttpQueryInfo */
    GPI_SERVICE_FTP_FIND_FIRST_FILE = 105,       /**< GPIFtpFindFirstFile */
    GPI_SERVICE_FTP_GET_FILE = 106,              /**< GPIFtpGetFile */
    GPI_SERVICE_FTP_PUT_FILE = 107,              /**< GPIFtpPutFile */
    GPI_SERVICE_FTP_DELETE_FILE = 108,           /**< GPIFtpDeleteFile */
    GPI_SERVICE_FTP_RENAME_FILE = 109,           /**< GPIFtpRenameFile */
    GPI_SERVICE_FTP_OPEN_FILE = 110,             /**< GPIFtpOpenFile */
    GPI_SERVICE_FTP_CREATE_DIRECTORY = 111,      /**< GPIFtpCreateDirectory */
    GPI_SERVICE_FTP_REMOVE_DIRECTORY = 112,      /**< GPIFtpRemoveDirectory */
    GPI_SERVICE_FTP_SET_CURRENT_DIRECTORY = 113, /**< GPIFtpSetCurrentDirectory */
    GPI_SERVICE_FTP_GET_CURRENT_DIRECTORY = 114, /**< GPIFtpGetCurrentDirectory */
    GPI_SERVICE_NET_GET_LAST_ERROR = 115,        /**< GPINetGetLastError */

    /* Numerical-control data. */
    GPI_SERVICE_SET_NC_VALUE = 200,        /**< GPISetNCValue */
    GPI_SERVICE_GET_NC_VALUE = 201,        /**< GPIGetNCValue */
    GPI_SERVICE_SET_NC_STRING = 202,       /**< GPISetNCString */
    GPI_SERVICE_GET_NC_STRING = 203,       /**< GPIGetNCString */
    GPI_SERVICE_IS_NC_VALUE_UNSET = 204,   /**< GPIIsNCValueUnset */
    GPI_SERVICE_SET_NC_SYSTEM_VALUE = 205, /**< GPISetNCSystemValue */
    GPI_SERVICE_GET_NC_SYSTEM_VALUE = 206  /**< GPIGetNCSystemValue */
};

QUARLO_END

#include <gpi/forwards.h>
#include <gpi/services.h>

#endif
