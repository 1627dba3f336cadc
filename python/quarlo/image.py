"""Images of the library's own format, as `quarlo-grf encode` makes them of PNG files."""
from __future__ import annotations

import ctypes
import os
import pathlib
import struct

from quarlo import raw
from quarlo.errors import Error

_HEADER = struct.Struct("<4sHHhhhHIIII")


class Image:
    """A picture from a .grf file.

    One with a palette (`quarlo-grf encode --pack 4`) fits every display, any other those of one
    format.
    """

    def __init__(self, path: str | os.PathLike[str]) -> None:
        data = pathlib.Path(path).read_bytes()
        if len(data) < _HEADER.size or not data.startswith(b"QGRF"):
            raise Error(f"{path} is no GRF file; `quarlo-grf encode` makes one of a PNG file")
        (_, version, kind, width, height, bits, count, self._red, self._green, self._blue,
         size) = _HEADER.unpack_from(data)
        stream = _HEADER.size + 4 * count
        self.is_packed = kind == raw.G_GRF_PALETTE
        depths = (1, 2, 4, 8) if self.is_packed else (8, 16, 24)
        has_masks = all(self.masks) or not any(self.masks) and not self.is_packed and bits == 8
        if (version != raw.G_GRF_FILE_VERSION or width < 1 or height < 1 or bits not in depths
                or count > 1 << bits or not has_masks or len(data) != stream + size
                or not _ends(data[stream:], (bits + 7) // 8)):
            raise Error(f"{path} is damaged; `quarlo-grf check` says where")
        self.width, self.height = width, height
        self.values = struct.unpack_from(f"<{count}I", data, _HEADER.size)
        self._stream = (ctypes.c_uint8 * size).from_buffer_copy(data, stream)
        self.record = raw.GGrfImage(kind, width, height, bits, size, self._stream)

    @property
    def masks(self) -> tuple[int, int, int]:
        """Where red, green and blue lie in a value; zeros for indexes into a display's palette."""
        return self._red, self._green, self._blue

    def colors(self) -> list[int]:
        """The palette as 0x00RRGGBB."""
        if not any(self.masks):
            return list(self.values)
        return [
            _channel(value, self._red) << 16 | _channel(value, self._green) << 8
            | _channel(value, self._blue) for value in self.values
        ]


def _ends(stream: bytes, unit: int) -> bool:
    """Whether every run is whole and the last byte is the end: drawing reads no further."""
    at = 0
    while at < len(stream) and stream[at]:
        kind, count = stream[at] >> 6, stream[at] & raw.G_GRF_COUNT_MASK
        values = {raw.G_GRF_SKIP: 1, raw.G_GRF_LITERAL: count * unit, raw.G_GRF_FILL: unit}
        at += 1 + values.get(kind, 0)
    return at == len(stream) - 1


def _channel(value: int, mask: int) -> int:
    """8 bits of what lies under a mask."""
    lowest = mask & -mask
    return (value & mask) // lowest * 255 // (mask // lowest)
