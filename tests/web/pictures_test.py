"""The scripted runs of the panel in a browser: at every picture of a run, the canvas shows what the
kept picture shows, to the pixel."""
import sys
import unittest

from browser import PICTURES, SOURCE, Page, browser, digest, served

FOLDER = sys.argv.pop(1)  # of the page


def runs():
    for line in (SOURCE / "tests/panel/runs.txt").read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            yield line.split()


class Pictures(unittest.TestCase):
    """A test for each run."""

    def run_script(self, folder, script, width, height, form, language, modules=None):
        if modules:
            self.skipTest("a page loads no modules")
        text = (SOURCE / f"tests/panel/scripts/{script}.txt").read_text(encoding="utf-8")
        settings = {"QUARLO_WIDTH": width, "QUARLO_HEIGHT": height, "QUARLO_FORMAT": form}
        arguments = ["--language", language, "--script", "/script.txt", "--shots", "/shots"]
        with served(FOLDER) as url, browser() as driver:
            page = Page(driver, url, settings, arguments, files={"/script.txt": text})
            page.wait_for(lambda: page.state().startswith("The panel has"), "the end")
            self.assertEqual(page.state(), "The panel has ended (0).")
            shots = page.ask("Promise.all(Object.entries(probe.shots).map("
                             "async ([name, hash]) => [name, await hash]))")
        names = {file.name for file in (PICTURES / folder).iterdir()}
        self.assertEqual({name for name, _ in shots}, names)
        for name, hash_of_canvas in shots:
            with self.subTest(name):
                self.assertEqual(hash_of_canvas, digest(folder, name.removesuffix(".png")))


for run in runs():
    setattr(Pictures, "test_" + run[0].replace("-", "_"),
            lambda self, run=run: self.run_script(*run))

if __name__ == "__main__":
    unittest.main()
