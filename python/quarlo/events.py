"""What a person does and what time brings, one after the other."""
from __future__ import annotations

import collections
import ctypes
import enum
import threading
from dataclasses import dataclass
from typing import Any, Iterator

from quarlo import raw
from quarlo.errors import Error

_BITS = {"COUNT", "PLACE", "EXTENDED", "ALT_HELD", "WAS_DOWN"}  # of a message, no keys
_NAMES = {
    name.removeprefix("GPI_KEY_"): value for name, value in vars(raw).items()
    if name.startswith("GPI_KEY_") and name.removeprefix("GPI_KEY_") not in _BITS
}
_NAMES |= {f"F{number}": raw.GPI_KEY_F1 + number - 1 for number in range(1, 25)}
_NAMES |= {f"PAD_{digit}": raw.GPI_KEY_PAD_0 + digit for digit in range(10)}
_NAMES |= {chr(code): code for code in range(ord("A"), ord("Z") + 1)}
_NAMES |= {f"DIGIT_{digit}": ord("0") + digit for digit in range(10)}

Key = enum.IntEnum("Key", _NAMES)
Key.__doc__ = "Keys by what stands on them: Key.ENTER, Key.F1, Key.A, Key.DIGIT_0."


def _key(number: int) -> int:
    return Key(number) if number in Key._value2member_map_ else number


@dataclass(frozen=True)
class KeyDown:
    """A key went down, or repeats while it is down."""

    key: int  #: one of Key; a plain number for a key that has no name
    count: int = 1  #: how many times, when the program was slower than the key


@dataclass(frozen=True)
class KeyUp:
    """A key was released."""

    key: int


@dataclass(frozen=True)
class Press:
    """The left mouse button went down, or a finger touched."""

    x: int
    y: int


@dataclass(frozen=True)
class Release:
    """It was let go."""

    x: int
    y: int


@dataclass(frozen=True)
class Move:
    """The pointer moved."""

    x: int
    y: int
    pressed: bool  #: with the left button held


@dataclass(frozen=True)
class Tick:
    """A timer of Display.every() expired."""

    timer: int


@dataclass(frozen=True)
class Posted:
    """What Display.post() was given."""

    value: Any


Event = KeyDown | KeyUp | Press | Release | Move | Tick | Posted

_RECEIVER = 1
_ARRIVED = 2  # type of the library's event that says: look into the queue
_LONGEST_WAIT = 200  # milliseconds, so that Ctrl-C is noticed
_QUIT = object()


def _event_of(message: raw.GMessage) -> object:
    number = message.number
    key = message.param1
    place = ctypes.c_int16(message.param2 & 0xFFFF).value, ctypes.c_int16(
        message.param2 >> 16 & 0xFFFF).value
    if number == raw.G_MESSAGE_QUIT:
        return _QUIT
    if number == raw.G_MESSAGE_KEY_DOWN:
        return KeyDown(_key(key), message.param2 & raw.GPI_KEY_COUNT)
    if number == raw.G_MESSAGE_KEY_UP:
        return KeyUp(_key(key))
    if number in (raw.G_MESSAGE_LEFT_DOWN, raw.G_MESSAGE_LEFT_DOUBLE):
        return Press(*place)
    if number == raw.G_MESSAGE_LEFT_UP:
        return Release(*place)
    if number == raw.G_MESSAGE_POINTER_MOVE:
        return Move(*place, bool(message.param1 & raw.GPI_POINTER_LEFT))
    return None


class Events:
    """The queue of one display. The library's own queue wakes it, and keeps its timers."""

    def __init__(self) -> None:
        if not raw.GEInitEvent():
            raise Error("the platform's events do not start")
        self._is_open = True
        self._closing = threading.Lock()  # nobody posts to a queue that is gone
        self._waiting: collections.deque[object] = collections.deque()
        self._intervals: dict[int, int] = {}  # milliseconds, by timer
        self._handler = raw.GPIHostMessageHandler(self._take)
        raw.GPIHostSetMessageHandler(self._handler, None)

    def close(self) -> None:
        raw.GPIHostSetMessageHandler(raw.GPIHostMessageHandler(), None)
        with self._closing:
            self._is_open = False
            raw.GEQuitEvent()

    def _take(self, _context: int, message: Any) -> None:
        event = _event_of(message.contents)
        if event is not None:
            self._add(event)

    def _add(self, event: object) -> None:
        self._waiting.append(event)
        wake = raw.GEventMsg(_ARRIVED, _RECEIVER)
        raw.GESetEvent(wake, 1)

    def post(self, value: Any) -> None:
        with self._closing:
            if not self._is_open:
                raise Error("the display is closed")
            self._add(Posted(value))

    def start_timer(self, seconds: float) -> int:
        if not isinstance(seconds, (int, float)):
            raise TypeError(f"a timer takes seconds, not {seconds!r}")
        if not 0.001 <= seconds <= 0x7FFFFFFF / 1000:
            raise ValueError(f"a timer takes a millisecond to 24 days, not {seconds} seconds")
        milliseconds = round(seconds * 1000)
        timer = next(number for number in range(1, 0x10000) if number not in self._intervals)
        if not raw.GESetTimer(_RECEIVER, timer, milliseconds):
            raise Error(f"no more than {raw.G_TIMER_COUNT} timers run at once")
        self._intervals[timer] = milliseconds
        return timer

    def stop_timer(self, timer: int) -> None:
        if self._intervals.pop(timer, None) is None:
            raise ValueError(f"no timer {timer} runs")
        raw.GEKillTimer(_RECEIVER, timer)

    def next(self) -> Event | None:
        """Waits for an event; None when the program is asked to end."""
        event = raw.GEventMsg()
        while True:
            if self._waiting:
                first = self._waiting.popleft()
                return None if first is _QUIT else first  # type: ignore[return-value]
            raw.GECheckTimer()
            wait = min([_LONGEST_WAIT, *self._intervals.values()])
            if raw.GEGetEvent(event, wait) and event.type == raw.G_EVENT_TIMER:
                return Tick(event.param1)

    def __iter__(self) -> Iterator[Event]:
        return iter(self.next, None)
