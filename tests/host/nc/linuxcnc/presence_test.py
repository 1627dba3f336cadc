"""Tests of how LinuxCNC is found, in a folder that has the look of /proc."""

import os
import pathlib
import tempfile
import unittest
from unittest import mock

import linuxcnc

from quarlo_linuxcnc import presence, processes
from quarlo_linuxcnc.presence import Lost, Presence

NML = """\
# Buffers
B emcCommand SHMEM localhost 8192 0 0 1 16 1001 TCP=5005 xdr
B emcStatus  SHMEM localhost 16384 0 0 2 16 1002 TCP=5005 xdr
"""


class World(unittest.TestCase):
    """A computer on which LinuxCNC runs."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.write("linuxcnc.nml", NML)
        self.write("machine.ini", "[TASK]\nTASK = milltask\n")
        self.write("home/.tool.mmap", "")
        for patch in (mock.patch.object(processes, "PROC", str(self.folder)),
                      mock.patch.object(linuxcnc, "nmlfile", str(self.folder / "linuxcnc.nml")),
                      mock.patch.dict(os.environ, HOME=str(self.folder / "home"))):
            patch.start()
            self.addCleanup(patch.stop)
        self.run_process(1, "init")
        self.run_process(70, "linuxcncsvr", "linuxcncsvr", "-ini", f"{self.folder}/machine.ini")
        self.run_process(71, "milltask")
        self.share((1001, 5), (1002, 6))

    def write(self, name, text):
        path = self.folder / name
        path.parent.mkdir(exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def run_process(self, pid, name, *words, state="S"):
        self.write(f"{pid}/stat", f"{pid} ({name}) {state} 1 {pid} 0")
        self.write(f"{pid}/cmdline", "".join(f"{word}\0" for word in words))

    def end_process(self, pid):
        (self.folder / f"{pid}/stat").unlink()

    def share(self, *segments):
        lines = ["       key      shmid perms", *(f"{key:10} {place:10} 600"
                                                  for key, place in segments)]
        self.write("sysvipc/shm", "\n".join(lines) + "\n")


class Processes(World):
    def test_are_found_by_name(self):
        self.assertEqual(processes.process_of("milltask"), "71")
        self.assertIsNone(processes.process_of("task"))
        self.assertIsNone(processes.process_of("linuxcncsv"))

    def test_are_not_those_that_have_ended(self):
        for state in "ZX":
            self.run_process(71, "milltask", state=state)
            self.assertIsNone(processes.process_of("milltask"))

    def test_have_names_of_any_kind(self):
        for name in ("a b", "a) S (b", ") Z 1"):
            self.run_process(80, name)
            self.assertEqual(processes.process_of(name), "80")

    def test_have_names_that_the_system_cuts(self):
        self.run_process(80, "a-long-name-of-")
        self.assertEqual(processes.process_of("a-long-name-of-a-task"), "80")

    def test_of_this_system_are_found(self):
        with mock.patch.object(processes, "PROC", "/proc"):
            name = pathlib.Path("/proc/self/comm").read_text(encoding="utf-8").rstrip("\n")
            self.assertTrue(processes.is_process(os.getpid(), name))
            self.assertFalse(processes.is_process(os.getpid(), name + "x"))


class Memory(World):
    def test_is_found_by_its_key(self):
        self.assertEqual(processes.shared_memory(1002), 6)
        self.assertIsNone(processes.shared_memory(6))


class Finding(World):
    def expect_lost(self, find, reason="LinuxCNC does not run"):
        with self.assertRaises(Lost) as lost:
            find()
        self.assertEqual(str(lost.exception), reason)

    def test_succeeds(self):
        found = Presence()
        self.assertEqual((found.task, found.process, found.memory), ("milltask", "71", 6))
        found.check()

    def test_goes_by_the_name_in_the_configuration(self):
        self.run_process(72, "other-task")
        self.write("machine.ini", "TASK = /opt/bin/other-task\n")
        self.assertEqual(Presence().process, "72")
        self.write("machine.ini", "")
        self.assertEqual(Presence().process, "71", "the usual one")

    def test_fails_without_a_process(self):
        for pid in (71, 70):
            self.end_process(pid)
            self.expect_lost(Presence)

    def test_fails_where_the_server_does_not_tell_a_configuration(self):
        for words in ((), ("linuxcncsvr",), ("linuxcncsvr", "-ini", "/nowhere.ini")):
            with self.subTest(words):
                self.run_process(70, "linuxcncsvr", *words)
                self.expect_lost(Presence)

    def test_fails_without_shared_memory(self):
        self.share((1001, 5))
        self.expect_lost(Presence)

    def test_fails_without_tools(self):
        (self.folder / "home/.tool.mmap").unlink()
        self.expect_lost(Presence)

    def test_fails_without_a_place_of_the_status(self):
        self.write("linuxcnc.nml", NML.partition("B emcStatus")[0])
        self.expect_lost(Presence, "its status has no place")
        self.assertRaises(Lost, presence.status_key)

    def test_notices_the_end(self):
        found = Presence()
        self.end_process(71)
        self.expect_lost(found.check, "LinuxCNC has ended")

    def test_notices_another_that_has_begun(self):
        found = Presence()
        self.share((1002, 7))
        self.expect_lost(found.check, "LinuxCNC has ended")


if __name__ == "__main__":
    unittest.main()
