"""Draws the panel's icons, PNG files of 32 x 32 pixels with alpha.

    python3 draw.py [FOLDER]    writes NAME.png for each function of symbols.py, and their colours as
                                palette/eight.png; here unless told otherwise
"""

import pathlib
import sys

import cairo

sys.dont_write_bytecode = True

from pen import PALETTE, Pen  # noqa: E402
from symbols import ICONS  # noqa: E402


def draw_palette(path):
    surface = cairo.ImageSurface(cairo.FORMAT_RGB24, len(PALETTE), 1)
    row = memoryview(surface.get_data()).cast("I")
    for index, rgb in enumerate(PALETTE):
        row[index] = rgb
    surface.mark_dirty()
    surface.write_to_png(str(path))


def main():
    folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent)
    for draw in ICONS:
        pen = Pen()
        draw(pen)
        name = draw.__name__.strip("_").replace("_", "-")
        pen.surface.write_to_png(str(folder / f"{name}.png"))
    (folder / "palette").mkdir(exist_ok=True)
    draw_palette(folder / "palette" / "eight.png")


if __name__ == "__main__":
    main()
