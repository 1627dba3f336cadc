"""Fonts by what they look like."""
from __future__ import annotations

import ctypes
from typing import Any, NamedTuple

from quarlo import raw
from quarlo.binding import units
from quarlo.errors import Error


class Font(NamedTuple):
    """A face and how its glyphs are to be."""

    face: str = "TORVANDELL CNC Gothic"
    size: int = 16  #: height of a cell, 1 to 255 pixels; ideographs are as wide, letters half of it
    bold: bool = False
    smooth: bool = True  #: edges between two colours, where the display has such colours

    def descriptor(self, palette: bool) -> raw.GSimpleFont:
        name = units(self.face)
        if len(name) > raw.G_FACE_SIZE:
            raise ValueError(f"a face has a name of {raw.G_FACE_SIZE - 1} units at most")
        if self.size not in range(1, 256):
            raise ValueError(f"a font is 1 to 255 pixels high, not {self.size!r}")
        record = raw.GSimpleFont(
            size=self.size, bitsPerPixel=4 if self.smooth and not palette else 1,
            flags=raw.G_SIMPLE_FONT_BOLD if self.bold else 0,
        )
        record.face[:len(name)] = name
        return record


class Fonts:
    """The fonts that a draw handle has used: each is loaded once."""

    def __init__(self, handle: Any, palette: bool) -> None:
        self._handle = handle
        self._palette = palette
        self._loaded: dict[Font, Any] = {}

    def select(self, font: Font) -> None:
        loaded = self._loaded.get(font)
        if loaded:
            raw.GDSetFont(self._handle, loaded)
            return
        descriptor = font.descriptor(self._palette)
        loaded = raw.GDSetSimpleFont(self._handle, ctypes.byref(descriptor))
        if not loaded:
            raise Error(f"there is no face {font.face!r}; docs/host.md tells which there are")
        self._loaded[font] = loaded

    def close(self) -> None:
        for loaded in self._loaded.values():
            raw.GFReleaseFont(loaded)
        self._loaded.clear()
