# SPDX-License-Identifier: GPL-2.0-or-later
"""Tells the platform what has changed."""

from quarlo_linuxcnc.alarms import alarms
from quarlo_linuxcnc.picture import picture_of


class Painter:
    """Sends what is new since the last picture."""

    def __init__(self, pipe, control):
        self.pipe, self.control = pipe, control
        self.shown = set()

    def paint(self):
        self.control.look()
        picture = picture_of(self.control)
        fresh = alarms(self.control.errors)
        fresh += [line for line in picture if line not in self.shown]
        self.shown = set(picture)
        if fresh:
            self.pipe.send(fresh + ["show"])
