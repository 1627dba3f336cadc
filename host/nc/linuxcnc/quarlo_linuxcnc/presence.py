# SPDX-License-Identifier: GPL-2.0-or-later
"""Whether LinuxCNC is there. It is found without its libraries, which hold on to what they meet."""

import os

import linuxcnc

from quarlo_linuxcnc.processes import arguments_of, is_process, process_of, shared_memory


class Lost(Exception):
    """The control is not there."""


class Presence:
    """A LinuxCNC that ran when it was looked for.

    Shared memory outlives a control that was killed: what counts is its task controller.
    """

    def __init__(self):
        """Raises Lost where there is none."""
        self.task, self.process = task_process()
        self.key = status_key()
        self.memory = shared_memory(self.key)
        tools = os.path.join(os.path.expanduser("~"), ".tool.mmap")
        if self.process is None or self.memory is None or not os.path.exists(tools):
            raise Lost("LinuxCNC does not run")

    def check(self):
        """Raises Lost once it has ended, whether or not another has begun."""
        if shared_memory(self.key) != self.memory or not is_process(self.process, self.task):
            raise Lost("LinuxCNC has ended")


def status_key():
    """The key of the control's status in shared memory."""
    with open(linuxcnc.nmlfile) as file:
        for line in file:
            words = line.split()
            if words[:3] == ["B", "emcStatus", "SHMEM"]:
                return int(words[9])
    raise Lost("its status has no place")


def task_process():
    """The task controller's name and process, as its configuration calls it."""
    server = process_of("linuxcncsvr")
    try:
        words = arguments_of(server)
        configuration = linuxcnc.ini(words[words.index("-ini") + 1])
    except (OSError, ValueError, linuxcnc.error):
        return None, None
    task = os.path.basename(configuration.find("TASK", "TASK") or "milltask")
    return task, process_of(task)
