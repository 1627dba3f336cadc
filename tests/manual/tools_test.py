"""Holds the pages of the installed programs against what the programs say of themselves.

    tools_test.py SOURCE_FOLDER MAN_FOLDER PROGRAM...
"""
import pathlib
import re
import subprocess
import sys
import unittest

source, man_folder, *programs = (pathlib.Path(path) for path in sys.argv[1:])


def page_of(program):
    return source / "tools" / program.name / f"{program.name}.1"


def set_in(page):
    """A page as a terminal of any width shows it."""
    done = subprocess.run(
        ["groff", "-man", "-Tascii", "-P-cbou", "-rLL=2000n", "-ww", page],
        capture_output=True, encoding="ascii", check=True,
    )
    return done.stdout, done.stderr


def section(program, title):
    shown, _ = set_in(page_of(program))
    return re.search(rf"^{title}\n(.*?)(?=^\S|\Z)", shown, re.M | re.S)[1]


def terms(program):
    """What the page explains, each on a line of its own before its meaning."""
    text = page_of(program).read_text(encoding="ascii")
    return [re.sub(r"\\f[BIR]", "", term).replace("\\-", "-")
            for term in re.findall(r"^\.TP\n(.*)", text, re.M)]


def help_of(program):
    done = subprocess.run([program, "--help"], capture_output=True, encoding="ascii", check=True)
    return done.stdout


class Pages(unittest.TestCase):
    def test_give_the_usage_that_the_program_gives(self):
        for program in programs:
            with self.subTest(program.name):
                usage = help_of(program).removeprefix("usage: ").split("\n\n")[0]
                self.assertEqual(section(program, "SYNOPSIS").split(), usage.split())

    def test_explain_every_option(self):
        for program in programs:
            options = set(re.findall(r"--[a-z]+", help_of(program)))
            explained = {option for term in terms(program)
                         for option in re.findall(r"--[a-z]+", term)}
            with self.subTest(program.name):
                self.assertIn("--help", options)
                self.assertEqual(explained, options)

    def test_explain_every_command(self):
        for program in programs:
            commands = set(re.findall(rf"{program.name} ([a-z]+)", help_of(program)))
            with self.subTest(program.name):
                self.assertLessEqual(commands, set(terms(program)))

    def test_know_those_that_they_name(self):
        others = {f"{program.name}(1)" for program in programs}
        others |= {f"{page.stem}(3)" for page in man_folder.glob("*.3")}
        for program in programs:
            with self.subTest(program.name):
                named = section(program, "SEE ALSO").replace(",", " ").split()
                self.assertLessEqual(set(named), others)

    def test_are_set_without_a_complaint(self):
        for program in programs:
            with self.subTest(program.name):
                self.assertEqual(set_in(page_of(program))[1], "")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
