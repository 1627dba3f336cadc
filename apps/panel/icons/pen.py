"""What all icons are drawn with: flat areas in seven colours inside an outline of ink, two pixels wide
with round corners, its middle on whole coordinates so that straight edges are sharp. The outermost
pixels stay free.
"""

import math

import cairo

SIZE = 32
LINE = 2

INK = 0x22262E
WHITE = 0xFFFFFF
LIGHT = 0xCDD3D8
GREY = 0x868E96
RED = 0xC8452C
GREEN = 0x3F9350
BLUE = 0x2F6FB0
GOLD = 0xE3A92F

# For surfaces with a palette. Where pixels fall together, the first colour gives way.
PALETTE = (WHITE, INK, LIGHT, GREY, RED, GREEN, BLUE, GOLD)


class Pen:
    """Shapes on a surface of an icon's size."""

    def __init__(self):
        self.surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, SIZE, SIZE)
        self.context = cairo.Context(self.surface)
        self.context.set_line_cap(cairo.LINE_CAP_ROUND)
        self.context.set_line_join(cairo.LINE_JOIN_ROUND)

    def color(self, rgb):
        self.context.set_source_rgb(*((rgb >> shift & 0xFF) / 255 for shift in (16, 8, 0)))

    def fill(self, rgb):
        """Fills the path and keeps it."""
        self.color(rgb)
        self.context.fill_preserve()

    def stroke(self, rgb=INK, width=LINE):
        self.color(rgb)
        self.context.set_line_width(width)
        self.context.stroke()

    def finish(self, fill):
        """Fills the path, and outlines it in ink."""
        if fill is not None:
            self.fill(fill)
        self.stroke()

    def path(self, *points, close=False):
        self.context.new_path()
        for point in points:
            self.context.line_to(*point)
        if close:
            self.context.close_path()

    def shape(self, fill, *points):
        self.path(*points, close=True)
        self.finish(fill)

    def area(self, fill, *points):
        """A shape without an outline."""
        self.path(*points, close=True)
        self.fill(fill)
        self.context.new_path()

    def line(self, *points, rgb=INK, width=LINE):
        self.path(*points)
        self.stroke(rgb, width)

    def box(self, fill, left, top, right, bottom, radius=0):
        context = self.context
        context.new_path()
        corners = ((right, top, -90), (right, bottom, 0), (left, bottom, 90), (left, top, 180))
        for x, y, start in corners:
            inner_x = x - radius if x == right else x + radius
            inner_y = y + radius if y == top else y - radius
            context.arc(inner_x, inner_y, radius, math.radians(start), math.radians(start + 90))
        context.close_path()
        self.finish(fill)

    def disc(self, fill, x, y, radius):
        self.context.new_path()
        self.context.arc(x, y, radius, 0, 2 * math.pi)
        self.finish(fill)

    def dot(self, rgb, x, y, radius):
        """A disc without an outline."""
        self.context.new_path()
        self.context.arc(x, y, radius, 0, 2 * math.pi)
        self.fill(rgb)
        self.context.new_path()

    def arc(self, rgb, x, y, radius, start, end, width=LINE):
        """Angles in degrees, growing clockwise from the right."""
        self.context.new_path()
        self.context.arc(x, y, radius, math.radians(start), math.radians(end))
        self.stroke(rgb, width)

    def mirror(self):
        """Left becomes right from now on."""
        self.context.translate(SIZE, 0)
        self.context.scale(-1, 1)
