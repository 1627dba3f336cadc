# SPDX-License-Identifier: GPL-2.0-or-later
"""Offsets of the work and of tools, which LinuxCNC takes as blocks."""

import linuxcnc

from quarlo_linuxcnc.numbers import AXIS_NAMES, Result


def set_work_offset(control, number, axis, millimetres):
    if not 1 <= number <= 6:
        return Result.UNKNOWN
    return run_metric(control, f"G10 L2 P{number} {AXIS_NAMES[axis]}{millimetres:.9f}")


def set_tool_offset(control, tool, index, millimetres):
    """@param index 0 for the length, 1 for the radius"""
    if index not in (0, 1):
        return Result.UNKNOWN
    return run_metric(control, f"G10 L1 P{tool} {'ZR'[index]}{millimetres:.9f}")


def run_metric(control, block):
    """Runs a block that sets a length, whatever unit and mode are in force."""
    if not control.on() or not control.all_homed() or control.busy():
        return Result.MODE
    command = control.command
    before, inches = control.status.task_mode, control.inches()
    command.mode(linuxcnc.MODE_MDI)
    control.completes()
    command.mdi("G21 " + block)
    result = control.taken()
    if inches:
        command.mdi("G20")
        control.completes()
    command.mode(before)
    control.completes()
    control.tools.look_again()
    control.poll()
    return result
