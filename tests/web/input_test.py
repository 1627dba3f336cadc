"""Operates the panel in a browser by keys, mouse and touch; its time passes when the test says so.
Keys and pointer are those of the browser itself, and the canvas must show the kept pictures."""
import sys
import unittest

from selenium.webdriver.common.keys import Keys

from browser import Page, browser, served

FOLDER = sys.argv.pop(1)  # of the page

SMALL = {"QUARLO_WIDTH": "640", "QUARLO_HEIGHT": "480"}
WORK = [0, 60, 640, 340]  # what no key changes by being held
STATUS = [0, 0, 400, 56]  # mode and state of the machine


class Held(unittest.TestCase):
    """A panel whose time stands still."""

    def setUp(self):
        self.driver = self.enterContext(browser())
        self.url = self.enterContext(served(FOLDER))

    def open(self, settings, *arguments):
        return Page(self.driver, self.url, settings, ["--language", "english", *arguments],
                    held=True)

    def test_keys(self):
        page = self.open({"QUARLO_FORMAT": "565"})
        kept = "english-800x600-565"
        page.wait_for_picture(kept, "start")
        page.do(lambda: page.key(Keys.F1), STATUS)  # power
        page.step(300)
        page.do(lambda: page.key(Keys.F2), STATUS)  # reference
        page.step(3000)
        page.wait_for_picture(kept, "start-ready")
        page.key(Keys.F8)
        page.wait_for_picture(kept, "help")

    def choose_language(self, key, width, height, form, kept):
        page = self.open({"QUARLO_WIDTH": width, "QUARLO_HEIGHT": height, "QUARLO_FORMAT": form})
        page.wait_for_start()
        page.key(Keys.F7)  # settings
        page.key(key)
        page.key(Keys.ESCAPE)  # the start page
        page.wait_for_picture(kept, "start")

    def test_japanese(self):
        self.choose_language(Keys.F2, "640", "480", "8", "japanese-640x480-8")

    def test_chinese(self):
        self.choose_language(Keys.F3, "1024", "768", "24", "chinese-1024x768-24")

    def test_settings_are_kept(self):
        settings = {"QUARLO_FORMAT": "8", **SMALL}
        page = Page(self.driver, self.url, settings, ["--rate", "20"], held=True)
        page.wait_for_start()
        page.key(Keys.F7)  # settings
        page.key(Keys.F2)  # japanese
        page.key(Keys.ESCAPE)
        page.wait_for_picture("japanese-640x480-8", "start")
        self.driver.refresh()
        page.wait_for_picture("japanese-640x480-8", "start")

    def operate_by(self, kind):
        page = self.open({"QUARLO_FORMAT": "555", **SMALL})
        kept = "touch-640x480-555"
        page.wait_for_start()
        page.do(lambda: page.tap(kind, 40, 440), STATUS)  # power
        page.step(300)
        page.do(lambda: page.tap(kind, 100, 440), STATUS)  # reference
        page.step(3000)
        page.do(lambda: page.tap(kind, 600, 440))  # screens
        page.do(lambda: page.tap(kind, 220, 440), WORK)  # offsets
        page.tap(kind, 300, 120)  # a value
        page.wait_for_picture(kept, "chosen")
        page.tap(kind, 300, 120)  # once more: edit
        page.tap(kind, 500, 80)
        page.tap(kind, 500, 120)
        page.wait_for_picture(kept, "typed")
        page.do(lambda: page.tap(kind, 600, 380), WORK)  # enter
        page.step(300)
        page.wait_for_picture(kept, "taken")
        page.point(kind, 600, 440, press=True)
        page.wait_for_picture(kept, "key-pressed")

    def test_mouse(self):
        self.operate_by("mouse")

    def test_touch(self):
        self.operate_by("touch")

    def test_pages_of_any_size(self):
        """A pixel of the canvas is found where the page shows it, however large."""
        page = self.open({"QUARLO_FORMAT": "565"})
        kept = "english-800x600-565"
        page.wait_for_picture(kept, "start")
        self.resize(page, 700, 500)
        self.assertLess(page.width(), 700)
        page.do(lambda: page.tap("mouse", 40, 570), STATUS)  # power
        page.step(300)
        page.do(lambda: page.tap("mouse", 120, 570), STATUS)  # reference
        page.step(3000)
        page.wait_for_picture(kept, "start-ready")
        self.resize(page, 1700, 1400)
        self.assertEqual(page.width(), 1600)
        page.tap("touch", 600, 570)
        page.wait_for_picture(kept, "help")

    def resize(self, page, width, height):
        before = page.width()
        self.driver.set_window_size(width, height)
        page.wait_for(lambda: page.width() != before, "another size")

    def test_puts_what_changed(self):
        page = self.open({"QUARLO_FORMAT": "565"})
        page.wait_for_picture("english-800x600-565", "start")
        self.assertEqual(page.ask("probe.puts[0]"), [0, 0, 800, 600])
        before = page.ask("probe.puts.length")
        page.do(lambda: page.step(1000))  # the clock goes on
        puts = page.ask("probe.puts.slice(arguments[0])", before)
        self.assertEqual(len(puts), 1)
        left, top, width, height = puts[0]
        self.assertTrue(left >= 600 and top + height <= 40, puts)
        self.assertLess(width * height, 800 * 600 // 100)


if __name__ == "__main__":
    unittest.main()
