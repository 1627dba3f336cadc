"""Every function, record and constant of the library and of its host platform, as in C.

Written from the headers by generate_raw.py; changes belong there. The manual has a page of each
function and record: `man GDLineTo`. Types, ranges of numbers and draw handles are checked; results,
and what must not be null beside handles, are C's.
"""
import ctypes

from quarlo.binding import (
    Address, Handle, Signed8, Signed16, Signed32, Text, Unsigned8, Unsigned16, Unsigned32, Word,
    bind, string, units,
)

P = ctypes.POINTER

G_NO_COLOR = 0xFFFFFFFF
G_APP_WAIT = 1
G_APP_SINGLE = 2
G_CLIP_STACK_DEPTH = 22
G_CODE_PAGE_DEFAULT = 0
G_CODE_PAGE_CP932 = 932
G_CODE_PAGE_GBK = 936
G_CODE_PAGE_CP1252 = 1252
G_CODE_PAGE_UTF8 = 65001
G_IO_END = -1
G_IO_ARGUMENT = -2
G_IO_HANDLE = -3
G_IO_NOT_FOUND = -4
G_IO_DENIED = -5
G_IO_READ_ONLY = -6
G_IO_EXISTS = -7
G_IO_IN_USE = -8
G_IO_FULL = -9
G_IO_TOO_MANY = -10
G_IO_TOO_LARGE = -11
G_IO_DAMAGED = -12
G_IO_UNSUPPORTED = -13
G_IO_NO_MEMORY = -14
G_IO_DEVICE = -15
G_OPEN_READ = 1
G_OPEN_WRITE = 2
G_OPEN_CREATE = 4
G_OPEN_TRUNCATE = 8
G_OPEN_APPEND = 16
G_OPEN_EXCLUSIVE = 32
G_SEEK_START = 0
G_SEEK_CURRENT = 1
G_SEEK_END = 2
G_FILE_READABLE = 1
G_FILE_WRITABLE = 2
G_FILE_EXECUTABLE = 4
G_FILE_DIRECTORY = 8
G_RENAME_REPLACE = 1
G_REMOVE_DIRECTORY = 1
G_PATH_SIZE = 260
G_DRIVE_SIZE = 3
G_DIRECTORY_SIZE = 256
G_NAME_SIZE = 256
G_DIRTY_RECT_COUNT = 5
G_BORDER_RAISED = 0
G_BORDER_SUNKEN = 1
G_TABLE_EDGE = -32768
G_EVENT_QUEUE_SIZE = 50
G_EVENT_QUIT = 0
G_EVENT_TIMER = 1
G_MESSAGE_PAINT = 15
G_MESSAGE_QUIT = 18
G_MESSAGE_KEY_DOWN = 256
G_MESSAGE_KEY_UP = 257
G_MESSAGE_POINTER_MOVE = 512
G_MESSAGE_LEFT_DOWN = 513
G_MESSAGE_LEFT_UP = 514
G_MESSAGE_LEFT_DOUBLE = 515
G_MESSAGE_RIGHT_DOWN = 516
G_MESSAGE_RIGHT_UP = 517
G_MESSAGE_FIRST_NOT_INPUT = 768
G_FACE_SIZE = 33
G_SIMPLE_FONT_BOLD = 1
G_FONT_FIXED = 1
G_FONT_BITMAP = 2
G_FONT_IDEOGRAPHS = 4
G_MODE_COPY = 0
G_MODE_AND = 1
G_MODE_OR = 2
G_MODE_XOR = 3
G_COLOR_DIRECT = 1
G_COLOR_PALETTE = 2
G_MEMORY_SURFACE = -1
G_DASH_COUNT = 8
G_FILL_PATTERN_COUNT = 38
G_FILL_NONE = -1
G_FILL_BACK = -2
G_FILL_FORE = -3
G_FILL_GRADATION = -4
G_JOIN_NONE = 0
G_JOIN_BEVEL = 1
G_JOIN_ROUND = 2
G_FLAG_VIRTUAL = 1
G_TEXT_TRANSPARENT = 2
G_GRADATION_DOWN = 0
G_GRADATION_ACROSS = 1
G_GRF_DIRECT = 1
G_GRF_PALETTE = 2
G_SPACE_LIBRARY = 1
G_SPACE_TYPED_MEMORY = 8
G_MEMORY_ZERO = 1
G_SPACE_FORCE = 1
G_MEMORY_PLAIN = 0
G_MEMORY_CHECKED = 1
G_MODULE_SHARED = 1
G_NC_UNKNOWN = -1
G_NC_RANGE = -2
G_NC_READ_ONLY = -3
G_NC_MODE = -4
G_NC_BUFFER = -5
G_NC_OFFLINE = -6
G_NC_REFUSED = -7
G_NC_MACHINE_POSITION = 1
G_NC_WORK_POSITION = 2
G_NC_DISTANCE_TO_GO = 3
G_NC_FOLLOWING_ERROR = 4
G_NC_FEED = 5
G_NC_SPINDLE = 6
G_NC_OVERRIDE = 7
G_NC_TOOL = 8
G_NC_TOOL_OFFSET = 9
G_NC_WORK_OFFSET = 10
G_NC_LIMIT = 11
G_NC_MODAL = 12
G_NC_LINE = 13
G_NC_TIME = 14
G_NC_ALARM = 15
G_NC_MACRO = 16
G_NC_JOG = 17
G_NC_JOG_STEP = 18
G_NC_PROGRAM_NAME = 1
G_NC_PROGRAM_LINE = 2
G_NC_MANUAL_BLOCK = 3
G_NC_ALARM_TEXT = 4
G_NC_AXIS_NAME = 5
G_NC_CONTROL_NAME = 6
G_NC_SYSTEM_MODE = 1
G_NC_SYSTEM_STATE = 2
G_NC_SYSTEM_COMMAND = 3
G_NC_SYSTEM_EMERGENCY = 4
G_NC_SYSTEM_POWER = 5
G_NC_SYSTEM_SINGLE_BLOCK = 6
G_NC_SYSTEM_OPTIONAL_STOP = 7
G_NC_SYSTEM_BLOCK_SKIP = 8
G_NC_SYSTEM_DRY_RUN = 9
G_NC_SYSTEM_COOLANT = 10
G_NC_SYSTEM_HOMED = 11
G_NC_SYSTEM_LIMITS = 12
G_NC_SYSTEM_ALARMS = 13
G_NC_SYSTEM_AXES = 14
G_NC_SYSTEM_CHANNELS = 15
G_NC_SYSTEM_UNITS = 16
G_NC_SYSTEM_LINES = 17
G_NC_MODE_MANUAL = 0
G_NC_MODE_AUTO = 1
G_NC_MODE_MDI = 2
G_NC_STATE_OFF = 0
G_NC_STATE_IDLE = 1
G_NC_STATE_RUNNING = 2
G_NC_STATE_HELD = 3
G_NC_STATE_ALARM = 4
G_NC_COMMAND_NONE = 0
G_NC_COMMAND_START = 1
G_NC_COMMAND_HOLD = 2
G_NC_COMMAND_STEP = 3
G_NC_COMMAND_STOP = 4
G_NC_COMMAND_RESET = 5
G_NC_COMMAND_HOME = 6
G_NC_COMMAND_CLEAR_ALARM = 7
G_NET_OK = 0
G_NET_ARGUMENT = 1
G_NET_HANDLE = 2
G_NET_HANDLE_KIND = 3
G_NET_STATE = 4
G_NET_URL = 5
G_NET_PROTOCOL = 6
G_NET_BUFFER = 7
G_NET_NO_MEMORY = 8
G_NET_NAME = 9
G_NET_REFUSED = 10
G_NET_TIMEOUT = 11
G_NET_BROKEN = 12
G_NET_CERTIFICATE = 13
G_NET_REDIRECTS = 14
G_NET_LOGIN = 15
G_NET_DENIED = 16
G_NET_NOT_FOUND = 17
G_NET_EXISTS = 18
G_NET_END = 19
G_NET_SERVER = 20
G_NET_LOCAL_FILE = 21
G_NET_READ_ONLY_OPTION = 22
G_NET_UNSUPPORTED = 23
G_NET_FULL = 24
G_NET_TOO_MANY = 25
G_NET_HTTP = 1
G_NET_HTTPS = 2
G_NET_FTP = 3
G_NET_PORT_DEFAULT = 0
G_NET_PORT_FTP = 21
G_NET_PORT_HTTP = 80
G_NET_PORT_HTTPS = 443
G_NET_RELOAD = 1
G_NET_NO_REDIRECT = 2
G_NET_KEEP_CONNECTION = 4
G_NET_ASCII = 8
G_NET_ACTIVE = 16
G_URL_DECODE = 1
G_URL_ENCODE = 2
G_URL_KEEP_DOTS = 4
G_HEADER_ADD = 1
G_HEADER_REPLACE = 2
G_HTTP_STATUS = 1
G_HTTP_STATUS_TEXT = 2
G_HTTP_VERSION = 3
G_HTTP_HEADERS = 4
G_HTTP_CONTENT_LENGTH = 5
G_HTTP_CONTENT_TYPE = 6
G_HTTP_LAST_MODIFIED = 7
G_HTTP_LOCATION = 8
G_HTTP_HEADER = 9
G_NET_OPTION_CONNECT_TIMEOUT = 1
G_NET_OPTION_IDLE_TIMEOUT = 2
G_NET_OPTION_REDIRECTS = 3
G_NET_OPTION_AGENT = 4
G_NET_OPTION_USER = 5
G_NET_OPTION_PASSWORD = 6
G_NET_OPTION_PROXY = 7
G_NET_OPTION_AUTHORITIES = 8
G_NET_OPTION_RATE = 9
G_NET_OPTION_KIND = 10
G_NET_OPTION_PARENT = 11
G_NET_OPTION_URL = 12
G_NET_KIND_SESSION = 1
G_NET_KIND_CONNECTION = 2
G_NET_KIND_REQUEST = 3
G_NET_KIND_FTP_FILE = 4
G_NET_KIND_FIND = 5
G_NET_OPTION_ALL = 1
G_URL_PART_SIZE = 256
G_URL_PATH_SIZE = 2048
G_URL_SIZE = 3072
G_PROFILE_MAKER = 0
G_PROFILE_USER = 1
G_PROFILE_ANY = 65535
G_ALIGN_LEFT = 0
G_ALIGN_CENTRE = 1
G_ALIGN_RIGHT = 2
G_ALIGN_TOP = 0
G_ALIGN_MIDDLE = 1
G_ALIGN_BOTTOM = 2
G_CURSOR_BAR = 0
G_CURSOR_BLOCK = 1
G_TIMER_COUNT = 50
G_TYPED_MEMORY_COUNT = 256
G_TYPED_MEMORY_NAME_SIZE = 16
G_GRF_SKIP = 0
G_GRF_LITERAL = 1
G_GRF_NOTHING = 2
G_GRF_FILL = 3
G_GRF_END = 4
G_GRF_COUNT_MASK = 63
G_GRF_FILE_HEADER = 32
G_GRF_FILE_VERSION = 1
G_GRF_FILE_COLORS = 256
G_GRF_FAULT_HEADER_CUT = 1
G_GRF_FAULT_MARK = 2
G_GRF_FAULT_VERSION = 3
G_GRF_FAULT_TYPE = 4
G_GRF_FAULT_WIDTH = 5
G_GRF_FAULT_HEIGHT = 6
G_GRF_FAULT_BITS = 7
G_GRF_FAULT_COLOR_COUNT = 8
G_GRF_FAULT_MASKS = 9
G_GRF_FAULT_PALETTE_CUT = 10
G_GRF_FAULT_LENGTH = 11
G_GRF_FAULT_RUN_CUT = 12
G_GRF_FAULT_NO_END = 13
G_GRF_FAULT_BEHIND_LAST_ROW = 14
G_GRF_FAULT_NO_COLOR = 15
G_GRF_FAULT_BYTES_AFTER_END = 16
GPI_SERVICE_START = 1
GPI_SERVICE_STOP = 2
GPI_SERVICE_START_SECOND = 12
GPI_SERVICE_STOP_FIRST = 22
GPI_SERVICE_GET_SURFACE = 3
GPI_SERVICE_RELEASE_SURFACE = 4
GPI_SERVICE_SET_PIXEL = 5
GPI_SERVICE_SPAN = 6
GPI_SERVICE_NEXT_PIXEL = 7
GPI_SERVICE_BLOCK_TRANSFER = 8
GPI_SERVICE_FLUSH = 9
GPI_SERVICE_SET_PALETTE = 10
GPI_SERVICE_GET_PALETTE = 11
GPI_SERVICE_COVERAGE_PIXEL = 43
GPI_SERVICE_SET_ZOOM_SCALE = 55
GPI_SERVICE_SET_SCROLL_POS = 56
GPI_SERVICE_FLUSH_FORCE = 58
GPI_SERVICE_SET_DRAWABLE_REGION = 59
GPI_SERVICE_REMOVE_DRAWABLE_REGION = 60
GPI_SERVICE_DRAW_RECT = 67
GPI_SERVICE_FILL_RECT = 68
GPI_SERVICE_FILL_PATTERN_NOTICE = 69
GPI_SERVICE_PATTERN_RECT = 70
GPI_SERVICE_CHANGE_VIRTUAL_SURFACE = 119
GPI_SERVICE_LOAD_FONT = 13
GPI_SERVICE_SET_FONT_SIZE = 14
GPI_SERVICE_GET_FONT_SIZE = 15
GPI_SERVICE_SET_FONT_ATTRIBUTE = 16
GPI_SERVICE_GET_FONT_ATTRIBUTE = 17
GPI_SERVICE_SET_FONT_USER_ATTRIBUTE = 18
GPI_SERVICE_GET_FONT_USER_ATTRIBUTE = 19
GPI_SERVICE_GLYPH = 20
GPI_SERVICE_RELEASE_FONT = 21
GPI_SERVICE_GET_FONT_INFORMATION = 25
GPI_SERVICE_STRING_LENGTH = 36
GPI_SERVICE_PREVIOUS_CHAR = 37
GPI_SERVICE_NEXT_CHAR = 38
GPI_SERVICE_DRAW_STRING = 44
GPI_SERVICE_UNICODE_TO_MULTI_BYTE = 61
GPI_SERVICE_MULTI_BYTE_TO_UNICODE = 62
GPI_SERVICE_DRAW_CAPTION_LINE = 75
GPI_SERVICE_IS_LEAD_BYTE = 79
GPI_SERVICE_SET_GB_FONT_FLAG = 207
GPI_SERVICE_DESCRIBE = 23
GPI_SERVICE_COUNT_SURFACES = 24
GPI_SERVICE_COUNT_SIGNALS = 30
GPI_SERVICE_START_EVENT_SIGNAL = 26
GPI_SERVICE_SET_SYSTEM_TIME = 27
GPI_SERVICE_GET_SYSTEM_TIME = 28
GPI_SERVICE_START_EVENT_LOCK = 29
GPI_SERVICE_SIGNAL_EVENT = 31
GPI_SERVICE_EVENT_TAKEN = 32
GPI_SERVICE_WAIT_EVENT = 33
GPI_SERVICE_LOCK_EVENTS = 34
GPI_SERVICE_UNLOCK_EVENTS = 35
GPI_SERVICE_TIME = 76
GPI_SERVICE_BROKEN_DOWN_TIME = 77
GPI_SERVICE_NEXT_MESSAGE = 124
GPI_SERVICE_SET_MEMORY_SPACE = 39
GPI_SERVICE_DELETE_MEMORY_SPACE = 40
GPI_SERVICE_MEMORY_ALLOC = 41
GPI_SERVICE_MEMORY_FREE = 42
GPI_SERVICE_SET_MEMORY_MODE = 57
GPI_SERVICE_MEMORY_REALLOC = 66
GPI_SERVICE_BEGIN_RESET_MEMORY_SPACE = 80
GPI_SERVICE_END_RESET_MEMORY_SPACE = 81
GPI_SERVICE_CANCEL_RESET_MEMORY_SPACE = 82
GPI_SERVICE_LOAD_MODULE = 45
GPI_SERVICE_FREE_MODULE = 46
GPI_SERVICE_GET_MODULE_FUNCTION = 47
GPI_SERVICE_SEARCH = 78
GPI_SERVICE_EXECUTE = 117
GPI_SERVICE_EXIT = 118
GPI_SERVICE_LOAD_MODULE_EX = 128
GPI_SERVICE_OPEN_FILE = 48
GPI_SERVICE_CLOSE_FILE = 49
GPI_SERVICE_READ_FILE = 50
GPI_SERVICE_WRITE_FILE = 51
GPI_SERVICE_SEEK_FILE = 52
GPI_SERVICE_MAKE_PATH = 63
GPI_SERVICE_SPLIT_PATH = 64
GPI_SERVICE_READ_LINE = 65
GPI_SERVICE_GET_DIRECTORY = 71
GPI_SERVICE_READ_BYTE = 72
GPI_SERVICE_GET_JPEG_INFO = 73
GPI_SERVICE_LOAD_JPEG = 74
GPI_SERVICE_RENAME_FILE = 120
GPI_SERVICE_REMOVE_FILE = 121
GPI_SERVICE_GET_FILE_ACCESS = 122
GPI_SERVICE_GET_FILE_SIZE = 123
GPI_SERVICE_FLUSH_AND_CLOSE_FILE = 125
GPI_SERVICE_OPEN_DATA_FILE = 129
GPI_SERVICE_READ_DATA_FILE = 130
GPI_SERVICE_CLOSE_DATA_FILE = 131
GPI_SERVICE_SEEK_DATA_FILE = 132
GPI_SERVICE_GET_DATA_FILE_SIZE = 133
GPI_SERVICE_WRITE_DATA_FILE = 134
GPI_SERVICE_RENAME_DATA_FILE = 135
GPI_SERVICE_REMOVE_DATA_FILE = 136
GPI_SERVICE_CREATE_DATA_FILE = 137
GPI_SERVICE_GET_PROFILE_INT = 53
GPI_SERVICE_GET_PROFILE_STRING = 54
GPI_SERVICE_SET_PROFILE_STRING = 116
GPI_SERVICE_GET_PROFILE_INT_EX = 126
GPI_SERVICE_GET_PROFILE_STRING_EX = 127
GPI_SERVICE_CRACK_URL = 83
GPI_SERVICE_CREATE_URL = 84
GPI_SERVICE_CANONICALIZE_URL = 85
GPI_SERVICE_COMBINE_URL = 86
GPI_SERVICE_NET_OPEN = 87
GPI_SERVICE_NET_CLOSE_HANDLE = 88
GPI_SERVICE_NET_CONNECT = 89
GPI_SERVICE_NET_OPEN_URL = 90
GPI_SERVICE_NET_READ_FILE = 91
GPI_SERVICE_NET_SET_FILE_POINTER = 92
GPI_SERVICE_NET_WRITE_FILE = 93
GPI_SERVICE_NET_QUERY_DATA_AVAILABLE = 94
GPI_SERVICE_NET_FIND_NEXT_FILE = 95
GPI_SERVICE_NET_QUERY_OPTION = 96
GPI_SERVICE_NET_SET_OPTION = 97
GPI_SERVICE_NET_LOCK_REQUEST_FILE = 98
GPI_SERVICE_NET_UNLOCK_REQUEST_FILE = 99
GPI_SERVICE_HTTP_OPEN_REQUEST = 100
GPI_SERVICE_HTTP_ADD_REQUEST_HEADERS = 101
GPI_SERVICE_HTTP_SEND_REQUEST = 102
GPI_SERVICE_HTTP_END_REQUEST = 103
GPI_SERVICE_HTTP_QUERY_INFO = 104
GPI_SERVICE_FTP_FIND_FIRST_FILE = 105
GPI_SERVICE_FTP_GET_FILE = 106
GPI_SERVICE_FTP_PUT_FILE = 107
GPI_SERVICE_FTP_DELETE_FILE = 108
GPI_SERVICE_FTP_RENAME_FILE = 109
GPI_SERVICE_FTP_OPEN_FILE = 110
GPI_SERVICE_FTP_CREATE_DIRECTORY = 111
GPI_SERVICE_FTP_REMOVE_DIRECTORY = 112
GPI_SERVICE_FTP_SET_CURRENT_DIRECTORY = 113
GPI_SERVICE_FTP_GET_CURRENT_DIRECTORY = 114
GPI_SERVICE_NET_GET_LAST_ERROR = 115
GPI_SERVICE_SET_NC_VALUE = 200
GPI_SERVICE_GET_NC_VALUE = 201
GPI_SERVICE_SET_NC_STRING = 202
GPI_SERVICE_GET_NC_STRING = 203
GPI_SERVICE_IS_NC_VALUE_UNSET = 204
GPI_SERVICE_SET_NC_SYSTEM_VALUE = 205
GPI_SERVICE_GET_NC_SYSTEM_VALUE = 206
GPI_KEY_CANCEL = 3
GPI_KEY_BACKSPACE = 8
GPI_KEY_TAB = 9
GPI_KEY_CLEAR = 12
GPI_KEY_ENTER = 13
GPI_KEY_SHIFT = 16
GPI_KEY_CONTROL = 17
GPI_KEY_ALT = 18
GPI_KEY_PAUSE = 19
GPI_KEY_CAPS_LOCK = 20
GPI_KEY_ESCAPE = 27
GPI_KEY_SPACE = 32
GPI_KEY_PAGE_UP = 33
GPI_KEY_PAGE_DOWN = 34
GPI_KEY_END = 35
GPI_KEY_HOME = 36
GPI_KEY_LEFT = 37
GPI_KEY_UP = 38
GPI_KEY_RIGHT = 39
GPI_KEY_DOWN = 40
GPI_KEY_SELECT = 41
GPI_KEY_EXECUTE = 43
GPI_KEY_PRINT = 44
GPI_KEY_INSERT = 45
GPI_KEY_DELETE = 46
GPI_KEY_HELP = 47
GPI_KEY_LEFT_SYSTEM = 91
GPI_KEY_RIGHT_SYSTEM = 92
GPI_KEY_MENU = 93
GPI_KEY_PAD_0 = 96
GPI_KEY_PAD_9 = 105
GPI_KEY_PAD_MULTIPLY = 106
GPI_KEY_PAD_ADD = 107
GPI_KEY_PAD_SEPARATOR = 108
GPI_KEY_PAD_SUBTRACT = 109
GPI_KEY_PAD_DECIMAL = 110
GPI_KEY_PAD_DIVIDE = 111
GPI_KEY_F1 = 112
GPI_KEY_F24 = 135
GPI_KEY_NUM_LOCK = 144
GPI_KEY_SCROLL_LOCK = 145
GPI_KEY_SEMICOLON = 186
GPI_KEY_EQUALS = 187
GPI_KEY_COMMA = 188
GPI_KEY_MINUS = 189
GPI_KEY_PERIOD = 190
GPI_KEY_SLASH = 191
GPI_KEY_GRAVE = 192
GPI_KEY_LEFT_BRACKET = 219
GPI_KEY_BACKSLASH = 220
GPI_KEY_RIGHT_BRACKET = 221
GPI_KEY_APOSTROPHE = 222
GPI_KEY_102ND = 226
GPI_KEY_COUNT = 65535
GPI_KEY_PLACE = 16711680
GPI_KEY_EXTENDED = 16777216
GPI_KEY_ALT_HELD = 536870912
GPI_KEY_WAS_DOWN = 1073741824
GPI_POINTER_LEFT = 1
GPI_POINTER_RIGHT = 2
GPI_POINTER_SHIFT = 4
GPI_POINTER_CONTROL = 8
GPI_NC_ALARM_PROGRAM = 100
GPI_NC_ALARM_LIMIT = 200
GPI_NC_ALARM_CONTROL = 300
GPI_NC_ALARM_CONTROL_LOST = 301
GPI_NC_MODAL_MOTION = 0
GPI_NC_MODAL_PLANE = 1
GPI_NC_MODAL_DISTANCE = 2
GPI_NC_MODAL_FEED = 3
GPI_NC_MODAL_UNITS = 4
GPI_NC_MODAL_RADIUS = 5
GPI_NC_MODAL_LENGTH = 6
GPI_NC_MODAL_WORK_OFFSET = 7
GPI_NC_MODAL_RETRACT = 8
GPI_NC_MODAL_PATH_CONTROL = 9
GPI_NC_MODAL_GROUPS = 10
GPI_NC_MACRO_LOCAL_FIRST = 1
GPI_NC_MACRO_LOCAL_LAST = 33
GPI_NC_MACRO_COMMON_FIRST = 100
GPI_NC_MACRO_COMMON_LAST = 199
GPI_NC_MACRO_KEPT_FIRST = 500
GPI_NC_MACRO_KEPT_LAST = 999
GPI_NC_CHANNELS = 1
GPI_NC_WORK_OFFSETS = 7
GPI_NC_MOST_ALARMS = 32
GPI_NC_LONGEST_BLOCK = 255


class GPoint(ctypes.Structure):
    """See `man GPoint`."""


class GRect(ctypes.Structure):
    """See `man GRect`."""


class GLine(ctypes.Structure):
    """See `man GLine`."""


class GPoly(ctypes.Structure):
    """See `man GPoly`."""


class GSize(ctypes.Structure):
    """See `man GSize`."""


class GFile(ctypes.Structure):
    """See `man GFile`."""


class GDirectoryEntry(ctypes.Structure):
    """See `man GDirectoryEntry`."""


class GJpegInfo(ctypes.Structure):
    """See `man GJpegInfo`."""


class GDataFile(ctypes.Structure):
    """See `man GDataFile`."""


class GDirtyRectList(ctypes.Structure):
    """See `man GDirtyRectList`."""


class GBorderStyle(ctypes.Structure):
    """See `man GBorderStyle`."""


class GEventMsg(ctypes.Structure):
    """See `man GEventMsg`."""


class GMessage(ctypes.Structure):
    """See `man GMessage`."""


class GFontScale(ctypes.Structure):
    """See `man GFontScale`."""


class GFontRecord(ctypes.Structure):
    """See `man GFontRecord`."""


class GFontAttribute(ctypes.Structure):
    """See `man GFontAttribute`."""


class GSimpleFont(ctypes.Structure):
    """See `man GSimpleFont`."""


class GFontUserAttribute(ctypes.Structure):
    """See `man GFontUserAttribute`."""


class GFontInformation(ctypes.Structure):
    """See `man GFontInformation`."""


class GGlyphRequest(ctypes.Structure):
    """See `man GGlyphRequest`."""


class GPixelOps(ctypes.Structure):
    """See `man GPixelOps`."""


class GVram(ctypes.Structure):
    """See `man GVram`."""


class GBrush(ctypes.Structure):
    """See `man GBrush`."""


class GGradationInfo(ctypes.Structure):
    """See `man GGradationInfo`."""


class GPolygonState(ctypes.Structure):
    """See `man GPolygonState`."""


class GWideLineState(ctypes.Structure):
    """See `man GWideLineState`."""


class GEllipseState(ctypes.Structure):
    """See `man GEllipseState`."""


class GArcState(ctypes.Structure):
    """See `man GArcState`."""


class GDrawHandle(ctypes.Structure):
    """See `man GDrawHandle`."""


class GGrfPalette(ctypes.Structure):
    """See `man GGrfPalette`."""


class GGrfImage(ctypes.Structure):
    """See `man GGrfImage`."""


class GModule(ctypes.Structure):
    """See `man GModule`."""


class GNetHandle(ctypes.Structure):
    """See `man GNetHandle`."""


class GNetLock(ctypes.Structure):
    """See `man GNetLock`."""


class GNetUrl(ctypes.Structure):
    """See `man GNetUrl`."""


class GNetFileInfo(ctypes.Structure):
    """See `man GNetFileInfo`."""


class GCaptionAttr(ctypes.Structure):
    """See `man GCaptionAttr`."""


class GCaptionCursor(ctypes.Structure):
    """See `man GCaptionCursor`."""


class GCaptionSelect(ctypes.Structure):
    """See `man GCaptionSelect`."""


class GSystemTime(ctypes.Structure):
    """See `man GSystemTime`."""


class GBrokenDownTime(ctypes.Structure):
    """See `man GBrokenDownTime`."""


class GGrfRun(ctypes.Structure):
    """See `man GGrfRun`."""


class GGrfFile(ctypes.Structure):
    """See `man GGrfFile`."""


GModuleFunction = ctypes.CFUNCTYPE(None)
GUBCompare = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)
GPIFunction = ctypes.CFUNCTYPE(None)
GPIHostMessageHandler = ctypes.CFUNCTYPE(None, ctypes.c_void_p, P(GMessage))

GPoint._fields_ = [
    ("x", ctypes.c_int16),
    ("y", ctypes.c_int16),
]

GRect._fields_ = [
    ("left", ctypes.c_int16),
    ("top", ctypes.c_int16),
    ("right", ctypes.c_int16),
    ("bottom", ctypes.c_int16),
]

GLine._fields_ = [
    ("x1", ctypes.c_int16),
    ("y1", ctypes.c_int16),
    ("x2", ctypes.c_int16),
    ("y2", ctypes.c_int16),
]

GPoly._fields_ = [
    ("count", ctypes.c_int16),
    ("points", P(GPoint)),
    ("bounds", GRect),
]

GSize._fields_ = [
    ("width", ctypes.c_int16),
    ("height", ctypes.c_int16),
]

GDirectoryEntry._fields_ = [
    ("name", ctypes.c_uint16 * 256),
    ("size", ctypes.c_uint32),
    ("attributes", ctypes.c_uint32),
    ("time", ctypes.c_uint32),
]

GJpegInfo._fields_ = [
    ("width", ctypes.c_int32),
    ("height", ctypes.c_int32),
    ("components", ctypes.c_int32),
]

GDirtyRectList._fields_ = [
    ("rects", GRect * 6),
    ("areas", ctypes.c_int32 * 6),
    ("count", ctypes.c_int32),
    ("drawForce", ctypes.c_int32 * 6),
]

GBorderStyle._fields_ = [
    ("enabled", ctypes.c_int32),
    ("colorA", ctypes.c_uint32),
    ("colorB", ctypes.c_uint32),
    ("frameColor", ctypes.c_uint32),
    ("width", ctypes.c_int32),
]

GEventMsg._fields_ = [
    ("type", ctypes.c_uint16),
    ("target", ctypes.c_uint32),
    ("param1", ctypes.c_uint32),
    ("param2", ctypes.c_uint32),
    ("reserved", ctypes.c_uint32 * 2),
]

GMessage._fields_ = [
    ("window", ctypes.c_void_p),
    ("number", ctypes.c_uint32),
    ("param1", ctypes.c_size_t),
    ("param2", ctypes.c_size_t),
    ("time", ctypes.c_uint32),
    ("x", ctypes.c_int32),
    ("y", ctypes.c_int32),
]

GFontScale._fields_ = [
    ("reserved", ctypes.c_uint8 * 16),
    ("magnifyX", ctypes.c_uint8),
    ("magnifyY", ctypes.c_uint8),
]

GFontRecord._fields_ = [
    ("reserved", ctypes.c_uint16),
    ("kind", ctypes.c_uint16),
    ("scale", P(GFontScale)),
]

GFontAttribute._fields_ = [
    ("height", ctypes.c_uint16),
    ("wideWidth", ctypes.c_uint16),
    ("bitsPerPixel", ctypes.c_uint16),
    ("bold", ctypes.c_uint16),
    ("reserved1", ctypes.c_uint16 * 4),
    ("magnification", ctypes.c_uint16),
    ("reserved2", ctypes.c_uint16),
]

GSimpleFont._fields_ = [
    ("face", ctypes.c_uint16 * 33),
    ("size", ctypes.c_uint8),
    ("magnifyX", ctypes.c_uint8),
    ("magnifyY", ctypes.c_uint8),
    ("bitsPerPixel", ctypes.c_uint8),
    ("flags", ctypes.c_uint8),
]

GFontUserAttribute._fields_ = [
    ("substitute", ctypes.c_uint16),
    ("reserved", ctypes.c_uint16),
    ("data", ctypes.c_size_t),
]

GFontInformation._fields_ = [
    ("face", ctypes.c_uint16 * 33),
    ("flags", ctypes.c_uint16),
    ("width", ctypes.c_int16),
    ("height", ctypes.c_int16),
    ("ascent", ctypes.c_int16),
    ("bitsPerPixel", ctypes.c_uint16),
    ("cachedGlyphs", ctypes.c_uint32),
    ("cachedBytes", ctypes.c_uint32),
]

GGlyphRequest._fields_ = [
    ("text", P(ctypes.c_uint16)),
    ("next", P(ctypes.c_uint16)),
    ("width", ctypes.c_int16),
    ("height", ctypes.c_int16),
    ("bitsPerPixel", ctypes.c_int16),
    ("bits", P(ctypes.c_uint8)),
    ("metricsOnly", ctypes.c_uint16),
]

GPixelOps._fields_ = [
    ("setPixel", ctypes.CFUNCTYPE(ctypes.c_int32, P(GDrawHandle), P(GVram), ctypes.c_int16,
    ctypes.c_int16, ctypes.c_uint32, ctypes.c_int32)),
    ("span", ctypes.CFUNCTYPE(ctypes.c_int32, P(GDrawHandle), P(GVram), ctypes.c_int16,
    ctypes.c_int16, ctypes.c_uint32, ctypes.c_int32, ctypes.c_int16)),
    ("nextPixel", ctypes.CFUNCTYPE(ctypes.c_int32)),
    ("unused", ctypes.CFUNCTYPE(None)),
    ("readPixel", ctypes.CFUNCTYPE(ctypes.c_uint32, P(GDrawHandle), P(GVram), ctypes.c_int16,
    ctypes.c_int16)),
    ("coveragePixel", ctypes.CFUNCTYPE(ctypes.c_int32, P(GDrawHandle), P(GVram), ctypes.c_int16,
    ctypes.c_int16, ctypes.c_uint32, ctypes.c_int32, ctypes.c_int32)),
    ("drawRect", ctypes.CFUNCTYPE(ctypes.c_int32, P(GDrawHandle), P(GVram), P(GRect),
    ctypes.c_uint32, ctypes.c_int32)),
    ("fillRect", ctypes.CFUNCTYPE(ctypes.c_int32, P(GDrawHandle), P(GVram), P(GRect),
    ctypes.c_uint32, ctypes.c_int32)),
    ("patternRect", ctypes.CFUNCTYPE(ctypes.c_int32, P(GDrawHandle), P(GVram), P(GRect),
    ctypes.c_uint32, ctypes.c_uint32, ctypes.c_int32, P(ctypes.c_uint8))),
]

GVram._fields_ = [
    ("id", ctypes.c_int16),
    ("width", ctypes.c_int16),
    ("height", ctypes.c_int16),
    ("bitsPerPixel", ctypes.c_int16),
    ("bytesPerLine", ctypes.c_int16),
    ("pixels", P(ctypes.c_uint8)),
    ("reserved", ctypes.c_uint32),
    ("colorType", ctypes.c_int8),
    ("redMask", ctypes.c_uint32),
    ("greenMask", ctypes.c_uint32),
    ("blueMask", ctypes.c_uint32),
    ("paletteCount", ctypes.c_uint16),
    ("palette", P(ctypes.c_uint32)),
    ("bounds", GRect),
    ("drawable", P(GRect)),
]

GBrush._fields_ = [
    ("pattern", ctypes.c_int32),
    ("fore", ctypes.c_uint32),
    ("back", ctypes.c_uint32),
]

GGradationInfo._fields_ = [
    ("direction", ctypes.c_uint8),
    ("startColor", ctypes.c_uint32),
    ("endColor", ctypes.c_uint32),
    ("lead", ctypes.c_uint16),
    ("steps", ctypes.c_uint16),
]

GPolygonState._fields_ = [
    ("pending", ctypes.c_void_p),
    ("active", ctypes.c_void_p),
    ("edges", ctypes.c_void_p),
    ("pattern", ctypes.c_int16),
    ("mode", ctypes.c_uint16),
    ("fore", ctypes.c_uint32),
    ("back", ctypes.c_uint32),
    ("rows", P(ctypes.c_uint8)),
]

GWideLineState._fields_ = [
    ("corners", GPoint * 4),
    ("end", GPoint),
    ("previous", GPoint * 2),
]

GEllipseState._fields_ = [
    ("fore", ctypes.c_uint32),
    ("back", ctypes.c_uint32),
    ("mode", ctypes.c_uint16),
    ("rows", P(ctypes.c_uint8)),
    ("leftCentre", ctypes.c_int16),
    ("rightCentre", ctypes.c_int16),
    ("topCentre", ctypes.c_int16),
    ("bottomCentre", ctypes.c_int16),
]

GArcState._fields_ = [
    ("start", GPoint),
    ("end", GPoint),
    ("inverseSlope", ctypes.c_int32),
]

GDrawHandle._fields_ = [
    ("view", GRect),
    ("localOrigin", GPoint),
    ("virtualRect", GRect),
    ("penPos", GPoint),
    ("penPixel", ctypes.c_uint32),
    ("penWidth", ctypes.c_int16),
    ("penHeight", ctypes.c_int16),
    ("penJoin", ctypes.c_uint16),
    ("penDash", ctypes.c_int16),
    ("dashPhase", ctypes.c_int16),
    ("textMode", ctypes.c_int16),
    ("forePixel", ctypes.c_uint32),
    ("backPixel", ctypes.c_uint32),
    ("fillPattern", ctypes.c_int16),
    ("modeFlags", ctypes.c_uint16),
    ("drawingMode", ctypes.c_int16),
    ("display", P(GVram)),
    ("target", P(GVram)),
    ("font", P(GFontRecord)),
    ("pixelOps", P(GPixelOps)),
    ("dashes", (ctypes.c_uint8 * 8) * 8),
    ("fillPatterns", (ctypes.c_uint8 * 8) * 38),
    ("polygon", GPolygonState),
    ("wideLine", GWideLineState),
    ("ellipse", GEllipseState),
    ("arc", GArcState),
    ("error", ctypes.c_uint16),
    ("gradation", GGradationInfo),
    ("colorMode", ctypes.c_uint8),
    ("modeRedMask", ctypes.c_uint32),
    ("modeGreenMask", ctypes.c_uint32),
    ("modeBlueMask", ctypes.c_uint32),
    ("redShift", ctypes.c_int8),
    ("greenShift", ctypes.c_int8),
    ("blueShift", ctypes.c_int8),
    ("foreColor", ctypes.c_uint32),
    ("backColor", ctypes.c_uint32),
    ("penColor", ctypes.c_uint32),
    ("openArg2", ctypes.c_size_t),
    ("openArg1", ctypes.c_size_t),
]

GGrfPalette._fields_ = [
    ("count", ctypes.c_uint32),
    ("colors", P(ctypes.c_uint32)),
]

GGrfImage._fields_ = [
    ("type", ctypes.c_uint16),
    ("width", ctypes.c_int16),
    ("height", ctypes.c_int16),
    ("bits", ctypes.c_int16),
    ("size", ctypes.c_uint32),
    ("data", P(ctypes.c_uint8)),
    ("palette", P(GGrfPalette)),
]

GNetUrl._fields_ = [
    ("protocol", ctypes.c_int32),
    ("port", ctypes.c_int32),
    ("user", ctypes.c_uint16 * 256),
    ("password", ctypes.c_uint16 * 256),
    ("host", ctypes.c_uint16 * 256),
    ("path", ctypes.c_uint16 * 2048),
    ("extra", ctypes.c_uint16 * 256),
]

GNetFileInfo._fields_ = [
    ("name", ctypes.c_uint16 * 256),
    ("sizeLow", ctypes.c_uint32),
    ("sizeHigh", ctypes.c_uint32),
    ("attributes", ctypes.c_uint32),
    ("time", ctypes.c_uint32),
]

GCaptionAttr._fields_ = [
    ("color", ctypes.c_uint32),
    ("horizontal", ctypes.c_uint8),
    ("vertical", ctypes.c_uint8),
    ("leftMargin", ctypes.c_int16),
    ("rightMargin", ctypes.c_int16),
    ("topMargin", ctypes.c_int16),
    ("bottomMargin", ctypes.c_int16),
]

GCaptionCursor._fields_ = [
    ("style", ctypes.c_uint8),
    ("color", ctypes.c_uint32),
]

GCaptionSelect._fields_ = [
    ("shown", ctypes.c_uint8),
    ("first", ctypes.c_uint16),
    ("last", ctypes.c_uint16),
    ("color", ctypes.c_uint32),
]

GSystemTime._fields_ = [
    ("low", ctypes.c_uint32),
    ("high", ctypes.c_int32),
]

GBrokenDownTime._fields_ = [
    ("second", ctypes.c_int32),
    ("minute", ctypes.c_int32),
    ("hour", ctypes.c_int32),
    ("day", ctypes.c_int32),
    ("month", ctypes.c_int32),
    ("year", ctypes.c_int32),
    ("weekday", ctypes.c_int32),
]

GGrfRun._fields_ = [
    ("kind", ctypes.c_int32),
    ("count", ctypes.c_int32),
    ("units", ctypes.c_size_t),
    ("next", ctypes.c_size_t),
]

GGrfFile._fields_ = [
    ("image", GGrfImage),
    ("palette", GGrfPalette),
    ("redMask", ctypes.c_uint32),
    ("greenMask", ctypes.c_uint32),
    ("blueMask", ctypes.c_uint32),
    ("colors", ctypes.c_uint32 * 256),
]

GAppExecute = bind(
    "int32_t GAppExecute(const char16_t* program, const char16_t* arguments, const char16_t* "
    "directory, uint32_t flags, int32_t* result)",
    ctypes.c_int32, Text, Text, Text, Unsigned32, P(ctypes.c_int32),
)
GAppExit = bind(
    "int32_t GAppExit(int32_t number)",
    ctypes.c_int32, Signed32,
)
GDSetLocalMode = bind(
    "void GDSetLocalMode(GDrawHandle* handle)",
    None, Handle,
)
GDSetVirtualMode = bind(
    "void GDSetVirtualMode(GDrawHandle* handle)",
    None, Handle,
)
GDSetVirtualRect = bind(
    "void GDSetVirtualRect(GDrawHandle* handle, const GRect* rect)",
    None, Handle, P(GRect),
)
GDSetLocalOrigin = bind(
    "void GDSetLocalOrigin(GDrawHandle* handle, const GPoint* origin)",
    None, Handle, P(GPoint),
)
GDGetLocalOrigin = bind(
    "void GDGetLocalOrigin(const GDrawHandle* handle, GPoint* origin)",
    None, Handle, P(GPoint),
)
GDOffsetLocalOrigin = bind(
    "void GDOffsetLocalOrigin(GDrawHandle* handle, const GPoint* delta)",
    None, Handle, P(GPoint),
)
GDSetClipRect = bind(
    "int32_t GDSetClipRect(GDrawHandle* handle, const GRect* rect)",
    ctypes.c_int32, Handle, P(GRect),
)
GDGetClipRect = bind(
    "void GDGetClipRect(const GDrawHandle* handle, GRect* rect)",
    None, Handle, P(GRect),
)
GDInceptClipRect = bind(
    "int32_t GDInceptClipRect(GDrawHandle* handle, const GRect* rect, GRect* previous)",
    ctypes.c_int32, Handle, P(GRect), P(GRect),
)
GDPushClipRect = bind(
    "int32_t GDPushClipRect(GDrawHandle* handle, const GRect* rect)",
    ctypes.c_int32, Handle, P(GRect),
)
GDPopClipRect = bind(
    "int32_t GDPopClipRect(GDrawHandle* handle)",
    ctypes.c_int32, Handle,
)
GDInitBackupClipBuf = bind(
    "void GDInitBackupClipBuf(void)",
    None,
)
GDSetDrawableRegion = bind(
    "int32_t GDSetDrawableRegion(GDrawHandle* handle, const GRect* region)",
    ctypes.c_int32, Handle, P(GRect),
)
GDRemoveDrawableRegion = bind(
    "int32_t GDRemoveDrawableRegion(GDrawHandle* handle, const GRect* region)",
    ctypes.c_int32, Handle, P(GRect),
)
GDSetZoomScale = bind(
    "GWord GDSetZoomScale(GDrawHandle* handle, int32_t x, int32_t y)",
    ctypes.c_size_t, Handle, Signed32, Signed32,
)
GDSetScrollPos = bind(
    "GWord GDSetScrollPos(GDrawHandle* handle, int32_t x, int32_t y)",
    ctypes.c_size_t, Handle, Signed32, Signed32,
)
GDGetStringLength = bind(
    "int32_t GDGetStringLength(const char16_t* text, int32_t limit)",
    ctypes.c_int32, Text, Signed32,
)
GDGetPrevChar = bind(
    "const char16_t* GDGetPrevChar(const char16_t* text, const char16_t* position, uint32_t* "
    "character)",
    P(ctypes.c_uint16), Text, Text, P(ctypes.c_uint32),
)
GDGetNextChar = bind(
    "const char16_t* GDGetNextChar(const char16_t* position, const char16_t* end, uint32_t* "
    "character)",
    P(ctypes.c_uint16), Text, Text, P(ctypes.c_uint32),
)
GRCUnicodeToMultiByte = bind(
    "int32_t GRCUnicodeToMultiByte(const char16_t* text, int32_t units, char* out, int32_t size)",
    ctypes.c_int32, Text, Signed32, P(ctypes.c_char), Signed32,
)
GRCMultiByteToUnicode = bind(
    "int32_t GRCMultiByteToUnicode(const char* text, int32_t bytes, char16_t* out, int32_t units)",
    ctypes.c_int32, ctypes.c_char_p, Signed32, P(ctypes.c_uint16), Signed32,
)
GRCIsLeadByte = bind(
    "int32_t GRCIsLeadByte(uint8_t byte, int32_t codePage)",
    ctypes.c_int32, Unsigned8, Signed32,
)
GIOOpen = bind(
    "GFile* GIOOpen(const char16_t* path, uint32_t mode, int32_t* error)",
    P(GFile), Text, Unsigned32, P(ctypes.c_int32),
)
GIOClose = bind(
    "int32_t GIOClose(GFile* file)",
    ctypes.c_int32, P(GFile),
)
GIOFClose = bind(
    "int32_t GIOFClose(GFile* file)",
    ctypes.c_int32, P(GFile),
)
GIORead = bind(
    "int32_t GIORead(GFile* file, void* buffer, int32_t size, int32_t* done)",
    ctypes.c_int32, P(GFile), Address, Signed32, P(ctypes.c_int32),
)
GIOWrite = bind(
    "int32_t GIOWrite(GFile* file, const void* buffer, int32_t size, int32_t* done)",
    ctypes.c_int32, P(GFile), Address, Signed32, P(ctypes.c_int32),
)
GIOSeek = bind(
    "int32_t GIOSeek(GFile* file, int32_t offset, int32_t origin)",
    ctypes.c_int32, P(GFile), Signed32, Signed32,
)
GIOGets = bind(
    "int32_t GIOGets(GFile* file, char* line, int32_t size)",
    ctypes.c_int32, P(GFile), P(ctypes.c_char), Signed32,
)
GIOGetc = bind(
    "int32_t GIOGetc(GFile* file)",
    ctypes.c_int32, P(GFile),
)
GIORename = bind(
    "int32_t GIORename(const char16_t* from, const char16_t* to, uint32_t flags)",
    ctypes.c_int32, Text, Text, Unsigned32,
)
GIORemove = bind(
    "int32_t GIORemove(const char16_t* path, uint32_t flags)",
    ctypes.c_int32, Text, Unsigned32,
)
GIOGetFileAccess = bind(
    "int32_t GIOGetFileAccess(const char16_t* path, uint32_t wanted, uint32_t* attributes)",
    ctypes.c_int32, Text, Unsigned32, P(ctypes.c_uint32),
)
GIOGetFileSize = bind(
    "int32_t GIOGetFileSize(const char16_t* path, int32_t* size)",
    ctypes.c_int32, Text, P(ctypes.c_int32),
)
GIOGetDirectory = bind(
    "int32_t GIOGetDirectory(const char16_t* path, GDirectoryEntry* entries, int32_t count)",
    ctypes.c_int32, Text, P(GDirectoryEntry), Signed32,
)
GIOMakePath = bind(
    "int32_t GIOMakePath(char16_t* path, const char16_t* drive, const char16_t* directory, const "
    "char16_t* name, const char16_t* extension)",
    ctypes.c_int32, P(ctypes.c_uint16), Text, Text, Text, Text,
)
GIOSplitPath = bind(
    "int32_t GIOSplitPath(const char16_t* path, char16_t* drive, char16_t* directory, char16_t* "
    "name, char16_t* extension)",
    ctypes.c_int32, Text, P(ctypes.c_uint16), P(ctypes.c_uint16), P(ctypes.c_uint16),
    P(ctypes.c_uint16),
)
GIOJpegGetInfo = bind(
    "int32_t GIOJpegGetInfo(const char16_t* path, int32_t scale, GJpegInfo* info)",
    ctypes.c_int32, Text, Signed32, P(GJpegInfo),
)
GIOJpegLoad = bind(
    "int32_t GIOJpegLoad(const char16_t* path, int32_t scale, GVram* surface)",
    ctypes.c_int32, Text, Signed32, P(GVram),
)
GIODSOpen = bind(
    "GDataFile* GIODSOpen(const char16_t* path, uint32_t mode, int32_t wait, int32_t* error)",
    P(GDataFile), Text, Unsigned32, Signed32, P(ctypes.c_int32),
)
GIODSCreateFile = bind(
    "GDataFile* GIODSCreateFile(const char16_t* path, int32_t size, uint32_t mode, int32_t* "
    "error)",
    P(GDataFile), Text, Signed32, Unsigned32, P(ctypes.c_int32),
)
GIODSClose = bind(
    "int32_t GIODSClose(GDataFile* file)",
    ctypes.c_int32, P(GDataFile),
)
GIODSRead = bind(
    "int32_t GIODSRead(GDataFile* file, void* buffer, int32_t size, int32_t* done)",
    ctypes.c_int32, P(GDataFile), Address, Signed32, P(ctypes.c_int32),
)
GIODSWrite = bind(
    "int32_t GIODSWrite(GDataFile* file, const void* buffer, int32_t size, int32_t* done)",
    ctypes.c_int32, P(GDataFile), Address, Signed32, P(ctypes.c_int32),
)
GIODSSeek = bind(
    "int32_t GIODSSeek(GDataFile* file, int32_t offset, int32_t origin)",
    ctypes.c_int32, P(GDataFile), Signed32, Signed32,
)
GIODSGetFileSize = bind(
    "int32_t GIODSGetFileSize(const char16_t* path, uint32_t* low, uint32_t* high, int32_t* "
    "error)",
    ctypes.c_int32, Text, P(ctypes.c_uint32), P(ctypes.c_uint32), P(ctypes.c_int32),
)
GIODSRename = bind(
    "int32_t GIODSRename(const char16_t* from, const char16_t* to, uint32_t flags)",
    ctypes.c_int32, Text, Text, Unsigned32,
)
GIODSRemove = bind(
    "int32_t GIODSRemove(const char16_t* path, uint32_t flags)",
    ctypes.c_int32, Text, Unsigned32,
)
GDRAddDirtyRect = bind(
    "void GDRAddDirtyRect(GDirtyRectList* list, const GRect* rect, uint32_t drawForce)",
    None, P(GDirtyRectList), P(GRect), Unsigned32,
)
GDRRefreshDirtyRect = bind(
    "void GDRRefreshDirtyRect(GDirtyRectList* list)",
    None, P(GDirtyRectList),
)
GDRClearDirtyRect = bind(
    "void GDRClearDirtyRect(GDirtyRectList* list)",
    None, P(GDirtyRectList),
)
GDRGetDirtyRectNum = bind(
    "int32_t GDRGetDirtyRectNum(const GDirtyRectList* list)",
    ctypes.c_int32, P(GDirtyRectList),
)
GDRGetDirtyRect = bind(
    "GRect* GDRGetDirtyRect(GDirtyRectList* list)",
    P(GRect), P(GDirtyRectList),
)
GDRGetDrawForce = bind(
    "int32_t* GDRGetDrawForce(GDirtyRectList* list)",
    P(ctypes.c_int32), P(GDirtyRectList),
)
GDRDuplicateDirtyRect = bind(
    "void GDRDuplicateDirtyRect(const GDirtyRectList* source, GDirtyRectList* destination)",
    None, P(GDirtyRectList), P(GDirtyRectList),
)
GDSetPixel = bind(
    "int32_t GDSetPixel(GDrawHandle* handle, int16_t x, int16_t y)",
    ctypes.c_int32, Handle, Signed16, Signed16,
)
GDGetPixel = bind(
    "uint32_t GDGetPixel(GDrawHandle* handle, int16_t x, int16_t y)",
    ctypes.c_uint32, Handle, Signed16, Signed16,
)
GDMoveTo = bind(
    "void GDMoveTo(GDrawHandle* handle, int16_t x, int16_t y)",
    None, Handle, Signed16, Signed16,
)
GDLineTo = bind(
    "void GDLineTo(GDrawHandle* handle, int16_t x, int16_t y)",
    None, Handle, Signed16, Signed16,
)
GDDrawLine = bind(
    "int32_t GDDrawLine(GDrawHandle* handle, GLine* line)",
    ctypes.c_int32, Handle, P(GLine),
)
GDDrawRect = bind(
    "void GDDrawRect(GDrawHandle* handle, const GRect* rect)",
    None, Handle, P(GRect),
)
GDDrawRectBorder = bind(
    "void GDDrawRectBorder(GDrawHandle* handle, const GRect* rect, GRect* inner, const "
    "GBorderStyle* border, uint16_t style)",
    None, Handle, P(GRect), P(GRect), P(GBorderStyle), Unsigned16,
)
GDCalcBorderRect = bind(
    "void GDCalcBorderRect(const GRect* rect, GRect* inner, GRect* outer, const GBorderStyle* "
    "border)",
    None, P(GRect), P(GRect), P(GRect), P(GBorderStyle),
)
GDDrawPoly = bind(
    "void GDDrawPoly(GDrawHandle* handle, GPoly* poly)",
    None, Handle, P(GPoly),
)
GDDrawOval = bind(
    "void GDDrawOval(GDrawHandle* handle, const GRect* rect)",
    None, Handle, P(GRect),
)
GDDrawOvalBorder = bind(
    "void GDDrawOvalBorder(GDrawHandle* handle, const GRect* rect, GRect* inner, const "
    "GBorderStyle* border, int16_t pressed)",
    None, Handle, P(GRect), P(GRect), P(GBorderStyle), Signed16,
)
GDDrawRRect = bind(
    "void GDDrawRRect(GDrawHandle* handle, const GRect* rect, int16_t rx, int16_t ry)",
    None, Handle, P(GRect), Signed16, Signed16,
)
GDDrawArc = bind(
    "void GDDrawArc(GDrawHandle* handle, const GRect* rect, int16_t startAngle, int16_t endAngle)",
    None, Handle, P(GRect), Signed16, Signed16,
)
GDDrawPie = bind(
    "void GDDrawPie(GDrawHandle* handle, const GRect* rect, int16_t startAngle, int16_t endAngle)",
    None, Handle, P(GRect), Signed16, Signed16,
)
GDDrawBezier = bind(
    "void GDDrawBezier(GDrawHandle* handle, const GPoly* poly)",
    None, Handle, P(GPoly),
)
GEInitEvent = bind(
    "int32_t GEInitEvent(void)",
    ctypes.c_int32,
)
GEQuitEvent = bind(
    "void GEQuitEvent(void)",
    None,
)
GECreateEventMessage = bind(
    "GEventMsg* GECreateEventMessage(GEventMsg* event, uint16_t type, uint32_t target, uint32_t "
    "param1, uint32_t param2)",
    P(GEventMsg), P(GEventMsg), Unsigned16, Unsigned32, Unsigned32, Unsigned32,
)
GESetEvent = bind(
    "uint16_t GESetEvent(GEventMsg event, uint16_t unique)",
    ctypes.c_uint16, GEventMsg, Unsigned16,
)
GEGetEvent = bind(
    "int32_t GEGetEvent(GEventMsg* event, int32_t wait)",
    ctypes.c_int32, P(GEventMsg), Signed32,
)
GEClearTargetEvent = bind(
    "void GEClearTargetEvent(uint32_t target)",
    None, Unsigned32,
)
GEClearTimerEvent = bind(
    "void GEClearTimerEvent(uint32_t target, uint16_t id)",
    None, Unsigned32, Unsigned16,
)
GEClearWindowsEvent = bind(
    "int32_t GEClearWindowsEvent(void)",
    ctypes.c_int32,
)
GESetForceEventFlag = bind(
    "void GESetForceEventFlag(int16_t flag)",
    None, Signed16,
)
GFLoadFont = bind(
    "GFontRecord* GFLoadFont(const char16_t* face)",
    P(GFontRecord), Text,
)
GFReleaseFont = bind(
    "void GFReleaseFont(GFontRecord* font)",
    None, P(GFontRecord),
)
GFSetSize = bind(
    "int32_t GFSetSize(GFontRecord* font, int16_t width, int16_t height)",
    ctypes.c_int32, P(GFontRecord), Signed16, Signed16,
)
GFGetSize = bind(
    "int32_t GFGetSize(GFontRecord* font, int16_t* width, int16_t* height)",
    ctypes.c_int32, P(GFontRecord), P(ctypes.c_int16), P(ctypes.c_int16),
)
GFSetFontAttribute = bind(
    "int32_t GFSetFontAttribute(GFontRecord* font, const GFontAttribute* attribute)",
    ctypes.c_int32, P(GFontRecord), P(GFontAttribute),
)
GFGetFontAttribute = bind(
    "int32_t GFGetFontAttribute(GFontRecord* font, GFontAttribute* attribute)",
    ctypes.c_int32, P(GFontRecord), P(GFontAttribute),
)
GFSetFontUserAttribute = bind(
    "int32_t GFSetFontUserAttribute(GFontRecord* font, const GFontUserAttribute* attribute)",
    ctypes.c_int32, P(GFontRecord), P(GFontUserAttribute),
)
GFGetFontUserAttribute = bind(
    "int32_t GFGetFontUserAttribute(GFontRecord* font, GFontUserAttribute* attribute)",
    ctypes.c_int32, P(GFontRecord), P(GFontUserAttribute),
)
GFGetFontInformation = bind(
    "int32_t GFGetFontInformation(GFontRecord* font, GFontInformation* information)",
    ctypes.c_int32, P(GFontRecord), P(GFontInformation),
)
GFSetGBFontFlag = bind(
    "int32_t GFSetGBFontFlag(int32_t flag)",
    ctypes.c_int32, Signed32,
)
GFGetFontCount = bind(
    "int32_t GFGetFontCount(void)",
    ctypes.c_int32,
)
GDSetFont = bind(
    "int32_t GDSetFont(GDrawHandle* handle, GFontRecord* font)",
    ctypes.c_int32, Handle, P(GFontRecord),
)
GDSetSimpleFont = bind(
    "GFontRecord* GDSetSimpleFont(GDrawHandle* handle, const GSimpleFont* descriptor)",
    P(GFontRecord), Handle, P(GSimpleFont),
)
GDGetCharWidth = bind(
    "int16_t GDGetCharWidth(GDrawHandle* handle, char16_t unit)",
    ctypes.c_int16, Handle, Unsigned16,
)
GDGetCharHeight = bind(
    "int16_t GDGetCharHeight(GDrawHandle* handle, char16_t unit)",
    ctypes.c_int16, Handle, Unsigned16,
)
GDGetStringWidth = bind(
    "int16_t GDGetStringWidth(GDrawHandle* handle, const char16_t* text)",
    ctypes.c_int16, Handle, Text,
)
GDGetStringSize = bind(
    "GSize* GDGetStringSize(GSize* out, GDrawHandle* handle, const char16_t* text)",
    P(GSize), P(GSize), Handle, Text,
)
GDCreateVram = bind(
    "GVram* GDCreateVram(const GVram* descriptor)",
    P(GVram), P(GVram),
)
GDCreateVVram = bind(
    "GVram* GDCreateVVram(int16_t width, int16_t height, int16_t bitsPerPixel)",
    P(GVram), Signed16, Signed16, Signed16,
)
GDDeleteVram = bind(
    "int32_t GDDeleteVram(GVram* surface)",
    ctypes.c_int32, P(GVram),
)
GDGetVram = bind(
    "GVram* GDGetVram(GDrawHandle* handle)",
    P(GVram), Handle,
)
GDSetVram = bind(
    "int32_t GDSetVram(GDrawHandle* handle, int16_t id, GVram* surface)",
    ctypes.c_int32, Handle, Signed16, P(GVram),
)
GDSetColorMode = bind(
    "void GDSetColorMode(GDrawHandle* handle, uint8_t enable, uint32_t redMask, uint32_t "
    "greenMask, uint32_t blueMask)",
    None, Handle, Unsigned8, Unsigned32, Unsigned32, Unsigned32,
)
GDChangeVirtualVram = bind(
    "GWord GDChangeVirtualVram(GWord first, GWord second)",
    ctypes.c_size_t, Word, Word,
)
GDOpenDrawHandle = bind(
    "GDrawHandle* GDOpenDrawHandle(GWord first, GWord second)",
    P(GDrawHandle), Word, Word,
)
GDCloseDrawHandle = bind(
    "void GDCloseDrawHandle(GDrawHandle* handle)",
    None, Handle,
)
GDBeginDraw = bind(
    "GDrawHandle* GDBeginDraw(GDrawHandle* handle)",
    P(GDrawHandle), Handle,
)
GDEndDraw = bind(
    "GDrawHandle* GDEndDraw(GDrawHandle* handle)",
    P(GDrawHandle), Handle,
)
GDSetDisplay = bind(
    "int32_t GDSetDisplay(GDrawHandle* handle, int16_t number)",
    ctypes.c_int32, Handle, Signed16,
)
GDSetForeColor = bind(
    "void GDSetForeColor(GDrawHandle* handle, uint32_t color)",
    None, Handle, Unsigned32,
)
GDSetBackColor = bind(
    "void GDSetBackColor(GDrawHandle* handle, uint32_t color)",
    None, Handle, Unsigned32,
)
GDSetPenColor = bind(
    "void GDSetPenColor(GDrawHandle* handle, uint32_t color)",
    None, Handle, Unsigned32,
)
GDSetFillColor = bind(
    "void GDSetFillColor(GDrawHandle* handle, uint32_t fore, uint32_t back)",
    None, Handle, Unsigned32, Unsigned32,
)
GDSetFillPattern = bind(
    "void GDSetFillPattern(GDrawHandle* handle, int32_t number)",
    None, Handle, Signed32,
)
GDSetFillAttribute = bind(
    "void GDSetFillAttribute(GDrawHandle* handle, int32_t pattern, uint32_t fore, uint32_t back)",
    None, Handle, Signed32, Unsigned32, Unsigned32,
)
GDSetBrush = bind(
    "void GDSetBrush(GDrawHandle* handle, const GBrush* brush)",
    None, Handle, P(GBrush),
)
GDDefineFillPattern = bind(
    "void GDDefineFillPattern(GDrawHandle* handle, int16_t number, const uint8_t* rows)",
    None, Handle, Signed16, P(ctypes.c_uint8),
)
GDDefinePenDash = bind(
    "void GDDefinePenDash(GDrawHandle* handle, int32_t number, const uint8_t* steps)",
    None, Handle, Signed32, P(ctypes.c_uint8),
)
GDSetPenDash = bind(
    "void GDSetPenDash(GDrawHandle* handle, int32_t number)",
    None, Handle, Signed32,
)
GDSetPenJoin = bind(
    "void GDSetPenJoin(GDrawHandle* handle, int32_t join)",
    None, Handle, Signed32,
)
GDSetPenSize = bind(
    "void GDSetPenSize(GDrawHandle* handle, int16_t width, int16_t height)",
    None, Handle, Signed16, Signed16,
)
GDSetDrawingMode = bind(
    "void GDSetDrawingMode(GDrawHandle* handle, int32_t mode)",
    None, Handle, Signed32,
)
GDSetTextMode = bind(
    "void GDSetTextMode(GDrawHandle* handle, int32_t mode)",
    None, Handle, Signed32,
)
GDSetTextAlign = bind(
    "GDrawHandle* GDSetTextAlign(GDrawHandle* handle, int32_t alignment)",
    P(GDrawHandle), Handle, Signed32,
)
GDSetGradationInfo = bind(
    "void GDSetGradationInfo(GDrawHandle* handle, const GGradationInfo* info)",
    None, Handle, P(GGradationInfo),
)
GDSetPalette = bind(
    "GWord GDSetPalette(GDrawHandle* handle, int32_t first, int32_t count, const uint32_t* "
    "colors)",
    ctypes.c_size_t, Handle, Signed32, Signed32, P(ctypes.c_uint32),
)
GDGetPalette = bind(
    "GWord GDGetPalette(GDrawHandle* handle, int32_t first, int32_t count, uint32_t* colors)",
    ctypes.c_size_t, Handle, Signed32, Signed32, P(ctypes.c_uint32),
)
GDDrawGrf = bind(
    "int32_t GDDrawGrf(GDrawHandle* handle, const GGrfImage* image, const uint8_t* stream, "
    "int16_t x, int16_t y, int16_t width, int16_t height)",
    ctypes.c_int32, Handle, P(GGrfImage), P(ctypes.c_uint8), Signed16, Signed16, Signed16, Signed16,
)
GDDrawGrfZoom = bind(
    "int32_t GDDrawGrfZoom(GDrawHandle* handle, const GGrfImage* image, const uint8_t* stream, "
    "int16_t x, int16_t y, int16_t width, int16_t height)",
    ctypes.c_int32, Handle, P(GGrfImage), P(ctypes.c_uint8), Signed16, Signed16, Signed16, Signed16,
)
GDDrawImage = bind(
    "int32_t GDDrawImage(GDrawHandle* handle, GGrfImage*const* image, int16_t x, int16_t y, "
    "int16_t width, int16_t height)",
    ctypes.c_int32, Handle, P(P(GGrfImage)), Signed16, Signed16, Signed16, Signed16,
)
GLSetLine = bind(
    "void GLSetLine(GLine* line, int16_t x1, int16_t y1, int16_t x2, int16_t y2)",
    None, P(GLine), Signed16, Signed16, Signed16, Signed16,
)
GLGetLine = bind(
    "void GLGetLine(const GLine* line, int16_t* x1, int16_t* y1, int16_t* x2, int16_t* y2)",
    None, P(GLine), P(ctypes.c_int16), P(ctypes.c_int16), P(ctypes.c_int16), P(ctypes.c_int16),
)
GLDuplicateLine = bind(
    "void GLDuplicateLine(const GLine* source, GLine* destination)",
    None, P(GLine), P(GLine),
)
GLOffsetLine = bind(
    "void GLOffsetLine(GLine* line, int16_t dx, int16_t dy)",
    None, P(GLine), Signed16, Signed16,
)
GLMapLine = bind(
    "void GLMapLine(GLine* line, const GRect* source, const GRect* destination)",
    None, P(GLine), P(GRect), P(GRect),
)
GLPhysicalToVirtualLine = bind(
    "void GLPhysicalToVirtualLine(const GDrawHandle* handle, GLine* line)",
    None, Handle, P(GLine),
)
GLVirtualToPhysicalLine = bind(
    "void GLVirtualToPhysicalLine(const GDrawHandle* handle, GLine* line)",
    None, Handle, P(GLine),
)
GMSetMemorySpace = bind(
    "int32_t GMSetMemorySpace(int32_t space, GWord limit)",
    ctypes.c_int32, Signed32, Word,
)
GMDeleteMemorySpace = bind(
    "int32_t GMDeleteMemorySpace(int32_t space, GWord flags)",
    ctypes.c_int32, Signed32, Word,
)
GMMemoryAlloc = bind(
    "void* GMMemoryAlloc(int32_t space, uint32_t flags, int32_t size)",
    ctypes.c_void_p, Signed32, Unsigned32, Signed32,
)
GMMemoryRealloc = bind(
    "void* GMMemoryRealloc(int32_t space, uint32_t flags, void* block, int32_t size)",
    ctypes.c_void_p, Signed32, Unsigned32, Address, Signed32,
)
GMMemoryFree = bind(
    "int32_t GMMemoryFree(int32_t space, uint32_t flags, void* block)",
    ctypes.c_int32, Signed32, Unsigned32, Address,
)
GMSetMemoryMode = bind(
    "int32_t GMSetMemoryMode(int32_t mode)",
    ctypes.c_int32, Signed32,
)
GMBeginResetMemorySpace = bind(
    "int32_t GMBeginResetMemorySpace(int32_t space, GWord flags)",
    ctypes.c_int32, Signed32, Word,
)
GMEndResetMemorySpace = bind(
    "int32_t GMEndResetMemorySpace(int32_t space, GWord flags)",
    ctypes.c_int32, Signed32, Word,
)
GMCancelResetMemorySpace = bind(
    "int32_t GMCancelResetMemorySpace(int32_t space, GWord flags)",
    ctypes.c_int32, Signed32, Word,
)
GDFCLoadModule = bind(
    "GModule* GDFCLoadModule(const char16_t* path, uint32_t flags)",
    P(GModule), Text, Unsigned32,
)
GDFCLoadModuleEx = bind(
    "GModule* GDFCLoadModuleEx(const char16_t* path)",
    P(GModule), Text,
)
GDFCFreeModule = bind(
    "int32_t GDFCFreeModule(GModule* module)",
    ctypes.c_int32, P(GModule),
)
GDFCGetModuleFuncAddress = bind(
    "GModuleFunction GDFCGetModuleFuncAddress(GModule* module, const char16_t* name)",
    GModuleFunction, P(GModule), Text,
)
GNCDataSetGNCValue = bind(
    "int32_t GNCDataSetGNCValue(int32_t channel, int32_t area, int32_t number, int32_t index, "
    "const double* value)",
    ctypes.c_int32, Signed32, Signed32, Signed32, Signed32, P(ctypes.c_double),
)
GNCDataGetGNCValue = bind(
    "int32_t GNCDataGetGNCValue(int32_t channel, int32_t area, int32_t number, int32_t index, "
    "double* value)",
    ctypes.c_int32, Signed32, Signed32, Signed32, Signed32, P(ctypes.c_double),
)
GNCDataSetString = bind(
    "int32_t GNCDataSetString(int32_t channel, int32_t string, int32_t number, const char16_t* "
    "text)",
    ctypes.c_int32, Signed32, Signed32, Signed32, Text,
)
GNCDataGetString = bind(
    "int32_t GNCDataGetString(int32_t channel, int32_t string, int32_t number, char16_t* text, "
    "int32_t size)",
    ctypes.c_int32, Signed32, Signed32, Signed32, P(ctypes.c_uint16), Signed32,
)
GNCDataIsNotaNumber = bind(
    "int32_t GNCDataIsNotaNumber(int32_t channel, int32_t variable)",
    ctypes.c_int32, Signed32, Signed32,
)
GNCDataSetSystemVal = bind(
    "int32_t GNCDataSetSystemVal(int32_t number, int32_t value)",
    ctypes.c_int32, Signed32, Signed32,
)
GNCDataGetSystemVal = bind(
    "int32_t GNCDataGetSystemVal(int32_t number, int32_t* value)",
    ctypes.c_int32, Signed32, P(ctypes.c_int32),
)
GNetCrackUrl = bind(
    "int32_t GNetCrackUrl(const char16_t* url, uint32_t flags, GNetUrl* parts)",
    ctypes.c_int32, Text, Unsigned32, P(GNetUrl),
)
GNetCreateUrl = bind(
    "int32_t GNetCreateUrl(const GNetUrl* parts, uint32_t flags, char16_t* url, int32_t* size)",
    ctypes.c_int32, P(GNetUrl), Unsigned32, P(ctypes.c_uint16), P(ctypes.c_int32),
)
GNetCanonicalizeUrl = bind(
    "int32_t GNetCanonicalizeUrl(const char16_t* url, char16_t* out, int32_t* size, uint32_t "
    "flags)",
    ctypes.c_int32, Text, P(ctypes.c_uint16), P(ctypes.c_int32), Unsigned32,
)
GNetCombineUrl = bind(
    "int32_t GNetCombineUrl(const char16_t* base, const char16_t* relative, char16_t* out, "
    "int32_t* size, uint32_t flags)",
    ctypes.c_int32, Text, Text, P(ctypes.c_uint16), P(ctypes.c_int32), Unsigned32,
)
GNetOpen = bind(
    "GNetHandle* GNetOpen(const char16_t* agent)",
    P(GNetHandle), Text,
)
GNetCloseHandle = bind(
    "int32_t GNetCloseHandle(GNetHandle* handle)",
    ctypes.c_int32, P(GNetHandle),
)
GNetConnect = bind(
    "GNetHandle* GNetConnect(GNetHandle* session, const char16_t* server, int32_t port, const "
    "char16_t* user, const char16_t* password, int32_t protocol, uint32_t flags)",
    P(GNetHandle), P(GNetHandle), Text, Signed32, Text, Text, Signed32, Unsigned32,
)
GNetOpenUrl = bind(
    "GNetHandle* GNetOpenUrl(GNetHandle* session, const char16_t* url, const char16_t* headers, "
    "uint32_t flags)",
    P(GNetHandle), P(GNetHandle), Text, Text, Unsigned32,
)
GNetReadFile = bind(
    "int32_t GNetReadFile(GNetHandle* file, void* buffer, int32_t size)",
    ctypes.c_int32, P(GNetHandle), Address, Signed32,
)
GNetSetFilePointer = bind(
    "int32_t GNetSetFilePointer(GNetHandle* file, int32_t offset, int32_t origin)",
    ctypes.c_int32, P(GNetHandle), Signed32, Signed32,
)
GNetWriteFile = bind(
    "int32_t GNetWriteFile(GNetHandle* file, const void* buffer, int32_t size, int32_t* written)",
    ctypes.c_int32, P(GNetHandle), Address, Signed32, P(ctypes.c_int32),
)
GNetQueryDataAvailable = bind(
    "int32_t GNetQueryDataAvailable(GNetHandle* file, int32_t* bytes)",
    ctypes.c_int32, P(GNetHandle), P(ctypes.c_int32),
)
GNetFindNextFile = bind(
    "int32_t GNetFindNextFile(GNetHandle* find, GNetFileInfo* info)",
    ctypes.c_int32, P(GNetHandle), P(GNetFileInfo),
)
GNetQueryOption = bind(
    "int32_t GNetQueryOption(GNetHandle* handle, int32_t option, void* value, int32_t* size)",
    ctypes.c_int32, P(GNetHandle), Signed32, Address, P(ctypes.c_int32),
)
GNetSetOption = bind(
    "int32_t GNetSetOption(GNetHandle* handle, int32_t option, const void* value, int32_t size, "
    "uint32_t flags)",
    ctypes.c_int32, P(GNetHandle), Signed32, Address, Signed32, Unsigned32,
)
GNetLockRequestFile = bind(
    "int32_t GNetLockRequestFile(GNetHandle* file, GNetLock** lock)",
    ctypes.c_int32, P(GNetHandle), P(P(GNetLock)),
)
GNetUnlockRequestFile = bind(
    "int32_t GNetUnlockRequestFile(GNetLock* lock)",
    ctypes.c_int32, P(GNetLock),
)
GNetHttpOpenRequest = bind(
    "GNetHandle* GNetHttpOpenRequest(GNetHandle* connection, const char16_t* verb, const "
    "char16_t* path, const char16_t* version, const char16_t* referrer, const char16_t*const* "
    "accept, uint32_t flags)",
    P(GNetHandle), P(GNetHandle), Text, Text, Text, Text, P(P(ctypes.c_uint16)), Unsigned32,
)
GNetHttpAddRequestHeaders = bind(
    "int32_t GNetHttpAddRequestHeaders(GNetHandle* request, const char16_t* headers, uint32_t "
    "flags)",
    ctypes.c_int32, P(GNetHandle), Text, Unsigned32,
)
GNetHttpSendRequest = bind(
    "int32_t GNetHttpSendRequest(GNetHandle* request, const char16_t* headers, const void* body, "
    "int32_t size)",
    ctypes.c_int32, P(GNetHandle), Text, Address, Signed32,
)
GNetHttpEndRequest = bind(
    "int32_t GNetHttpEndRequest(GNetHandle* request, uint32_t flags)",
    ctypes.c_int32, P(GNetHandle), Unsigned32,
)
GNetHttpQueryInfo = bind(
    "int32_t GNetHttpQueryInfo(GNetHandle* request, int32_t info, void* buffer, int32_t* size, "
    "int32_t* index)",
    ctypes.c_int32, P(GNetHandle), Signed32, Address, P(ctypes.c_int32), P(ctypes.c_int32),
)
GNetFtpFindFirstFile = bind(
    "GNetHandle* GNetFtpFindFirstFile(GNetHandle* connection, const char16_t* pattern, "
    "GNetFileInfo* info, uint32_t flags)",
    P(GNetHandle), P(GNetHandle), Text, P(GNetFileInfo), Unsigned32,
)
GNetFtpGetFile = bind(
    "int32_t GNetFtpGetFile(GNetHandle* connection, const char16_t* remote, const char16_t* "
    "local, int32_t failIfExists, uint32_t attributes, uint32_t flags)",
    ctypes.c_int32, P(GNetHandle), Text, Text, Signed32, Unsigned32, Unsigned32,
)
GNetFtpPutFile = bind(
    "int32_t GNetFtpPutFile(GNetHandle* connection, const char16_t* local, const char16_t* "
    "remote, uint32_t flags)",
    ctypes.c_int32, P(GNetHandle), Text, Text, Unsigned32,
)
GNetFtpDeleteFile = bind(
    "int32_t GNetFtpDeleteFile(GNetHandle* connection, const char16_t* path)",
    ctypes.c_int32, P(GNetHandle), Text,
)
GNetFtpRenameFile = bind(
    "int32_t GNetFtpRenameFile(GNetHandle* connection, const char16_t* from, const char16_t* to)",
    ctypes.c_int32, P(GNetHandle), Text, Text,
)
GNetFtpOpenFile = bind(
    "GNetHandle* GNetFtpOpenFile(GNetHandle* connection, const char16_t* path, uint32_t mode, "
    "uint32_t flags)",
    P(GNetHandle), P(GNetHandle), Text, Unsigned32, Unsigned32,
)
GNetFtpCreateDirectory = bind(
    "int32_t GNetFtpCreateDirectory(GNetHandle* connection, const char16_t* path)",
    ctypes.c_int32, P(GNetHandle), Text,
)
GNetFtpRemoveDirectory = bind(
    "int32_t GNetFtpRemoveDirectory(GNetHandle* connection, const char16_t* path)",
    ctypes.c_int32, P(GNetHandle), Text,
)
GNetFtpSetCurrentDirectory = bind(
    "int32_t GNetFtpSetCurrentDirectory(GNetHandle* connection, const char16_t* path)",
    ctypes.c_int32, P(GNetHandle), Text,
)
GNetFtpGetCurrentDirectory = bind(
    "int32_t GNetFtpGetCurrentDirectory(GNetHandle* connection, char16_t* path, int32_t* size)",
    ctypes.c_int32, P(GNetHandle), P(ctypes.c_uint16), P(ctypes.c_int32),
)
GNetGetLastError = bind(
    "int32_t GNetGetLastError(void)",
    ctypes.c_int32,
)
GetGPIFunction = bind(
    "int32_t GetGPIFunction(void)",
    ctypes.c_int32,
)
GDInitPlatform = bind(
    "GWord GDInitPlatform(GWord arg)",
    ctypes.c_size_t, Word,
)
GDQuitPlatform = bind(
    "GWord GDQuitPlatform(void)",
    ctypes.c_size_t,
)
GDSetGlobalError = bind(
    "void GDSetGlobalError(uint32_t code)",
    None, Unsigned32,
)
GDQueryGlobalError = bind(
    "uint32_t GDQueryGlobalError(void)",
    ctypes.c_uint32,
)
GDQueryError = bind(
    "uint32_t GDQueryError(const GDrawHandle* handle)",
    ctypes.c_uint32, Handle,
)
GPTSetPoint = bind(
    "void GPTSetPoint(GPoint* point, int16_t x, int16_t y)",
    None, P(GPoint), Signed16, Signed16,
)
GPTGetPoint = bind(
    "void GPTGetPoint(const GPoint* point, int16_t* x, int16_t* y)",
    None, P(GPoint), P(ctypes.c_int16), P(ctypes.c_int16),
)
GPTDuplicatePoint = bind(
    "void GPTDuplicatePoint(const GPoint* source, void* destination)",
    None, P(GPoint), Address,
)
GPTOffsetPoint = bind(
    "void GPTOffsetPoint(GPoint* point, int16_t dx, int16_t dy)",
    None, P(GPoint), Signed16, Signed16,
)
GPTMapPoint = bind(
    "void GPTMapPoint(GPoint* point, const GRect* source, const GRect* destination)",
    None, P(GPoint), P(GRect), P(GRect),
)
GPTPhysicalToVirtualPoint = bind(
    "void GPTPhysicalToVirtualPoint(const GDrawHandle* handle, GPoint* point)",
    None, Handle, P(GPoint),
)
GPTVirtualToPhysicalPoint = bind(
    "void GPTVirtualToPhysicalPoint(const GDrawHandle* handle, GPoint* point)",
    None, Handle, P(GPoint),
)
GPSetPoly = bind(
    "void GPSetPoly(GPoly* poly, int16_t count, GPoint* points, const GRect* bounds)",
    None, P(GPoly), Signed16, P(GPoint), P(GRect),
)
GPGetPoly = bind(
    "void GPGetPoly(const GPoly* poly, int16_t* count, GPoint** points, GRect* bounds)",
    None, P(GPoly), P(ctypes.c_int16), P(P(GPoint)), P(GRect),
)
GPOffsetPoly = bind(
    "void GPOffsetPoly(GPoly* poly, int16_t dx, int16_t dy)",
    None, P(GPoly), Signed16, Signed16,
)
GPMapPoly = bind(
    "void GPMapPoly(GPoly* poly, const GRect* source, const GRect* destination)",
    None, P(GPoly), P(GRect), P(GRect),
)
GPPhysicalToVirtualPoly = bind(
    "void GPPhysicalToVirtualPoly(const GDrawHandle* handle, GPoly* poly)",
    None, Handle, P(GPoly),
)
GPVirtualToPhysicalPoly = bind(
    "void GPVirtualToPhysicalPoly(const GDrawHandle* handle, GPoly* poly)",
    None, Handle, P(GPoly),
)
GIOGetPrivateProfileInt = bind(
    "int32_t GIOGetPrivateProfileInt(const char16_t* section, const char16_t* key, int32_t "
    "fallback, uint32_t layer, const char16_t* file)",
    ctypes.c_int32, Text, Text, Signed32, Unsigned32, Text,
)
GIOGetPrivateProfileIntEx = bind(
    "int32_t GIOGetPrivateProfileIntEx(const char16_t* section, const char16_t* key, int32_t "
    "fallback, const char16_t* file)",
    ctypes.c_int32, Text, Text, Signed32, Text,
)
GIOGetPrivateProfileString = bind(
    "int32_t GIOGetPrivateProfileString(const char16_t* section, const char16_t* key, const "
    "char16_t* fallback, char16_t* value, int32_t size, uint16_t layer, const char16_t* file)",
    ctypes.c_int32, Text, Text, Text, P(ctypes.c_uint16), Signed32, Unsigned16, Text,
)
GIOGetPrivateProfileStringEx = bind(
    "int32_t GIOGetPrivateProfileStringEx(const char16_t* section, const char16_t* key, const "
    "char16_t* fallback, char16_t* value, int32_t size, const char16_t* file)",
    ctypes.c_int32, Text, Text, Text, P(ctypes.c_uint16), Signed32, Text,
)
GIOSetPrivateProfileString = bind(
    "int32_t GIOSetPrivateProfileString(const char16_t* section, const char16_t* key, const "
    "char16_t* value, uint32_t layer, const char16_t* file)",
    ctypes.c_int32, Text, Text, Text, Unsigned32, Text,
)
GRSetRect = bind(
    "void GRSetRect(GRect* rect, int16_t x1, int16_t y1, int16_t x2, int16_t y2)",
    None, P(GRect), Signed16, Signed16, Signed16, Signed16,
)
GRGetRect = bind(
    "void GRGetRect(const GRect* rect, int16_t* left, int16_t* top, int16_t* right, int16_t* "
    "bottom)",
    None, P(GRect), P(ctypes.c_int16), P(ctypes.c_int16), P(ctypes.c_int16), P(ctypes.c_int16),
)
GRDuplicateRect = bind(
    "void GRDuplicateRect(const GRect* source, GRect* destination)",
    None, P(GRect), P(GRect),
)
GREqualRect = bind(
    "int16_t GREqualRect(const GRect* a, const GRect* b)",
    ctypes.c_int16, P(GRect), P(GRect),
)
GRCheckRect = bind(
    "int16_t GRCheckRect(const GRect* rect)",
    ctypes.c_int16, P(GRect),
)
GRInceptRect = bind(
    "int16_t GRInceptRect(const GRect* a, const GRect* b, GRect* out)",
    ctypes.c_int16, P(GRect), P(GRect), P(GRect),
)
GRUnionRect = bind(
    "void GRUnionRect(const GRect* a, const GRect* b, GRect* out)",
    None, P(GRect), P(GRect), P(GRect),
)
GRPointInRect = bind(
    "int16_t GRPointInRect(const GPoint* point, const GRect* rect)",
    ctypes.c_int16, P(GPoint), P(GRect),
)
GROffsetRect = bind(
    "void GROffsetRect(GRect* rect, int16_t dx, int16_t dy)",
    None, P(GRect), Signed16, Signed16,
)
GRResizeRect = bind(
    "void GRResizeRect(GRect* rect, int16_t dx, int16_t dy)",
    None, P(GRect), Signed16, Signed16,
)
GRRestRect = bind(
    "int16_t GRRestRect(const GRect* a, const GRect* b, GRect* out)",
    ctypes.c_int16, P(GRect), P(GRect), P(GRect),
)
GRShiftRect = bind(
    "int16_t GRShiftRect(GRect* rect, int16_t dx, int16_t dy, GRect* out1, GRect* out2)",
    ctypes.c_int16, P(GRect), Signed16, Signed16, P(GRect), P(GRect),
)
GRMapRect = bind(
    "void GRMapRect(GRect* rect, const GRect* source, const GRect* destination)",
    None, P(GRect), P(GRect), P(GRect),
)
GRPhysicalToVirtualRect = bind(
    "void GRPhysicalToVirtualRect(const GDrawHandle* handle, GRect* rect)",
    None, Handle, P(GRect),
)
GRVirtualToPhysicalRect = bind(
    "void GRVirtualToPhysicalRect(const GDrawHandle* handle, GRect* rect)",
    None, Handle, P(GRect),
)
GRMapToScreenRect = bind(
    "void GRMapToScreenRect(const GDrawHandle* handle, GRect* rect)",
    None, Handle, P(GRect),
)
GUBSearch = bind(
    "void* GUBSearch(const void* key, const void* elements, uint32_t count, uint32_t size, "
    "GUBCompare compare)",
    ctypes.c_void_p, Address, Address, Unsigned32, Unsigned32, GUBCompare,
)
GDDrawString = bind(
    "void GDDrawString(GDrawHandle* handle, const char16_t* text)",
    None, Handle, Text,
)
GDDrawCaptionString = bind(
    "void GDDrawCaptionString(GDrawHandle* handle, const GRect* rect, const GCaptionAttr* attr, "
    "const char16_t* text)",
    None, Handle, P(GRect), P(GCaptionAttr), Text,
)
GDDrawCaptionStringDirect = bind(
    "void GDDrawCaptionStringDirect(GDrawHandle* handle, const GRect* rect, const GCaptionAttr* "
    "attr, const char16_t* text)",
    None, Handle, P(GRect), P(GCaptionAttr), Text,
)
GDDrawCaptionScrollString = bind(
    "void GDDrawCaptionScrollString(GDrawHandle* handle, const GRect* rect, const GCaptionAttr* "
    "attr, const char16_t* text, int32_t fromRight, int32_t scroll)",
    None, Handle, P(GRect), P(GCaptionAttr), Text, Signed32, Signed32,
)
GDDrawCaptionCursorSelectString = bind(
    "void GDDrawCaptionCursorSelectString(GDrawHandle* handle, const GRect* rect, const "
    "GCaptionAttr* attr, const GCaptionCursor* cursor, const GCaptionSelect* selection, int32_t "
    "cursorPos, const char16_t* text)",
    None, Handle, P(GRect), P(GCaptionAttr), P(GCaptionCursor), P(GCaptionSelect), Signed32, Text,
)
GDDrawCaptionCursorString = bind(
    "void GDDrawCaptionCursorString(GDrawHandle* handle, const GRect* rect, const GCaptionAttr* "
    "attr, const GCaptionCursor* cursor, int32_t cursorPos, const char16_t* text)",
    None, Handle, P(GRect), P(GCaptionAttr), P(GCaptionCursor), Signed32, Text,
)
GDDrawErrorMessage = bind(
    "void GDDrawErrorMessage(const char* message)",
    None, ctypes.c_char_p,
)
GESetTimer = bind(
    "int32_t GESetTimer(uint32_t target, uint16_t id, uint32_t interval)",
    ctypes.c_int32, Unsigned32, Unsigned16, Unsigned32,
)
GEKillTimer = bind(
    "void GEKillTimer(uint32_t target, uint16_t id)",
    None, Unsigned32, Unsigned16,
)
GECheckTimer = bind(
    "void GECheckTimer(void)",
    None,
)
GESetSystemTime = bind(
    "int32_t GESetSystemTime(const GSystemTime* time)",
    ctypes.c_int32, P(GSystemTime),
)
GEGetSystemTime = bind(
    "int32_t GEGetSystemTime(GSystemTime* time)",
    ctypes.c_int32, P(GSystemTime),
)
GECompareSystemTime = bind(
    "uint32_t GECompareSystemTime(const GSystemTime* a, const GSystemTime* b)",
    ctypes.c_uint32, P(GSystemTime), P(GSystemTime),
)
GEDiffTime = bind(
    "GSystemTime* GEDiffTime(GSystemTime* out, const GSystemTime* start, const GSystemTime* now)",
    P(GSystemTime), P(GSystemTime), P(GSystemTime), P(GSystemTime),
)
GETime = bind(
    "uint32_t GETime(uint32_t* time)",
    ctypes.c_uint32, P(ctypes.c_uint32),
)
GEGmTime = bind(
    "GBrokenDownTime* GEGmTime(GBrokenDownTime* out, uint32_t time)",
    P(GBrokenDownTime), P(GBrokenDownTime), Unsigned32,
)
GDBitBlt = bind(
    "void GDBitBlt(GDrawHandle* handle, const GVram* source, int16_t sourceX, int16_t sourceY, "
    "int16_t width, int16_t height, GVram* destination, int16_t destinationX, int16_t "
    "destinationY, int32_t mode)",
    None, Handle, P(GVram), Signed16, Signed16, Signed16, Signed16, P(GVram), Signed16, Signed16,
    Signed32,
)
GDFlushScreen = bind(
    "int32_t GDFlushScreen(GDrawHandle* handle, int16_t x, int16_t y, int16_t width, int16_t "
    "height)",
    ctypes.c_int32, Handle, Signed16, Signed16, Signed16, Signed16,
)
GDFlushScreenForce = bind(
    "int32_t GDFlushScreenForce(GDrawHandle* handle, int16_t x, int16_t y, int16_t width, int16_t"
    " height)",
    ctypes.c_int32, Handle, Signed16, Signed16, Signed16, Signed16,
)
GMGMemCreate = bind(
    "void* GMGMemCreate(const char16_t* name, int32_t size)",
    ctypes.c_void_p, Text, Signed32,
)
GMGMemSelect = bind(
    "void* GMGMemSelect(const char16_t* name)",
    ctypes.c_void_p, Text,
)
GMGMemDelete = bind(
    "void GMGMemDelete(void* block)",
    None, Address,
)
GMGMemGetChar = bind(
    "int32_t GMGMemGetChar(const void* block, uint32_t offset)",
    ctypes.c_int32, Address, Unsigned32,
)
GMGMemSetChar = bind(
    "void GMGMemSetChar(void* block, uint32_t offset, int8_t value)",
    None, Address, Unsigned32, Signed8,
)
GMGMemGetShort = bind(
    "int32_t GMGMemGetShort(const void* block, uint32_t offset)",
    ctypes.c_int32, Address, Unsigned32,
)
GMGMemSetShort = bind(
    "void GMGMemSetShort(void* block, uint32_t offset, int16_t value)",
    None, Address, Unsigned32, Signed16,
)
GMGMemGetLong = bind(
    "int32_t GMGMemGetLong(const void* block, uint32_t offset)",
    ctypes.c_int32, Address, Unsigned32,
)
GMGMemSetLong = bind(
    "void GMGMemSetLong(void* block, uint32_t offset, int32_t value)",
    None, Address, Unsigned32, Signed32,
)
GMGMemGetDouble = bind(
    "double GMGMemGetDouble(const void* block, uint32_t offset)",
    ctypes.c_double, Address, Unsigned32,
)
GMGMemSetDouble = bind(
    "void GMGMemSetDouble(void* block, uint32_t offset, double value)",
    None, Address, Unsigned32, ctypes.c_double,
)
GMGMemGetString = bind(
    "char16_t* GMGMemGetString(void* block, uint32_t offset)",
    P(ctypes.c_uint16), Address, Unsigned32,
)
GMGMemSetString = bind(
    "void GMGMemSetString(void* block, uint32_t offset, const char16_t* text)",
    None, Address, Unsigned32, Text,
)
GPIGetService = bind(
    "GPIFunction GPIGetService(int32_t number)",
    GPIFunction, Signed32,
)
GPIGetFontCount = bind(
    "int32_t GPIGetFontCount(void)",
    ctypes.c_int32,
)
GPIShutdownEvents = bind(
    "void GPIShutdownEvents(void)",
    None,
)
GPITranslateMessage = bind(
    "void GPITranslateMessage(GMessage* message)",
    None, P(GMessage),
)
GPIDispatchMessage = bind(
    "void GPIDispatchMessage(GMessage* message)",
    None, P(GMessage),
)
GPIHostWaitForClose = bind(
    "int32_t GPIHostWaitForClose(void)",
    ctypes.c_int32,
)
GPIHostWritePng = bind(
    "int32_t GPIHostWritePng(const char* path)",
    ctypes.c_int32, ctypes.c_char_p,
)
GPIHostEndFrame = bind(
    "int32_t GPIHostEndFrame(void)",
    ctypes.c_int32,
)
GPIHostFrameChecksum = bind(
    "uint32_t GPIHostFrameChecksum(void)",
    ctypes.c_uint32,
)
GPIHostHasWindow = bind(
    "int32_t GPIHostHasWindow(void)",
    ctypes.c_int32,
)
GPIHostPostMessage = bind(
    "int32_t GPIHostPostMessage(const GMessage* message)",
    ctypes.c_int32, P(GMessage),
)
GPIHostWaitMessage = bind(
    "int32_t GPIHostWaitMessage(GMessage* message, int32_t wait)",
    ctypes.c_int32, P(GMessage), Signed32,
)
GPIHostSetMessageHandler = bind(
    "void GPIHostSetMessageHandler(GPIHostMessageHandler handler, void* context)",
    None, GPIHostMessageHandler, Address,
)
GPIHostFeedKey = bind(
    "int32_t GPIHostFeedKey(int32_t key, int32_t down)",
    ctypes.c_int32, Signed32, Signed32,
)
GPIHostFeedPointer = bind(
    "int32_t GPIHostFeedPointer(int32_t x, int32_t y, uint32_t buttons)",
    ctypes.c_int32, Signed32, Signed32, Unsigned32,
)
GPIHostHoldClock = bind(
    "int32_t GPIHostHoldClock(uint32_t timeOfDay)",
    ctypes.c_int32, Unsigned32,
)
GPIHostStepClock = bind(
    "int32_t GPIHostStepClock(uint32_t milliseconds)",
    ctypes.c_int32, Unsigned32,
)
