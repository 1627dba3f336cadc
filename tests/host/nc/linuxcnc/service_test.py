"""Tests of the service: what is said to the platform, from the first line to the last."""

import unittest
from unittest import mock

import linuxcnc

from bench import Bench
from quarlo_linuxcnc import service
from quarlo_linuxcnc.presence import Lost


class ScriptedPipe:
    """A platform that sends lines, look by look, and hangs up behind the last."""

    def __init__(self, *looks):
        self.looks = list(looks)
        self.sent = []
        self.open = True

    def send(self, lines):
        self.sent += lines

    def receive(self, _):
        lines = self.looks.pop(0)
        self.open = bool(self.looks)
        return lines


class Service(Bench):
    def serve(self, *looks):
        pipe = ScriptedPipe([], *looks)
        service.serve(pipe, self.control)
        return pipe.sent[pipe.sent.index("show") + 1:]

    def test_replies_behind_what_came_of_a_request(self):
        self.control.command.effects = {("set_optional_stop", True): {"optional_stop": True}}
        self.assertEqual(self.serve(["41 system 7 1", "42 system 2 0"], ["43 block G0 X1"], []),
                         ["system 7 1", "show", "reply 41 1", "reply 42 -1", "reply 43 -4"])

    def test_replies_to_nonsense(self):
        self.assertEqual(self.serve(["41", "42 odd", ""], []),
                         ["reply 41 -1", "reply 42 -1", "reply  -1"])


class Waiting(Bench):
    def test_turns_requests_down_until_there_is_a_control(self):
        pipe = ScriptedPipe(["1 system 5 1", "2 block G0"], [], [])
        found = object()
        reasons = [Lost("LinuxCNC does not run"), Lost("likewise"), found]
        with mock.patch.object(service, "Presence", side_effect=reasons):
            self.assertIs(service.wait_for_control(pipe), found)
        self.assertEqual(pipe.sent, ["lost LinuxCNC does not run", "reply 1 -6", "reply 2 -6"])

    def test_ends_with_the_platform(self):
        pipe = ScriptedPipe([], [])
        with mock.patch.object(service, "Presence", side_effect=Lost("LinuxCNC does not run")):
            self.assertIsNone(service.wait_for_control(pipe))


class Losing(Bench):
    def main(self, presence):
        pipe = ScriptedPipe([], [], [])
        with mock.patch.object(service, "Presence", return_value=presence), \
                mock.patch.object(service, "Pipe", return_value=pipe):
            service.main()
        return pipe.sent

    def test_says_why(self):
        presence = mock.Mock()
        presence.check.side_effect = [None, Lost("LinuxCNC has ended")]
        sent = self.main(presence)
        self.assertEqual(sent[0], "extent 3 1 99999 6000.0 10000.0")
        self.assertEqual(sent[-2:], ["show", "lost LinuxCNC has ended"])

    def test_says_what_the_libraries_say(self):
        for kind in (linuxcnc.error, SystemError):
            with mock.patch.object(linuxcnc, "command", side_effect=kind("no\n channel")):
                self.assertEqual(self.main(mock.Mock()), ["lost no channel"])

    def test_does_not_happen_when_the_platform_ends(self):
        self.assertEqual(self.main(mock.Mock())[-1], "show")


if __name__ == "__main__":
    unittest.main()
