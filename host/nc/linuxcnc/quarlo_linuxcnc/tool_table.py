# SPDX-License-Identifier: GPL-2.0-or-later
"""The sizes of the tools. They are many and seldom change: they are read once in a while."""

import math
import time

PERIOD = 1.0  # between two looks at it, seconds


class ToolTable:
    """Length and radius of each tool by its number, in millimetres."""

    def __init__(self):
        self.sizes = {}
        self.seen = -math.inf

    def look(self, status, millimetres):
        """@param millimetres in a unit of the machine"""
        if time.monotonic() - self.seen < PERIOD:
            return
        self.seen = time.monotonic()
        self.sizes = {tool.id: (tool.zoffset * millimetres, tool.diameter * millimetres / 2.0)
                      for tool in status.tool_table if tool.id > 0}

    def look_again(self):
        """The next look is one."""
        self.seen = -math.inf
