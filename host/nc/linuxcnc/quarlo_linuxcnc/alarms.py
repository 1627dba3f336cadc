# SPDX-License-Identifier: GPL-2.0-or-later
"""The errors that LinuxCNC reports."""

import linuxcnc

from quarlo_linuxcnc.numbers import Alarm

ERRORS = (linuxcnc.NML_ERROR, linuxcnc.OPERATOR_ERROR)


def alarms(channel):
    """Lines of the errors that came, and of none of LinuxCNC's other messages."""
    lines = []
    message = channel.poll()
    while message:
        kind, text = message
        if kind in ERRORS:
            lines.append(f"alarm {Alarm.CONTROL:d} {' '.join(text.split())}")
        message = channel.poll()
    return lines
