"""Runs the programs that docs/python.md prints, one after the other.

    guide_test.py SOURCE_FOLDER
"""
import contextlib
import io
import pathlib
import re
import sys
import tempfile
import unittest
import unittest.mock

from pictures import differing_pixels
from quarlo import events, raw, settings

source = pathlib.Path(sys.argv[1])
page = (source / "docs/python.md").read_text(encoding="utf-8")
programs = re.findall(r"^```python\n(.*?)^```$", page, re.M | re.S)


class Guide(unittest.TestCase):
    def setUp(self):
        self.enterContext(settings.applied({
            "display": "memory", "width": 320, "height": 160, "format": "24",
            "profiles": source / "apps/panel/profiles",
        }))
        self.enterContext(contextlib.chdir(self.enterContext(tempfile.TemporaryDirectory())))

    def run_program(self, text):
        output = io.StringIO()
        with contextlib.redirect_stdout(output):
            exec(compile(text, "docs/python.md", "exec"), {"__name__": "__main__"})
        return output.getvalue()

    def test_has_four_programs(self):
        self.assertEqual(len(programs), 4)

    def test_begins_with_the_example(self):
        example = source / "examples/python/hello.py"
        self.assertEqual(programs[0], example.read_text(encoding="utf-8"))
        self.run_program(programs[0])

    def test_draws_its_picture(self):
        self.run_program(programs[1])
        self.assertEqual(differing_pixels(source / "docs/python-drawing.png", "load.png"), 0)

    def test_takes_events(self):
        class Operated(events.Events):
            """With somebody who presses the display, waits, and closes the window."""

            def start_timer(self, seconds):
                raw.GPIHostHoldClock(0)
                timer = super().start_timer(seconds)
                raw.GPIHostFeedPointer(30, 40, raw.GPI_POINTER_LEFT)
                raw.GPIHostFeedPointer(30, 40, 0)
                return timer

            def next(self):
                event = super().next()
                if isinstance(event, events.Release):
                    raw.GPIHostStepClock(150)
                if isinstance(event, events.Tick):
                    raw.GPIHostFeedKey(raw.GPI_KEY_ESCAPE, 1)
                return event

        with unittest.mock.patch("quarlo.display.Events", Operated):
            program = programs[2] + "    result = f'{ticks}, {pressed}'\nprint(result)\n"
            self.assertEqual(self.run_program(program), "1, at 30, 40\n")

    def test_reads_the_machine(self):
        self.assertEqual(self.run_program(programs[3]), "quarlo sim 1 0.0\nStart\n15 15\n")


class Settings(unittest.TestCase):
    def test_are_those_of_the_platform(self):
        text = (source / "docs/host.md").read_text(encoding="utf-8")
        names = set(re.findall(r"^\| `QUARLO_(\w+)` \|", text, re.M))
        self.assertEqual({name.upper() for name in settings.NAMES}, names)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
