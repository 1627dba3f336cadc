"""Rectangles by their edges, which belong to them, as everywhere in the library."""
from __future__ import annotations

from typing import Iterable, NamedTuple

from quarlo import raw


class Rect(NamedTuple):
    """A rectangle in pixels: Rect(0, 0, 9, 9) covers 10 x 10 of them."""

    left: int
    top: int
    right: int
    bottom: int

    @classmethod
    def of(cls, left: int, top: int, width: int, height: int) -> Rect:
        """The rectangle of a size at a place."""
        return cls(left, top, left + width - 1, top + height - 1)

    @property
    def width(self) -> int:
        return self.right - self.left + 1

    @property
    def height(self) -> int:
        return self.bottom - self.top + 1

    def inset(self, border: int) -> Rect:
        """Less a border of the same width all around."""
        return Rect(
            self.left + border, self.top + border, self.right - border, self.bottom - border
        )

    def cut_top(self, height: int) -> tuple[Rect, Rect]:
        """A strip of that height, and the rest."""
        return self._replace(bottom=self.top + height - 1), self._replace(top=self.top + height)

    def cut_bottom(self, height: int) -> tuple[Rect, Rect]:
        """A strip of that height, and the rest."""
        edge = self.bottom - height
        return self._replace(top=edge + 1), self._replace(bottom=edge)

    def cut_left(self, width: int) -> tuple[Rect, Rect]:
        """A strip of that width, and the rest."""
        return self._replace(right=self.left + width - 1), self._replace(left=self.left + width)

    def cut_right(self, width: int) -> tuple[Rect, Rect]:
        """A strip of that width, and the rest."""
        edge = self.right - width
        return self._replace(left=edge + 1), self._replace(right=edge)

    def __contains__(self, point: object) -> bool:
        """Whether a point (x, y) lies in it."""
        x, y = point  # type: ignore[misc]
        return self.left <= x <= self.right and self.top <= y <= self.bottom


def record(kind: type, values: Iterable[int]):
    """A record of 16-bit numbers: GRect, GPoint or GLine."""
    try:
        numbers = [number.__index__() for number in values]
    except (AttributeError, TypeError):
        raise TypeError(f"whole numbers are wanted, not {values!r}") from None
    if len(numbers) != len(kind._fields_):
        names = ", ".join(name for name, _ in kind._fields_)
        raise TypeError(f"({names}) is wanted, not {values!r}")
    for number in numbers:
        if not -0x8000 <= number <= 0x7FFF:
            raise ValueError(f"{number} is no coordinate: those are -32768 to 32767")
    return kind(*numbers)


def to_rect(values: Iterable[int]) -> raw.GRect:
    return record(raw.GRect, values)


def from_rect(rect: raw.GRect) -> Rect:
    return Rect(rect.left, rect.top, rect.right, rect.bottom)
