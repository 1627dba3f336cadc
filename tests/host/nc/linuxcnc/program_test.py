"""Runs the program as the platform does, from the folder that it was installed to or its sources.

    program_test.py FOLDER
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

FOLDER = pathlib.Path(sys.argv.pop()).resolve()
FAKE = pathlib.Path(__file__).resolve().parent / "fake"


class Program(unittest.TestCase):
    def start(self, program=FOLDER / "quarlo-linuxcnc"):
        """Starts it in front of a LinuxCNC that does not run."""
        environment = {**os.environ, "PYTHONPATH": str(FAKE)}
        environment.pop("PYTHONDONTWRITEBYTECODE", None)
        process = subprocess.Popen([program], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                   env=environment, bufsize=0)
        self.addCleanup(process.stdout.close)
        self.addCleanup(process.wait)
        self.addCleanup(process.stdin.close)
        self.assertEqual(process.stdout.readline(), b"lost its status has no place\n")
        return process

    def test_ends_with_its_input(self):
        process = self.start()
        process.stdin.close()
        self.assertEqual(process.wait(), 0)
        self.assertEqual(process.stdout.read(), b"")

    def test_replies_to_whole_lines(self):
        process = self.start()
        process.stdin.write(b"1 system 5 1\n2 block \xff\n3 sys")
        self.assertEqual(process.stdout.readline(), b"reply 1 -6\n")
        self.assertEqual(process.stdout.readline(), b"reply 2 -6\n")
        process.stdin.write(b"tem 5 1\n")
        self.assertEqual(process.stdout.readline(), b"reply 3 -6\n")

    def test_runs_by_a_link(self):
        with tempfile.TemporaryDirectory() as folder:
            link = pathlib.Path(folder) / "helper"
            link.symlink_to(FOLDER / "quarlo-linuxcnc")
            self.start(link)

    def test_leaves_nothing_behind_in_its_folder(self):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            shutil.copy2(FOLDER / "quarlo-linuxcnc", folder)
            shutil.copytree(FOLDER / "quarlo_linuxcnc", folder / "quarlo_linuxcnc",
                            ignore=shutil.ignore_patterns("__pycache__"))
            before = set(folder.rglob("*"))
            process = self.start(folder / "quarlo-linuxcnc")
            process.stdin.close()
            process.wait()
            self.assertEqual(set(folder.rglob("*")), before)


if __name__ == "__main__":
    unittest.main()
