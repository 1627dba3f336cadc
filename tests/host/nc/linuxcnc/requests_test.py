"""Tests of the platform's requests: offsets, overrides, programs and blocks, and nonsense."""

import unittest
from types import SimpleNamespace

import linuxcnc

from bench import BRAKING, EMERGENCY, HELD, HOMING, IN_A_PROGRAM, NOT_HOMED, OFF, READY, Bench
from quarlo_linuxcnc.numbers import Result
from quarlo_linuxcnc.requests import answer

MDI = {"task_mode": linuxcnc.MODE_MDI}
IN_INCHES = {"gcodes": (0, 0, -1, 170, 400, 200, 900, 940, 540, 490, 980, 640)}


class Requests(Bench):
    def expect(self, kind, rest, result, commands=(), **status):
        with self.subTest(kind=kind, rest=rest, status=status):
            control = self.control_with(**status)
            control.command.effects = {("program_open", "/part.ngc"): {"file": "/part.ngc"},
                                       ("mdi", "G1 X"): {"state": linuxcnc.RCS_ERROR}}
            self.assertEqual(answer(control, kind, rest), result)
            self.assertEqual(self.given(control), list(commands))
            return control

    def test_to_switch_reach_the_switches(self):
        self.expect("system", "7 1", Result.DONE, [("set_optional_stop", True)])
        self.expect("system", "3 5", Result.DONE, [("abort",)])

    def test_to_jog_name_axes_that_there_are(self):
        self.expect("value", "17 0 1 60", Result.DONE,
                    [("jog", linuxcnc.JOG_CONTINUOUS, False, 1, 1.0)])
        self.expect("value", "18 0 1 2", Result.DONE,
                    [("jog", linuxcnc.JOG_INCREMENT, False, 1, 1000.0 / 60.0, 2.0)])
        self.expect("value", "17 0 1 60", Result.DONE,
                    [("jog", linuxcnc.JOG_CONTINUOUS, False, 2, 1.0)], axis_mask=0b101)
        for area in (10, 17, 18):
            self.expect("value", f"{area} 1 3 60", Result.UNKNOWN)

    def test_to_set_overrides_are_in_percent(self):
        for number, name in enumerate(("feedrate", "rapidrate", "spindleoverride")):
            self.expect("value", f"7 {number} 0 50", Result.DONE, [(name, 0.5)])
        self.expect("value", "7 3 0 50", Result.RANGE)

    def test_to_set_offsets_run_metric_blocks(self):
        for value, block in (("10 2 1 -5.5", "G21 G10 L2 P2 Y-5.500000000"),
                             ("9 7 0 12.5", "G21 G10 L1 P7 Z12.500000000"),
                             ("9 7 1 3", "G21 G10 L1 P7 R3.000000000")):
            self.expect("value", value, Result.DONE,
                        [("mode", linuxcnc.MODE_MDI), ("mdi", block),
                         ("mode", linuxcnc.MODE_MANUAL)])
        self.expect("value", "10 1 0 1", Result.DONE,
                    [("mode", linuxcnc.MODE_MDI), ("mdi", "G21 G10 L2 P1 X1.000000000"),
                     ("mdi", "G20"), ("mode", linuxcnc.MODE_AUTO)], **READY, **IN_INCHES)

    def test_to_set_offsets_need_a_machine_at_rest(self):
        for status in (OFF, EMERGENCY, NOT_HOMED, BRAKING, HOMING, HELD, IN_A_PROGRAM):
            self.expect("value", "10 1 0 1", Result.MODE, **status)
            self.expect("value", "9 1 0 1", Result.MODE, **status)

    def test_to_set_offsets_have_the_tools_read_again(self):
        self.control.look()
        answer(self.control, "value", "9 7 0 12.5")
        self.control.status.tool_table = (SimpleNamespace(id=7, zoffset=12.5, diameter=0.0),)
        self.control.look()
        self.assertEqual(self.control.tools.sizes, {7: (12.5, 0.0)})

    def test_for_what_cannot_be_set_are_unknown(self):
        for value in ("1 0 0 1", "16 100 0 1", "10 0 0 1", "10 7 0 1", "9 1 2 1", "99 0 0 1"):
            self.expect("value", value, Result.UNKNOWN)

    def test_for_a_program_open_it(self):
        opened = [("program_open", "/part.ngc")]
        for status in ({}, READY, OFF, EMERGENCY, NOT_HOMED):
            self.expect("program", "/part.ngc", Result.DONE, opened, **status)
        for status in (HELD, IN_A_PROGRAM, BRAKING, HOMING):
            self.expect("program", "/part.ngc", Result.MODE, **status)
        self.expect("program", "/part.ngc", Result.REFUSED, opened, state=linuxcnc.RCS_ERROR)
        self.expect("program", "/a b", Result.REFUSED, [("program_open", "/a b")])

    def test_for_a_block_run_it(self):
        control = self.expect("block", "G0 X1 Y2", Result.DONE, [("mdi", "G0 X1 Y2")], **MDI)
        self.assertEqual(control.last_block, "G0 X1 Y2")
        self.expect("block", "G1 X", Result.REFUSED, [("mdi", "G1 X")], **MDI)
        for status in ({}, READY, MDI | OFF, MDI | EMERGENCY, MDI | NOT_HOMED, MDI | BRAKING,
                       HELD | MDI, IN_A_PROGRAM | MDI):
            control = self.expect("block", "G0 X1", Result.MODE, **status)
            self.assertEqual(control.last_block, "")

    def test_that_make_no_sense_are_turned_down(self):
        for kind, rest in (("system", ""), ("system", "1"), ("system", "1 2 3"),
                           ("system", "1 x"), ("system", "1 3"), ("value", "7 0 0"),
                           ("value", "7 0 0 x"), ("value", "7 0.5 0 1")):
            self.expect(kind, rest, Result.RANGE)
        for kind in ("", "show", "System"):
            self.expect(kind, "1 2", Result.UNKNOWN)

    def test_of_which_nothing_is_heard_say_so(self):
        self.control.command.deaf = True
        self.assertEqual(answer(self.control, "system", "7 1"), Result.OFFLINE)

    def test_wait_for_an_error_of_what_takes_long(self):
        self.control.status.__dict__.update(MDI)
        self.control.command.effects = {("mdi", "G0 X1"): {"state": linuxcnc.RCS_EXEC}}
        self.control.status.polls = [{}, {"state": linuxcnc.RCS_ERROR}]
        self.assertEqual(answer(self.control, "block", "G0 X1"), Result.REFUSED)


if __name__ == "__main__":
    unittest.main()
