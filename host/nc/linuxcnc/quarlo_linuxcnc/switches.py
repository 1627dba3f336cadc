# SPDX-License-Identifier: GPL-2.0-or-later
"""System values that can be set: modes, power and what else a panel has switches for."""

import linuxcnc

from quarlo_linuxcnc.control import MODES
from quarlo_linuxcnc.numbers import Result, System
from quarlo_linuxcnc.orders import give


def set_system(control, number, value):
    switch = SWITCHES.get(number)
    return switch(control, value) if switch else Result.UNKNOWN


def set_mode(control, mode):
    if control.is_in(mode):
        return Result.DONE
    if not control.on() or control.busy():
        return Result.MODE
    control.command.mode(MODES[mode])
    return control.taken()


def set_emergency(control, wanted):
    return bring_about(control, lambda: control.in_emergency() == bool(wanted),
                       linuxcnc.STATE_ESTOP if wanted else linuxcnc.STATE_ESTOP_RESET)


def set_power(control, wanted):
    if wanted and control.in_emergency():
        return Result.MODE
    return bring_about(control, lambda: control.on() == bool(wanted),
                       linuxcnc.STATE_ON if wanted else linuxcnc.STATE_OFF)


def bring_about(control, condition, state):
    """Brings about a state of the machine, unless it is in it: LinuxCNC aborts what runs and
    switches off on its way to a state that it has already."""
    if condition():
        return Result.DONE
    control.jogs.clear()
    control.command.state(state)
    result = control.taken()
    return result if result != Result.DONE else control.becomes(condition)


def set_single_block(control, wanted):
    control.single_block = bool(wanted)
    return Result.DONE


def set_optional_stop(control, wanted):
    control.command.set_optional_stop(bool(wanted))
    return control.taken()


def set_block_skip(control, wanted):
    control.command.set_block_delete(bool(wanted))
    return control.taken()


def set_coolant(control, bits):
    if not control.on():
        return Result.MODE
    control.command.flood(linuxcnc.FLOOD_ON if bits & 1 else linuxcnc.FLOOD_OFF)
    control.completes()
    control.command.mist(linuxcnc.MIST_ON if bits & 2 else linuxcnc.MIST_OFF)
    return control.taken()


SWITCHES = {System.MODE: set_mode,
            System.COMMAND: give,
            System.EMERGENCY: set_emergency,
            System.POWER: set_power,
            System.SINGLE_BLOCK: set_single_block,
            System.OPTIONAL_STOP: set_optional_stop,
            System.BLOCK_SKIP: set_block_skip,
            System.COOLANT: set_coolant}
