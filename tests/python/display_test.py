"""Draws, and looks at what came of it."""
import pathlib
import tempfile
import unittest

import quarlo
from quarlo import Rect, raw

RED, GREEN, BLUE = 0xFF0000, 0x00FF00, 0x0000FF


class Drawing(unittest.TestCase):
    def setUp(self):
        self.display = quarlo.Display(display="memory", width=64, height=32, format="24")
        self.addCleanup(self.display.close)

    def color(self, x, y):
        """What stands at a place; the bytes of a pixel are red, green and blue."""
        value = raw.GDGetPixel(self.display.handle, x, y)
        return (value & 0xFF) << 16 | value & 0xFF00 | value >> 16

    def count(self, color):
        return sum(self.color(x, y) == color for y in range(32) for x in range(64))

    def test_fills(self):
        self.display.fill(Rect(2, 3, 5, 6), RED)
        self.assertEqual(self.color(5, 6), RED)
        self.assertEqual(self.count(RED), 16)

    def test_takes_colours_as_text(self):
        self.display.fill((0, 0, 0, 0), "#12ab34")
        self.assertEqual(self.color(0, 0), 0x12AB34)

    def test_frames(self):
        self.display.rect((0, 0, 9, 9), outline=RED)
        self.assertEqual(self.count(RED), 36)
        self.display.rect((20, 0, 29, 9), fill=GREEN, outline=BLUE)
        self.assertEqual((self.count(GREEN), self.count(BLUE)), (64, 36))

    def test_rounds_corners(self):
        self.display.fill((0, 0, 19, 19), RED, radius=6)
        self.assertEqual(self.color(0, 0), 0)
        self.assertEqual(self.color(10, 0), RED)

    def test_draws_lines(self):
        self.display.line([(0, 0), (9, 0), (9, 9)], RED)
        self.assertEqual(self.count(RED), 19)

    def test_draws_wide_and_dashed_lines_and_leaves_the_pen_as_it_was(self):
        self.display.line([(5, 10), (50, 10)], RED, width=5)
        self.assertGreater(self.count(RED), 200)
        self.display.line([(0, 0), (63, 0)], GREEN, dash=1)
        self.assertTrue(0 < self.count(GREEN) < 64)
        self.display.line([(0, 31), (63, 31)], BLUE)
        self.assertEqual(self.count(BLUE), 64)

    def test_draws_curves(self):
        self.display.oval((0, 0, 20, 20), fill=RED)
        self.assertEqual(self.color(10, 10), RED)
        self.display.arc((30, 0, 50, 20), 0, 90, GREEN)
        self.assertEqual(self.color(50, 10), GREEN)
        self.assertEqual(self.color(30, 10), 0)
        self.display.pie((30, 0, 50, 20), 180, 270, fill=BLUE)
        self.assertEqual(self.color(38, 13), BLUE)

    def test_draws_polygons(self):
        self.display.polygon([(0, 0), (20, 0), (0, 20)], fill=RED, outline=GREEN)
        self.assertEqual(self.color(5, 5), RED)
        self.assertEqual(self.color(20, 0), GREEN)
        self.assertEqual(self.color(19, 19), 0)

    def test_bevels(self):
        inside = self.display.bevel((0, 0, 19, 9), light=RED, dark=BLUE, width=2)
        self.assertEqual(inside, Rect(2, 2, 17, 7))
        self.assertEqual((self.color(0, 0), self.color(19, 9)), (RED, BLUE))
        self.display.bevel((0, 0, 19, 9), light=RED, dark=BLUE, sunken=True)
        self.assertEqual((self.color(0, 0), self.color(19, 9)), (BLUE, RED))

    def test_writes(self):
        self.display.text((0, 0, 63, 31), "盤", RED, font=quarlo.Font(size=24, smooth=False))
        self.assertGreater(self.count(RED), 50)

    def test_aligns_text(self):
        def columns(**how):
            self.display.fill(self.display.area, 0)
            self.display.text(self.display.area, "I", RED, font=quarlo.Font(smooth=False), **how)
            return [x for x in range(64) if any(self.color(x, y) == RED for y in range(32))]

        left, centre, right = (columns(align=a) for a in ("left", "centre", "right"))
        self.assertLess(max(left), min(centre))
        self.assertLess(max(centre), min(right))

    def test_measures_text(self):
        self.assertEqual(self.display.text_size("AB盤", quarlo.Font(size=16)), (32, 16))
        self.assertEqual(self.display.text_size("A\nBC", quarlo.Font(size=24)), (24, 48))

    def test_clips(self):
        with self.display.clip((0, 0, 9, 9)):
            with self.display.clip((5, 5, 40, 40)):
                self.display.fill(self.display.area, RED)
            self.display.fill((0, 0, 63, 0), GREEN)
        self.display.fill((0, 31, 63, 31), BLUE)
        self.assertEqual([self.count(c) for c in (RED, GREEN, BLUE)], [25, 10, 64])

    def test_saves_what_was_shown(self):
        self.display.fill(self.display.area, RED)
        self.display.show()
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "picture.png"
            self.display.save(path)
            self.assertTrue(path.read_bytes().startswith(b"\x89PNG"))


class Formats(unittest.TestCase):
    def test_take_the_same_colours(self):
        for form, value in (("8", 0b111_000_11), ("555", 0x7C1F), ("565", 0xF81F),
                            ("24", 0xFF00FF)):
            with self.subTest(form), quarlo.Display(
                    display="memory", width=16, height=16, format=form) as display:
                display.fill(display.area, 0xFF00FF)
                self.assertEqual(raw.GDGetPixel(display.handle, 3, 3), value)
                self.assertEqual(display.pixel_value(0xFF00FF), value)


class Rects(unittest.TestCase):
    def test_know_their_size(self):
        rect = Rect.of(2, 3, 10, 20)
        self.assertEqual(rect, Rect(2, 3, 11, 22))
        self.assertEqual((rect.width, rect.height), (10, 20))
        self.assertIn((11, 22), rect)
        self.assertNotIn((12, 22), rect)

    def test_are_cut(self):
        rect = Rect(0, 0, 9, 9)
        self.assertEqual(rect.inset(2), Rect(2, 2, 7, 7))
        self.assertEqual(rect.cut_top(3), (Rect(0, 0, 9, 2), Rect(0, 3, 9, 9)))
        self.assertEqual(rect.cut_bottom(3), (Rect(0, 7, 9, 9), Rect(0, 0, 9, 6)))
        self.assertEqual(rect.cut_left(3), (Rect(0, 0, 2, 9), Rect(3, 0, 9, 9)))
        self.assertEqual(rect.cut_right(3), (Rect(7, 0, 9, 9), Rect(0, 0, 6, 9)))


if __name__ == "__main__":
    unittest.main()
