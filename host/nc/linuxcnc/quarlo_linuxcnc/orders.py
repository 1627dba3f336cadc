# SPDX-License-Identifier: GPL-2.0-or-later
"""Orders to the machine: start, hold, step, stop, reset, home."""

import linuxcnc

from quarlo_linuxcnc.jogging import stop_jogs
from quarlo_linuxcnc.numbers import Command, Mode, Result


def give(control, order):
    """Gives an order; those that are for the platform alone are none."""
    result = ORDERS[order](control) if order in ORDERS else Result.DONE
    if result == Result.DONE:
        control.last_command = order
    return result


def start(control):
    return run(control, control.single_block)


def step(control):
    return run(control, True)


def run(control, single):
    """Begins the program, or goes on. @param single for a block at a time"""
    if not control.on():
        return Result.MODE
    if control.held():
        return go_on(control, single)
    if control.interprets():
        return Result.MODE if single else Result.DONE
    if not control.is_in(Mode.AUTO) or not control.status.file or not control.all_homed():
        return Result.MODE
    return begin(control, single)


def go_on(control, single):
    if single:
        return run_block(control)
    control.command.auto(linuxcnc.AUTO_RESUME)
    return control.taken()


def begin(control, single):
    control.clock.restart()
    if single:
        # The first two steps only read.
        return min(run_block(control) for _ in range(3))
    control.command.auto(linuxcnc.AUTO_RUN, 0)
    return control.taken()


def run_block(control):
    control.command.auto(linuxcnc.AUTO_STEP)
    return control.becomes(lambda: control.status.task_paused and
                           control.status.echo_serial_number >= control.command.serial)


def hold(control):
    if not control.interprets():
        return Result.MODE
    control.command.auto(linuxcnc.AUTO_PAUSE)
    return control.taken()


def stop(control):
    stop_jogs(control)
    control.command.abort()
    result = control.taken()
    control.becomes(lambda: not control.busy())  # it brakes: until then no mode can be changed
    return result


def home(control):
    if not control.on() or not control.is_in(Mode.MANUAL) or control.busy():
        return Result.MODE
    control.command.teleop_enable(0)
    control.completes()
    control.command.home(-1)
    return control.taken()


ORDERS = {Command.START: start,
          Command.HOLD: hold,
          Command.STEP: step,
          Command.STOP: stop,
          Command.RESET: stop,
          Command.HOME: home}
