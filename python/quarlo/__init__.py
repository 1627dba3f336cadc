"""Quarlo from Python: panels of machine tools, tried out in ten lines.

    import quarlo

    with quarlo.Display() as display:
        display.fill(display.area, 0xC0C8D0)
        display.text(display.area, "Hello, 旋盤!", 0x102040, align="centre")
        display.show()
        display.wait()

quarlo.machine speaks to the control, quarlo.profile reads texts and settings, and quarlo.raw has
every function of the library as it is in C.
"""
from quarlo import machine, profile, raw
from quarlo.display import Display
from quarlo.errors import Error
from quarlo.events import Event, Key, KeyDown, KeyUp, Move, Posted, Press, Release, Tick
from quarlo.fonts import Font
from quarlo.geometry import Rect
from quarlo.image import Image

__all__ = [
    "Display", "Error", "Event", "Font", "Image", "Key", "KeyDown", "KeyUp", "Move", "Posted",
    "Press", "Rect", "Release", "Tick", "machine", "profile", "raw",
]
