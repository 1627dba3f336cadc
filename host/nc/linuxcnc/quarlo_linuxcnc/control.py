# SPDX-License-Identifier: GPL-2.0-or-later
"""A LinuxCNC that runs: how it stands, and whether it took a command."""

import time

import linuxcnc

from quarlo_linuxcnc.numbers import Command, Mode, Result, State
from quarlo_linuxcnc.run_clock import RunClock
from quarlo_linuxcnc.tool_table import ToolTable

MODES = {Mode.MANUAL: linuxcnc.MODE_MANUAL,
         Mode.AUTO: linuxcnc.MODE_AUTO,
         Mode.MDI: linuxcnc.MODE_MDI}

ROTARY_AXES = (3, 4, 5)

STANDSTILL = 1e-6  # slower is not moving, machine units a second
GRACE = 0.05       # for errors of a command that takes long, seconds
PATIENCE = 0.4     # for the control to take a command, seconds


class Control:
    """LinuxCNC's channels, and what it does not keep itself."""

    def __init__(self, presence):
        self.presence = presence
        self.status = linuxcnc.stat()
        self.command = linuxcnc.command()
        self.errors = linuxcnc.error_channel()
        self.status.poll()
        self.single_block = False
        self.last_command = Command.NONE
        self.last_block = ""
        self.jogs = {}          # feeds of the axes that jog
        self.jog_feeds = {}     # of the axes' last jogs
        self.work_offsets = {}  # those that were in force, in machine units
        self.tools = ToolTable()
        self.clock = RunClock()

    def poll(self):
        """Brings the status up to date. Raises Lost once there is none."""
        self.presence.check()
        self.status.poll()

    def look(self):
        """Brings all up to date that a picture shows."""
        self.poll()
        self.clock.tick(self.state() == State.RUNNING and self.interprets())
        self.work_offsets[self.status.g5x_index] = self.status.g5x_offset
        self.tools.look(self.status, self.millimetres())

    # How it stands.

    def on(self):
        return self.status.task_state == linuxcnc.STATE_ON

    def in_emergency(self):
        return self.status.task_state == linuxcnc.STATE_ESTOP

    def is_in(self, mode):
        return self.status.task_mode == MODES[mode]

    def axes(self):
        return [axis for axis in range(9) if self.status.axis_mask >> axis & 1]

    def joints(self):
        return self.status.joint[:self.status.joints]

    def millimetres(self):
        """In a unit of the machine."""
        return 1.0 / (self.status.linear_units or 1.0)

    def scale(self, axis):
        """Millimetres, or degrees, in a unit of an axis."""
        return 1.0 if axis in ROTARY_AXES else self.millimetres()

    def inches(self):
        """Whether programs are in inches now."""
        return self.status.gcodes[5] == 200

    def homed(self):
        """Which joints are, as bits."""
        return sum(1 << joint for joint in range(self.status.joints) if self.status.homed[joint])

    def all_homed(self):
        return self.homed() == (1 << self.status.joints) - 1

    def homes(self):
        return any(joint["homing"] for joint in self.joints())

    def moves(self):
        return any(joint["homing"] or abs(joint["velocity"]) > STANDSTILL
                   for joint in self.joints())

    def interprets(self):
        """Whether it is within a program or a block."""
        return self.status.interp_state != linuxcnc.INTERP_IDLE

    def held(self):
        return self.interprets() and bool(self.status.task_paused) and not self.moves()

    def busy(self):
        """Whether it does anything, be it held."""
        status = self.status
        return (status.state == linuxcnc.RCS_EXEC or not status.inpos or self.interprets() or
                status.exec_state not in (linuxcnc.EXEC_DONE, linuxcnc.EXEC_ERROR) or
                self.moves())

    def state(self):
        if not self.on():
            return State.OFF
        if self.held():
            return State.HELD
        return State.RUNNING if self.busy() else State.IDLE

    # What becomes of a command.

    def taken(self):
        """Waits until the control has done the last command, or is at it without an error."""
        status = self.status
        if self.becomes(lambda: status.echo_serial_number >= self.command.serial) != Result.DONE:
            return Result.OFFLINE
        end = time.monotonic() + GRACE
        while status.state == linuxcnc.RCS_EXEC and time.monotonic() < end:
            time.sleep(0.001)
            self.poll()
        return Result.REFUSED if status.state == linuxcnc.RCS_ERROR else Result.DONE

    def becomes(self, condition):
        """Waits until the control is as it was told to be."""
        end = time.monotonic() + PATIENCE
        while not condition():
            if time.monotonic() > end:
                return Result.REFUSED
            time.sleep(0.001)
            self.poll()
        return Result.DONE

    def completes(self):
        """Waits until the control is through with the last command, and reads no status."""
        return self.command.wait_complete(PATIENCE) != linuxcnc.RCS_ERROR
