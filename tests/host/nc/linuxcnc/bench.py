"""What the tests share: a control on the stand-in for LinuxCNC's module."""

import unittest
from unittest import mock

import linuxcnc

from quarlo_linuxcnc import control as control_module
from quarlo_linuxcnc.control import Control

IN_A_PROGRAM = {"task_mode": linuxcnc.MODE_AUTO, "interp_state": linuxcnc.INTERP_READING,
                "state": linuxcnc.RCS_EXEC, "exec_state": linuxcnc.EXEC_WAITING_FOR_MOTION,
                "inpos": False}
HELD = {"task_mode": linuxcnc.MODE_AUTO, "interp_state": linuxcnc.INTERP_PAUSED, "task_paused": 1}
READY = {"task_mode": linuxcnc.MODE_AUTO, "file": "/part.ngc"}
OFF = {"task_state": linuxcnc.STATE_OFF}
EMERGENCY = {"task_state": linuxcnc.STATE_ESTOP}
NOT_HOMED = {"homed": (1, 0, 1)}


def joints(**changes):
    """Joints of which the second is in some way different."""
    usual = {"homing": 0, "velocity": 0.0, "ferror_current": 0.0}
    return {"joint": (usual, {**usual, **changes}, usual)}


HOMING = joints(homing=1)
BRAKING = joints(velocity=-3.0)


class Bench(unittest.TestCase):
    def setUp(self):
        # No test waits long for what does not come.
        patience = mock.patch.object(control_module, "PATIENCE", 0.01)
        patience.start()
        self.addCleanup(patience.stop)
        self.control = self.control_with()

    def control_with(self, **status):
        """A control that is on, referenced and idle in manual mode but for `status`."""
        control = Control(mock.Mock())
        control.status.__dict__.update(status)
        return control

    def given(self, control=None):
        """The commands that LinuxCNC got since the last look."""
        command = (control or self.control).command
        taken, command.given = command.given, []
        return taken
