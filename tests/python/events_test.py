"""Operates a display as a person would."""
import itertools
import threading
import unittest

import quarlo
from quarlo import Key, KeyDown, KeyUp, Move, Posted, Press, Release, Tick, raw


def close_window():
    raw.GPIHostPostMessage(raw.GMessage(number=raw.G_MESSAGE_QUIT))


class Events(unittest.TestCase):
    def setUp(self):
        self.display = quarlo.Display(display="memory", width=64, height=32)
        self.addCleanup(self.display.close)

    def take(self, count):
        return list(itertools.islice(self.display.events(), count))

    def test_of_keys(self):
        raw.GPIHostFeedKey(raw.GPI_KEY_F1 + 1, 1)
        raw.GPIHostFeedKey(raw.GPI_KEY_F1 + 1, 0)
        raw.GPIHostFeedKey(ord("A"), 1)
        self.assertEqual(self.take(3), [KeyDown(Key.F2), KeyUp(Key.F2), KeyDown(Key.A)])

    def test_of_the_pointer(self):
        raw.GPIHostFeedPointer(5, 6, raw.GPI_POINTER_LEFT)
        raw.GPIHostFeedPointer(7, 8, raw.GPI_POINTER_LEFT)
        raw.GPIHostFeedPointer(7, 8, 0)
        events = self.take(4)
        self.assertEqual(events[1:], [Press(5, 6), Move(7, 8, True), Release(7, 8)])

    def test_end_when_the_window_is_closed(self):
        raw.GPIHostFeedKey(ord("A"), 1)
        close_window()
        self.assertEqual(list(self.display.events()), [KeyDown(Key.A)])

    def test_of_timers(self):
        raw.GPIHostHoldClock(0)
        timer = self.display.every(0.05)
        raw.GPIHostStepClock(60)
        self.assertEqual(self.take(1), [Tick(timer)])
        other = self.display.every(0.02)
        self.assertNotEqual(other, timer)
        self.display.stop(timer)
        raw.GPIHostStepClock(60)
        self.assertEqual(self.take(1), [Tick(other)])

    def test_of_other_threads(self):
        self.display.stop(self.display.every(1))
        thread = threading.Thread(
            target=lambda: [self.display.post(number) for number in range(200)])
        thread.start()
        events = self.take(200)
        thread.join()
        self.assertEqual(events, [Posted(number) for number in range(200)])

    def test_stay_when_many_come_at_once(self):
        self.display.stop(self.display.every(1))
        for number in range(100):
            self.display.post(number)
        close_window()
        self.assertEqual([event.value for event in self.display.events()], list(range(100)))

    def test_are_not_waited_for_where_nobody_sees_the_display(self):
        self.display.wait()


if __name__ == "__main__":
    unittest.main()
