# SPDX-License-Identifier: GPL-2.0-or-later
"""Jogs of axes by hand, which LinuxCNC makes but does not tell of."""

import linuxcnc

from quarlo_linuxcnc.numbers import Mode, Result

USUAL_FEED = 1000.0  # of steps before any jog, millimetres or degrees a minute


def may_jog(control):
    return control.on() and control.is_in(Mode.MANUAL) and not control.homes()


def jog(control, axis, feed):
    """Jogs an axis until it is told a feed of 0. @param feed millimetres or degrees a
    minute"""
    if feed == 0.0:
        if control.jogs.pop(axis, None) is not None:
            control.command.jog(linuxcnc.JOG_STOP, take_frame(control), axis)
        return Result.DONE
    if not may_jog(control):
        return Result.MODE
    control.jogs[axis] = feed
    control.jog_feeds[axis] = abs(feed)
    speed = feed / 60.0 / control.scale(axis)
    control.command.jog(linuxcnc.JOG_CONTINUOUS, take_frame(control), axis, speed)
    return Result.DONE


def jog_step(control, axis, distance):
    """Jogs an axis by millimetres or degrees, at the feed of its last jog."""
    if not may_jog(control) or not control.status.inpos:
        return Result.MODE
    scale = control.scale(axis)
    goal = control.status.actual_position[axis] + distance / scale
    reach = control.status.axis[axis]
    if not reach["min_position_limit"] <= goal <= reach["max_position_limit"]:
        return Result.RANGE
    speed = control.jog_feeds.get(axis, USUAL_FEED) / 60.0 / scale
    control.command.jog(linuxcnc.JOG_INCREMENT, take_frame(control), axis,
                        speed if distance >= 0.0 else -speed, abs(distance) / scale)
    return Result.DONE


def stop_jogs(control):
    for axis in control.jogs:
        control.command.jog(linuxcnc.JOG_STOP, not control.all_homed(), axis)
    control.jogs.clear()


def take_frame(control):
    """Has axes jog once the machine knows where it is, and joints before. @return whether joints"""
    teleop = control.all_homed()
    wanted = linuxcnc.TRAJ_MODE_TELEOP if teleop else linuxcnc.TRAJ_MODE_FREE
    if control.status.motion_mode != wanted:
        control.command.teleop_enable(1 if teleop else 0)
        control.completes()
        control.becomes(lambda: control.status.motion_mode == wanted)
    return not teleop
