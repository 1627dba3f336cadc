"""Holds the program's numbers to the public headers.

    numbers_test.py INCLUDE_FOLDER
"""

import pathlib
import re
import sys
import unittest

from quarlo_linuxcnc import numbers

INCLUDE = pathlib.Path(sys.argv.pop())
HEADERS = [INCLUDE / name for name in ("quarlo/nc_data.h", "gpi/nc.h")]
PREFIXES = {numbers.Result: "G_NC_", numbers.Area: "G_NC_", numbers.Text: "G_NC_",
            numbers.System: "G_NC_SYSTEM_", numbers.Mode: "G_NC_MODE_",
            numbers.State: "G_NC_STATE_", numbers.Command: "G_NC_COMMAND_",
            numbers.Alarm: "GPI_NC_ALARM_"}


class Numbers(unittest.TestCase):
    def test_are_those_of_the_headers(self):
        told = {"G_NC_DONE": 1}
        for header in HEADERS:
            text = header.read_text(encoding="utf-8")
            told |= {name: int(what) for name, what in re.findall(r"(\w+) = (-?\d+)", text)}
        for kind, prefix in PREFIXES.items():
            for number in kind:
                with self.subTest(number):
                    self.assertEqual(number, told[prefix + number.name])


if __name__ == "__main__":
    unittest.main()
