# SPDX-License-Identifier: GPL-2.0-or-later
"""Serves the platform: waits for a LinuxCNC, and ends with it."""

import linuxcnc

from quarlo_linuxcnc.control import Control
from quarlo_linuxcnc.numbers import Result
from quarlo_linuxcnc.painter import Painter
from quarlo_linuxcnc.pipe import Pipe
from quarlo_linuxcnc.presence import Lost, Presence
from quarlo_linuxcnc.requests import answer

PERIOD = 0.02         # between two pictures, seconds
WAITING_PERIOD = 0.2  # between two looks for a LinuxCNC


def main():
    pipe = Pipe()
    presence = wait_for_control(pipe)
    if presence is None:
        return
    try:
        serve(pipe, Control(presence))
    except (Lost, linuxcnc.error, SystemError) as reason:
        # LinuxCNC's libraries hold on to what they once found: the next control takes a new
        # process, which the platform starts.
        pipe.send([f"lost {' '.join(str(reason).split())}"])


def wait_for_control(pipe):
    """Turns requests down until there is a control. @return it, or None without a platform"""
    told = False
    while pipe.open:
        try:
            return Presence()
        except Lost as reason:
            if not told:
                pipe.send([f"lost {reason}"])
                told = True
        for line in pipe.receive(WAITING_PERIOD):
            pipe.send([reply(line.split(" ", 1)[0], Result.OFFLINE)])
    return None


def serve(pipe, control):
    """Paints pictures and answers requests until the control or the platform is gone."""
    painter = Painter(pipe, control)
    while pipe.open:
        painter.paint()
        for line in pipe.receive(PERIOD):
            request, kind, rest = (line.split(" ", 2) + ["", ""])[:3]
            control.poll()
            result = answer(control, kind, rest)
            painter.paint()  # who has the reply sees what came of it
            pipe.send([reply(request, result)])


def reply(request, result):
    return f"reply {request} {result:d}"
