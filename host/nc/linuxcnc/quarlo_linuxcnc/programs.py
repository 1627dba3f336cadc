# SPDX-License-Identifier: GPL-2.0-or-later
"""What the machine is to run: a program, or a block by hand."""

from quarlo_linuxcnc.numbers import Mode, Result


def choose(control, path):
    if control.busy():
        return Result.MODE
    control.command.program_open(path)
    if not control.completes():
        return Result.REFUSED
    return control.becomes(lambda: control.status.file == path)


def run_block(control, block):
    if (not control.on() or not control.is_in(Mode.MDI) or not control.all_homed() or
            control.busy()):
        return Result.MODE
    control.last_block = block
    control.clock.restart()
    control.command.mdi(block)
    return control.taken()
