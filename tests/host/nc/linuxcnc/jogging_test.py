"""Tests of jogs by hand."""

import unittest

import linuxcnc

from bench import BRAKING, EMERGENCY, HOMING, NOT_HOMED, OFF, READY, Bench
from quarlo_linuxcnc.jogging import jog, jog_step
from quarlo_linuxcnc.numbers import Result

X, Y, A = 0, 1, 3
AXES, JOINTS = False, True
FREE = {"motion_mode": linuxcnc.TRAJ_MODE_FREE}


class Jogs(Bench):
    def test_go_on_until_they_are_stopped(self):
        self.assertEqual(jog(self.control, Y, -600.0), Result.DONE)
        self.assertEqual(self.given(), [("jog", linuxcnc.JOG_CONTINUOUS, AXES, Y, -10.0)])
        self.assertEqual(self.control.jogs, {Y: -600.0})
        self.assertEqual(jog(self.control, Y, 0.0), Result.DONE)
        self.assertEqual(self.given(), [("jog", linuxcnc.JOG_STOP, AXES, Y)])
        self.assertEqual(self.control.jogs, {})

    def test_are_stopped_once(self):
        self.assertEqual(jog(self.control, X, 0.0), Result.DONE)
        self.assertEqual(self.given(), [])

    def test_are_in_units_of_the_machine(self):
        self.control.status.linear_units = 0.5
        jog(self.control, X, 600.0)
        self.assertEqual(self.given(), [("jog", linuxcnc.JOG_CONTINUOUS, AXES, X, 5.0)])
        jog_step(self.control, X, 3.0)
        self.assertEqual(self.given(), [("jog", linuxcnc.JOG_INCREMENT, AXES, X, 5.0, 1.5)])

    def test_of_rotary_axes_are_in_degrees(self):
        self.control.status.linear_units = 0.5
        jog(self.control, A, 600.0)
        jog_step(self.control, A, 3.0)
        self.assertEqual(self.given(), [("jog", linuxcnc.JOG_CONTINUOUS, AXES, A, 10.0),
                                        ("jog", linuxcnc.JOG_INCREMENT, AXES, A, 10.0, 3.0)])

    def test_need_power_and_manual_mode(self):
        for status in (OFF, EMERGENCY, READY, HOMING):
            with self.subTest(status):
                control = self.control_with(**status)
                self.assertEqual(jog(control, X, 100.0), Result.MODE)
                self.assertEqual(jog_step(control, X, 1.0), Result.MODE)
                self.assertEqual(self.given(control), [])
                self.assertEqual(control.jogs, {})

    def test_may_go_along_with_others_but_steps_not(self):
        control = self.control_with(**BRAKING, inpos=False)
        self.assertEqual(jog(control, X, 100.0), Result.DONE)
        self.assertEqual(jog_step(control, Y, 1.0), Result.MODE)

    def test_are_of_joints_before_the_reference(self):
        control = self.control_with(**NOT_HOMED, **FREE)
        jog(control, X, 60.0)
        jog(control, X, 0.0)
        self.assertEqual(self.given(control), [("jog", linuxcnc.JOG_CONTINUOUS, JOINTS, X, 1.0),
                                               ("jog", linuxcnc.JOG_STOP, JOINTS, X)])

    def test_change_the_frame_where_it_is_another(self):
        for status, teleop, motion in (({}, 1, linuxcnc.TRAJ_MODE_TELEOP),
                                       (NOT_HOMED, 0, linuxcnc.TRAJ_MODE_FREE)):
            with self.subTest(status):
                control = self.control_with(motion_mode=linuxcnc.TRAJ_MODE_COORD, **status)
                control.command.effects = {("teleop_enable", teleop): {"motion_mode": motion}}
                jog(control, X, 60.0)
                self.assertEqual(self.given(control), [
                    ("teleop_enable", teleop),
                    ("jog", linuxcnc.JOG_CONTINUOUS, not teleop, X, 1.0)])


class Steps(Bench):
    def test_go_at_the_feed_of_the_last_jog(self):
        jog_step(self.control, X, 1.5)
        self.assertEqual(self.given(),
                         [("jog", linuxcnc.JOG_INCREMENT, AXES, X, 1000.0 / 60.0, 1.5)])
        jog(self.control, X, -120.0)
        jog(self.control, X, 0.0)
        self.given()
        jog_step(self.control, X, 1.5)
        jog_step(self.control, X, -0.5)
        self.assertEqual(self.given(), [("jog", linuxcnc.JOG_INCREMENT, AXES, X, 2.0, 1.5),
                                        ("jog", linuxcnc.JOG_INCREMENT, AXES, X, -2.0, 0.5)])

    def test_end_within_the_reach(self):
        self.control.status.actual_position = (99.0, -99.0)
        for axis, distance, result in ((X, 1.0, Result.DONE), (X, 1.01, Result.RANGE),
                                       (Y, -1.0, Result.DONE), (Y, -1.01, Result.RANGE)):
            with self.subTest(axis=axis, distance=distance):
                self.assertEqual(jog_step(self.control, axis, distance), result)
                self.assertEqual(len(self.given()), result == Result.DONE)


if __name__ == "__main__":
    unittest.main()
