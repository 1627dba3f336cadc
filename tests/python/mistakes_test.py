"""Does what a stranger does wrong. Each mistake says what it is, and what comes after it works."""
import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import threading
import unittest

import quarlo
from quarlo import Display, Error, machine, profile, raw


def run(program, **environment):
    return subprocess.run(
        [sys.executable, "-c", program], env={**os.environ, **environment}, capture_output=True,
        encoding="utf-8", timeout=60,
    )


class BeforeTheDisplay(unittest.TestCase):
    def test_without_libraries_the_import_says_what_to_do(self):
        done = run("import quarlo", QUARLO_LIBRARY_PATH="/no/such/folder")
        self.assertEqual(done.returncode, 1)
        self.assertIn("ImportError: libgpi.so.1 cannot be loaded. Install Quarlo", done.stderr)
        self.assertIn("QUARLO_LIBRARY_PATH", done.stderr)

    def test_the_machine_wants_a_display(self):
        done = run("import quarlo; quarlo.machine.system(quarlo.raw.G_NC_SYSTEM_STATE)")
        self.assertIn("is a display open?", done.stderr)

    def test_profiles_want_a_display(self):
        done = run("import quarlo; quarlo.profile.text('a.ini', 'section', 'key')")
        self.assertIn("a display must be open", done.stderr)

    def test_settings_are_spelled_right(self):
        with self.assertRaisesRegex(TypeError, "no setting: widht; there are .*width"):
            Display(widht=320)

    def test_a_window_that_cannot_be_had(self):
        done = run(
            "import quarlo\n"
            "try: quarlo.Display(display='sdl')\n"
            "except quarlo.Error as error: print(error)\n"
            "with quarlo.Display(display='memory') as display: print(display.width)\n",
            SDL_VIDEODRIVER="none", QUARLO_WIDTH="64",
        )
        self.assertEqual(done.stdout.splitlines(),
                         ["the display does not open; the standard error stream says why", "64"])

    def test_settings_hold_for_their_display_alone(self):
        with Display(display="memory", width=32):
            pass
        self.assertNotIn("QUARLO_WIDTH", os.environ)


class WithTheDisplay(unittest.TestCase):
    def setUp(self):
        self.display = Display(display="memory", width=64, height=32)
        self.addCleanup(self.display.close)

    def test_there_is_one(self):
        with self.assertRaisesRegex(Error, "open already"):
            Display(display="memory")

    def test_it_is_used_after_it_was_closed(self):
        self.display.close()
        self.display.close()
        for act in (
            lambda: self.display.fill((0, 0, 1, 1), 0),
            lambda: self.display.text((0, 0, 1, 1), "A", 0),
            lambda: self.display.show(), lambda: self.display.save("x.png"),
            lambda: next(self.display.events()), lambda: self.display.wait(),
            lambda: self.display.every(1),
        ):
            with self.assertRaisesRegex(Error, "the display is closed"):
                act()
        with self.assertRaisesRegex(Error, "nobody asks"):
            self.display.post(1)

    def test_it_is_posted_to_after_it_was_closed(self):
        self.display.every(1)
        self.display.post(1)
        self.display.close()
        with self.assertRaisesRegex(Error, "the display is closed"):
            self.display.post(2)

    def test_it_is_closed_between_events(self):
        raw.GPIHostFeedKey(ord("A"), 1)
        events = self.display.events()
        next(events)
        self.display.close()
        with self.assertRaisesRegex(Error, "the display is closed"):
            next(events)

    def test_another_thread_draws(self):
        caught = []

        def draw():
            try:
                self.display.fill((0, 0, 1, 1), 0)
            except Error as error:
                caught.append(str(error))

        thread = threading.Thread(target=draw)
        thread.start()
        thread.join()
        self.assertEqual(
            caught, ["the display belongs to another thread; send it a value by post()"])

    def test_coordinates(self):
        for rect, kind, text in (
            ((0, 0, 1), TypeError, r"\(left, top, right, bottom\) is wanted"),
            ((0, 0, 1.5, 1), TypeError, "whole numbers are wanted"),
            ("rect", TypeError, "whole numbers are wanted"),
            (7, TypeError, "whole numbers are wanted"),
            ((0, 0, 70000, 1), ValueError, "70000 is no coordinate"),
        ):
            with self.subTest(rect), self.assertRaisesRegex(kind, text):
                self.display.fill(rect, 0)
        with self.assertRaisesRegex(ValueError, "two points at least"):
            self.display.line([(0, 0)], 0)
        with self.assertRaisesRegex(ValueError, "three points at least"):
            self.display.polygon([(0, 0), (1, 1)], fill=0)
        with self.assertRaisesRegex(ValueError, "nothing of"):
            with self.display.clip((100, 100, 110, 110)):
                pass

    def test_colours(self):
        for color, kind in ((-1, ValueError), (0x1000000, ValueError), ("red", ValueError),
                            ("#zzzzzz", ValueError), (1.0, TypeError), ((1, 2, 3), TypeError)):
            with self.subTest(color), self.assertRaisesRegex(kind, "a colour|invalid literal"):
                self.display.fill((0, 0, 1, 1), color)

    def test_pens(self):
        with self.assertRaisesRegex(ValueError, "width of an outline is 1 to 32767 pixels, not 0"):
            self.display.oval((0, 0, 9, 9), outline=0, width=0)
        with self.assertRaisesRegex(TypeError, "width of an outline is a whole number, not '1'"):
            self.display.oval((0, 0, 9, 9), outline=0, width="1")
        with self.assertRaisesRegex(ValueError, "a radius is 0 to"):
            self.display.fill((0, 0, 9, 9), 0, radius=-1)
        with self.assertRaisesRegex(ValueError, "the width of a bevel is 0 to"):
            self.display.bevel((0, 0, 9, 9), 0, 0, width=10 ** 12)
        for angle in ("right", None, float("nan"), float("inf")):
            with self.assertRaisesRegex(TypeError, "an angle is in degrees"):
                self.display.arc((0, 0, 9, 9), angle, 0, 0)
        with self.assertRaisesRegex(ValueError, "a dash is 0 to 8"):
            self.display.line([(0, 0), (9, 9)], 0, dash=9)

    def test_text(self):
        for text in (5, None, b"A"):
            with self.assertRaisesRegex(TypeError, "is no str"):
                self.display.text((0, 0, 9, 9), text, 0)
        with self.assertRaisesRegex(TypeError, "'Arial' is no Font"):
            self.display.text((0, 0, 9, 9), "A", 0, font="Arial")
        with self.assertRaisesRegex(Error, "no face 'Comic'"):
            self.display.text((0, 0, 9, 9), "A", 0, font=quarlo.Font("Comic"))
        with self.assertRaisesRegex(ValueError, "1 to 255 pixels"):
            self.display.text((0, 0, 9, 9), "A", 0, font=quarlo.Font(size=0))
        with self.assertRaisesRegex(ValueError, "'center' is none of left, centre, right"):
            self.display.text((0, 0, 9, 9), "A", 0, align="center")
        self.display.text((0, 0, 9, 9), "A", 0)

    def test_files(self):
        with tempfile.TemporaryDirectory() as folder:
            with self.assertRaisesRegex(Error, "is not written"):
                self.display.save(f"{folder}/none/picture.png")
            with self.assertRaisesRegex(ValueError, "no path has a NUL"):
                self.display.save(f"{folder}/picture\0.png")
            with self.assertRaisesRegex(TypeError, "'image.grf' is no Image"):
                self.display.image("image.grf", 0, 0)
            path = pathlib.Path(folder, "image.grf")
            with self.assertRaises(FileNotFoundError):
                quarlo.Image(path)
            path.write_bytes(b"PNG")
            with self.assertRaisesRegex(Error, "no GRF file"):
                quarlo.Image(path)
            path.write_bytes(b"QGRF\1" + bytes(20) + b"\xff" * 40)
            with self.assertRaisesRegex(Error, "damaged"):
                quarlo.Image(path)

    def test_timers(self):
        for seconds in (0, -1, 1e12):
            with self.assertRaisesRegex(ValueError, "a timer takes a millisecond to 24 days"):
                self.display.every(seconds)
        with self.assertRaisesRegex(TypeError, "a timer takes seconds"):
            self.display.every("1")
        with self.assertRaisesRegex(ValueError, "no timer 9"):
            self.display.stop(9)

    def test_the_machine(self):
        with self.assertRaisesRegex(Error, "the control refuses: G_NC_"):
            machine.value(9999)
        self.assertEqual(profile.text("none.ini", "section", "key", "else"), "else")

    def test_an_exception_closes_it(self):
        self.display.close()
        with self.assertRaises(ZeroDivisionError), Display(display="memory"):
            1 / 0
        Display(display="memory").close()


class AtTheEnd(unittest.TestCase):
    def test_a_display_that_nobody_closed_is_closed(self):
        with tempfile.TemporaryDirectory() as folder:
            path = f"{folder}/picture.png"
            done = run("import quarlo\n"
                       "display = quarlo.Display(display='png', width=16, height=16)\n"
                       "display.show()\n", QUARLO_PNG=path)
            self.assertEqual(done.returncode, 0, done.stderr)
            self.assertTrue(os.path.exists(path))

    def test_a_picture_that_cannot_be_written_is_an_error(self):
        display = Display(display="png", png="/no/such/folder/picture.png", width=16, height=16)
        display.show()
        with self.assertRaisesRegex(Error, "the last picture is not written"):
            display.close()

    def test_control_c_ends_the_wait_for_events(self):
        program = ("import quarlo\n"
                   "with quarlo.Display(display='memory') as display:\n"
                   "    display.every(1000)\n"
                   "    print('waiting', flush=True)\n"
                   "    for event in display.events(): pass\n")
        waiting = subprocess.Popen([sys.executable, "-c", program], stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE, encoding="utf-8")
        self.assertEqual(waiting.stdout.readline(), "waiting\n")
        waiting.send_signal(signal.SIGINT)
        _, errors = waiting.communicate(timeout=60)
        self.assertEqual(waiting.returncode, -signal.SIGINT)
        self.assertTrue(errors.rstrip().endswith("KeyboardInterrupt"), errors)


if __name__ == "__main__":
    unittest.main()
