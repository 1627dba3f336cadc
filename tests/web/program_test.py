"""Runs a part program in a browser, by keys and in real time, and tells how fast it goes."""
import sys
import time
import unittest

from selenium.webdriver.common.keys import Keys

from browser import Page, browser, served

FOLDER = sys.argv.pop(1)  # of the page

REFERENCE = [16, 413, 120, 25]  # of the start page: whether the machine has taken its reference
X_AXIS = [10, 60, 400, 120]  # of the position page


class Program(unittest.TestCase):
    def test_runs(self):
        with served(FOLDER) as url, browser() as driver:
            page = Page(driver, url, {"QUARLO_FORMAT": "565"},
                        ["--language", "english", "--rate", "60", "lens_mould.nc"])
            page.wait_for_start()
            first = time.monotonic() - page.begun
            page.do(lambda: page.key(Keys.F1), REFERENCE)  # power: the reference is next
            page.do(lambda: page.key(Keys.F2), REFERENCE)  # taken
            page.key(Keys.F5)  # start
            page.do(lambda: page.key(Keys.F3), X_AXIS)
            for _ in range(3):
                page.do(lambda: None, X_AXIS)  # it moves by itself
            rates = page.ask("probe.rates(4000)")
            heap = page.ask("Module.HEAPU8.length")
            used = page.ask("performance.memory.usedJSHeapSize")
        self.assertGreater(rates["panel"], 0)
        self.assertLess(rates["pixels"], 800 * 600 / 4)
        print(f"first picture after {first:.1f} s; while a program runs {rates['panel']:.0f} frames "
              f"a second of the panel, {rates['browser']:.0f} of the browser, "
              f"{rates['pixels']:.0f} pixels each; memory {heap >> 20} MB and {used >> 20} MB")


if __name__ == "__main__":
    unittest.main()
