"""Tests of orders to the machine: what LinuxCNC is told, and when they are refused."""

import unittest

import linuxcnc

from bench import BRAKING, EMERGENCY, HELD, HOMING, IN_A_PROGRAM, NOT_HOMED, OFF, READY, Bench
from quarlo_linuxcnc.numbers import Command, Mode, Result, System
from quarlo_linuxcnc.orders import give
from quarlo_linuxcnc.switches import set_system

STEP = ("auto", linuxcnc.AUTO_STEP)
RUN = ("auto", linuxcnc.AUTO_RUN, 0)
RESUME = ("auto", linuxcnc.AUTO_RESUME)
PAUSE = ("auto", linuxcnc.AUTO_PAUSE)
MDI = {"task_mode": linuxcnc.MODE_MDI}
STANDING = {"interp_state": linuxcnc.INTERP_IDLE, "state": linuxcnc.RCS_DONE, "inpos": True,
            "exec_state": linuxcnc.EXEC_DONE}


class Orders(Bench):
    def expect(self, order, result, commands, **status):
        control = self.control_with(**status)
        control.command.effects = {STEP: {"task_paused": 1}, ("abort",): STANDING}
        self.assertEqual(give(control, order), result)
        self.assertEqual(self.given(control), commands)
        self.assertEqual(control.last_command, order if result == Result.DONE else Command.NONE)

    def expect_refused(self, order, *states):
        for status in states:
            with self.subTest(status):
                self.expect(order, Result.MODE, [], **status)

    def test_to_start_run_the_program(self):
        self.expect(Command.START, Result.DONE, [RUN], **READY)

    def test_to_start_go_on_where_it_is_held(self):
        self.expect(Command.START, Result.DONE, [RESUME], **HELD)

    def test_to_start_change_nothing_in_a_program_that_runs(self):
        self.expect(Command.START, Result.DONE, [], **IN_A_PROGRAM)

    def test_to_step_run_one_block(self):
        self.expect(Command.STEP, Result.DONE, [STEP, STEP, STEP], **READY)
        self.expect(Command.STEP, Result.DONE, [STEP], **HELD)

    def test_to_start_step_by_single_blocks(self):
        control = self.control_with(**HELD)
        set_system(control, System.SINGLE_BLOCK, 1)
        self.assertEqual(give(control, Command.START), Result.DONE)
        self.assertEqual(self.given(control), [STEP])
        control = self.control_with(**IN_A_PROGRAM)
        set_system(control, System.SINGLE_BLOCK, 1)
        self.assertEqual(give(control, Command.START), Result.MODE)

    def test_to_step_say_that_a_block_did_not_end(self):
        control = self.control_with(**READY)
        self.assertEqual(give(control, Command.STEP), Result.REFUSED)
        self.assertEqual(self.given(control), [STEP, STEP, STEP])

    def test_to_run_need_power_a_program_and_the_reference(self):
        not_ready = [READY | EMERGENCY, READY | OFF, {}, READY | MDI, READY | NOT_HOMED,
                     READY | {"file": ""}]
        self.expect_refused(Command.START, *not_ready)
        self.expect_refused(Command.STEP, *not_ready, IN_A_PROGRAM)

    def test_to_start_begin_a_run_of_its_own(self):
        control = self.control_with(**READY)
        control.clock.this_run = 5.0
        give(control, Command.START)
        self.assertEqual(control.clock.this_run, 0.0)
        control.clock.this_run = 5.0
        control.status.__dict__.update(HELD)
        give(control, Command.START)
        self.assertEqual(control.clock.this_run, 5.0)

    def test_to_hold_need_a_program(self):
        self.expect(Command.HOLD, Result.DONE, [PAUSE], **IN_A_PROGRAM)
        self.expect_refused(Command.HOLD, {}, READY, HOMING)

    def test_to_stop_are_never_refused(self):
        for order in (Command.STOP, Command.RESET):
            for status in ({}, READY, IN_A_PROGRAM, HELD, HOMING, OFF, EMERGENCY):
                with self.subTest(order=order, status=status):
                    self.expect(order, Result.DONE, [("abort",)], **status)

    def test_to_stop_end_jogs(self):
        self.control.jogs = {0: 100.0, 2: -5.0}
        give(self.control, Command.STOP)
        self.assertEqual(self.given(), [("jog", linuxcnc.JOG_STOP, False, 0),
                                        ("jog", linuxcnc.JOG_STOP, False, 2), ("abort",)])
        self.assertEqual(self.control.jogs, {})

    def test_to_stop_wait_until_the_machine_stands(self):
        self.control.status.polls = [BRAKING, {}, {"joint": self.control.status.joint}]
        self.control.status.__dict__.update(BRAKING)
        self.assertEqual(give(self.control, Command.STOP), Result.DONE)
        self.assertFalse(self.control.busy())

    def test_to_home_need_power_manual_mode_and_rest(self):
        home = [("teleop_enable", 0), ("home", -1)]
        self.expect(Command.HOME, Result.DONE, home)
        self.expect(Command.HOME, Result.DONE, home, **NOT_HOMED)
        self.expect_refused(Command.HOME, OFF, EMERGENCY, READY, MDI, HOMING, BRAKING, HELD,
                            IN_A_PROGRAM)

    def test_for_the_platform_alone_do_nothing(self):
        self.expect(7, Result.DONE, [])


class Switches(Bench):
    def expect(self, number, value, result, commands, **status):
        with self.subTest(number=number, value=value, status=status):
            control = self.control_with(**status)
            control.command.effects = {
                ("state", state): {"task_state": state}
                for state in (linuxcnc.STATE_ESTOP, linuxcnc.STATE_ESTOP_RESET,
                              linuxcnc.STATE_OFF, linuxcnc.STATE_ON)}
            self.assertEqual(set_system(control, number, value), result)
            self.assertEqual(self.given(control), commands)

    def test_change_the_mode_of_a_machine_at_rest(self):
        self.expect(System.MODE, Mode.MDI, Result.DONE, [("mode", linuxcnc.MODE_MDI)])
        self.expect(System.MODE, Mode.AUTO, Result.DONE, [("mode", linuxcnc.MODE_AUTO)])
        self.expect(System.MODE, Mode.MANUAL, Result.DONE, [])
        for status in (OFF, EMERGENCY, BRAKING, HOMING, HELD, IN_A_PROGRAM):
            self.expect(System.MODE, Mode.MDI, Result.MODE, [], **status)
        self.expect(System.MODE, Mode.AUTO, Result.DONE, [], **IN_A_PROGRAM)

    def test_stop_in_an_emergency(self):
        stop, release = ("state", linuxcnc.STATE_ESTOP), ("state", linuxcnc.STATE_ESTOP_RESET)
        for status in ({}, OFF, IN_A_PROGRAM, HOMING):
            self.expect(System.EMERGENCY, 1, Result.DONE, [stop], **status)
            self.expect(System.EMERGENCY, 0, Result.DONE, [], **status)
        self.expect(System.EMERGENCY, 1, Result.DONE, [], **EMERGENCY)
        self.expect(System.EMERGENCY, 0, Result.DONE, [release], **EMERGENCY)

    def test_switch_power(self):
        on, off = ("state", linuxcnc.STATE_ON), ("state", linuxcnc.STATE_OFF)
        self.expect(System.POWER, 1, Result.DONE, [on], **OFF)
        self.expect(System.POWER, 1, Result.DONE, [on], task_state=linuxcnc.STATE_ESTOP_RESET)
        self.expect(System.POWER, 1, Result.DONE, [], **IN_A_PROGRAM)
        self.expect(System.POWER, 0, Result.DONE, [off])
        self.expect(System.POWER, 0, Result.DONE, [], **EMERGENCY)
        self.expect(System.POWER, 1, Result.MODE, [], **EMERGENCY)

    def test_say_that_power_did_not_come(self):
        control = self.control_with(**OFF)
        self.assertEqual(set_system(control, System.POWER, 1), Result.REFUSED)

    def test_end_jogs_with_the_power(self):
        self.control.jogs = {0: 100.0}
        set_system(self.control, System.POWER, 1)
        self.assertEqual(self.control.jogs, {0: 100.0})
        set_system(self.control, System.EMERGENCY, 1)
        self.assertEqual(self.control.jogs, {})

    def test_set_stops_and_skips(self):
        self.expect(System.OPTIONAL_STOP, 1, Result.DONE, [("set_optional_stop", True)])
        self.expect(System.OPTIONAL_STOP, 0, Result.DONE, [("set_optional_stop", False)])
        self.expect(System.BLOCK_SKIP, 1, Result.DONE, [("set_block_delete", True)])
        self.expect(System.SINGLE_BLOCK, 1, Result.DONE, [])

    def test_set_coolant_with_power(self):
        self.expect(System.COOLANT, 0, Result.DONE, [("flood", 0), ("mist", 0)])
        self.expect(System.COOLANT, 1, Result.DONE, [("flood", 1), ("mist", 0)])
        self.expect(System.COOLANT, 2, Result.DONE, [("flood", 0), ("mist", 1)])
        self.expect(System.COOLANT, 3, Result.MODE, [], **OFF)

    def test_there_are_not_of_what_is_only_read(self):
        for number in (System.STATE, System.HOMED, System.AXES, 0, 9, 99):
            self.expect(number, 1, Result.UNKNOWN, [])


if __name__ == "__main__":
    unittest.main()
