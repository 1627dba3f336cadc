"""The examples, against pictures that somebody has looked at: hello.py draws what hello.c does, and
start_screen.py what the panel shows first.

    examples_test.py SOURCE_FOLDER ICONS
"""
import contextlib
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

from pictures import differing_pixels

source, icons = (pathlib.Path(path) for path in sys.argv[1:3])
examples = source / "examples/python"
sys.path.insert(0, str(examples))

import start_screen  # noqa: E402
from quarlo import Display, raw  # noqa: E402


class Hello(unittest.TestCase):
    def test_draws_its_picture(self):
        with tempfile.TemporaryDirectory() as folder:
            drawn = f"{folder}/hello.png"
            subprocess.run(
                [sys.executable, examples / "hello.py"], check=True, timeout=60,
                env={**os.environ, "QUARLO_DISPLAY": "png", "QUARLO_FORMAT": "24",
                     "QUARLO_WIDTH": "320", "QUARLO_HEIGHT": "160", "QUARLO_PNG": drawn},
            )
            self.assertEqual(differing_pixels(source / "docs/hello.png", drawn), 0)

    def test_has_ten_lines(self):
        lines = (examples / "hello.py").read_text(encoding="utf-8").splitlines()
        self.assertLessEqual(len([line for line in lines if line]), 10)


class StartScreen(unittest.TestCase):
    @contextlib.contextmanager
    def shown(self, run):
        language, size, form = run.split("-")
        width, height = size.split("x")
        with Display(display="memory", width=width, height=height, format=form,
                     profiles=start_screen.PROFILES) as display:
            raw.GPIHostHoldClock(8 * 3600)
            screen = start_screen.StartScreen(display, icons, language)
            screen.draw(start_screen.Machine.read())
            yield screen

    def expect(self, run):
        kept = source / "tests/panel/pictures" / run / "start.png"
        with self.shown(run) as screen, tempfile.TemporaryDirectory() as folder:
            drawn = f"{folder}/start.png"
            screen.display.save(drawn)
            self.assertEqual(differing_pixels(kept, drawn), 0, kept)

    def test_is_the_panels_in_english(self):
        self.expect("english-800x600-565")

    def test_is_the_panels_in_chinese(self):
        self.expect("chinese-1024x768-24")

    def test_makes_the_machine_ready(self):
        with self.shown("english-800x600-565") as screen:
            home = screen.place(1)
            raw.GPIHostFeedKey(raw.GPI_KEY_F1, 1)
            raw.GPIHostFeedPointer(home.left + 5, home.top + 5, raw.GPI_POINTER_LEFT)
            raw.GPIHostFeedKey(raw.GPI_KEY_ESCAPE, 1)
            screen.run()
            self.assertTrue(start_screen.Machine.read().power)
            raw.GPIHostStepClock(3000)
            self.assertTrue(start_screen.Machine.read().homed)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
