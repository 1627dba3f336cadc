"""The display: what is drawn on it, and the person before it."""
from __future__ import annotations

import atexit
import contextlib
import ctypes
import operator
import os
import threading
from typing import Any, Iterable, Iterator

from quarlo import raw
from quarlo.errors import Error
from quarlo.events import Event, Events
from quarlo.fonts import Font, Fonts
from quarlo.geometry import Rect, from_rect, record, to_rect
from quarlo.image import Image
from quarlo.settings import applied

_ALIGN = {"left": raw.G_ALIGN_LEFT, "centre": raw.G_ALIGN_CENTRE, "right": raw.G_ALIGN_RIGHT}
_VERTICAL = {"top": raw.G_ALIGN_TOP, "middle": raw.G_ALIGN_MIDDLE, "bottom": raw.G_ALIGN_BOTTOM}

_open: Display | None = None  # the platform is one for the process


def _number(value: Any, least: int, most: int, what: str) -> int:
    try:
        number = operator.index(value)
    except TypeError:
        raise TypeError(f"{what} is a whole number, not {value!r}") from None
    if not least <= number <= most:
        raise ValueError(f"{what} is {least} to {most} pixels, not {number}")
    return number


def _of_kind(value: Any, kind: type) -> Any:
    if not isinstance(value, kind):
        raise TypeError(f"{value!r} is no {kind.__name__}")
    return value


def _path(path: str | os.PathLike[str]) -> bytes:
    name = os.fsencode(path)
    if b"\0" in name:
        raise ValueError(f"no path has a NUL in it: {path!r}")
    return name


def _chosen(names: dict[str, int], name: str) -> int:
    try:
        return names[name]
    except KeyError:
        raise ValueError(f"{name!r} is none of {', '.join(names)}") from None


class Display:
    """The display of the machine, from Display() or `with` to close().

    Colours are 0xRRGGBB or "#RRGGBB"; None draws nothing. Rectangles are Rect or any four numbers
    left, top, right, bottom, all inside; points are two. What is drawn is seen after show().

    There is one display at a time, and it belongs to the thread that opened it; other threads may
    post().

    config: path of a configuration file instead of the usual one.
    settings: those of the platform, without their QUARLO_: Display(width=320, display="png").
    """

    def __init__(self, *, config: str | os.PathLike[str] | None = None, **settings: Any) -> None:
        global _open
        if _open is not None:
            raise Error("a display is open already; there is one at a time")
        self._thread = threading.get_ident()
        path = ctypes.create_string_buffer(_path(config)) if config is not None else None
        with applied(settings):
            raw.GetGPIFunction()
            started = raw.GDInitPlatform(ctypes.addressof(path) if path else 0)
        self._handle = raw.GDOpenDrawHandle(0, 0) if started else None
        if not self._handle:
            raw.GDQuitPlatform()
            raise Error("the display does not open; the standard error stream says why")
        surface = self._handle.contents.display.contents
        self.width, self.height = surface.width, surface.height
        self._palette = surface.colorType == raw.G_COLOR_PALETTE
        self._masks = surface.redMask, surface.greenMask, surface.blueMask
        if not self._palette:
            raw.GDSetColorMode(self._handle, 1, *self._masks)
        raw.GDSetTextMode(self._handle, raw.G_TEXT_TRANSPARENT)
        self._fonts = Fonts(self._handle, self._palette)
        self._events: Events | None = None
        _open = self
        atexit.register(self.close)

    def close(self) -> None:
        """Closes the display; with display="png" this writes its file. Nothing happens twice."""
        global _open
        if self._handle is None:
            return
        if self._events:
            self._events.close()
        raw.GDCloseDrawHandle(self._handle)
        self._fonts.close()
        self._handle = _open = None
        atexit.unregister(self.close)
        if not raw.GDQuitPlatform():
            raise Error("the last picture is not written; the standard error stream says why")

    def __enter__(self) -> Display:
        return self

    def __exit__(self, *_exception: object) -> None:
        self.close()

    @property
    def handle(self) -> Any:
        """The draw handle, for functions of quarlo.raw."""
        if self._handle is None:
            raise Error("the display is closed")
        if threading.get_ident() != self._thread:
            raise Error("the display belongs to another thread; send it a value by post()")
        return self._handle

    @property
    def area(self) -> Rect:
        """All of it."""
        return Rect.of(0, 0, self.width, self.height)

    # Colours.

    def _color(self, color: int | str | None) -> int:
        if color is None:
            return raw.G_NO_COLOR
        if isinstance(color, str):
            if len(color) != 7 or color[0] != "#":
                raise ValueError(f"a colour is 0xRRGGBB or '#RRGGBB', not {color!r}")
            color = int(color[1:], 16)
        try:
            color = operator.index(color)
        except TypeError:
            raise TypeError(f"a colour is 0xRRGGBB or '#RRGGBB', not {color!r}") from None
        if not 0 <= color <= 0xFFFFFF:
            raise ValueError(f"a colour is 0 to 0xFFFFFF, not {color:#x}")
        if self._palette:  # as it is at first: three bits of red, three of green, two of blue
            return color >> 16 & 0xE0 | color >> 11 & 0x1C | color >> 6 & 0x03
        return color

    def pixel_value(self, color: int | str) -> int:
        """How the display stores a colour."""
        color = self._color(color)
        if self._palette:
            return color
        value = 0
        for channel, mask in zip((color >> 16, color >> 8, color), self._masks):
            shift = mask.bit_length() - 8
            channel &= 0xFF
            value |= (channel << shift if shift >= 0 else channel >> -shift) & mask
        return value

    @contextlib.contextmanager
    def _style(self, fill: int | str | None, outline: int | str | None, width: int = 1,
               dash: int = 0) -> Iterator[Any]:
        handle = self.handle
        width = _number(width, 1, 0x7FFF, "the width of an outline")
        color = self._color(fill)
        raw.GDSetFillAttribute(handle, raw.G_FILL_FORE if fill is not None else raw.G_FILL_NONE,
                               color, color)
        raw.GDSetPenColor(handle, self._color(outline))
        raw.GDSetPenSize(handle, width, width)
        raw.GDSetPenDash(handle, dash)
        yield handle
        raw.GDSetPenSize(handle, 1, 1)
        raw.GDSetPenDash(handle, 0)

    # Shapes.

    def fill(self, rect: Iterable[int], color: int | str | None, *, radius: int = 0) -> None:
        """Fills a rectangle; with a radius its corners are round."""
        self.rect(rect, fill=color, outline=color if radius else None, radius=radius)

    def rect(self, rect: Iterable[int], *, fill: int | str | None = None,
             outline: int | str | None = None, width: int = 1, radius: int = 0) -> None:
        """Fills and outlines a rectangle; with a radius its corners are round."""
        area = to_rect(rect)
        radius = _number(radius, 0, 0x7FFF, "a radius")
        with self._style(fill, outline, width) as handle:
            if radius:
                raw.GDDrawRRect(handle, area, radius, radius)
            else:
                raw.GDDrawRect(handle, area)

    def oval(self, rect: Iterable[int], *, fill: int | str | None = None,
             outline: int | str | None = None, width: int = 1) -> None:
        """Fills and outlines the ellipse inside a rectangle."""
        with self._style(fill, outline, width) as handle:
            raw.GDDrawOval(handle, to_rect(rect))

    def arc(self, rect: Iterable[int], start: float, end: float, color: int | str,
            *, width: int = 1) -> None:
        """Draws part of that ellipse's outline, from an angle to an angle: degrees, 0 on the right,
        90 at the top."""
        with self._style(None, color, width) as handle:
            raw.GDDrawArc(handle, to_rect(rect), _tenths(start), _tenths(end))

    def pie(self, rect: Iterable[int], start: float, end: float, *, fill: int | str | None = None,
            outline: int | str | None = None, width: int = 1) -> None:
        """Fills and outlines a sector of that ellipse; angles are those of arc()."""
        with self._style(fill, outline, width) as handle:
            raw.GDDrawPie(handle, to_rect(rect), _tenths(start), _tenths(end))

    def line(self, points: Iterable[Iterable[int]], color: int | str, *, width: int = 1,
             dash: int = 0) -> None:
        """Draws lines from point to point; a dash is 1 to 8, 0 for none."""
        places = [record(raw.GPoint, point) for point in points]
        if len(places) < 2:
            raise ValueError("a line has two points at least")
        if dash not in range(raw.G_DASH_COUNT + 1):
            raise ValueError(f"a dash is 0 to {raw.G_DASH_COUNT}, not {dash!r}")
        with self._style(None, color, width, dash) as handle:
            raw.GDMoveTo(handle, places[0].x, places[0].y)
            for place in places[1:]:
                raw.GDLineTo(handle, place.x, place.y)

    def polygon(self, points: Iterable[Iterable[int]], *, fill: int | str | None = None,
                outline: int | str | None = None, width: int = 1) -> None:
        """Fills and outlines a polygon."""
        places = [record(raw.GPoint, point) for point in points]
        if not 3 <= len(places) <= 0x7FFF:
            raise ValueError("a polygon has three points at least")
        array = (raw.GPoint * len(places))(*places)
        xs, ys = [p.x for p in places], [p.y for p in places]
        poly = raw.GPoly(len(places), array, raw.GRect(min(xs), min(ys), max(xs), max(ys)))
        with self._style(fill, outline, width) as handle:
            raw.GDDrawPoly(handle, poly)

    def bevel(self, rect: Iterable[int], light: int | str, dark: int | str, *, width: int = 2,
              frame: int | str | None = None, sunken: bool = False) -> Rect:
        """Draws the edges of a raised or sunken plate, and gives what they leave inside."""
        inside = raw.GRect()
        style = raw.GBorderStyle(1, self._color(light), self._color(dark), self._color(frame),
                                 _number(width, 0, 0x7FFF, "the width of a bevel"))
        raw.GDDrawRectBorder(self.handle, to_rect(rect), inside, style,
                             raw.G_BORDER_SUNKEN if sunken else raw.G_BORDER_RAISED)
        return from_rect(inside)

    def image(self, image: Image, x: int, y: int) -> None:
        """Draws an image with its upper left corner at a place."""
        picture = raw.GGrfImage.from_buffer_copy(_of_kind(image, Image).record)
        if image.is_packed:
            values = [self.pixel_value(color) for color in image.colors()]
            colors = (ctypes.c_uint32 * (1 << picture.bits))(*values)
            picture.palette = ctypes.pointer(raw.GGrfPalette(len(colors), colors))
        elif image.masks != (self._masks if not self._palette else (0, 0, 0)):
            raise Error("the image is for displays of another format; "
                        "`quarlo-grf encode --pack 4` makes one for all")
        raw.GDDrawGrf(self.handle, picture, picture.data, x, y, 0, 0)

    # Text.

    def text(self, rect: Iterable[int], text: str, color: int | str, *, font: Font = Font(),
             align: str = "left", vertical: str = "middle") -> None:
        """Draws text in a rectangle, and nothing of it outside. It may have lines.

        align: "left", "centre" or "right"; vertical: "top", "middle" or "bottom".
        """
        handle, area = self.handle, to_rect(rect)
        look = raw.GCaptionAttr(self._color(color), _chosen(_ALIGN, align),
                                _chosen(_VERTICAL, vertical))
        if _of_kind(text, str):
            self._fonts.select(_of_kind(font, Font))
            raw.GDDrawCaptionString(handle, area, look, text)

    def text_size(self, text: str, font: Font = Font()) -> tuple[int, int]:
        """Width and height of a text, pixels."""
        handle = self.handle
        self._fonts.select(_of_kind(font, Font))
        size = raw.GSize()
        raw.GDGetStringSize(size, handle, _of_kind(text, str))
        return size.width, size.height

    # What is seen.

    @contextlib.contextmanager
    def clip(self, rect: Iterable[int]) -> Iterator[None]:
        """Confines drawing to a rectangle, and to the one before, meanwhile."""
        before = raw.GRect()
        if not raw.GDInceptClipRect(self.handle, to_rect(rect), before):
            raise ValueError(f"nothing of {rect!r} is on the display")
        try:
            yield
        finally:
            raw.GDSetClipRect(self.handle, before)

    def show(self, *rects: Iterable[int]) -> None:
        """Makes visible what was drawn, as one picture: all of it, or some rectangles."""
        handle = self.handle
        for rect in [to_rect(rect) for rect in rects] or [to_rect(self.area)]:
            raw.GDFlushScreen(handle, rect.left, rect.top, rect.right - rect.left + 1,
                              rect.bottom - rect.top + 1)
        raw.GPIHostEndFrame()

    def save(self, path: str | os.PathLike[str]) -> None:
        """Writes what is shown to a PNG file."""
        self.handle
        if not raw.GPIHostWritePng(_path(path)):
            raise Error(f"{os.fspath(path)} is not written; the standard error stream says why")

    # The person.

    def _queue(self) -> Events:
        self.handle
        if self._events is None:
            self._events = Events()
        return self._events

    def events(self) -> Iterator[Event]:
        """What a person does and what timers bring, until the window is closed."""
        queue = self._queue()
        while (event := queue.next()) is not None:
            yield event
            self.handle

    def every(self, seconds: float) -> int:
        """Starts a timer: events() brings a Tick with its number each time."""
        return self._queue().start_timer(seconds)

    def stop(self, timer: int) -> None:
        """Stops a timer."""
        self._queue().stop_timer(timer)

    def post(self, value: Any) -> None:
        """Has events() bring a Posted with a value. Any thread may call it, once events() or
        every() was called."""
        if self._events is None:
            raise Error("nobody asks this display for events")
        self._events.post(value)

    def wait(self) -> None:
        """Waits until the window is closed; not at all where nobody sees the display."""
        self.handle
        if raw.GPIHostHasWindow():
            for _ in self.events():
                pass


def _tenths(degrees: float) -> int:
    try:
        return round(float(degrees) * 10) % 3600
    except (OverflowError, TypeError, ValueError):
        raise TypeError(f"an angle is in degrees, not {degrees!r}") from None
