"""Tests of the picture that the platform gets of a control."""

import unittest
from types import SimpleNamespace
from unittest import mock

import linuxcnc

from bench import BRAKING, EMERGENCY, HELD, HOMING, IN_A_PROGRAM, OFF, Bench
from quarlo_linuxcnc.numbers import State
from quarlo_linuxcnc.painter import Painter
from quarlo_linuxcnc.picture import picture_of

AT_REST = """\
extent 3 1 99999 6000.0 10000.0
value 1 0 0 0.0
value 2 0 0 0.0
value 3 0 0 0.0
value 4 0 0 0.0
value 11 0 0 -100.0
value 11 1 0 100.0
value 17 0 0 0.0
value 10 1 0 0.0
text 5 0 X
value 1 0 1 0.0
value 2 0 1 0.0
value 3 0 1 0.0
value 4 0 1 0.0
value 11 0 1 -100.0
value 11 1 1 100.0
value 17 0 1 0.0
value 10 1 1 0.0
text 5 1 Y
value 1 0 2 0.0
value 2 0 2 0.0
value 3 0 2 0.0
value 4 0 2 0.0
value 11 0 2 -100.0
value 11 1 2 100.0
value 17 0 2 0.0
value 10 1 2 0.0
text 5 2 Z
value 5 0 0 0.0
value 5 0 1 0.0
value 6 0 0 0.0
value 6 0 1 0.0
value 7 0 0 100.0
value 7 1 0 100.0
value 7 2 0 100.0
value 8 0 0 0.0
value 12 0 0 0.0
value 12 1 0 17.0
value 12 2 0 90.0
value 12 3 0 94.0
value 12 4 0 21.0
value 12 5 0 40.0
value 12 6 0 49.0
value 12 7 0 54.0
value 12 8 0 98.0
value 12 9 0 64.0
value 13 0 0 0.0
value 13 1 0 0.0
value 14 0 0 0.0
value 14 1 0 0.0
system 1 0
system 2 1
system 3 0
system 4 0
system 5 1
system 6 0
system 7 0
system 8 0
system 10 0
system 11 7
system 12 0
system 14 3
system 15 1
system 16 0
text 1 0 
text 3 0 
text 6 0 LinuxCNC 1.2.3
""".splitlines()


def seen(control):
    control.look()
    return picture_of(control)


class Pictures(Bench):
    def changes(self, **status):
        """What is told of a status beyond the machine at rest."""
        picture = seen(self.control_with(**status))
        self.assertEqual(len(picture), len(AT_REST))
        return [line for line in picture if line not in AT_REST]

    def test_of_a_machine_at_rest_tell_all(self):
        self.assertEqual(seen(self.control), AT_REST)

    def test_tell_positions(self):
        self.assertEqual(
            self.changes(actual_position=(1.5, -2.0, 0.0), g5x_offset=(1.0, 0.0, 0.0),
                         g92_offset=(0.25, 0.0, 0.0), tool_offset=(0.0, 0.0, 4.0),
                         dtg=(0.0, 8.0, 0.0)),
            ["value 1 0 0 1.5", "value 2 0 0 0.25", "value 10 1 0 1.0",
             "value 1 0 1 -2.0", "value 2 0 1 -2.0", "value 3 0 1 8.0", "value 2 0 2 -4.0"])

    def test_tell_millimetres_of_a_machine_in_inches(self):
        inch = 1.0 / 25.4
        picture = seen(self.control_with(linear_units=inch, max_velocity=1.0, current_vel=0.5,
                                         actual_position=(2.0, 0.0, 0.0)))
        self.assertIn(f"extent 3 1 99999 {1.0 / inch * 60.0!r} 10000.0", picture)
        self.assertIn(f"value 1 0 0 {2.0 / inch!r}", picture)
        self.assertIn(f"value 5 0 0 {0.5 / inch * 60.0!r}", picture)

    def test_tell_degrees_of_a_rotary_axis(self):
        picture = seen(self.control_with(linear_units=1.0 / 25.4, axis_mask=0b1001, joints=1,
                                         actual_position=(0.0, 0.0, 0.0, 90.0)))
        self.assertIn("value 1 0 1 90.0", picture)
        self.assertIn("text 5 1 A", picture)
        self.assertNotIn("text 5 2", "".join(picture))
        self.assertNotIn("value 4 0 1 0.0", picture, "it has no joint")

    def test_tell_a_program_that_runs(self):
        changes = self.changes(**IN_A_PROGRAM, motion_line=12, current_line=15, current_vel=10.0,
                               settings=(0, 900.0, 0.0), file="/part.ngc")
        self.assertEqual(changes, ["value 5 0 0 600.0", "value 5 0 1 900.0", "value 13 0 0 12.0",
                                   "value 13 1 0 15.0", "system 1 1", "system 2 2",
                                   "text 1 0 /part.ngc"])

    def test_tell_programs_in_inches(self):
        codes = (0, 10, -1, 170, 400, 200, 900, 940, 540, 490, 980, 640)
        self.assertEqual(self.changes(gcodes=codes, settings=(0, 2.0, 0.0)),
                         ["value 5 0 1 50.8", "value 12 0 0 1.0", "value 12 4 0 20.0",
                          "system 16 1"])

    def test_tell_each_spindle(self):
        spindles = ({"speed": -1200.0, "override": 0.5}, {"speed": 300.0, "override": 1.0})
        picture = seen(self.control_with(spindles=2, spindle=spindles))
        self.assertEqual([line for line in picture if line.startswith(("value 6", "value 7 2"))],
                         ["value 6 0 0 -600.0", "value 6 0 1 -1200.0", "value 6 1 0 300.0",
                          "value 6 1 1 300.0", "value 7 2 0 50.0"])

    def test_tell_no_velocity_in_an_emergency(self):
        self.assertEqual(self.changes(**EMERGENCY, current_vel=10.0),
                         ["system 2 0", "system 4 1", "system 5 0"])

    def test_tell_switches(self):
        self.assertEqual(self.changes(optional_stop=True, block_delete=True, flood=1, mist=1,
                                      homed=(0, 1, 1), limit=(1, 0, 1)),
                         ["system 7 1", "system 8 1", "system 10 3", "system 11 6",
                          "system 12 5"])

    def test_keep_work_offsets_that_were_in_force(self):
        seen(self.control)
        self.control.status.__dict__.update(g5x_index=3, g5x_offset=(7.0, 0.0, 0.0))
        picture = seen(self.control)
        self.assertIn("value 10 1 0 0.0", picture)
        self.assertIn("value 10 3 0 7.0", picture)
        self.control.status.__dict__.update(g5x_index=9, g5x_offset=(8.0, 0.0, 0.0))
        self.assertNotIn("value 10 9 0 8.0", seen(self.control))

    def test_tell_the_tools_once_a_while(self):
        def tool(number, length, diameter):
            return SimpleNamespace(id=number, zoffset=length, diameter=diameter)

        def told():
            return [line for line in seen(self.control) if line.startswith(("value 8", "value 9"))]

        self.control.status.tool_in_spindle = -1
        self.control.status.tool_table = (tool(0, 9.0, 9.0), tool(4, 50.0, 12.0), tool(-1, 0, 0))
        with mock.patch("quarlo_linuxcnc.tool_table.time.monotonic") as now:
            now.return_value = 100.0
            first = ["value 8 0 0 0.0", "value 9 4 0 50.0", "value 9 4 1 6.0"]
            self.assertEqual(told(), first)
            self.control.status.tool_table = (tool(5, 20.0, 3.0),)
            now.return_value = 100.9
            self.assertEqual(told(), first)
            now.return_value = 101.0
            second = ["value 8 0 0 0.0", "value 9 5 0 20.0", "value 9 5 1 1.5"]
            self.assertEqual(told(), second)
            self.control.status.tool_table = ()
            self.control.tools.look_again()
            self.assertEqual(told(), second[:1])

    def test_count_the_time_that_programs_run(self):
        with mock.patch("quarlo_linuxcnc.run_clock.time.monotonic") as now:
            now.return_value = 10.0
            control = self.control_with(**IN_A_PROGRAM)
            now.return_value = 12.5
            self.assertIn("value 14 0 0 2.5", seen(control))
            control.status.__dict__.update(HELD, inpos=True, state=linuxcnc.RCS_DONE)
            now.return_value = 20.0
            self.assertIn("value 14 0 0 2.5", seen(control))
            control.status.__dict__.update(IN_A_PROGRAM, task_paused=0)
            control.clock.restart()
            now.return_value = 21.0
            picture = seen(control)
        self.assertIn("value 14 0 0 1.0", picture)
        self.assertIn("value 14 1 0 3.5", picture)


class States(Bench):
    def test_are_those_of_the_machine(self):
        for status, state in (({}, State.IDLE), (OFF, State.OFF), (EMERGENCY, State.OFF),
                              (IN_A_PROGRAM, State.RUNNING), (HELD, State.HELD),
                              (HELD | BRAKING, State.RUNNING), (HOMING, State.RUNNING),
                              (BRAKING, State.RUNNING), ({"inpos": False}, State.RUNNING),
                              ({"exec_state": linuxcnc.EXEC_ERROR}, State.IDLE),
                              ({"task_paused": 1}, State.IDLE)):
            with self.subTest(status):
                self.assertEqual(self.control_with(**status).state(), state)


class Paintings(Bench):
    def setUp(self):
        super().setUp()
        self.pipe = mock.Mock()
        self.painter = Painter(self.pipe, self.control)

    def painted(self):
        self.pipe.send.reset_mock()
        self.painter.paint()
        return [line for call in self.pipe.send.call_args_list for line in call.args[0]]

    def test_have_what_changed(self):
        self.assertEqual(self.painted(), AT_REST + ["show"])
        self.assertEqual(self.painted(), [])
        self.control.status.flood = 1
        self.assertEqual(self.painted(), ["system 10 1", "show"])
        self.control.status.flood = 0
        self.assertEqual(self.painted(), ["system 10 0", "show"])

    def test_have_errors_and_no_other_messages(self):
        self.painted()
        self.control.errors.messages = [(linuxcnc.OPERATOR_ERROR, "joint 1\n following  error"),
                                        (linuxcnc.OPERATOR_TEXT, "good morning"),
                                        (linuxcnc.NML_TEXT, "likewise"),
                                        (linuxcnc.NML_ERROR, "second")]
        self.assertEqual(self.painted(),
                         ["alarm 300 joint 1 following error", "alarm 300 second", "show"])


if __name__ == "__main__":
    unittest.main()
