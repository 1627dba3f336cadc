# SPDX-License-Identifier: GPL-2.0-or-later
"""How long programs have run, which LinuxCNC does not tell."""

import time


class RunClock:
    """Seconds of this run, and of all."""

    def __init__(self):
        self.this_run = self.all_runs = 0.0
        self.ticked = time.monotonic()

    def tick(self, running):
        """Counts the time since the last tick."""
        now = time.monotonic()
        passed, self.ticked = now - self.ticked, now
        if running:
            self.this_run += passed
            self.all_runs += passed

    def restart(self):
        """A new run begins."""
        self.this_run = 0.0
