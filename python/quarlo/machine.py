"""The machine's control: what it knows, and what a panel may set. Numbers are those of quarlo.raw,
G_NC_...; a display must be open."""
from __future__ import annotations

import ctypes

from quarlo import raw
from quarlo.binding import string as string_of
from quarlo.errors import Error

_REASONS = {
    value: name for name, value in vars(raw).items()
    if name.startswith("G_NC_") and isinstance(value, int) and value < 0
}
_ROOM = 512  # units


def _check(result: int) -> None:
    if result == 0:
        raise Error("no control answers: open a display first")
    if result < 0:
        reason = _REASONS.get(result, result)
        hint = "; is a display open?" if result == raw.G_NC_OFFLINE else ""
        raise Error(f"the control refuses: {reason}{hint}")


def system(number: int) -> int:
    """A system value, such as raw.G_NC_SYSTEM_STATE."""
    value = ctypes.c_int32()
    _check(raw.GNCDataGetSystemVal(number, value))
    return value.value


def set_system(number: int, value: int) -> None:
    """Sets a system value, such as raw.G_NC_SYSTEM_COMMAND."""
    _check(raw.GNCDataSetSystemVal(number, value))


def value(area: int, number: int = 0, index: int = 0, *, channel: int = 1) -> float:
    """A value, such as raw.G_NC_MACHINE_POSITION of axis `index`."""
    out = ctypes.c_double()
    _check(raw.GNCDataGetGNCValue(channel, area, number, index, out))
    return out.value


def set_value(
    area: int, value: float, number: int = 0, index: int = 0, *, channel: int = 1
) -> None:
    """Sets a value, such as raw.G_NC_OVERRIDE."""
    _check(raw.GNCDataSetGNCValue(channel, area, number, index, ctypes.c_double(value)))


def text(string: int, number: int = 0, *, channel: int = 1) -> str:
    """A string, such as raw.G_NC_CONTROL_NAME."""
    out = (ctypes.c_uint16 * _ROOM)()
    _check(raw.GNCDataGetString(channel, string, number, out, _ROOM))
    return string_of(out)


def set_text(string: int, text: str, number: int = 0, *, channel: int = 1) -> None:
    """Sets a string, such as raw.G_NC_PROGRAM_NAME."""
    _check(raw.GNCDataSetString(channel, string, number, text))
