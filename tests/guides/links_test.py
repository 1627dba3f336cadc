"""Tests of the check of links."""
import pathlib
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

from links import faults  # noqa: E402


class Links(unittest.TestCase):
    def faults_of(self, **pages):
        """What is wrong with pages, by their names: of docs/, and `front` for README.md."""
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            (root / "docs").mkdir()
            for name, text in ({"front": "[all](docs)", "README": ""} | pages).items():
                path = "README.md" if name == "front" else f"docs/{name}.md"
                (root / path).write_text(text, encoding="utf-8")
            return list(faults(root))

    def test_may_lead_to_pages_folders_and_headings(self):
        self.assertEqual(self.faults_of(
            README="[a](a.md) [up](..) [b](a.md#the-second-of-two-words) [web](https://x.y/z#q)",
            a="# The `second` of [two](../README.md) words!\n[here](#the-second-of-two-words)",
        ), [])

    def test_that_lead_nowhere_are_faults(self):
        self.assertEqual(self.faults_of(README="[a](a.md) ![](a.png)"), [
            "docs/README.md: leads nowhere: a.md",
            "docs/README.md: leads nowhere: a.png",
        ])

    def test_to_headings_that_there_are_not_are_faults(self):
        text = "# One\n```\n# Two\n```\n[1](#one) [2](#two)"
        self.assertEqual(self.faults_of(README=text), ["docs/README.md: no such heading: #two"])
        self.assertEqual(self.faults_of(front="[all](docs) [a](docs/README.md#a)"),
                         ["README.md: no such heading: docs/README.md#a"])

    def test_in_code_are_none(self):
        self.assertEqual(self.faults_of(
            README="`[a](a.md)`\n\n    [b](b.md)\n\n```\n[c](c.md)\n```\n"), [])

    def test_lead_to_every_page(self):
        self.assertEqual(self.faults_of(a=""), [
            "docs/README.md: does not list docs/a.md",
            "README.md: does not lead to docs/a.md",
        ])
        self.assertEqual(self.faults_of(front="", README=""),
                         ["README.md: does not lead to docs/README.md"])


if __name__ == "__main__":
    unittest.main()
