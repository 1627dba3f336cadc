# SPDX-License-Identifier: GPL-2.0-or-later
"""Lines from and to the platform."""

import os
import select


class Pipe:
    """Standard input and output, which the platform holds at the other end."""

    def __init__(self):
        self.output = os.dup(1)
        os.dup2(2, 1)  # LinuxCNC's libraries print what comes to their mind
        self.received = b""
        self.open = True

    def send(self, lines):
        data = "".join(line + "\n" for line in lines).encode("utf-8", "replace")
        while data:
            data = data[os.write(self.output, data):]

    def receive(self, wait):
        """The lines that came, waiting for the first. @param wait seconds"""
        ready, _, _ = select.select([0], [], [], wait)
        if ready:
            data = os.read(0, 65536)
            self.open = bool(data)
            self.received += data
        *lines, self.received = self.received.split(b"\n")
        return [line.decode("utf-8", "replace") for line in lines]
