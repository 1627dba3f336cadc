"""Profiles: files of sections, keys and values, such as the texts of a panel. A display must be
open."""
from __future__ import annotations

import ctypes

from quarlo import raw
from quarlo.binding import string
from quarlo.errors import Error

_ROOM = 1024  # units


def text(file: str, section: str, key: str, fallback: str = "") -> str:
    """A value as text; the fallback where there is none."""
    out = (ctypes.c_uint16 * _ROOM)()
    if raw.GIOGetPrivateProfileStringEx(section, key, fallback, out, _ROOM, file) < 0:
        raise Error(f"the profile {file!r} cannot be read: names have no folder, "
                    "and a display must be open")
    return string(out)


def number(file: str, section: str, key: str, fallback: int = 0) -> int:
    """A value as a whole number; the fallback where there is none."""
    return raw.GIOGetPrivateProfileIntEx(section, key, fallback, file)


def set_text(file: str, section: str, key: str, value: str | None) -> None:
    """Writes a value of the user's; None removes it."""
    if raw.GIOSetPrivateProfileString(section, key, value, raw.G_PROFILE_USER, file) != 1:
        raise Error(f"the profile {file!r} cannot be written: names have no folder, "
                    "and a display must be open")
