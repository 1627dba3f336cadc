"""How functions of the libraries are called: finding the libraries, and checking arguments."""
import ctypes
import itertools
import os
import pathlib
import re
import sys

__all__ = [
    "Address", "Handle", "Signed8", "Signed16", "Signed32", "Text", "Unsigned8", "Unsigned16",
    "Unsigned32", "Word", "bind", "string", "units",
]

_PATH = "QUARLO_LIBRARY_PATH"
_ORDER = "le" if sys.byteorder == "little" else "be"


def _folders():
    """Where libraries may lie; None stands for where the system's loader looks."""
    if os.environ.get(_PATH):
        yield from os.environ[_PATH].split(os.pathsep)
        return
    installed = pathlib.Path(__file__).resolve().parents[3]  # of lib/python3/dist-packages/quarlo
    yield from (installed, *installed.glob("*-linux-gnu*"))
    yield None


def _load(name, mode):
    reasons = []
    for folder in _folders():
        try:
            return ctypes.CDLL(os.path.join(folder, name) if folder else name, mode)
        except OSError as error:
            reasons.append(f"  {error}")
    raise ImportError(
        f"{name} cannot be loaded. Install Quarlo (cmake --install), or let {_PATH} name the "
        "folders of libquarlo.so.1 and libgpi.so.1:\n" + "\n".join(reasons)
    )


# The library takes its entry points from the platform: that comes first, for all to see.
_platform = _load("libgpi.so.1", ctypes.RTLD_GLOBAL)
_library = _load("libquarlo.so.1", ctypes.DEFAULT_MODE)


class _Whole:
    """A whole number of some width."""

    @classmethod
    def from_param(cls, value):
        try:
            number = value.__index__()
        except AttributeError:
            raise TypeError(f"a whole number is wanted, not {value!r}") from None
        if not cls.least <= number <= cls.most:
            raise ValueError(f"{number} is not between {cls.least} and {cls.most}")
        return cls.kind(number)


def _whole(name, kind, least, most):
    return type(name, (_Whole,), {"kind": kind, "least": least, "most": most})


# Where a number without a sign is wanted, -1 says that all its bits are set, as it does in C.
Signed8 = _whole("Signed8", ctypes.c_int8, -0x80, 0x7F)
Signed16 = _whole("Signed16", ctypes.c_int16, -0x8000, 0x7FFF)
Signed32 = _whole("Signed32", ctypes.c_int32, -0x80000000, 0x7FFFFFFF)
Unsigned8 = _whole("Unsigned8", ctypes.c_uint8, -1, 0xFF)
Unsigned16 = _whole("Unsigned16", ctypes.c_uint16, -1, 0xFFFF)
Unsigned32 = _whole("Unsigned32", ctypes.c_uint32, -1, 0xFFFFFFFF)
Word = _whole("Word", ctypes.c_size_t, -1, 2 ** (8 * ctypes.sizeof(ctypes.c_size_t)) - 1)


def units(text):
    """A string as an array of UTF-16 units with a NUL."""
    if "\0" in text:
        raise ValueError(f"a text ends at its first NUL: {text!r}")
    data = text.encode(f"utf-16-{_ORDER}", "surrogatepass") + b"\0\0"
    return (ctypes.c_uint16 * (len(data) // 2)).from_buffer_copy(data)


def string(array):
    """The string in an array of UTF-16 units, or at a pointer to them, up to its NUL."""
    if isinstance(array, ctypes._Pointer):
        array = (ctypes.c_uint16 * next(i for i in itertools.count() if not array[i])).from_address(
            ctypes.addressof(array.contents))
    return bytes(array).decode(f"utf-16-{_ORDER}", "surrogatepass").partition("\0")[0]


class Text:
    """A text that is read: a string, null, or UTF-16 units that are in memory already."""

    @classmethod
    def from_param(cls, value):
        if value is None:
            return None
        if isinstance(value, str):
            return units(value)
        if isinstance(value, (bytes, bytearray, int)):
            raise TypeError(f"a str is wanted, not {value!r}")
        return ctypes.c_void_p.from_param(value)


class Address:
    """Any memory: null, bytes that are read, a bytearray or memoryview that may be written, an
    array, a record by byref(), or a pointer."""

    @classmethod
    def from_param(cls, value):
        if isinstance(value, str):
            raise TypeError("memory is wanted, not a str: say how it is encoded")
        if isinstance(value, (bytearray, memoryview)):
            return (ctypes.c_char * len(value)).from_buffer(value)
        return ctypes.c_void_p.from_param(value)


_handles = set()  # addresses of open draw handles


class Handle:
    """A draw handle that is open."""

    @classmethod
    def from_param(cls, value):
        if not isinstance(value, ctypes._Pointer) or not value:
            raise TypeError(f"a draw handle is wanted, as of GDOpenDrawHandle(), not {value!r}")
        if ctypes.addressof(value.contents) not in _handles:
            raise ValueError("the draw handle is closed")
        return value


def _opened(result, _function, _arguments):
    if result:
        _handles.add(ctypes.addressof(result.contents))
    return result


def _closed(result, _function, arguments):
    _handles.discard(ctypes.addressof(arguments[0].contents))
    return result


def _keep_arguments(result, function, arguments):
    """A callback lives until the function is called again."""
    function.kept = arguments
    return result


def _after(name, kinds):
    """What is to be done after a call."""
    if name == "GDOpenDrawHandle":
        return _opened
    if name == "GDCloseDrawHandle":
        return _closed
    if any(isinstance(kind, type) and issubclass(kind, ctypes._CFuncPtr) for kind in kinds):
        return _keep_arguments
    return None


def bind(prototype, result, *kinds):
    """The function of a prototype."""
    name = re.search(r"(\w+)\(", prototype)[1]
    function = getattr(_platform if name.startswith("GPI") else _library, name)
    function.restype = result
    function.argtypes = kinds
    function.__doc__ = prototype
    after = _after(name, kinds)
    if after:
        function.errcheck = after
    return function
