# SPDX-License-Identifier: GPL-2.0-or-later
"""The picture of a control: all lines that describe it now."""

import linuxcnc

from quarlo_linuxcnc.control import MODES
from quarlo_linuxcnc.numbers import AXIS_NAMES, Area, System, Text

MOST_TOOLS = 99999
LONGEST_STEP = 1e4  # millimetres
# Where the control's list of active codes has the groups of gpi/nc.h.
MODAL_PLACES = (1, 3, 6, 7, 5, 4, 9, 8, 10, 11)


def picture_of(control):
    return [extent(control), *axes(control), *feeds(control), *tools(control), *codes(control),
            *progress(control), *system_values(control), *texts(control)]


def value(area, number, index, what):
    return f"value {area:d} {number} {index} {float(what)!r}"


def text(string, number, what):
    return f"text {string:d} {number} {what}"


def extent(control):
    status = control.status
    fastest = status.max_velocity * control.millimetres() * 60.0
    return (f"extent {len(control.axes())} {status.spindles} {MOST_TOOLS} "
            f"{fastest!r} {LONGEST_STEP!r}")


def axes(control):
    for index, axis in enumerate(control.axes()):
        scale = control.scale(axis)
        yield from positions(control.status, index, axis, scale)
        yield value(Area.JOG, 0, index, control.jogs.get(axis, 0.0))
        for number, offset in control.work_offsets.items():
            if 1 <= number <= 6:
                yield value(Area.WORK_OFFSET, number, index, offset[axis] * scale)
        yield text(Text.AXIS_NAME, index, AXIS_NAMES[axis])


def positions(status, index, axis, scale):
    machine, reach = status.actual_position[axis], status.axis[axis]
    shift = status.g5x_offset[axis] + status.g92_offset[axis] + status.tool_offset[axis]
    yield value(Area.MACHINE_POSITION, 0, index, machine * scale)
    yield value(Area.WORK_POSITION, 0, index, (machine - shift) * scale)
    yield value(Area.DISTANCE_TO_GO, 0, index, status.dtg[axis] * scale)
    if index < status.joints:
        yield value(Area.FOLLOWING_ERROR, 0, index, status.joint[index]["ferror_current"] * scale)
    yield value(Area.LIMIT, 0, index, reach["min_position_limit"] * scale)
    yield value(Area.LIMIT, 1, index, reach["max_position_limit"] * scale)


def feeds(control):
    status = control.status
    # In an emergency stop LinuxCNC goes on telling the velocity that it had.
    velocity = status.current_vel * control.millimetres() * 60.0 if control.on() else 0.0
    yield value(Area.FEED, 0, 0, velocity)
    yield value(Area.FEED, 0, 1, status.settings[1] * (25.4 if control.inches() else 1.0))
    for number, spindle in enumerate(status.spindle[:status.spindles]):
        yield value(Area.SPINDLE, number, 0, spindle["speed"] * spindle["override"])
        yield value(Area.SPINDLE, number, 1, spindle["speed"])
    overrides = status.feedrate, status.rapidrate, status.spindle[0]["override"]
    for number, override in enumerate(overrides):
        yield value(Area.OVERRIDE, number, 0, override * 100.0)


def tools(control):
    yield value(Area.TOOL, 0, 0, max(control.status.tool_in_spindle, 0))
    for tool, sizes in control.tools.sizes.items():
        for index, size in enumerate(sizes):
            yield value(Area.TOOL_OFFSET, tool, index, size)


def codes(control):
    for group, place in enumerate(MODAL_PLACES):
        yield value(Area.MODAL, group, 0, control.status.gcodes[place] / 10.0)


def progress(control):
    runs, status = control.interprets(), control.status
    yield value(Area.LINE, 0, 0, status.motion_line if runs else 0)
    yield value(Area.LINE, 1, 0, status.current_line if runs else 0)
    yield value(Area.TIME, 0, 0, round(control.clock.this_run, 1))
    yield value(Area.TIME, 1, 0, round(control.clock.all_runs, 1))


def system_values(control):
    status = control.status
    values = [(System.MODE, mode) for mode, code in MODES.items() if status.task_mode == code]
    values += [
        (System.STATE, control.state()),
        (System.COMMAND, control.last_command),
        (System.EMERGENCY, control.in_emergency()),
        (System.POWER, control.on()),
        (System.SINGLE_BLOCK, control.single_block),
        (System.OPTIONAL_STOP, status.optional_stop),
        (System.BLOCK_SKIP, status.block_delete),
        (System.COOLANT, bool(status.flood) | bool(status.mist) << 1),
        (System.HOMED, control.homed()),
        (System.LIMITS, at_limits(status)),
        (System.AXES, len(control.axes())),
        (System.CHANNELS, 1),
        (System.UNITS, control.inches()),
    ]
    return [f"system {number:d} {what:d}" for number, what in values]


def at_limits(status):
    """Which joints stand there, as bits."""
    return sum(1 << joint for joint in range(status.joints) if status.limit[joint])


def texts(control):
    yield text(Text.PROGRAM_NAME, 0, control.status.file)
    yield text(Text.MANUAL_BLOCK, 0, control.last_block)
    yield text(Text.CONTROL_NAME, 0, f"LinuxCNC {linuxcnc.version}")
