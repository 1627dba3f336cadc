# SPDX-License-Identifier: GPL-2.0-or-later
"""Processes of this computer and the shared memory that they leave behind."""

import os

PROC = "/proc"


def is_process(pid, name):
    """Whether a process lives and has a name."""
    try:
        with open(f"{PROC}/{pid}/stat") as file:
            found, _, rest = file.read().partition("(")[2].rpartition(")")
            return found == name[:15] and rest.split()[0] not in "ZX"
    except OSError:
        return False


def process_of(name):
    """The process of a name, or None."""
    for pid in os.listdir(PROC):
        if pid.isdigit() and is_process(pid, name):
            return pid
    return None


def arguments_of(pid):
    """The words that a process was called with."""
    with open(f"{PROC}/{pid}/cmdline") as file:
        return file.read().split("\0")


def shared_memory(key):
    """The piece of shared memory that has a key now, or None."""
    with open(f"{PROC}/sysvipc/shm") as file:
        next(file)
        for line in file:
            words = line.split()
            if int(words[0]) == key:
                return int(words[1])
    return None
