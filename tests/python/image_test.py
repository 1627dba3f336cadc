"""Images from files, whole and damaged.

    image_test.py ICONS
"""
import pathlib
import random
import sys
import tempfile
import unittest

from quarlo import Display, Error, Image, raw

icons = pathlib.Path(sys.argv[1])


class Images(unittest.TestCase):
    def setUp(self):
        self.display = Display(display="memory", width=64, height=48, format="565")
        self.addCleanup(self.display.close)
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))

    def written(self, data):
        path = self.folder / "image.grf"
        path.write_bytes(data)
        return path

    def pixels(self):
        handle = self.display.handle
        return [raw.GDGetPixel(handle, x, y) for y in range(48) for x in range(64)]

    def test_of_a_palette_take_the_colours_of_the_display(self):
        image = Image(icons / "help.grf")
        self.assertEqual((image.width, image.height), (32, 32))
        self.display.image(image, 10, 5)
        values = {self.display.pixel_value(color) for color in image.colors()}
        shown = self.pixels()
        self.assertLessEqual(set(shown), values | {0})
        self.assertGreater(len(set(shown)), 4)
        self.assertEqual(shown[:5 * 64 + 10], [0] * (5 * 64 + 10))

    def test_for_another_format_are_refused(self):
        header = b"QGRF" + bytes([1, 0, 1, 0, 2, 0, 1, 0, 16, 0, 0, 0])
        masks = b"\x00\xf8\0\0\xe0\x07\0\0\x1f\0\0\0"
        stream = b"\xc2\x34\x12\0"  # two pixels of one value
        image = Image(self.written(header + masks + bytes([len(stream), 0, 0, 0]) + stream))
        self.display.image(image, 3, 0)
        self.assertEqual(self.pixels()[:6], [0, 0, 0, 0x1234, 0x1234, 0])
        self.display.close()
        with Display(display="memory", width=64, height=48, format="555") as other:
            with self.assertRaisesRegex(Error, "for displays of another format"):
                other.image(image, 0, 0)

    def test_that_are_damaged_are_refused_or_do_no_harm(self):
        data = (icons / "help.grf").read_bytes()
        seed = random.randrange(1 << 32)
        chance = random.Random(seed)
        refused = 0
        for _ in range(1000):
            damaged = bytearray(data)
            for _ in range(chance.randint(1, 3)):
                end = chance.choice((32, len(damaged)))
                damaged[chance.randrange(end)] = chance.choice((0, 1, 255, chance.randrange(256)))
            if chance.random() < 0.3:
                del damaged[chance.randrange(len(damaged)):]
            try:
                self.display.image(Image(self.written(damaged)), 0, 0)
            except Error:
                refused += 1
            except Exception as error:
                error.add_note(f"seed {seed}")
                raise
        self.assertGreater(refused, 100, f"seed {seed}")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
