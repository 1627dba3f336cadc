"""The panel's page in a browser without a window."""
import contextlib
import hashlib
import importlib.machinery
import importlib.util
import json
import os
import pathlib
import subprocess
import threading
import time
import urllib.parse

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.actions.action_builder import ActionBuilder
from selenium.webdriver.common.actions.pointer_input import PointerInput
from selenium.webdriver.common.by import By

SOURCE = pathlib.Path(__file__).resolve().parents[2]
PICTURES = SOURCE / "tests/panel/pictures"
LIMIT = 240.0  # seconds until something that must happen counts as missing
BEGIN = 1709280000  # the time at which scripts begin, 2024-03-01 08:00:00
STEP = 10  # milliseconds by which scripts let time pass


def load_serve():
    loader = importlib.machinery.SourceFileLoader("serve", str(SOURCE / "scripts/serve"))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader("serve", loader))
    loader.exec_module(module)
    return module


@contextlib.contextmanager
def served(folder):
    """The address of a folder."""
    server = load_serve().server(folder)
    thread = threading.Thread(target=server.serve_forever)
    thread.start()
    try:
        yield f"http://127.0.0.1:{server.server_port}/"
    finally:
        server.shutdown()
        thread.join()
        server.server_close()


@contextlib.contextmanager
def browser():
    options = webdriver.ChromeOptions()
    options.binary_location = "/usr/bin/chromium"
    for argument in ("headless=new", "no-sandbox", "disable-gpu", "window-size=1280,1000",
                     "force-device-scale-factor=1", "disable-dev-shm-usage"):
        options.add_argument("--" + argument)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
    driver.set_script_timeout(LIMIT)
    try:
        yield driver
    finally:
        driver.quit()


def picture(folder, name):
    """Width, height and the bytes red, green, blue of a picture that somebody has looked at."""
    file = str(PICTURES / folder / (name + ".png"))
    size = subprocess.run(["identify", "-format", "%w %h", file], check=True, capture_output=True)
    rgb = subprocess.run(["convert", file, "-depth", "8", "rgb:-"], check=True, capture_output=True)
    return (*map(int, size.stdout.split()), rgb.stdout)


def digest(folder, name):
    return hashlib.sha256(picture(folder, name)[2]).hexdigest()


class Page:
    """A page with the panel, from its loading on."""

    def __init__(self, driver, url, settings, arguments, held=False, files=None):
        """held: the panel's time stands still from the start on. files: texts by their paths."""
        self.driver = driver
        hooks = (pathlib.Path(__file__).parent / "hooks.js").read_text(encoding="utf-8")
        begin = BEGIN if held else "null"
        self._script = driver.execute_cdp_cmd("Page.addScriptToEvaluateOnNewDocument", {
            "source": f"const held = {begin}, files = {json.dumps(files or {})};\n{hooks}"})["identifier"]
        asked = [*settings.items(), *(("argument", argument) for argument in arguments)]
        self.begun = time.monotonic()
        driver.get(url + "?" + urllib.parse.urlencode(asked))

    def close(self):
        """No other page of this browser has its hooks."""
        self.driver.execute_cdp_cmd("Page.removeScriptToEvaluateOnNewDocument",
                                    {"identifier": self._script})
        self.driver.get("about:blank")

    def ask(self, script, *arguments):
        """The value of an expression, or what a promise of it comes to."""
        return self.driver.execute_async_script(
            "const done = arguments[arguments.length - 1];"
            f"Promise.resolve({script}).then(done, (error) => done('failed: ' + error))",
            *arguments)

    def wait_for(self, true, what):
        """Returns when a condition has become true."""
        end = time.monotonic() + LIMIT
        while not true():
            if time.monotonic() > end:
                raise AssertionError(f"{what}: not within {LIMIT:.0f} seconds; "
                                     f"the page says {self.said()}")
            time.sleep(0.02)

    def said(self):
        """What a person and the console are told, as far as it is worth reading."""
        console = [entry["message"][:300] for entry in self.driver.get_log("browser")]
        return [self.state(), *console[:5]]

    def state(self):
        return self.ask("document.getElementById('state').textContent")

    def digest(self, area=None):
        """Of the bytes red, green, blue of the canvas, or of left, top, width, height of it."""
        return self.ask("probe.digest(arguments[0])", area)

    def wait_for_picture(self, folder, name):
        """Returns when the canvas shows a kept picture."""
        wanted = digest(folder, name)
        try:
            self.wait_for(lambda: self.digest() == wanted, f"{folder}/{name}")
        except AssertionError:
            self.keep(f"{folder}-{name}")
            raise

    def keep(self, name):
        """Keeps what the canvas shows as a file, to be looked at."""
        folder = pathlib.Path(os.environ.get("WEB_TEST_FOLDER", "."))
        self.driver.find_element(By.ID, "canvas").screenshot(str(folder / (name + ".png")))

    def do(self, action, area=None):
        """Does something, and returns when the canvas, or an area of it, has changed."""
        before = self.digest(area)
        action()
        self.wait_for(lambda: self.digest(area) != before, "an answer")

    def width(self):
        """Of the canvas as the page shows it."""
        return self.ask("document.getElementById('canvas').getBoundingClientRect().width")

    def wait_for_start(self):
        """Returns when the panel shows something: its canvas is black before."""
        self.wait_for(lambda: self.ask("probe.drawn()"), "a picture")

    def step(self, milliseconds):
        """Lets the panel's time pass."""
        self.ask("probe.step(arguments[0], arguments[1])", milliseconds, STEP)

    def key(self, key):
        self.key_down(key)
        self.key_up(key)

    def key_down(self, key):
        actions = ActionBuilder(self.driver)
        actions.key_action.key_down(key)
        actions.perform()

    def key_up(self, key):
        actions = ActionBuilder(self.driver)
        actions.key_action.key_up(key)
        actions.perform()

    def place(self, x, y):
        """Where in the window the middle of a pixel of the canvas is."""
        return self.ask("probe.place(arguments[0], arguments[1])", x, y)

    def point(self, kind, x, y, press=False, release=False):
        """Moves a pointer, `mouse` or `touch`, and presses or releases there."""
        actions = ActionBuilder(self.driver, mouse=PointerInput(kind, kind))
        actions.pointer_action.move_to_location(*self.place(x, y))
        if press:
            actions.pointer_action.pointer_down()
        if release:
            actions.pointer_action.pointer_up()
        actions.perform()

    def tap(self, kind, x, y):
        self.point(kind, x, y, press=True, release=True)
