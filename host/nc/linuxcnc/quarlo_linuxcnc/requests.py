# SPDX-License-Identifier: GPL-2.0-or-later
"""Requests of the platform, and who answers them."""

from quarlo_linuxcnc.jogging import jog, jog_step
from quarlo_linuxcnc.numbers import Area, Result
from quarlo_linuxcnc.offsets import set_tool_offset, set_work_offset
from quarlo_linuxcnc.programs import choose, run_block
from quarlo_linuxcnc.switches import set_system


def answer(control, kind, rest):
    """@param rest what stands behind the kind @return Result"""
    try:
        if kind == "system":
            number, value = rest.split()
            return set_system(control, int(number), int(value))
        if kind == "value":
            area, number, index, value = rest.split()
            return set_value(control, int(area), int(number), int(index), float(value))
        if kind == "program":
            return choose(control, rest)
        if kind == "block":
            return run_block(control, rest)
    except (ValueError, IndexError, KeyError):
        return Result.RANGE
    return Result.UNKNOWN


def set_value(control, area, number, index, value):
    if area == Area.OVERRIDE:
        return set_override(control, number, value)
    if area == Area.TOOL_OFFSET:
        return set_tool_offset(control, number, index, value)
    axes = control.axes()
    if area not in (Area.JOG, Area.JOG_STEP, Area.WORK_OFFSET) or index >= len(axes):
        return Result.UNKNOWN
    if area == Area.JOG:
        return jog(control, axes[index], value)
    if area == Area.JOG_STEP:
        return jog_step(control, axes[index], value)
    return set_work_offset(control, number, axes[index], value)


def set_override(control, number, percent):
    command = control.command
    (command.feedrate, command.rapidrate, command.spindleoverride)[number](percent / 100.0)
    return control.taken()
