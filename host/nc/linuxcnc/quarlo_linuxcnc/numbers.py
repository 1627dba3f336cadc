# SPDX-License-Identifier: GPL-2.0-or-later
"""Numbers of quarlo/nc_data.h and gpi/nc.h, by their names there."""

from enum import IntEnum


class Result(IntEnum):
    """What came of a request. The worse, the smaller."""
    DONE = 1
    UNKNOWN = -1
    RANGE = -2
    MODE = -4
    OFFLINE = -6
    REFUSED = -7


class Area(IntEnum):
    """Areas of values."""
    MACHINE_POSITION = 1
    WORK_POSITION = 2
    DISTANCE_TO_GO = 3
    FOLLOWING_ERROR = 4
    FEED = 5
    SPINDLE = 6
    OVERRIDE = 7
    TOOL = 8
    TOOL_OFFSET = 9
    WORK_OFFSET = 10
    LIMIT = 11
    MODAL = 12
    LINE = 13
    TIME = 14
    JOG = 17
    JOG_STEP = 18


class Text(IntEnum):
    """Strings."""
    PROGRAM_NAME = 1
    MANUAL_BLOCK = 3
    AXIS_NAME = 5
    CONTROL_NAME = 6


class System(IntEnum):
    """System values."""
    MODE = 1
    STATE = 2
    COMMAND = 3
    EMERGENCY = 4
    POWER = 5
    SINGLE_BLOCK = 6
    OPTIONAL_STOP = 7
    BLOCK_SKIP = 8
    COOLANT = 10
    HOMED = 11
    LIMITS = 12
    AXES = 14
    CHANNELS = 15
    UNITS = 16


class Mode(IntEnum):
    """Values of System.MODE."""
    MANUAL = 0
    AUTO = 1
    MDI = 2


class State(IntEnum):
    """Values of System.STATE."""
    OFF = 0
    IDLE = 1
    RUNNING = 2
    HELD = 3


class Command(IntEnum):
    """Values of System.COMMAND."""
    NONE = 0
    START = 1
    HOLD = 2
    STEP = 3
    STOP = 4
    RESET = 5
    HOME = 6


class Alarm(IntEnum):
    """Numbers of alarms."""
    CONTROL = 300


AXIS_NAMES = "XYZABCUVW"
